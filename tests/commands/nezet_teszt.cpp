// The three views and the recompute cycle.

#include <gtest/gtest.h>

#include "chart/kepletciklus.h"
#include "chart/statuszsor.h"
#include "commands/nezet.h"
#include "probaablak.h"
#include "tables/efemerida.h"

namespace {

using THivasok = std::vector<std::string>;

Allapot keplet(const TPillanat& pillanat, const char* helyseg) {
    Allapot a;
    a.Keplet.pillanat = pillanat;
    a.Keplet.helyseg = helyseg;
    DatumRendezes(a.Keplet);
    IdoAdatok(a);
    IrStatuszSor(a, a.Keplet.pillanat, TIdoTipus::ZN);
    KepletCiklus(a);
    return a;
}

TEST(Nezet, HaromValtVisszaterAzElsore) {
    Allapot a = keplet({1975, 3, 21, 6, 4, 9}, "Szeged");
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
        Allapot a = keplet({1975, 3, 21, 6, 4, 9}, "Szeged");
        a.TeljesTorles = false;
        TProbaAblak ablak;
        parancs(a, ablak);
        EXPECT_EQ(ablak.hivasok, (THivasok{"Ujrafest", "RajzolKeplet"}));
        EXPECT_TRUE(a.TeljesTorles);
        EXPECT_FALSE(a.MostFut);
        EXPECT_EQ(a.Feliratok.mostGomb, "Most");
    }
}

TEST(Nezet, KepzettKepletnelAGombVissza) {
    Allapot a = keplet({1975, 3, 21, 6, 4, 9}, "Szeged");
    a.VisszaMod = true;
    TProbaAblak ablak;
    HorizontParancs(a, ablak);
    EXPECT_EQ(a.Feliratok.mostGomb, "Vissza");
}

TEST(Nezet, AzEjfelUtaniKepletNapjaMindenValtassalVisszalep) {
    Allapot a = keplet({1990, 1, 10, 0, 30, 0}, "Budapest");
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
    Allapot a = keplet({1975, 3, 21, 6, 4, 9}, "Xanadu");
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
        Allapot a = keplet({1975, 3, 21, 6, 4, 9}, "Szeged");
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
        Allapot a = keplet({1975, 3, 21, 6, 4, 9}, "Szeged");
        const std::string szoveg = a.Uralkodok.UralkodoSzoveg;
        a.Uralkodok.UralkodoSzoveg = "regi";
        TProbaAblak ablak;
        parancs(a, ablak);
        EXPECT_EQ(a.Uralkodok.UralkodoSzoveg, szoveg);
    }
}

TEST(KepletCiklus, IsmeretlenHelyAzAlapertekekkel) {
    const Allapot a = keplet({1975, 3, 21, 6, 4, 9}, "Xanadu");
    EXPECT_EQ(a.Keplet.idozona, 1);
    EXPECT_EQ(a.Feliratok.statusz[panelKoordinata], "19°4'K  47°30'É");
}

TEST(KepletCiklus, AKepernyoTablaiTeljesMasolatok) {
    const Allapot a = keplet({1975, 3, 21, 6, 4, 9}, "Szeged");
    EXPECT_EQ(a.Keplet.bolygo, a.Keplet.Bolygok);
    EXPECT_EQ(a.Keplet.hazCsucs, a.Keplet.Hazcsucsok);
    EXPECT_EQ(a.Keplet.mozgas, a.Keplet.Mozgasok);
    EXPECT_EQ(a.Elteresek, a.Munka.Elteresek);
    EXPECT_EQ(a.FenyszogOrbis, a.Munka.FenyszogOrbis);
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(a.FenyszogRadix[i][i], '.');
        EXPECT_EQ(a.EgyuttallasMatrix[i][i], '+');
        EXPECT_EQ(a.AlsoFelsoMatrix[i][i], '+');
    }
    // Sun at the end of Pisces and Jupiter at the beginning of Aries are conjunct, and Jupiter lies ahead.
    EXPECT_EQ(a.FenyszogRadix[1][6], 'M');
    EXPECT_EQ(a.EgyuttallasMatrix[1][6], 'M');
    EXPECT_EQ(a.AlsoFelsoMatrix[1][6], 'F');
    EXPECT_EQ(a.AlsoFelsoMatrix[6][1], 'A');
}

TEST(StatuszSor, MintaIdopont) {
    EXPECT_EQ(idopontSzoveg({2024, 3, 5, 8, 15, 0}), "2024.03.05. 08:15:00");
    EXPECT_EQ(idopontSzoveg({2024, 12, 15, 18, 5, 10}), "2024.12.15. 18:05:10");
}

TEST(StatuszSor, KoordinatakOldalai) {
    EXPECT_EQ(koordinataSzoveg(68640, 171000), "19°4'K  47°30'É");
    EXPECT_EQ(koordinataSzoveg(-68160, -171000), "18°56'Ny  47°30'D");
    EXPECT_EQ(koordinataSzoveg(0, 171000), "0°0'47°30'É");
    EXPECT_EQ(koordinataSzoveg(68640, 0), "19°4'K  0°0'");
    EXPECT_EQ(koordinataSzoveg(-59, 59), "0°0'Ny  0°0'É");
}

TEST(StatuszSor, AzArmcMasodpercetLevagja) {
    TKeplet k;
    k.armcOra = 7;
    k.armcPerc = 0;
    k.armcMperc = 9.99;
    EXPECT_EQ(armcSzoveg(k), "ARMC:  07:00:09");
    k.armcMperc = 47.7;
    EXPECT_EQ(armcSzoveg(k), "ARMC:  07:00:47");
}

}  // namespace
