#include "predictive/tercier.h"

#include <string_view>

#include "engine/fenyszogek.h"
#include "engine/hazak.h"
#include "engine/keszlet.h"
#include "engine/uralkodok.h"
#include "predictive/natalis.h"
#include "predictive/orbisablak.h"
#include "tables/pillanat.h"
#include "tables/szamtan.h"
#include "tables/szotar.h"
#include "tables/tomb.h"

bool TercierTalalat(double d, const TOrbisAblak& a) {
    if (a.also >= a.felso) return (a.also <= d && d < 360) || (0 <= d && d <= a.felso);
    return a.also <= d && d <= a.felso;
}

namespace {

/// The opposite house of each.
constexpr Tomb<std::string_view, 12> TercierHazSzemben{
    {"VII", "8", "9", "X", "11", "12", "I", "2", "3", "IV", "5", "6"}};

/// The directed place: 360 is added once where the arc leads below 0; more is not reduced.
double iranyitott(double hossz, double iv) {
    return hossz - iv < 0 ? hossz + 360 - iv : hossz - iv;
}

std::string_view hazCimke(const Tomb<std::string_view, 12>& cimkek, int haz) {
    return haz >= 1 && haz <= 12 ? cimkek[haz] : std::string_view{};
}

std::string jegyesBolygo(const TBolygok& lon, int i) {
    return std::string(jegyBetu(egesz(lon[i] / 30) + 1)) + bolygoJel[i];
}

/// Everything that the directed body j meets.
struct TTalalatok {
    std::string jelek, hazak;
};

TTalalatok talalatok(const TKeplet& k, double orb, double iv, int j) {
    const TBolygok& lon = k.Bolygok;
    const double d = iranyitott(lon[j], iv);
    TTalalatok t;
    for (int i = 1; i <= 10; ++i) {
        if (i == j) continue;
        const double szemben = lon[i] + 180 >= 360 ? lon[i] - 180 : lon[i] + 180;
        if (TercierTalalat(d, OrbisAblak(lon[i], orb))) {
            t.jelek += 'M' + jegyesBolygo(lon, i);
            t.hazak.append("-").append(hazCimke(HazCimkeRovid, k.BolygoHazak[i]));
        }
        if (TercierTalalat(d, OrbisAblak(szemben, orb))) {
            t.jelek += 'W' + jegyesBolygo(lon, i);
            t.hazak.append("-").append(hazCimke(TercierHazSzemben, k.BolygoHazak[i]));
        }
    }
    return t;
}

}  // namespace

TTercier TercierKeres(Allapot& allapot, const TPillanat& szuletes, const TPillanat& esemeny,
                      const std::string& helyseg, double orbisNap) {
    NatalisBolygok(allapot, szuletes, helyseg);
    TKeplet& k = allapot.Keplet;
    Hazak(k.armcOra, k.armcPerc, k.armcMperc, k.Hazcsucsok, k.szelesseg);
    ElteresSzamitas(k.Bolygok, allapot.Munka);
    HazBesorolas(k.Bolygok, k.Hazcsucsok, k.BolygoHazak);

    const auto orb = static_cast<double>(TercierKulcs * orbisNap);
    const auto iv = static_cast<double>(TercierKulcs * (napSzama(esemeny) - napSzama(szuletes)));

    TTercier ki;
    for (int j = 1; j <= 10; ++j) {
        const TTalalatok t = talalatok(k, orb, iv, j);
        if (t.jelek.empty()) continue;
        if (!ki.TercierSzoveg.empty()) {
            ki.TercierSzoveg += 'Q';
            ki.TercierHazSzoveg += "  ";
        }
        ki.TercierSzoveg += jegyesBolygo(k.Bolygok, j) + t.jelek;
        ki.TercierHazSzoveg.append(hazCimke(HazCimkeRovid, k.BolygoHazak[j])).append(t.hazak);
    }
    return ki;
}
