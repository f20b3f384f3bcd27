#include "rectify/mundankoveto.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "engine/bolygohelyek.h"
#include "engine/fenyszogek.h"
#include "engine/uralkodok.h"
#include "rectify/analogiak.h"
#include "tables/efemerida.h"
#include "tables/nyariido.h"
#include "tables/szamtan.h"
#include "tables/szotar.h"

/// Summer time changes at full hours and at most once a day, so a day that ends as it began has no change.
int TMundanKoveto::nyariIdo(std::int32_t julianszam, std::int32_t ora, std::int32_t perc,
                            std::int32_t mperc) {
    if (hely_.nyariIdo) return *hely_.nyariIdo;
    if (julianszam != nyariIdoNapja_) {
        nyariIdoNapja_ = julianszam;
        nyariIdoElejen_ = NyariIdoE(julianszam, 0, 0, 0);
        nyariIdoVegen_ = NyariIdoE(julianszam, 23, 59, 59);
    }
    const std::int64_t masodperc = idoMasodperc(ora, perc, mperc);
    const bool anap = masodperc >= 0 && masodperc < napMasodperc;
    if (anap && nyariIdoElejen_ == nyariIdoVegen_) return nyariIdoElejen_;
    return NyariIdoE(julianszam, ora, perc, mperc);
}

void TMundanKoveto::csucsok(const TCsillagIdo& ido) {
    const THazHely hely = HazHely(ido.armcOra, ido.armcPerc, ido.armcMperc);
    if (hely.sor != hazSorSzama_) {
        hazSorSzama_ = hely.sor;
        hazSor_ = HazSor(hely.sor, hely_.szelesseg);
    }
    HazakSorban(hazSor_, hely.dt, lanc_.Hazcsucsok);
}

namespace {

/// Taken off each margin: far above all rounding, far below any motion that matters.
constexpr double biztonsag = 1e-9;  // degrees

constexpr double vegtelen = std::numeric_limits<double>::infinity();

/// How far an even motion may go, on and back, before it comes to one of some thresholds.
class TTurelem {
public:
    /// @param hely  where it stands
    /// @param ut    its motion in a day; only the sign counts here
    TTurelem(double hely, double ut) : hely_(hely), novekszik_(ut >= 0) {}

    void hatar(double kuszob) {
        const double tav = novekszik_ ? kuszob - hely_ : hely_ - kuszob;
        if (tav >= -biztonsag) elore = std::min(elore, tav - biztonsag);
        if (tav <= biztonsag) hatra = std::min(hatra, -tav - biztonsag);
    }

    double elore = vegtelen, hatra = vegtelen;  ///< degrees

private:
    double hely_;
    bool novekszik_;
};

/// Start and end of a decan, where signs and decans change.
TTurelem dekadTurelem(double hossz, double ut) {
    TTurelem t(hossz, ut);
    const double kezdet = 10 * std::floor(hossz / 10);
    t.hatar(kezdet);
    t.hatar(kezdet + 10);
    return t;
}

/// The distances of two bodies at which an aspect begins or ends; the side of one to the other changes where
/// the distance turns round.
/// @param ut  motion of a less that of b
TTurelem parTurelem(double a, double b, double ut, const Tomb<double, 9>& egyik,
                    const Tomb<double, 9>& masik) {
    const bool visszafele = (a < b) != (std::abs(a - b) > 180);
    TTurelem t(szogTavolsag(a, b), visszafele ? -ut : ut);
    t.hatar(0);
    t.hatar(180);
    for (int k = 1; k <= 9; ++k) {
        const double orb = (egyik[k] + masik[k]) / 2;
        t.hatar(fenyszogSzog[k] - orb);
        t.hatar(fenyszogSzog[k] + orb);
    }
    return t;
}

/// Motion of each body in a day of the ephemeris, degrees.
Tomb<double, 10> napiMozgas(std::int32_t julianszam, const TMozgasok& Mozgasok) {
    const TEfemeridaNap& ma = efemeridaNap(julianszam);
    const TEfemeridaNap& holnap = efemeridaNap(std::int64_t{julianszam} + 1);
    Tomb<double, 10> mozgas;
    for (int i = 1; i <= 10; ++i) {
        const auto oszlop = efemeridaOszlopok[static_cast<std::size_t>(i - 1)];
        mozgas[i] = KoztesLepes(ma.*oszlop, holnap.*oszlop, Mozgasok[i]) / 3600.0;
    }
    return mozgas;
}

}  // namespace

bool TMundanKoveto::fenyszogekAllnak(const TCsillagIdo& ido) const {
    const double eltelt = ido.napresz - fenyszogKoz_.napresz;
    return ido.julianszam == fenyszogKoz_.julianszam && -fenyszogKoz_.hatra < eltelt &&
           eltelt < fenyszogKoz_.elore;
}

