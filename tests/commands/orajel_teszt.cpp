// The tick and the `Most` mode, without a window.

#include <functional>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "chart/statuszsor.h"
#include "commands/nezet.h"
#include "commands/orajel.h"
#include "commands/szemelyiadatok.h"
#include "indultprogram.h"
#include "mintakeplet.h"
#include "predictive/visszateresek.h"
#include "tables/szotar.h"
#include "tables/szoveg.h"

namespace {

class TOrajel : public TIndultProgram {};

TEST_F(TOrajel, AFelirat2500EzredmasodpercElottiHetOrajelUtanValt) {
    for (int i = 1; i <= 6; ++i) a.FeliratSzovegek[i] = "cim" + std::to_string(i) + " ";
    orajelek(7);
    EXPECT_EQ(a.FeliratIndex, 0);
    orajelek(1);
    EXPECT_EQ(a.FeliratIndex, 1);
    EXPECT_EQ(a.Feliratok.cim, "im1 c");
}

TEST(Orajel, MasodpercenkentNegy) {
    EXPECT_EQ(4 * orajelEzredmasodperc, 1000);
}

TEST_F(TOrajel, ATeljesFelirat500OrajeligFut) {
    for (int i = 1; i <= 6; ++i) a.FeliratSzovegek[i] = "cim" + std::to_string(i) + " ";
    orajelek(8);
    ASSERT_EQ(a.FeliratIndex, 1);
    orajelek(500);
    EXPECT_EQ(a.FeliratIndex, 1);
    orajelek(1);
    EXPECT_EQ(a.FeliratIndex, 2);
}

TEST_F(TOrajel, AzUresFelirat32OrajelAlattMulikEl) {
    orajelek(8);
    ASSERT_EQ(a.FeliratIndex, 1);
    orajelek(31);
    EXPECT_EQ(a.FeliratIndex, 1);
    orajelek(1);
    EXPECT_EQ(a.FeliratIndex, 2);
    // Six slots: 8 s each, 48 s for a round.
    orajelek(5 * 32);
    EXPECT_EQ(a.FeliratIndex, 1);
}

TEST_F(TOrajel, CimfajlNelkulAzOsszetettCimMindig) {
    szuletes();
    orajelek(1);
    EXPECT_EQ(a.Feliratok.cim, "  1975.03.21. 06:04:09 ZN  Minta Anna");
    const std::string szoveg = a.Uralkodok.UralkodoSzoveg;
    orajelek(1);
    EXPECT_EQ(a.Feliratok.cim, szoveg + "  1975.03.21. 06:04:09 ZN  Minta Anna");
}

TEST_F(TOrajel, ASzovegEgyKarakterrelGordul) {
    szuletes();
    std::string szoveg = a.Uralkodok.UralkodoSzoveg;
    orajelek(1);
    gordit(szoveg);
    EXPECT_EQ(a.Uralkodok.UralkodoSzoveg, szoveg);
    EXPECT_EQ(a.FutoSzoveg, szoveg);
}

TEST_F(TOrajel, MundanNezetbenAMundanSzovegGordul) {
    szuletes();
    a.KepletTipus = TKepletTipus::mundan;
    const std::string horizont = a.Uralkodok.UralkodoSzoveg;
    std::string szoveg = a.Uralkodok.MundanUralkodoSzoveg;
    orajelek(1);
    gordit(szoveg);
    EXPECT_EQ(a.FutoSzoveg, szoveg);
    EXPECT_EQ(a.Uralkodok.UralkodoSzoveg, horizont);
}

TEST_F(TOrajel, DekadNezetbenAKapcsolatSorAll) {
    szuletes();
    orajelek(3);
    const std::string szoveg = a.Uralkodok.UralkodoSzoveg;
    a.KepletTipus = TKepletTipus::dekad;
    orajelek(2);
    EXPECT_EQ(a.FutoSzoveg, kapcsolatSor);
    EXPECT_EQ(a.Uralkodok.UralkodoSzoveg, szoveg);
}

TEST_F(TOrajel, Huszonkilenc_KarakterAllHarmincGordul) {
    szuletes();
    for (const auto& [allo, gordulo] : {std::pair(panelNev, panelHely), std::pair(panelHely, panelNev)}) {
        panel(allo) = std::string(27, 'x') + "őb";
        panel(gordulo) = std::string(28, 'x') + "őb";
        orajelek(1);
        EXPECT_EQ(panel(allo), std::string(27, 'x') + "őb");
        EXPECT_EQ(panel(gordulo), std::string(27, 'x') + "őbx");
    }
}

TEST_F(TOrajel, ANyugvoKepletNemSzamolodikUjra) {
    szuletes();
    const std::string ido = panel(panelIdo);
    a.Feliratok.memo = "marad";
    orajelek(300);
    EXPECT_EQ(ablak.rajzok(), 0);
    EXPECT_EQ(panel(panelIdo), ido);
    EXPECT_EQ(a.Feliratok.memo, "marad");
}

TEST_F(TOrajel, AFutoOraMinden251OrajelreRajzol) {
    orajelek(250);
    EXPECT_EQ(ablak.rajzok(), 0);
    EXPECT_EQ(a.MostSzamlalo, 250);
    orajelek(1);
    EXPECT_EQ(ablak.hivasok, (THivasok{"Ervenytelenit", "RajzolKeplet"}));
    EXPECT_EQ(ablak.mutatasok, 251 + 1);  // once a tick, and at the start
    EXPECT_EQ(a.MostSzamlalo, 0);
    orajelek(250);
    EXPECT_EQ(ablak.rajzok(), 1);
    orajelek(1);
    EXPECT_EQ(ablak.rajzok(), 2);
}

TEST_F(TOrajel, AFutoOraMindenOrajelreOlvasEsUritiAJegyzetet) {
    a.Szemely.idoTipus = TIdoTipus::LMT;
    a.Feliratok.memo = "jegyzet";
    ablak.ido = "23:59:58";
    ablak.datum = "2024.07.01";
    orajelek(1);
    EXPECT_EQ(panel(panelIdo), "2024.07.01. 23:59:58 ZN");
    EXPECT_EQ(a.Szemely.idoTipus, TIdoTipus::ZN);
    EXPECT_EQ(a.Keplet.nyariIdo, 1);
    EXPECT_EQ(a.Feliratok.memo, "");
    EXPECT_EQ(panel(panelNev), "Most");
    EXPECT_EQ(ablak.rajzok(), 0);
}

TEST_F(TOrajel, AFutoOraLeptetesUtanIsMostNevu) {
    a.Szemely.nev = "Anna";
    a.LeptetesVolt = true;  // a step writes the chart's name in the panel, the running clock its own over it
    orajelek(1);
    EXPECT_EQ(panel(panelNev), "Most");
}

TEST_F(TOrajel, ASzamitogepOrajaATablaVegenMegall) {
    ablak.datum = "2100.05.06";
    orajelek(1);
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{2078, 5, 6, 8, 15, 0}));
}

