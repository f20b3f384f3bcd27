// The three views.

#include <gtest/gtest.h>

#include "chart/statuszsor.h"
#include "commands/nezet.h"
#include "indultprogram.h"
#include "mintakeplet.h"
#include "probaablak.h"
#include "tables/efemerida.h"

namespace {

TEST(Nezet, HaromValtVisszaterAzElsore) {
    Allapot a = kepernyoKeplet({1975, 3, 21, 6, 4, 9}, "Szeged");
    TProbaAblak ablak;
    ValtParancs(a, ablak);
    EXPECT_EQ(a.Feliratok.statusz[panelTipus], "Mundán");
    EXPECT_EQ(a.Feliratok.valtGomb, "Dekád");
    ValtParancs(a, ablak);
    EXPECT_EQ(a.Feliratok.statusz[panelTipus], "Dekád");
    EXPECT_EQ(a.Feliratok.valtGomb, "Radix");
    ValtParancs(a, ablak);
    EXPECT_EQ(a.Feliratok.statusz[panelTipus], "Radix");
    EXPECT_EQ(a.Feliratok.valtGomb, "Mundán");
    EXPECT_EQ(a.KepletTipus, TKepletTipus::radix);
}

TEST(Nezet, EloszorTorolAztanRajzolEsTorolveMarad) {
    for (const auto parancs : {ValtParancs, HorizontParancs, MundanParancs, DekadParancs}) {
        Allapot a = kepernyoKeplet({1975, 3, 21, 6, 4, 9}, "Szeged");
        a.TeljesTorles = false;
        TProbaAblak ablak;
        parancs(a, ablak);
        EXPECT_EQ(ablak.hivasok, (THivasok{"Ujrafest", "RajzolKeplet"}));
        EXPECT_EQ(ablak.mutatasok, 1);
        EXPECT_TRUE(a.TeljesTorles);
        EXPECT_FALSE(a.MostFut);
        EXPECT_EQ(a.Feliratok.mostGomb, "Most");
    }
}

TEST(Nezet, KepzettKepletnelAGombVissza) {
    Allapot a = kepernyoKeplet({1975, 3, 21, 6, 4, 9}, "Szeged");
    a.VisszaMod = true;
    TProbaAblak ablak;
    HorizontParancs(a, ablak);
    EXPECT_EQ(a.Feliratok.mostGomb, "Vissza");
}

TEST(Nezet, AzEjfelUtaniKepletNapjaMindenValtassalVisszalep) {
    Allapot a = kepernyoKeplet({1990, 1, 10, 0, 30, 0}, "Budapest");
    std::int32_t ev = 1990, ho = 1, nap = 10;
    const int szuletesnap = DatumbolJulianszam(ev, ho, nap);
    ASSERT_EQ(a.Keplet.julianszam, szuletesnap - 1);
    TProbaAblak ablak;
    for (int valtas = 1; valtas <= 3; ++valtas) {
        ValtParancs(a, ablak);
        EXPECT_EQ(a.Keplet.julianszam, szuletesnap - 1 - valtas);
        EXPECT_EQ(a.Feliratok.statusz[panelIdo], "1990.01.10. 00:30:00 ZN");
        // At 23:30 the Sun stands within a minute or two of its place at the next midnight.
        EXPECT_NEAR(a.Keplet.bolygo[1], efemeridaNap(szuletesnap - valtas).nap_hossz / 3600.0, 0.05);
    }
}

TEST(Nezet, AGepeltHelyetATablaFelulirja) {
    Allapot a = kepernyoKeplet({1975, 3, 21, 6, 4, 9}, "Xanadu");
    a.Keplet.hosszusag = -68160;
    a.Keplet.szelesseg = 150000;
    a.Keplet.idozona = -5;
    TProbaAblak ablak;
    DekadParancs(a, ablak);
    EXPECT_EQ(a.Keplet.hosszusag, 68640);
    EXPECT_EQ(a.Keplet.szelesseg, 171000);
    EXPECT_EQ(a.Keplet.idozona, 1);
}

TEST(Nezet, AMundanEsADekadParancsAzUralkodokatBekenHagyja) {
    for (const auto parancs : {MundanParancs, DekadParancs}) {
        Allapot a = kepernyoKeplet({1975, 3, 21, 6, 4, 9}, "Szeged");
        a.Uralkodok.UralkodoSzoveg = "regi";
        a.Uralkodok.MundanUralkodoSzoveg = "regi";
        a.Uralkodok.HazUra.tolt(-1);
        a.Uralkodok.DekadSzoveg.tolt("regi");
        TProbaAblak ablak;
        parancs(a, ablak);
        EXPECT_EQ(a.Uralkodok.UralkodoSzoveg, "regi");
        EXPECT_EQ(a.Uralkodok.MundanUralkodoSzoveg, "regi");
        EXPECT_EQ(a.Uralkodok.HazUra[1], -1);
        EXPECT_NE(a.Uralkodok.DekadSzoveg[1], "regi");
    }
}

TEST(Nezet, AValtAzUralkodokatIsUjraszamolja) {
    for (const auto parancs : {ValtParancs, HorizontParancs}) {
        Allapot a = kepernyoKeplet({1975, 3, 21, 6, 4, 9}, "Szeged");
        const std::string szoveg = a.Uralkodok.UralkodoSzoveg;
        a.Uralkodok.UralkodoSzoveg = "regi";
        TProbaAblak ablak;
        parancs(a, ablak);
        EXPECT_EQ(a.Uralkodok.UralkodoSzoveg, szoveg);
    }
}

class TNezet : public TIndultProgram {};

TEST_F(TNezet, AListakCsakHaKertek) {
    szuletes();
    a.PrimerFut = true;
    ValtParancs(a, ablak);
    EXPECT_EQ(ablak.hivasok.back(), "PrimerFuttat");
    a.PrimerFut = false;
    ValtParancs(a, ablak);
    EXPECT_EQ(ablak.hivasok.back(), "RajzolKeplet");
}

}  // namespace
