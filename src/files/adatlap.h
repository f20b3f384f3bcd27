#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "files/kvhrekord.h"

/// A chart with its events on the way between a chart file and an exchange file, field by field.

/// Fields of a chart or an event, in the order in which a table shows them.
enum class TMezo {
    nev,
    ev,
    ho,
    nap,
    ora,
    perc,
    mperc,
    idozona,
    nyariIdo,
    helyseg,
    hosszusag,
    szelesseg,
    jegyzet,
    hang
};
inline constexpr std::size_t mezoSzam = 14;
using TMezok = std::bitset<mezoSzam>;

/// Coordinates are numbers too, shown as degrees.
enum class TMezoFajta { szoveg, szam, hosszusag, szelesseg };

/// What a field is called and where it stands in a record.
struct TMezoLeiras {
    TMezo mezo;
    std::string_view nev;         ///< of a chart
    std::string_view esemenyNev;  ///< of an event
    TMezoFajta fajta;
    std::string TKvhRekord::*szoveg = nullptr;
    std::int32_t TKvhRekord::*szam = nullptr;
    std::int32_t TPillanat::*pillanat = nullptr;
    std::int32_t also = 0, felso = 0;  ///< range that the dialogs let through
};
extern const std::array<TMezoLeiras, mezoSzam> adatMezok;

/// The number of a field that has one.
std::int32_t& MezoSzam(TKvhRekord& rekord, const TMezoLeiras& leiras);
std::int32_t MezoSzam(const TKvhRekord& rekord, const TMezoLeiras& leiras);

/// A chart or an event as read; of an event the texts are its name, its analogies and, as a decimal number,
/// the Sun's house.
struct TAdatRekord {
    TKvhRekord adat;
    TMezok hianyzik;  ///< what the source did not tell
    int sor = 0;      ///< line of the source where it begins

    bool van(TMezo mezo) const { return !hianyzik[static_cast<std::size_t>(mezo)]; }
    void hianyzo(TMezo mezo, bool igaz = true) { hianyzik[static_cast<std::size_t>(mezo)] = igaz; }
};

inline constexpr std::size_t adatEsemenyek = 20;  ///< as many as a chart file holds

struct TAdatlap {
    TAdatRekord keplet;
    std::vector<TAdatRekord> esemenyek;
};

/// What is told to the user about a source: a record that was left out, a field that was lost or changed, a
/// contradiction that stands.
enum class TJelentesFajta { hiba, veszteseg, elteres };
struct TJelentes {
    TJelentesFajta fajta;
    int sor;
    std::string szoveg;

    friend bool operator==(const TJelentes&, const TJelentes&) = default;
};
using TJelentesek = std::vector<TJelentes>;

/// What a reader makes of a source: the records that could be read, and reports about the others.
struct TAdatlapok {
    std::vector<TAdatlap> lapok;
    TJelentesek jelentesek;
};

/// Text for a message: in quotes, control characters escaped, a long one cut.
std::string Idezve(std::string_view szoveg);

/// How messages call a record.
/// @param esemeny  number of the event from 1, or 0 for the chart
std::string RekordCimke(const TKvhRekord& keplet, int esemeny = 0);

/// Coordinate as people write it: 20°09'46"K, 18°56'Ny; the seconds only where there are any.
std::string FokSzoveg(std::int32_t ivmasodperc, bool szelesseg);

/// The fields that came back different from an exchange, one sentence each.
std::vector<std::string> MezoElteresek(const TAdatlap& eredeti, const TAdatlap& vissza);
