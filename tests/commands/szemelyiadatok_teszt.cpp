// Typing in a chart: the fields and the time kinds.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "chart/statuszsor.h"
#include "commands/szemelyiadatok.h"
#include "engine/csillagido.h"
#include "engine/hazak.h"
#include "probaablak.h"
#include "tables/efemerida.h"

namespace {

struct TAtvaltott {
    TPillanat pillanat;
    int napElteres;
};

TAtvaltott atvalt(TPillanat p, TIdoTipus idoTipus, int idozona, int hosszusag) {
    const int nap = DatumbolJulianszam(p.ev, p.ho, p.nap);
    std::int32_t julianszam = nap;
    IdoAtvaltas(p, julianszam, idoTipus, idozona, hosszusag);
    return {p, julianszam - nap};
}

TEST(IdoAtvaltas, HelyiKozepidoEjfelUtanAzElozoNapraEsik) {
    // 19°4' is 4576 s: 600 - 4576 + 3600 = -376 s.
    const TAtvaltott k = atvalt({2000, 1, 1, 0, 10, 0}, TIdoTipus::LMT, 1, 68640);
    EXPECT_EQ(k.pillanat, (TPillanat{1999, 12, 31, 23, 53, 44}));
    EXPECT_EQ(k.napElteres, -1);
}

TEST(IdoAtvaltas, HelyiKozepidoAKovetkezoNapra) {
    // 15° west is -3600 s: 23:30 + 1 h + 1 h.
    const TAtvaltott k = atvalt({1999, 12, 31, 23, 30, 0}, TIdoTipus::LMT, 1, -54000);
    EXPECT_EQ(k.pillanat, (TPillanat{2000, 1, 1, 1, 30, 0}));
    EXPECT_EQ(k.napElteres, 1);
}

TEST(IdoAtvaltas, HelyiKozepidoMasodpercei) {
    // 43230 - 4576 + 3600 = 42254 s.
    EXPECT_EQ(atvalt({2000, 1, 1, 12, 0, 30}, TIdoTipus::LMT, 1, 68640).pillanat,
              (TPillanat{2000, 1, 1, 11, 44, 14}));
}

TEST(IdoAtvaltas, HelyiKozepidoAzOrakEsPercekSzelein) {
    // On the zone's own meridian nothing changes.
    for (const TPillanat& p : {TPillanat{2000, 1, 1, 0, 59, 59},
                               {2000, 1, 1, 1, 0, 0},
                               {2000, 1, 1, 1, 0, 59},
                               {2000, 1, 1, 1, 1, 0},
                               {2000, 1, 1, 23, 0, 0},
                               {2000, 1, 1, 23, 59, 59}})
        EXPECT_EQ(atvalt(p, TIdoTipus::LMT, 1, 54000).pillanat, p)
            << p.ora << ':' << p.perc << ':' << p.mperc;
}

TEST(IdoAtvaltas, HelyiKozepidoPontosanEjfelkor) {
    // 15 degrees are an hour: 1:00 less it is 0:00 of the same day, 23:00 and an hour 0:00 of the next.
    const TAtvaltott eleje = atvalt({2000, 1, 1, 1, 0, 0}, TIdoTipus::LMT, 0, 54000);
    EXPECT_EQ(eleje.pillanat, (TPillanat{2000, 1, 1, 0, 0, 0}));
    EXPECT_EQ(eleje.napElteres, 0);
    const TAtvaltott vege = atvalt({2000, 1, 1, 23, 0, 0}, TIdoTipus::LMT, 0, -54000);
    EXPECT_EQ(vege.pillanat, (TPillanat{2000, 1, 2, 0, 0, 0}));
    EXPECT_EQ(vege.napElteres, 1);
}

TEST(IdoAtvaltas, GreenwichiIdoPontosanEjfelkor) {
    EXPECT_EQ(atvalt({2000, 1, 1, 23, 0, 0}, TIdoTipus::GMT, 1, 0).pillanat,
              (TPillanat{2000, 1, 2, 0, 0, 0}));
    EXPECT_EQ(atvalt({2000, 1, 1, 22, 0, 0}, TIdoTipus::GMT, 1, 0).pillanat,
              (TPillanat{2000, 1, 1, 23, 0, 0}));
    EXPECT_EQ(atvalt({2000, 1, 1, 5, 0, 0}, TIdoTipus::GMT, -5, 0).pillanat,
              (TPillanat{2000, 1, 1, 0, 0, 0}));
    EXPECT_EQ(atvalt({2000, 1, 1, 4, 0, 0}, TIdoTipus::GMT, -5, 0).pillanat,
              (TPillanat{1999, 12, 31, 23, 0, 0}));
}

TEST(IdoAtvaltas, AHosszusagMasodperceNemSzamit) {
    EXPECT_EQ(atvalt({2000, 1, 1, 12, 0, 0}, TIdoTipus::LMT, 1, 68640).pillanat,
              atvalt({2000, 1, 1, 12, 0, 0}, TIdoTipus::LMT, 1, 68699).pillanat);
    EXPECT_NE(atvalt({2000, 1, 1, 12, 0, 0}, TIdoTipus::LMT, 1, 68640).pillanat,
              atvalt({2000, 1, 1, 12, 0, 0}, TIdoTipus::LMT, 1, 68700).pillanat);
}

TEST(IdoAtvaltas, GreenwichiIdo) {
    const TAtvaltott k = atvalt({2000, 2, 28, 23, 30, 0}, TIdoTipus::GMT, 1, 68640);
    EXPECT_EQ(k.pillanat, (TPillanat{2000, 2, 29, 0, 30, 0}));
    EXPECT_EQ(k.napElteres, 1);
    EXPECT_EQ(atvalt({2000, 3, 1, 2, 0, 0}, TIdoTipus::GMT, -5, 0).pillanat,
              (TPillanat{2000, 2, 29, 21, 0, 0}));
}

TEST(IdoAtvaltas, ZonaIdoMaradDeADatumHelyreall) {
    EXPECT_EQ(atvalt({1990, 2, 30, 12, 0, 0}, TIdoTipus::ZN, 1, 68640).pillanat,
              (TPillanat{1990, 3, 2, 12, 0, 0}));
}

TEST(SzemelyiAdatok, ARendbenABeirtIdotMegorziAKepletZonaIdoben) {
    Allapot a;
    IdoTipusValasztas(a, 1);
    TSzemelyiAdatok m;
    m.nev = "Név";
    m.ido = {2000, 1, 1, 0, 10, 0};
    m.helyseg = "Budapest";
    m.hosszFok = 19;
    m.hosszPerc = 4;
    m.szelFok = 47;
    m.szelPerc = 30;
    m.jegyzet = "j";
    SzemelyiRendben(a, m);
    EXPECT_EQ(a.Szemely.beirt, (TPillanat{2000, 1, 1, 0, 10, 0}));
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{1999, 12, 31, 23, 53, 44}));
    EXPECT_FALSE(a.Megsem2);

    TProbaAblak ablak;
    BevittKepletMutatasa(a, ablak);
    EXPECT_EQ(a.Feliratok.statusz[panelIdo], "2000.01.01. 00:10:00 LMT");
    EXPECT_EQ(a.Feliratok.statusz[panelNev], "Név ");
    EXPECT_EQ(a.Feliratok.statusz[panelHely], "Budapest ");
    EXPECT_EQ(a.RadixPillanat, a.Keplet.pillanat);
    EXPECT_EQ(a.SzuletesiPillanat, a.Keplet.pillanat);
    EXPECT_EQ(a.Szemely.jegyzetMentett, "j");
    EXPECT_EQ(ablak.hivasok, (std::vector<std::string>{"Ujrafest", "Ervenytelenit", "RajzolKeplet"}));
    EXPECT_FALSE(a.TeljesTorles);
}