TEST_F(TOrajel, TobbLepesEgyOrajelAlattEgyRajz) {
    szuletes();
    a.MostFut = false;
    a.LeptetesVolt = true;
    a.Keplet.pillanat.perc = 7;
    a.Keplet.pillanat.perc = 8;
    orajelek(1);
    EXPECT_EQ(ablak.rajzok(), 1);
    EXPECT_FALSE(a.LeptetesVolt);
    EXPECT_EQ(panel(panelNev), "Minta Anna");
    EXPECT_EQ(panel(panelIdo), "1975.03.21. 06:08:09 ZN");
    EXPECT_EQ(a.Feliratok.leptetoCim, "1975.03.21. 06:08:09");
    EXPECT_EQ(a.Feliratok.memo, "");
    const Allapot leptetett = szuletesiKeplet({1975, 3, 21, 6, 8, 9});
    EXPECT_EQ(a.Keplet.bolygo, leptetett.Keplet.bolygo);
    EXPECT_EQ(a.Keplet.hazCsucs, leptetett.Keplet.hazCsucs);
    EXPECT_EQ(a.FenyszogRadix, leptetett.FenyszogRadix);
    orajelek(1);
    EXPECT_EQ(ablak.rajzok(), 1);
}

TEST_F(TOrajel, AMundanKeresKeresereUjraszamolDeALeptetoCimeMarad) {
    szuletes();
    a.MundanFrissites = true;
    orajelek(1);
    EXPECT_EQ(ablak.rajzok(), 1);
    EXPECT_FALSE(a.MundanFrissites);
    EXPECT_EQ(a.Feliratok.leptetoCim, "Léptet");
}

TEST_F(TOrajel, AMundanAblakMindenOrajelreFrissul) {
    szuletes();
    a.MundanAblakNyitva = true;
    orajelek(3);
    EXPECT_EQ(ablak.hivasok, (THivasok{"MundanFrissit", "MundanFrissit", "MundanFrissit"}));
}

TEST_F(TOrajel, APontositasAPrimerElottARajzUtan) {
    szuletes();
    a.PontositasFut = a.PrimerFut = true;
    orajelek(1);
    EXPECT_TRUE(ablak.hivasok.empty());
    a.LeptetesVolt = true;
    orajelek(1);
    EXPECT_EQ(ablak.hivasok, (THivasok{"Ervenytelenit", "RajzolKeplet", "PontositasFuttat", "PrimerFuttat"}));
}

