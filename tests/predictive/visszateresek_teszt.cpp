#include <gtest/gtest.h>

#include "chart/statuszsor.h"
#include "engine/csillagido.h"
#include "engine/fenyszogek.h"
#include "engine/hazak.h"
#include "mintakeplet.h"
#include "predictive/visszateresek.h"
#include "probaablak.h"
#include "tables/efemerida.h"

namespace {

Allapot szuletes(const TPillanat& p, const char* hely = "Szeged") {
    Allapot a = szuletesiKeplet(p, hely);
    a.Szemely.jegyzet = "jegyzet";
    return a;
}

const TVisszateres& keres(Allapot& a, const TVisszateresFajta& fajta, int sor = 1) {
    VisszateresKereses(a, fajta, VisszateresCel(a, fajta));
    return a.Visszateresek.sorok[sor];
}

TEST(Revolucio, AFajtakCimei) {
    const char* hosszu[]{"Szolár",
                         "Lunár",
                         "Merkúr revolució",
                         "Vénusz revolució",
                         "Mars revolució",
                         "Jupiter revolució",
                         "Szaturnusz revolució"};
    const char* rovid[]{"Szolár", "Lunár", "Merk rev", "Venu rev", "Mars rev", "Jupi rev", "Satu rev"};
    for (int f = 1; f <= 7; ++f) {
        const TVisszateresFajta fajta = RevolucioFajta(f);
        EXPECT_EQ(fajta.cim.hosszu, hosszu[f - 1]);
        EXPECT_EQ(fajta.cim.rovid, rovid[f - 1]);
        EXPECT_EQ(fajta.bolygo, f);
        EXPECT_STREQ(fajta.listaCim, "Visszatérések:");
    }
}

TEST(Personar, AFajtakCimeiEsPontjai) {
    const char* hosszu[]{"Asc personar",     "Mc personar",     "Hold personar",    "Merkúr personar",
                         "Vénusz personar",  "Mars personar",   "Jupiter personar", "Szaturnusz personar",
                         "Uránusz personar", "Neptun personar", "Plutó personar"};
    const char* rovid[]{"Asc pers",  "Mc pers",   "Hold pers", "Merk pers", "Venu pers", "Mars pers",
                        "Jupi pers", "Satu pers", "Uran pers", "Nept pers", "Pluto pers"};
    for (int f = 1; f <= 11; ++f) {
        const TVisszateresFajta fajta = PersonarFajta(f);
        EXPECT_EQ(fajta.cim.hosszu, hosszu[f - 1]);
        EXPECT_EQ(fajta.cim.rovid, rovid[f - 1]);
        EXPECT_EQ(fajta.bolygo, 1);
        EXPECT_EQ(fajta.pont == VisszateresPont::csucs, f <= 2);
        EXPECT_EQ(fajta.szam, f == 1 ? 1 : f == 2 ? 10 : f - 1);
        EXPECT_STREQ(fajta.listaCim, "Nap-áthaladások:");
    }
}

TEST(Revolucio, AKezdoNapARadixElottiNap) {
    const Allapot a = szuletes({2000, 3, 1, 12, 0, 0});
    EXPECT_EQ(VisszateresKezdo(a).ho, 2);
    EXPECT_EQ(VisszateresKezdo(a).nap, 29);
}

TEST(Revolucio, ASzolarMindenEvbenATablaVegeig) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    const TVisszateres& elso = keres(a, RevolucioFajta(1));
    // The birth itself is the first row: 6:04:09 in summer-less 1975, zone 1.
    EXPECT_EQ(elso.pillanat, (TPillanat{1975, 7, 21, 5, 4, 9}));
    // Row 65000 is 2077-12-17: returns of 1975 to 2077.
    EXPECT_EQ(a.Visszateresek.szamlalo, 103);
    for (int i = 1; i <= a.Visszateresek.szamlalo; ++i) {
        const TVisszateres& v = a.Visszateresek.sorok[i];
        EXPECT_EQ(v.pillanat.ev, 1974 + i);
        EXPECT_NEAR(greenwichiBolygok(v.pillanat)[1], a.Keplet.Bolygok[1], 1.0 / 3600);
    }
}