TEST(SzemelyiAdatok, ABeirtDatumSemOlyan_AmilyenNincsMegmarad) {
    Allapot a;
    TSzemelyiAdatok m;
    m.ido = {1999, 2, 31, 12, 0, 0};
    SzemelyiRendben(a, m);
    EXPECT_EQ(a.Szemely.beirt.nap, 31);
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{1999, 3, 3, 12, 0, 0}));
}

TEST(SzemelyiAdatok, AHelysegValtozasaNyariIdotCsakZonaIdobenKerdez) {
    Allapot a;
    TSzemelyiAdatok m;
    m.ido = {2000, 7, 1, 12, 0, 0};
    m.helyseg = "Szeged";
    HelysegValtozas(a, m);
    EXPECT_EQ(m.nyariIdo, 1);
    EXPECT_EQ(a.Keplet.hosszusag, 72586);
    IdoTipusValasztas(a, 2);
    HelysegValtozas(a, m);
    EXPECT_EQ(m.nyariIdo, 0);
}

TEST(SzemelyiAdatok, AValasztasNelkuliIdoTipusZona) {
    Allapot a;
    IdoTipusValasztas(a, 2);
    EXPECT_EQ(a.Szemely.idoTipus, TIdoTipus::GMT);
    IdoTipusValasztas(a, 1);
    EXPECT_EQ(a.Szemely.idoTipus, TIdoTipus::LMT);
    IdoTipusValasztas(a, -1);
    EXPECT_EQ(a.Szemely.idoTipus, TIdoTipus::ZN);
    EXPECT_EQ(a.Szemely.idoTipusIndex, -1);
}