TEST_F(TOrajel, MindenUjraszamitasUtanAListakIs) {
    szuletes();
    a.PontositasFut = a.PrimerFut = true;
    VisszateresKereses(a, RevolucioFajta(1), VisszateresCel(a, RevolucioFajta(1)));
    const std::function<void()> parancsok[]{
        [&] { ValtParancs(a, ablak); },
        [&] { HorizontParancs(a, ablak); },
        [&] { MundanParancs(a, ablak); },
        [&] { DekadParancs(a, ablak); },
        [&] { BevittKepletMutatasa(a, ablak); },
        [&] { VisszateresKeplet(a, ablak, RevolucioFajta(1), 1, "Pécs"); },
        [&] { MostParancs(a, ablak); },  // back from the derived chart
    };
    for (const auto& parancs : parancsok) {
        ablak.hivasok.clear();
        parancs();
        // Last of all, after the drawing, the rectification first.
        ASSERT_GE(ablak.hivasok.size(), 3U);
        EXPECT_EQ(THivasok(ablak.hivasok.end() - 3, ablak.hivasok.end()),
                  (THivasok{"RajzolKeplet", "PontositasFuttat", "PrimerFuttat"}));
    }
}

TEST_F(TOrajel, HangNelkulAHanglejatszoCimeAll) {
    a.HangCim = "Őz   ";
    orajelek(1);
    EXPECT_EQ(a.HangCim, "Őz   ");
    EXPECT_EQ(a.Feliratok.hangCim, "Hanglejátszás");
}

TEST_F(TOrajel, AHangCimeGordul) {
    szuletes();
    a.HangAktiv = true;
    a.HangCim = "Őz   ";
    orajelek(1);
    EXPECT_EQ(a.Feliratok.hangCim, "z   Ő");
}

TEST_F(TOrajel, AMostGombIndulaskorAzInduloPillanatonAllMeg) {
    ablak.ido = "9:00:00";
    orajelek(1);
    ASSERT_EQ(a.Keplet.pillanat.ora, 9);
    MostParancs(a, ablak);
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{2024, 3, 5, 8, 15, 0}));
    EXPECT_EQ(a.Feliratok.mostGomb, "Most");
    EXPECT_EQ(panel(panelNev), "");
    EXPECT_EQ(panel(panelIdo), "2024.03.05. 08:15:00 ZN");
    EXPECT_FALSE(a.MostFut);
    EXPECT_EQ(ablak.hivasok, (THivasok{"Ujrafest", "Ervenytelenit", "RajzolKeplet"}));
}

TEST_F(TOrajel, AMostGombElinditjaAzOratEsVisszahozza) {
    szuletes();
    a.Szemely.jegyzetMentett = "régi";
    const int elobb = ablak.mutatasok;
    MostParancs(a, ablak);
    EXPECT_EQ(ablak.mutatasok, elobb + 1);  // the button says at once where it leads
    EXPECT_TRUE(a.MostFut);
    EXPECT_EQ(a.Feliratok.mostGomb, "Vissza");
    EXPECT_EQ(panel(panelNev), "Most");
    EXPECT_EQ(a.Szemely.jegyzetMentett, "jegyzet");
    EXPECT_EQ(a.Feliratok.memo, "jegyzet");
    EXPECT_EQ(ablak.rajzok(), 0);
    orajelek(1);
    EXPECT_EQ(ablak.rajzok(), 1);
    EXPECT_EQ(a.Feliratok.memo, "");
    EXPECT_EQ(a.Keplet.pillanat.ev, 2024);

    MostParancs(a, ablak);
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{1975, 3, 21, 6, 4, 9}));
    EXPECT_EQ(a.Feliratok.memo, "jegyzet");
    EXPECT_EQ(panel(panelNev), "Minta Anna");
    EXPECT_EQ(a.Feliratok.mostGomb, "Most");
}

TEST_F(TOrajel, AVisszaUtAKepzettKepletrol) {
    szuletes();
    a.VisszaMod = true;
    a.helysegMentett = "Szeged";
    a.Keplet.helyseg = "Pécs";
    a.Keplet.pillanat.ev = 1990;
    a.RadixPillanat.ev = 1980;
    panel(panelTipus) = "Szolár";
    MostParancs(a, ablak);
    EXPECT_FALSE(a.VisszaMod);
    EXPECT_FALSE(a.MostFut);
    EXPECT_EQ(panel(panelTipus), "Radix");
    EXPECT_EQ(a.Keplet.helyseg, "Szeged");
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{1975, 3, 21, 6, 4, 9}));
    EXPECT_EQ(a.RadixPillanat, a.SzuletesiPillanat);
    EXPECT_EQ(a.Feliratok.mostGomb, "Most");
}