TEST(Revolucio, ALunarEzerSornalAll) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    keres(a, RevolucioFajta(2));
    EXPECT_EQ(a.Visszateresek.szamlalo, 1000);
    // 1000 tropical months of 27.32 days are 74.8 years.
    EXPECT_EQ(a.Visszateresek.sorok[1000].pillanat.ev, 2050);
}

TEST(Revolucio, AMerkurListajabanARetrogradAtkelesekIs) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    const TVisszateresFajta fajta = RevolucioFajta(3);
    keres(a, fajta);
    const auto sorok = VisszateresSorok(a, fajta);
    int retrograd = 0;
    for (int i = 1; i <= a.Visszateresek.szamlalo; ++i) {
        const TVisszateres& v = a.Visszateresek.sorok[i];
        EXPECT_NEAR(greenwichiBolygok(v.pillanat)[3], a.Keplet.Bolygok[3], 1.0 / 60) << i;
        const std::string& sor = sorok[static_cast<std::size_t>(i - 1)];
        EXPECT_EQ(sor.ends_with(" R"), v.mozgas == 'R');
        retrograd += v.mozgas == 'R';
    }
    EXPECT_GT(retrograd, 0);
    EXPECT_EQ(sorok[0], "1975.07.21. 05:04:09 GMT");
}

TEST(Personar, AzElsoTizenharomAthaladas) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    const TVisszateresFajta fajta = PersonarFajta(3);
    keres(a, fajta);
    EXPECT_EQ(a.Visszateresek.szamlalo, 13);
    for (int i = 1; i <= 13; ++i)
        EXPECT_NEAR(greenwichiBolygok(a.Visszateresek.sorok[i].pillanat)[1], a.Keplet.Bolygok[2], 1.0 / 3600);
    for (const std::string& sor : VisszateresSorok(a, fajta)) EXPECT_TRUE(sor.ends_with(" GMT"));
}

TEST(Personar, AzAszcendensAKepernyonLevoKepletbol) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    a.Keplet.hazCsucs[1] = 77.5;
    a.Keplet.hazCsucs[10] = 12.25;
    EXPECT_DOUBLE_EQ(VisszateresCel(a, PersonarFajta(1)), 77.5 * 3600);
    EXPECT_DOUBLE_EQ(VisszateresCel(a, PersonarFajta(2)), 12.25 * 3600);
    a.Keplet.bolygo[2] = 1;  // a body is recomputed
    EXPECT_NE(VisszateresCel(a, PersonarFajta(3)), 3600);
}

TEST(Visszateresek, AzEjfeliSzuletesTortjeEgyFelett) {
    // Born at exactly 0h in Greenwich: the target is the row's own longitude and a full circle is added.
    Allapot a = szuletes({2000, 7, 2, 2, 0, 0}, "Budapest");
    const TVisszateres& v = keres(a, RevolucioFajta(1));
    EXPECT_EQ(v.pillanat.nap, 2);
    const int sor = a.Keplet.julianszam - julianszamAlap;
    const double lepes = Efemerida[sor + 1].nap_hossz - Efemerida[sor].nap_hossz;
    EXPECT_EQ(v.pillanat.ora, static_cast<int>(1296000 / lepes * 24));
    EXPECT_GT(v.pillanat.ora, 8000);
}

/// Hits of a made-up target from a start day on.
int talalatok(Allapot& a, const TVisszateresFajta& fajta, double cel) {
    VisszateresKereses(a, fajta, cel);
    return a.Visszateresek.szamlalo;
}

TEST(Visszateresek, AHalakVegeAzAtkelesNapjanKimarad) {
    Allapot a = szuletes({2000, 1, 1, 12, 0, 0});
    int nap = 36525;  // 2000-01-01
    while (Efemerida[nap].nap_hossz < Efemerida[nap + 1].nap_hossz) ++nap;
    const double a0 = Efemerida[nap].nap_hossz;
    talalatok(a, PersonarFajta(3), a0 + 60);
    // That year's passage over the stretch between the day's longitude and 0 Aries is missing.
    EXPECT_GT(a.Visszateresek.sorok[1].pillanat.ev, 2000);
    talalatok(a, PersonarFajta(3), 60);  // past the wrap it is found
    EXPECT_EQ(a.Visszateresek.sorok[1].pillanat.ev, 2000);
}

