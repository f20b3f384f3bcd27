#include "predictive/visszateresek.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "chart/kepletciklus.h"
#include "chart/kepletmutatas.h"
#include "chart/statuszsor.h"
#include "engine/bolygohelyek.h"
#include "engine/csillagido.h"
#include "engine/hazak.h"
#include "engine/keszlet.h"
#include "predictive/athaladas.h"
#include "tables/efemerida.h"
#include "tables/nyariido.h"
#include "tables/pillanat.h"
#include "tables/szamtan.h"
#include "tables/telepulesek.h"
#include "tables/tomb.h"

namespace {

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
    JulianszambolDatum(napSzama(p) - 1, p);
    return p;
}

double VisszateresCel(Allapot& allapot, const TVisszateresFajta& fajta) {
    TKeplet& k = allapot.Keplet;
    TPillanat p = allapot.RadixPillanat;
    k.julianszam = DatumbolJulianszam(p);
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

/// Whether a direct day's step from a to b holds t. A day without a step holds any: the table gives the slow
/// bodies to the minute of arc, and the lists name each day on which they stand.
bool direktTalalat(double a, double b, double t) {
    return a == b || NapiLepesben(a, b, t);
}

double retrogradResz(double a, double b, double t) {
    const double ut = (a <= b ? a + korIvmasodperc : a) - b;
    const double megtett = t < a ? a - t : a + korIvmasodperc - t;
    return megtett / ut;
}

TVisszateres talalat(int napsorszam, double resz, char mozgas) {
    TVisszateres v;
    const TEfemeridaNap& nap = Efemerida[napsorszam];
    const TNapszak ido = napszak(resz);
    v.pillanat = {nap.ev, nap.ho, nap.nap, ido.ora, ido.perc, ido.mperc};
    v.mozgas = mozgas;
    return v;
}

}  // namespace

void VisszateresKereses(Allapot& allapot, const TVisszateresFajta& fajta, double cel) {
    TVisszateresek& v = allapot.Visszateresek;
    v.szamlalo = 0;
    const auto oszlop = efemeridaOszlopok[static_cast<std::size_t>(fajta.bolygo - 1)];
    int nap = napSzama(VisszateresKezdo(allapot)) - julianszamAlap;
    while (v.szamlalo < fajta.legfeljebb) {
        const TEfemeridaNap& ma = Efemerida[nap];
        const double a = ma.*oszlop;
        const double b = Efemerida[nap + 1].*oszlop;
        const char f = fajta.bolygo <= 2 ? 'D' : ma.mozgas[static_cast<std::size_t>(fajta.bolygo - 3)];
        if (f == 'D' && direktTalalat(a, b, cel))
            v.sorok[++v.szamlalo] = talalat(nap, NapiResz(a, b, cel), f);
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

std::int64_t masodpercben(const TPillanat& p) {
    return napSzama(p) * napMasodperc + idoMasodperc(p.ora, p.perc, p.mperc);
}

}  // namespace

int LegkozelebbiSor(const TVisszateresek& visszateresek, const TPillanat& pillanat) {
    const std::int64_t cel = masodpercben(pillanat);
    int legjobb = 0;
    std::int64_t legkozelebb = 0;
    for (int i = 1; i <= visszateresek.szamlalo; ++i) {
        const std::int64_t tav = std::abs(masodpercben(visszateresek.sorok[i].pillanat) - cel);
        if (legjobb != 0 && tav >= legkozelebb) continue;
        legjobb = i;
        legkozelebb = tav;
    }
    return legjobb;
}

namespace {

/// The moment of a row, from Greenwich time to the place's zone.
void zonaIdo(TKeplet& k, const TPillanat& gmt) {
    k.pillanat = gmt;
    k.julianszam = DatumbolJulianszam(k.pillanat);
    k.julianszam += oraEltolas(k.pillanat, k.idozona);
    JulianszambolDatum(k.julianszam, k.pillanat);
}

/// Casts the chart of `VisszateresKep` and shows it.
void kepzettKeplet(Allapot& allapot, FoAblak& ablak) {
    const TVisszateresKep& kep = allapot.VisszateresKep;
    TKeplet& k = allapot.Keplet;
    TFeliratok& f = allapot.Feliratok;
    f.mostGomb = "Vissza";
    f.statusz[panelTipus] = kep.cim.rovid;
    allapot.KepletTipus = TKepletTipus::radix;
    if (!allapot.VisszaMod) allapot.helysegMentett = k.helyseg;
    k.helyseg = kep.helyseg;
    allapot.VisszaMod = true;

    k.nyariIdo = 0;
    TelepulesKeres(k.helyseg, k.idozona, k.szelesseg, k.hosszusagJel, k.szelessegJel, k.hosszusag);
    zonaIdo(k, kep.lista.sorok[kep.sor].pillanat);

    CsillagIdo(k.pillanat.ora, k.pillanat.perc, k.pillanat.mperc, k.napresz, k.julianszam,
               alsoBitek(std::int64_t{k.hosszusag} + egyIvperc), k.armcMperc, k.armcPerc, k.armcOra,
               k.nyariIdo, k.idozona);
    IrStatuszSor(allapot, k.pillanat, TIdoTipus::ZN);
    f.memo = allapot.Szemely.jegyzet;

    Hazak(k.armcOra, k.armcPerc, k.armcMperc, k.Hazcsucsok, alsoBitek(std::int64_t{k.szelesseg} + egyIvperc));
    k.hazCsucs = k.Hazcsucsok;
    BolygoHelyek(k.julianszam, k.napresz, k.Bolygok, k.Mozgasok);
    k.bolygo = k.Bolygok;
    k.mozgas = k.Mozgasok;
    FenyszogCiklus(allapot);
    KepletMutatas(allapot, ablak);
}

}  // namespace

void VisszateresKeplet(Allapot& allapot, FoAblak& ablak, const TVisszateresFajta& fajta, int sor,
                       const std::string& helyseg) {
    allapot.VisszateresKep = {fajta.cim, allapot.Visszateresek, sor, helyseg, allapot.SzuletesiPillanat};
    kepzettKeplet(allapot, ablak);
}

void VisszateresSzomszed(Allapot& allapot, FoAblak& ablak, int lepes) {
    TVisszateresKep& kep = allapot.VisszateresKep;
    const int sor = kep.sor + lepes;
    if (!allapot.VisszaMod || sor < 1 || sor > kep.lista.szamlalo) return;
    if (kep.szuletes != allapot.SzuletesiPillanat) return;
    kep.sor = sor;
    kepzettKeplet(allapot, ablak);
}