void TMundanKoveto::fenyszogek(const TCsillagIdo& ido) {
    ++szamitasok_.fenyszogek;
    MundanFenyszogek(OrbisTabla_, lanc_);
    const Tomb<double, 10> mozgas = napiMozgas(ido.julianszam, lanc_.Mozgasok);
    leggyorsabb_ = 0;
    fenyszogKoz_ = {ido.julianszam, ido.napresz, 1, 1};
    const auto legfeljebb = [this](const TTurelem& turelem, double ut) {
        if (ut == 0) return;
        fenyszogKoz_.elore = std::min(fenyszogKoz_.elore, turelem.elore / std::abs(ut));
        fenyszogKoz_.hatra = std::min(fenyszogKoz_.hatra, turelem.hatra / std::abs(ut));
    };
    for (int i = 1; i <= 10; ++i) {
        leggyorsabb_ = std::max(leggyorsabb_, std::abs(mozgas[i]));
        legfeljebb(dekadTurelem(lanc_.Bolygok[i], mozgas[i]), mozgas[i]);
        for (int j = i + 1; j <= 10; ++j) {
            const double ut = mozgas[i] - mozgas[j];
            legfeljebb(parTurelem(lanc_.Bolygok[i], lanc_.Bolygok[j], ut, OrbisTabla_[orbisSor(i)],
                                  OrbisTabla_[orbisSor(j)]),
                       ut);
        }
    }
}

bool TMundanKoveto::hazakAllnak(const TCsillagIdo& ido) const {
    const double bolygoUt = std::abs(ido.napresz - hazKoz_.napresz) * leggyorsabb_;
    for (int h = 1; h <= 12; ++h) {
        const double csucsUt = lanc_.Hazcsucsok[h] - hazCsucsai_[h];
        if (!(csucsUt + bolygoUt < hazKoz_.elore && bolygoUt - csucsUt < hazKoz_.hatra)) return false;
    }
    return true;
}

bool TMundanKoveto::hazak(const TCsillagIdo& ido) {
    ++szamitasok_.hazak;
    const TBolygoHazak elozo = lanc_.BolygoHazak;
    MundanBesorolas(lanc_);
    hazCsucsai_ = lanc_.Hazcsucsok;
    hazKoz_ = {ido.julianszam, ido.napresz, vegtelen, vegtelen};
    const double elso = hazHatar(lanc_.Hazcsucsok[1], 1);
    for (int h = 1; h <= 12; ++h) {
        const double hatar = hazHatar(lanc_.Hazcsucsok[h], h);
        // No boundary may come to the first one either, from which they are counted.
        if (h > 1) hazKoz_.elore = std::min(hazKoz_.elore, szogTavolsag(hatar, elso) / 2);
        if (h > 1) hazKoz_.hatra = std::min(hazKoz_.hatra, szogTavolsag(hatar, elso) / 2);
        for (const double hossz : lanc_.Bolygok) {
            const double elotte = hossz >= hatar ? hossz - hatar : hossz - hatar + 360;
            hazKoz_.elore = std::min(hazKoz_.elore, elotte - biztonsag);
            hazKoz_.hatra = std::min(hazKoz_.hatra, 360 - elotte - biztonsag);
        }
    }
    return lanc_.BolygoHazak != elozo;
}

bool TMundanKoveto::csucsjegyekAllnak() const {
    for (int h = 1; h <= 12; ++h) {
        const double csucs = lanc_.Hazcsucsok[h];
        if (!(csucsTartomany_[h].also < csucs && csucs < csucsTartomany_[h].felso)) return false;
    }
    return true;
}

/// The sign that each cusp stands in, of an angular one the decan; start and end are left to the exact
/// reckoning.
void TMundanKoveto::csucsjegyek() {
    ++szamitasok_.csucsjegyek;
    for (int h = 1; h <= 12; ++h) {
        const double szakasz = h % 3 == 1 ? 10 : 30;  // degrees
        const double kezdet = szakasz * std::floor(lanc_.Hazcsucsok[h] / szakasz);
        csucsTartomany_[h] = {kezdet + biztonsag, kezdet + szakasz - biztonsag};
    }
}

char TMundanKoveto::allapot(std::int32_t julianszam, std::int32_t ora, std::int32_t perc,
                            std::int32_t mperc) {
    const TCsillagIdo ido = CsillagIdo(julianszam, ora, perc, mperc, hely_.hosszusag,
                                       nyariIdo(julianszam, ora, perc, mperc), hely_.idozona);
    csucsok(ido);
    const bool fenyszogekMaradnak = fenyszogekAllnak(ido);
    const bool hazakMaradnak = fenyszogekMaradnak && hazakAllnak(ido);
    bool valtozott = !csucsjegyekAllnak();
    if (hazakMaradnak && !valtozott) return allapot_;

    BolygoHelyek(ido.julianszam, ido.napresz, lanc_.Bolygok, lanc_.Mozgasok);
    if (valtozott) csucsjegyek();
    if (!fenyszogekMaradnak) {
        fenyszogek(ido);
        valtozott = true;
    }
    if (!hazakMaradnak) valtozott = hazak(ido) || valtozott;
    if (valtozott) allapot_ = Analogiak(lanc_).AnalogiaAllapot;
    return allapot_;
}