TEST(Visszateresek, AzAlloLepesMindenCelraTalalat) {
    // Saturn stands without a step inside a direct phase on many days; each counts for any target.
    Allapot a = szuletes({1980, 1, 1, 12, 0, 0});
    const TVisszateresFajta fajta = RevolucioFajta(7);
    talalatok(a, fajta, 1e9);
    int vart = 0;
    for (int nap = DatumbolJulianszam(a.RadixPillanat.ev, a.RadixPillanat.ho, a.RadixPillanat.nap) -
                   julianszamAlap - 1;
         nap <= 65001 && vart < 1000; ++nap) {
        const char f = Efemerida[nap].mozgas[4];
        vart += f != 'S' && Efemerida[nap].szaturnusz_hossz == Efemerida[nap + 1].szaturnusz_hossz;
    }
    EXPECT_GT(vart, 500);
    EXPECT_EQ(a.Visszateresek.szamlalo, vart);
}

/// The search ends behind the first day above row 65000, which is 2077-12-17.
TEST(Visszateresek, AHatvanotezerUtaniElsoSorAzUtolso) {
    for (const auto& [sor, talalt] : {std::pair(65000, 1), std::pair(65001, 1), std::pair(65002, 0)}) {
        Allapot a = szuletes({2077, 12, 10, 12, 0, 0});
        EXPECT_EQ(talalatok(a, RevolucioFajta(1), Efemerida[sor].nap_hossz + 10), talalt) << sor;
    }
}

TEST(Visszateresek, UresKeresesUtanARegiElsoSor) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    const TPillanat regi = keres(a, RevolucioFajta(1)).pillanat;
    EXPECT_EQ(talalatok(a, PersonarFajta(3), 1e9), 0);
    EXPECT_EQ(a.Visszateresek.sorok[1].pillanat, regi);
}

TEST(Visszateresek, AMegsemUtanAKepErintetlen) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    a.Keplet.bolygo[1] = 1;
    a.Keplet.hazCsucs[1] = 2;
    const Allapot elobb = a;
    keres(a, RevolucioFajta(4));
    EXPECT_EQ(a.Keplet.bolygo, elobb.Keplet.bolygo);
    EXPECT_EQ(a.Keplet.hazCsucs, elobb.Keplet.hazCsucs);
    EXPECT_EQ(a.FenyszogRadix, elobb.FenyszogRadix);
}

/// The work tables stay as the search for the target leaves them.
TEST(Visszateresek, ACelKeresesUtanARadixCsucsaiAMunkatombben) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    const THazcsucsok radix = a.Keplet.Hazcsucsok;
    a.Keplet.Hazcsucsok.tolt(0);
    VisszateresCel(a, RevolucioFajta(1));
    EXPECT_EQ(a.Keplet.Hazcsucsok, radix);
}

TEST(Visszateresek, ACelhozMindenUjraARadixPillanatabol) {
    Allapot a = szuletes({1985, 7, 21, 6, 4, 9});
    ASSERT_EQ(a.Keplet.nyariIdo, 1);
    const double hold = VisszateresCel(a, RevolucioFajta(2));
    a.Keplet.julianszam += 150;  // as a chart of the winter leaves them
    a.Keplet.nyariIdo = 0;
    a.Keplet.Bolygok.tolt(0);
    EXPECT_DOUBLE_EQ(VisszateresCel(a, RevolucioFajta(2)), hold);
    EXPECT_DOUBLE_EQ(hold, a.Keplet.bolygo[2] * 3600);
}

