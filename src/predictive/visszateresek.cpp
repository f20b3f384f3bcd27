#include "predictive/visszateresek.h"

#include <algorithm>

#include "chart/kepletciklus.h"
#include "chart/kepletmutatas.h"
#include "chart/statuszsor.h"
#include "engine/bolygohelyek.h"
#include "engine/csillagido.h"
#include "engine/hazak.h"
#include "tables/efemerida.h"
#include "tables/nyariido.h"
#include "tables/szamtan.h"
#include "tables/telepulesek.h"

namespace {

constexpr double kor = 1296000;           // arcseconds
constexpr int utolsoKeresettSor = 65000;  ///< the search stops after the first day above it
constexpr int egyIvperc = 60;             ///< arcseconds added to both coordinates of a derived chart

constexpr int revolucioSorok = 1000;
constexpr int personarSorok = 13;

}  // namespace

TVisszateresFajta RevolucioFajta(int fajta) {
    return {
        revolucioCimek[fajta], "Visszatérések:", VisszateresPont::bolygo, fajta, fajta, revolucioSorok, true};
}

TVisszateresFajta PersonarFajta(int fajta) {
    // The two angles, then Moon to Pluto.
    constexpr Tomb<int, 11> szamok{{1, 10, 2, 3, 4, 5, 6, 7, 8, 9, 10}};
    const auto pont = fajta <= 2 ? VisszateresPont::csucs : VisszateresPont::bolygo;
    return {personarCimek[fajta], "Nap-áthaladások:", pont, szamok[fajta], 1, personarSorok, false};
}

TPillanat VisszateresKezdo(const Allapot& allapot) {
    TPillanat p = allapot.RadixPillanat;
    JulianszambolDatum(DatumbolJulianszam(p.ev, p.ho, p.nap) - 1, p.ev, p.ho, p.nap);
    return p;
}

double VisszateresCel(Allapot& allapot, const TVisszateresFajta& fajta) {
    TKeplet& k = allapot.Keplet;
    TPillanat p = allapot.RadixPillanat;
    k.julianszam = DatumbolJulianszam(p.ev, p.ho, p.nap);
    k.nyariIdo = NyariIdoE(k.julianszam, p.ora, p.perc, p.mperc);
    CsillagIdo(p.ora, p.perc, p.mperc, k.napresz, k.julianszam, k.hosszusag, k.armcMperc, k.armcPerc,
               k.armcOra, k.nyariIdo, k.idozona);
    Hazak(k.armcOra, k.armcPerc, k.armcMperc, k.Hazcsucsok, k.szelesseg);
    BolygoHelyek(k.julianszam, k.napresz, k.Bolygok, k.Mozgasok);
    const double hossz =
        fajta.pont == VisszateresPont::bolygo ? k.Bolygok[fajta.szam] : k.hazCsucs[fajta.szam];
    return hossz * 3600;
}

namespace {

/// Whether the step of a direct day from a to b holds t.
bool direktTalalat(double a, double b, double t) {
    if (a < b) return a <= t && t < b;
    if (a == b) return true;
    return (a <= t && t < 360) || (t >= 0 && t < b);
}

double direktResz(double a, double b, double t) {
    const double ut = (b <= a ? b + kor : b) - a;
    const double megtett = (t <= a ? t + kor : t) - a;
    return megtett / ut;
}

double retrogradResz(double a, double b, double t) {
    const double ut = (a <= b ? a + kor : a) - b;
    const double megtett = t < a ? a - t : a + kor - t;
    return megtett / ut;
}

TVisszateres talalat(int napsorszam, double resz, char mozgas) {
    TVisszateres v;
    const TEfemeridaNap& nap = Efemerida[napsorszam];
    const double s = resz * 86400;
    const int ora = egesz(s / 3600);
    const int perc = egesz((s - ora * 3600.0) / 60);
    v.pillanat = {nap.ev, nap.ho, nap.nap, ora, perc, egesz(s - perc * 60.0 - ora * 3600.0)};
    v.mozgas = mozgas;
    return v;
}

}  // namespace

