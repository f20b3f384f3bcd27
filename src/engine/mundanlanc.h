#pragma once

#include <cstdint>
#include <optional>

#include "engine/fenyszogek.h"
#include "engine/keszlet.h"
#include "engine/mundantablak.h"
#include "tables/tomb.h"

/// The chart pipeline a second time, for trial charts: the same routines on a set of tables of its own, so
/// that nothing of the chart on screen is touched, and at its end the verdict on the mundane houses.

/// Place of a trial chart.
struct TMundanHely {
    std::int32_t idozona = 1;       ///< hours, east positive
    std::int32_t szelesseg = 0;     ///< arcseconds, north positive
    std::int32_t hosszusag = 0;     ///< arcseconds, east positive
    std::optional<int> nyariIdo{};  ///< typed with the place; without it each moment asks the table anew
};

/// The results of one trial chart.
struct TMundanLanc {
    TBolygok Bolygok;
    TMozgasok Mozgasok;
    Tomb<int, 10> JegySzam;    ///< sign 1..12 of each body; 13 for a body at exactly 360 degrees
    TBolygoHazak BolygoHazak;  ///< 0 for a body that fits no house: no earlier chart is remembered
    THazcsucsok Hazcsucsok;
    TJelMatrix FenyszogRadix;  ///< the diagonal holds '+', where the chart on screen has '.'
    TJelMatrix AlsoFelsoMatrix;
    TJelMatrix EgyuttallasMatrix;
    TFenyszogMunka Munka;
    char MundanEredmeny = '0';  ///< as `MundanEllenorzes` gives it
};

/// Runs the whole pipeline for a moment of the zone's clock.
/// @param julianszam  day of the clock
void MundanLanc(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc,
                const TMundanHely& hely, const TOrbisTabla& OrbisTabla, TMundanLanc& lanc);

/// The pipeline's steps for one who runs them apart. Cusps and bodies of a moment:
void MundanHelyzetek(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc,
                     const TMundanHely& hely, int nyariIdo, TMundanLanc& lanc);
/// signs and aspects, chains and sides, from the bodies alone:
void MundanFenyszogek(const TOrbisTabla& OrbisTabla, TMundanLanc& lanc);
/// the bodies' houses.
void MundanBesorolas(TMundanLanc& lanc);

/// Whether a square or an opposition stands in the cell and the other body lies below.
constexpr bool kemenyFenyszog(const TMundanLanc& lanc, int i, int k) {
    const char jel = lanc.FenyszogRadix[i][k];
    return (jel == 'R' || jel == 'W') && lanc.AlsoFelsoMatrix[i][k] == 'A';
}

/// Sign on a cusp, 1..12; 13 for a cusp at 360 degrees or above.
int csucsJegye(double csucs);

/// The sign sets that both verdicts are put together of.
struct TMundanKeszletek {
    Tomb<TJegyHalmaz, 12> jegyben;  ///< by the bodies standing in each sign
    Tomb<TJegyHalmaz, 12> hazban;   ///< by the bodies standing in each horizon house
    Tomb<TJegyHalmaz, 12> urak;     ///< by sign: where its rulers stand, whom they join and what they aspect

    /// By the rulers of the sign on a cusp; a sign outside 1..12 has none.
    TJegyHalmaz csucsUrai(int jegy) const { return jegy >= 1 && jegy <= 12 ? urak[jegy] : 0; }
};

/// @param parJegyek  signs that each body's hard aspects link
TMundanKeszletek MundanKeszletek(const TMundanLanc& lanc, const Tomb<TJegyHalmaz, 10>& parJegyek);

/// Whether houses and mundane houses agree: '0' they do not, '1' they do, also on an angle by decan,
/// '2' they do, but on no angle by decan.
/// @note A house is held against the fixed signs of its mundane house; here each body takes the partner signs
///       of its own row. `Analogiak` differs in both, so the two verdicts may differ.
char MundanEllenorzes(const TMundanLanc& lanc);