TEST(VisszateresKeplet, EgyIvperccelKeletreEsEszakraNyariIdoNelkul) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    const TVisszateresFajta fajta = RevolucioFajta(1);
    keres(a, fajta);
    TProbaAblak ablak;
    a.Keplet.nyariIdo = 1;  // as a chart of the summer leaves it
    a.Keplet.mozgas.tolt('x');
    a.KepletTipus = TKepletTipus::mundan;
    VisszateresKeplet(a, ablak, fajta, 31, "Pécs");  // 2005, in the summer
    const TKeplet& k = a.Keplet;
    EXPECT_EQ(k.pillanat.ev, 2005);
    EXPECT_EQ(k.nyariIdo, 0);
    EXPECT_EQ(k.helyseg, "Pécs");
    EXPECT_EQ(a.helysegMentett, "Szeged");
    EXPECT_EQ(k.hosszusag, 65691);
    EXPECT_EQ(k.pillanat.ora, (a.Visszateresek.sorok[31].pillanat.ora + 1) % 24);
    EXPECT_NEAR(k.bolygo[1], greenwichiBolygok({1975, 7, 21, 5, 4, 9})[1], 1.0 / 3600);
    for (int i = 1; i <= 10; ++i)  // all bodies stand where they are at the return, not at the birth
        EXPECT_NEAR(k.bolygo[i], greenwichiBolygok(a.Visszateresek.sorok[31].pillanat)[i], 1e-9) << i;
    EXPECT_EQ(k.mozgas, k.Mozgasok);

    TFenyszogMunka munka;  // the aspects are the return's too
    ElteresSzamitas(k.bolygo, munka);
    Fenyszogek(a.OrbisTabla, munka);
    EXPECT_EQ(a.FenyszogRadix, munka.FenyszogMatrix);
    EXPECT_NE(a.FenyszogRadix, szuletes({1975, 7, 21, 6, 4, 9}).FenyszogRadix);

    THazcsucsok csucsok;
    std::int32_t nap = k.julianszam, ora = 0, perc = 0;
    double napresz = 0, mperc = 0;
    TPillanat gmt = a.Visszateresek.sorok[31].pillanat;
    nap = DatumbolJulianszam(gmt.ev, gmt.ho, gmt.nap);
    CsillagIdo(gmt.ora, gmt.perc, gmt.mperc, napresz, nap, 65691 + 60, mperc, perc, ora, 0, 0);
    Hazak(ora, perc, mperc, csucsok, 165888 + 60);
    EXPECT_EQ(k.hazCsucs, csucsok);

    const auto& p = a.Feliratok.statusz;
    EXPECT_EQ(p[panelTipus], "Szolár");
    EXPECT_EQ(p[panelHely], "Pécs");
    EXPECT_EQ(p[panelKoordinata], koordinataSzoveg(65691, 165888));
    EXPECT_EQ(p[panelIdo], idopontSzoveg(k.pillanat) + " ZN");
    EXPECT_EQ(a.Feliratok.mostGomb, "Vissza");
    EXPECT_EQ(a.Feliratok.memo, "jegyzet");
    EXPECT_TRUE(a.VisszaMod);
    EXPECT_EQ(a.KepletTipus, TKepletTipus::radix);
    EXPECT_EQ(ablak.hivasok, (std::vector<std::string>{"Ervenytelenit", "RajzolKeplet"}));
    EXPECT_EQ(a.RadixPillanat, (TPillanat{1975, 7, 21, 6, 4, 9}));
}

TEST(VisszateresKeplet, AzEjfelUtaniZonaIdoAKovetkezoNap) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    a.Visszateresek.sorok[1].pillanat = {1999, 12, 31, 23, 30, 0};
    TProbaAblak ablak;
    VisszateresKeplet(a, ablak, PersonarFajta(1), 1, "Szeged");
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{2000, 1, 1, 0, 30, 0}));
    EXPECT_EQ(a.Feliratok.statusz[panelTipus], "Asc pers");
}

/// A solar return of 2005 for Pécs on screen.
Allapot szolarPecsre(TProbaAblak& ablak, int sor = 31) {
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    const TVisszateresFajta fajta = RevolucioFajta(1);
    keres(a, fajta);
    VisszateresKeplet(a, ablak, fajta, sor, "Pécs");
    ablak.hivasok.clear();
    return a;
}