TEST(SzemelyiAdatok, AzUjKepletMezoiAHelySajatErtekei) {
    Allapot a;
    a.Szemely.idoTipus = TIdoTipus::LMT;
    a.Szemely.jegyzet = "regi";
    a.Szemely.beirt = {2000, 7, 1, 12, 0, 0};
    a.Keplet.helyseg = "Szeged";
    a.Keplet.hosszusag = 1;
    const TSzemelyiAdatok m = UjKepletMezok(a);
    EXPECT_EQ(m.nev, "Új képlet");
    EXPECT_EQ(m.jegyzet, "");
    EXPECT_EQ(m.nyariIdo, 1);
    EXPECT_EQ(m.hosszFok, 20);
    EXPECT_EQ(m.hosszPerc, 9);  // 72586" is 20°9'46''
    EXPECT_EQ(a.Szemely.idoTipus, TIdoTipus::ZN);
}

TEST(SzemelyiAdatok, AzUjKepletnelNincsRegiValasztas) {
    Allapot a;
    IdoTipusValasztas(a, 2);
    a.Szemely.beirt = {1999, 1, 2, 3, 4, 5};
    a.Keplet.helyseg = "Pécs";
    a.Keplet.idozona = -5;
    const TSzemelyiAdatok m = UjKepletMezok(a);
    EXPECT_EQ(a.Szemely.idoTipusIndex, 0);
    EXPECT_EQ(m.ido, (TPillanat{1999, 1, 2, 3, 4, 5}));
    EXPECT_EQ(m.helyseg, "Pécs");
    EXPECT_EQ(m.idozona, 1);
    EXPECT_EQ(m.nyariIdo, 0);
    EXPECT_EQ(m.hosszFok, 18);  // 65691" is 18°14'51''
    EXPECT_EQ(m.hosszPerc, 14);
    EXPECT_EQ(m.szelFok, 46);  // 165888" is 46°4'48''
    EXPECT_EQ(m.szelPerc, 4);
}