void VisszateresKereses(Allapot& allapot, const TVisszateresFajta& fajta, double cel) {
    TVisszateresek& v = allapot.Visszateresek;
    v.szamlalo = 0;
    TPillanat kezdo = VisszateresKezdo(allapot);
    const auto oszlop = efemeridaOszlopok[static_cast<std::size_t>(fajta.bolygo - 1)];
    int nap = DatumbolJulianszam(kezdo.ev, kezdo.ho, kezdo.nap) - julianszamAlap;
    while (v.szamlalo < fajta.legfeljebb) {
        const TEfemeridaNap& ma = Efemerida[nap];
        const double a = ma.*oszlop;
        const double b = Efemerida[nap + 1].*oszlop;
        const char f = fajta.bolygo <= 2 ? 'D' : ma.mozgas[static_cast<std::size_t>(fajta.bolygo - 3)];
        if (f == 'D' && direktTalalat(a, b, cel))
            v.sorok[++v.szamlalo] = talalat(nap, direktResz(a, b, cel), f);
        else if (f == 'R' && direktTalalat(b, a, cel))
            v.sorok[++v.szamlalo] = talalat(nap, retrogradResz(a, b, cel), f);
        if (nap > utolsoKeresettSor) return;
        ++nap;
    }
}

std::vector<std::string> VisszateresSorok(const Allapot& allapot, const TVisszateresFajta& fajta) {
    std::vector<std::string> sorok;
    for (int i = 1; i <= allapot.Visszateresek.szamlalo; ++i) {
        const TVisszateres& v = allapot.Visszateresek.sorok[i];
        sorok.push_back(idopontSzoveg(v.pillanat) + " GMT" +
                        (fajta.mozgasJel && v.mozgas != 'D' ? " R" : ""));
    }
    return sorok;
}

namespace {

/// The moment of a row, from Greenwich time to the place's zone.
void zonaIdo(TKeplet& k, const TPillanat& gmt) {
    k.pillanat(gmt);
    k.julianszam = DatumbolJulianszam(k.ev, k.ho, k.nap);
    k.ora = alsoBitek(std::int64_t{k.ora} + k.idozona);
    if (k.ora > 23) {
        k.ora -= 24;
        ++k.julianszam;
    } else if (k.ora < 0) {
        k.ora += 24;
        --k.julianszam;
    }
    JulianszambolDatum(k.julianszam, k.ev, k.ho, k.nap);
}

}  // namespace

void VisszateresKeplet(Allapot& allapot, FoAblak& ablak, const TVisszateresFajta& fajta, int sor,
                       const std::string& helyseg) {
    TKeplet& k = allapot.Keplet;
    TFeliratok& f = allapot.Feliratok;
    f.mostGomb = "Vissza";
    f.statusz[panelTipus] = fajta.cim.rovid;
    allapot.KepletTipus = 1;
    allapot.helysegMentett = k.helyseg;
    k.helyseg = helyseg;
    allapot.VisszaMod = true;

    k.nyariIdo = 0;
    TelepulesKeres(k.helyseg, k.idozona, k.szelesseg, k.hosszusagJel, k.szelessegJel, k.hosszusag);
    zonaIdo(k, allapot.Visszateresek.sorok[sor].pillanat);

    CsillagIdo(k.ora, k.perc, k.mperc, k.napresz, k.julianszam,
               alsoBitek(std::int64_t{k.hosszusag} + egyIvperc), k.armcMperc, k.armcPerc, k.armcOra,
               k.nyariIdo, k.idozona);
    IrStatuszSor(allapot, k.pillanat(), "ZN");
    f.memo = allapot.Szemely.jegyzet;

    Hazak(k.armcOra, k.armcPerc, k.armcMperc, k.Hazcsucsok, alsoBitek(std::int64_t{k.szelesseg} + egyIvperc));
    k.hazCsucs = k.Hazcsucsok;
    BolygoHelyek(k.julianszam, k.napresz, k.Bolygok, k.Mozgasok);
    k.bolygo = k.Bolygok;
    k.mozgas = k.Mozgasok;
    FenyszogCiklus(allapot);
    KepletMutatas(allapot, ablak);
}