void ugyanazAKepernyo(const Allapot& a, const Allapot& b) {
    EXPECT_EQ(a.Keplet.pillanat, b.Keplet.pillanat);
    EXPECT_EQ(a.Keplet.helyseg, b.Keplet.helyseg);
    EXPECT_EQ(a.Keplet.nyariIdo, b.Keplet.nyariIdo);
    EXPECT_EQ(a.Keplet.bolygo, b.Keplet.bolygo);
    EXPECT_EQ(a.Keplet.hazCsucs, b.Keplet.hazCsucs);
    EXPECT_EQ(a.Feliratok.statusz, b.Feliratok.statusz);
    EXPECT_EQ(a.FenyszogRadix, b.FenyszogRadix);
}

TEST(VisszateresSzomszed, AKovetkezoEsAzElozoSor) {
    TProbaAblak ablak;
    Allapot a = szolarPecsre(ablak);
    VisszateresSzomszed(a, ablak, 1);
    EXPECT_EQ(a.Keplet.pillanat.ev, 2006);
    ugyanazAKepernyo(a, szolarPecsre(ablak, 32));
    EXPECT_EQ(a.Feliratok.statusz[panelTipus], "Szolár");
    EXPECT_EQ(a.Feliratok.mostGomb, "Vissza");
    VisszateresSzomszed(a, ablak, -1);
    VisszateresSzomszed(a, ablak, -1);
    ugyanazAKepernyo(a, szolarPecsre(ablak, 30));
    // The way back leads to the birth as before.
    EXPECT_TRUE(a.VisszaMod);
    EXPECT_EQ(a.helysegMentett, "Szeged");
    EXPECT_EQ(a.RadixPillanat, (TPillanat{1975, 7, 21, 6, 4, 9}));
}

TEST(VisszateresSzomszed, UjraRajzol) {
    TProbaAblak ablak;
    Allapot a = szolarPecsre(ablak);
    VisszateresSzomszed(a, ablak, 1);
    EXPECT_EQ(ablak.hivasok, (THivasok{"Ervenytelenit", "RajzolKeplet"}));
}

TEST(VisszateresSzomszed, AListaVegeinNemTortenikSemmi) {
    for (const auto& [sor, lepes] : {std::pair(1, -1), std::pair(103, 1)}) {
        TProbaAblak ablak;
        Allapot a = szolarPecsre(ablak, sor);
        const Allapot elobb = a;
        VisszateresSzomszed(a, ablak, lepes);
        ugyanazAKepernyo(a, elobb);
        EXPECT_EQ(ablak.rajzok(), 0);
        // The way in the other direction stays open.
        VisszateresSzomszed(a, ablak, -lepes);
        EXPECT_EQ(a.Keplet.pillanat.ev, elobb.Keplet.pillanat.ev - lepes);
    }
}

TEST(VisszateresSzomszed, AMegszakitottMasikKeresesNemZavarja) {
    TProbaAblak ablak;
    Allapot a = szolarPecsre(ablak);
    keres(a, RevolucioFajta(2));  // and cancelled
    VisszateresSzomszed(a, ablak, 1);
    ugyanazAKepernyo(a, szolarPecsre(ablak, 32));
}

TEST(VisszateresSzomszed, CsakAKepzettKepletnelEsAMagaSzuletesehez) {
    TProbaAblak ablak;
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    keres(a, RevolucioFajta(1));
    VisszateresSzomszed(a, ablak, 1);  // a list, but no derived chart yet
    EXPECT_EQ(ablak.rajzok(), 0);
    EXPECT_FALSE(a.VisszaMod);

    a = szolarPecsre(ablak);
    a.VisszaMod = false;  // back at the birth
    VisszateresSzomszed(a, ablak, 1);
    EXPECT_EQ(ablak.rajzok(), 0);

    a = szolarPecsre(ablak);
    a.SzuletesiPillanat.perc = 5;  // another person opened over the derived chart
    VisszateresSzomszed(a, ablak, 1);
    EXPECT_EQ(ablak.rajzok(), 0);
    EXPECT_EQ(a.Keplet.pillanat.ev, 2005);
}