TEST_F(TOrajel, AVisszateresKepleterolIsASzuleteshez) {
    szuletes();
    VisszateresKereses(a, RevolucioFajta(1), VisszateresCel(a, RevolucioFajta(1)));
    VisszateresKeplet(a, ablak, RevolucioFajta(1), 31, "Pécs");
    ASSERT_EQ(a.Keplet.helyseg, "Pécs");
    a.MostFut = true;  // the press turns it off
    MostParancs(a, ablak);
    EXPECT_EQ(a.Keplet.helyseg, "Szeged");
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{1975, 3, 21, 6, 4, 9}));
}

TEST_F(TOrajel, KetKepzettKepletUtanIsASzuletesHelyere) {
    szuletes();
    VisszateresKereses(a, RevolucioFajta(1), VisszateresCel(a, RevolucioFajta(1)));
    VisszateresKeplet(a, ablak, RevolucioFajta(1), 31, "Pécs");
    VisszateresKeplet(a, ablak, RevolucioFajta(1), 32, "Sopron");
    EXPECT_EQ(a.Keplet.helyseg, "Sopron");
    EXPECT_EQ(a.helysegMentett, "Szeged");
    MostParancs(a, ablak);
    EXPECT_EQ(a.Keplet.helyseg, "Szeged");
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{1975, 3, 21, 6, 4, 9}));
    EXPECT_EQ(panel(4), "Szeged");
}

TEST_F(TOrajel, AValasztottIdoTipustAzOrajelNemIrjaFelul) {
    IdoTipusValasztas(a, 1);
    orajelek(1);
    EXPECT_EQ(a.Szemely.idoTipus, TIdoTipus::LMT);
    EXPECT_TRUE(panel(3).ends_with(" ZN"));
    SzemelyiAblakZarult(a);
    orajelek(1);
    EXPECT_EQ(a.Szemely.idoTipus, TIdoTipus::ZN);
}

TEST_F(TOrajel, AMostGombAzElkuszottNapotVisszahozza) {
    SzemelyiRendben(a, mintaSzemely({1975, 3, 21, 0, 30, 0}));
    BevittKepletMutatasa(a, ablak);
    const TBolygok szuletesi = a.Keplet.bolygo;
    for (int i = 0; i < 3; ++i) ValtParancs(a, ablak);
    EXPECT_NE(a.Keplet.bolygo[2], szuletesi[2]);
    MostParancs(a, ablak);  // the clock runs
    MostParancs(a, ablak);  // and back
    EXPECT_EQ(a.Keplet.bolygo[2], szuletesi[2]);
    EXPECT_EQ(panel(3), "1975.03.21. 00:30:00 ZN");
}

TEST_F(TOrajel, ATeljesUjraszamitasUtanAFestesKeresRajzol) {
    szuletes();
    MundanParancs(a, ablak);
    ASSERT_TRUE(a.TeljesTorles);
    a.LeptetesVolt = true;
    orajelek(1);
    EXPECT_FALSE(a.TeljesTorles);
}

TEST_F(TOrajel, AzUjKepletRadixNezetbenJonFel) {
    szuletes();
    DekadParancs(a, ablak);
    ASSERT_EQ(a.KepletTipus, TKepletTipus::dekad);
    szuletes();
    EXPECT_EQ(a.KepletTipus, TKepletTipus::radix);
    EXPECT_EQ(panel(0), "Radix");
    EXPECT_EQ(a.Feliratok.valtGomb, "Mundán");
}

TEST_F(TOrajel, UjKepletAKepzettAllapotbanAVisszaModMarad) {
    szuletes();
    a.VisszaMod = true;
    a.helysegMentett = "Pécs";
    BevittKepletMutatasa(a, ablak);
    EXPECT_TRUE(a.VisszaMod);
    EXPECT_EQ(a.Feliratok.mostGomb, "Most");
    MostParancs(a, ablak);
    EXPECT_EQ(a.Keplet.helyseg, "Pécs");
}

TEST_F(TOrajel, AFutoOraVisszavesziAKepernyotAKepzettKeplettol) {
    a.VisszaMod = true;
    a.Feliratok.mostGomb = "Vissza";
    a.Keplet.pillanat.ev = 1990;
    orajelek(1);
    EXPECT_EQ(a.Keplet.pillanat.ev, 2024);
    EXPECT_EQ(panel(panelNev), "Most");
    EXPECT_EQ(a.Feliratok.mostGomb, "Vissza");
}

}  // namespace