TEST(SzemelyiAdatok, AHelysegValtozasaMindenMezotVisz) {
    Allapot a;
    TSzemelyiAdatok m;
    m.ido = {1985, 4, 31, 6, 7, 8};
    m.helyseg = "Pécs";
    m.idozona = -5;
    HelysegValtozas(a, m);
    EXPECT_EQ(a.Keplet.helyseg, "Pécs");
    EXPECT_EQ(a.Keplet.idozona, 1);
    EXPECT_EQ(a.Keplet.hosszusag, 65691);
    EXPECT_EQ(a.Keplet.szelesseg, 165888);
    EXPECT_EQ(m.idozona, 1);
    EXPECT_EQ(m.hosszFok, 18);
    EXPECT_EQ(m.hosszPerc, 14);
    EXPECT_EQ(m.szelFok, 46);
    EXPECT_EQ(m.szelPerc, 4);
    // The 31st of April becomes the first of May; that year's summer time has begun.
    EXPECT_EQ(m.ido, (TPillanat{1985, 5, 1, 6, 7, 8}));
    EXPECT_EQ(a.Szemely.beirt, m.ido);
    EXPECT_EQ(m.nyariIdo, 1);
    EXPECT_EQ(a.Keplet.nyariIdo, 1);
    // A name that the gazetteer does not hold gives Budapest's values.
    m.helyseg = "Péc";
    HelysegValtozas(a, m);
    EXPECT_EQ(a.Keplet.helyseg, "Péc");
    EXPECT_EQ(m.hosszFok, 19);
    EXPECT_EQ(m.szelPerc, 30);
}

TEST(SzemelyiAdatok, ARendbenMindenMezotAtvesz) {
    Allapot a;
    a.Szemely.idoTipus = TIdoTipus::ZN;
    TSzemelyiAdatok m;
    m.nev = "Kovács Éva";
    m.ido = {1985, 7, 1, 6, 7, 8};
    m.helyseg = "Xanadu";
    m.idozona = -5;
    m.nyariIdo = 1;
    m.hosszFok = -19, m.hosszPerc = 4;
    m.szelFok = 44, m.szelPerc = 59;
    m.jegyzet = "jegyzet";
    SzemelyiRendben(a, m);
    EXPECT_EQ(a.Szemely.nev, "Kovács Éva");
    EXPECT_EQ(a.Szemely.jegyzet, "jegyzet");
    EXPECT_EQ(a.Szemely.beirt, m.ido);
    EXPECT_EQ(a.Keplet.pillanat, m.ido);
    EXPECT_EQ(a.Keplet.julianszam, napSzama(m.ido));
    EXPECT_EQ(a.Keplet.helyseg, "Xanadu");
    EXPECT_EQ(a.Keplet.idozona, -5);
    EXPECT_EQ(a.Keplet.nyariIdo, 1);
    EXPECT_EQ(a.Keplet.hosszusag, -68160);  // the minutes add to negative degrees too
    EXPECT_EQ(a.Keplet.szelesseg, 44 * 3600 + 59 * 60);
}

/// The captions stand before the window is emptied and drawn, which the user sees take its time.
TEST(BevittKeplet, AFeliratokAzUjrafestesElottKiirva) {
    struct TFeliratozo : TProbaAblak {
        void Mutat() override { hivasok.emplace_back("Mutat"); }
    } ablak;
    Allapot a;
    BevittKepletMutatasa(a, ablak);
    ASSERT_GE(ablak.hivasok.size(), 2U);
    EXPECT_EQ(ablak.hivasok[0], "Mutat");
    EXPECT_EQ(ablak.hivasok[1], "Ujrafest");
}

TEST(BevittKeplet, AzOraMegallANezetRadixASajatHelyevel) {
    Allapot a;
    a.MostFut = true;
    a.Feliratok.mostGomb = "Vissza";
    a.KepletTipus = TKepletTipus::dekad;
    a.Szemely.jegyzet = "jegyzet";
    a.Keplet.pillanat = {1985, 7, 1, 6, 7, 8};
    a.Keplet.julianszam = napSzama(a.Keplet.pillanat);
    a.Keplet.helyseg = "Xanadu";
    a.Keplet.idozona = -5;
    a.Keplet.hosszusag = -266400;
    a.Keplet.szelesseg = 162000;
    TProbaAblak ablak;
    BevittKepletMutatasa(a, ablak);
    EXPECT_FALSE(a.MostFut);
    EXPECT_EQ(a.Feliratok.mostGomb, "Most");
    EXPECT_EQ(a.Feliratok.memo, "jegyzet");
    EXPECT_EQ(a.KepletTipus, TKepletTipus::radix);
    EXPECT_EQ(a.Feliratok.valtGomb, "Mundán");
    EXPECT_EQ(a.Feliratok.statusz[panelTipus], "Radix");
    // Typed values stand: no look-up by the name.
    EXPECT_EQ(a.Keplet.idozona, -5);
    EXPECT_EQ(a.Keplet.hosszusag, -266400);
    const TCsillagIdo ido = CsillagIdo(napSzama(a.RadixPillanat), 6, 7, 8, -266400, 0, -5);
    EXPECT_EQ(a.Keplet.armcOra, ido.armcOra);
    EXPECT_EQ(a.Keplet.armcPerc, ido.armcPerc);
    EXPECT_EQ(a.Keplet.armcMperc, ido.armcMperc);
    THazcsucsok csucsok;
    Hazak(ido.armcOra, ido.armcPerc, ido.armcMperc, csucsok, 162000);
    EXPECT_EQ(a.Keplet.hazCsucs, csucsok);
}