TEST(VisszateresSzomszed, AzUresListanakNincsSzomszedja) {
    TProbaAblak ablak;
    Allapot a = szolarPecsre(ablak);
    const TVisszateresFajta fajta = PersonarFajta(3);
    EXPECT_EQ(talalatok(a, fajta, 1e9), 0);
    VisszateresKeplet(a, ablak, fajta, 1, "Pécs");
    ablak.hivasok.clear();
    VisszateresSzomszed(a, ablak, 1);
    VisszateresSzomszed(a, ablak, -1);
    EXPECT_EQ(ablak.rajzok(), 0);
}

TEST(VisszateresSzomszed, APersonarAMagaFajtajavalLep) {
    TProbaAblak ablak;
    Allapot a = szuletes({1975, 7, 21, 6, 4, 9});
    const TVisszateresFajta fajta = PersonarFajta(3);
    keres(a, fajta);
    VisszateresKeplet(a, ablak, fajta, 12, "Szeged");
    VisszateresSzomszed(a, ablak, 1);
    EXPECT_EQ(a.Feliratok.statusz[panelTipus], "Hold pers");
    EXPECT_EQ(a.Keplet.pillanat.ev, a.Visszateresek.sorok[13].pillanat.ev);
    ablak.hivasok.clear();
    VisszateresSzomszed(a, ablak, 1);  // thirteen rows
    EXPECT_EQ(ablak.rajzok(), 0);
}

TEST(LegkozelebbiSor, ElotteVagyUtanaAKozelebbi) {
    TVisszateresek v;
    EXPECT_EQ(LegkozelebbiSor(v, {2000, 1, 1, 0, 0, 0}), 0);
    v.sorok[1].pillanat = {2000, 1, 1, 12, 0, 0};
    v.sorok[2].pillanat = {2000, 1, 28, 12, 0, 0};
    v.sorok[3].pillanat = {2000, 2, 24, 12, 0, 0};
    v.sorok[4].pillanat = {2000, 1, 15, 0, 0, 0};  // left by an older search
    v.szamlalo = 3;
    EXPECT_EQ(LegkozelebbiSor(v, {1950, 1, 1, 0, 0, 0}), 1);
    EXPECT_EQ(LegkozelebbiSor(v, {2000, 1, 14, 23, 59, 59}), 1);
    EXPECT_EQ(LegkozelebbiSor(v, {2000, 1, 15, 0, 0, 0}), 1) << "as near to the first as to the second";
    EXPECT_EQ(LegkozelebbiSor(v, {2000, 1, 15, 0, 0, 1}), 2);
    EXPECT_EQ(LegkozelebbiSor(v, {2000, 1, 29, 0, 0, 0}), 2);
    EXPECT_EQ(LegkozelebbiSor(v, {2060, 1, 1, 0, 0, 0}), 3);
}

TEST(Visszateresek, ARetrogradNapLepesNelkulEgyEgeszKor) {
    // Saturn's first such day past the half of the circle.
    constexpr std::size_t szaturnusz = 4;
    int nap = 1;
    const auto a = [&] { return static_cast<double>(Efemerida[nap].szaturnusz_hossz); };
    while (Efemerida[nap].mozgas[szaturnusz] != 'R' || a() <= 648000 ||
           Efemerida[nap + 1].szaturnusz_hossz != Efemerida[nap].szaturnusz_hossz)
        ++nap;
    const TEfemeridaNap& allo = Efemerida[nap];
    Allapot k = szuletes({allo.ev, allo.ho, allo.nap, 12, 0, 0});
    JulianszambolDatum(nap + julianszamAlap + 1, k.RadixPillanat);  // the search begins the day before
    // The way is the whole circle: half of it is noon, all of it the next midnight.
    VisszateresKereses(k, RevolucioFajta(7), a() - 648000);
    EXPECT_EQ(k.Visszateresek.sorok[1].pillanat, (TPillanat{allo.ev, allo.ho, allo.nap, 12, 0, 0}));
    EXPECT_EQ(k.Visszateresek.sorok[1].mozgas, 'R');
    VisszateresKereses(k, RevolucioFajta(7), a());
    EXPECT_EQ(k.Visszateresek.sorok[1].pillanat, (TPillanat{allo.ev, allo.ho, allo.nap, 24, 0, 0}));
}

}  // namespace