TEST(SzemelyiAdatok, AKezbenLevoKepletMezoi) {
    Allapot a;
    a.Szemely.nev = "Kovács Éva";
    a.Szemely.jegyzet = "jegyzet";
    a.Szemely.beirt = {1999, 7, 1, 1, 2, 3};
    a.Keplet.pillanat = {2001, 1, 2, 3, 4, 5};
    a.Keplet.helyseg = "Nincs ilyen hely";
    a.Keplet.idozona = -3;
    a.Keplet.nyariIdo = 1;
    a.Keplet.hosszusag = 72586;  // 20°9'46''
    a.Keplet.szelesseg = 166440;
    const TSzemelyiAdatok m = SzemelyMezok(a);
    EXPECT_EQ(m.nev, "Kovács Éva");
    EXPECT_EQ(m.jegyzet, "jegyzet");
    EXPECT_EQ(m.ido, (TPillanat{1999, 7, 1, 1, 2, 3}));
    EXPECT_EQ(m.helyseg, "Nincs ilyen hely");
    EXPECT_EQ(m.idozona, -3);
    EXPECT_EQ(m.nyariIdo, 1);
    EXPECT_EQ(m.hosszFok, 20);
    EXPECT_EQ(m.hosszPerc, 9);
    EXPECT_EQ(m.szelFok, 46);
    EXPECT_EQ(m.szelPerc, 14);
}

constexpr int nincsValasztas = -1, zona = 0, helyi = 1, greenwichi = 2;

TSzemelyiAdatok nyaron(int nyariIdo) {
    TSzemelyiAdatok m;
    m.ido = {1985, 7, 1, 12, 0, 0};
    m.nyariIdo = nyariIdo;
    return m;
}

TEST(NyariIdoElteres, ZonaIdobenATablaSzamit) {
    for (const int index : {nincsValasztas, zona}) {
        EXPECT_EQ(NyariIdoElteres(nyaron(1), index), "");
        EXPECT_EQ(NyariIdoElteres(nyaron(0), index),
                  "Eltér a nyári időszámítás táblájától: ekkor ott 1 áll.");
        TSzemelyiAdatok telen = nyaron(1);
        telen.ido.ho = 1;
        EXPECT_EQ(NyariIdoElteres(telen, index), "Eltér a nyári időszámítás táblájától: ekkor ott 0 áll.");
        telen.nyariIdo = 0;
        EXPECT_EQ(NyariIdoElteres(telen, index), "");
    }
}

TEST(NyariIdoElteres, AzOraIsSzamit) {
    TSzemelyiAdatok m = nyaron(0);
    m.ido = {2000, 10, 29, 2, 59, 59};
    EXPECT_NE(NyariIdoElteres(m, zona), "");
    m.ido = {2000, 10, 29, 3, 0, 0};
    EXPECT_EQ(NyariIdoElteres(m, zona), "");
}

TEST(NyariIdoElteres, MasOrahozNemTartozikNyariIdo) {
    for (const int index : {helyi, greenwichi}) {
        EXPECT_EQ(NyariIdoElteres(nyaron(0), index), "");
        EXPECT_EQ(NyariIdoElteres(nyaron(1), index),
                  "Helyi vagy greenwichi időhöz nem tartozik nyári időszámítás.");
    }
}

}  // namespace
