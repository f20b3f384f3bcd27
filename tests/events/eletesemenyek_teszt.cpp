#include <array>
#include <cmath>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "events/eletesemenyek.h"
#include "predictive/solarkereses.h"
#include "tables/efemerida.h"
#include "tables/pillanat.h"

namespace {

TEletesemeny esemeny(const char* szoveg) {
    TEletesemeny e;
    e.esemeny = szoveg;
    e.analogia = "I";
    return e;
}

TEST(Esemenyek, FelvetelCsereTorles) {
    TEsemenyTar tar;
    int kijelolt = 0;
    EXPECT_TRUE(EsemenyFelvetel(tar, kijelolt, esemeny("a")));
    EXPECT_TRUE(EsemenyFelvetel(tar, kijelolt, esemeny("b")));
    EXPECT_TRUE(EsemenyFelvetel(tar, kijelolt, esemeny("c")));
    EXPECT_EQ(tar.EsemenyDb, 3);
    kijelolt = 2;
    EXPECT_TRUE(EsemenyFelvetel(tar, kijelolt, esemeny("B")));
    EXPECT_EQ(tar.EsemenyDb, 3);
    EXPECT_EQ(tar.esemenyek[2].esemeny, "B");
    EXPECT_EQ(kijelolt, 0);
    kijelolt = 1;
    EsemenyTorles(tar, kijelolt);
    EXPECT_EQ(tar.EsemenyDb, 2);
    EXPECT_EQ(tar.esemenyek[1].esemeny, "B");
    EXPECT_EQ(tar.esemenyek[2].esemeny, "c");
    kijelolt = 2;
    EsemenyTorles(tar, kijelolt);
    EXPECT_EQ(tar.EsemenyDb, 1);
    EsemenyTorles(tar, kijelolt);  // nothing selected
    EXPECT_EQ(tar.EsemenyDb, 1);
}

TEST(Esemenyek, ATorlesUtanNincsKijeloles) {
    TEsemenyTar tar;
    int kijelolt = 0;
    for (const char* szoveg : {"a", "b", "c"}) EsemenyFelvetel(tar, kijelolt, esemeny(szoveg));
    kijelolt = 1;
    EsemenyTorles(tar, kijelolt);
    EXPECT_EQ(kijelolt, 0);
    EsemenyTorles(tar, kijelolt);
    EXPECT_EQ(tar.EsemenyDb, 2);
    EXPECT_EQ(tar.esemenyek[1].esemeny, "b");
    EsemenyFelvetel(tar, kijelolt, esemeny("d"));  // a new row, not in the place of one
    EXPECT_EQ(tar.EsemenyDb, 3);
    EXPECT_EQ(tar.esemenyek[1].esemeny, "b");
    EXPECT_EQ(tar.esemenyek[3].esemeny, "d");
}

TEST(Esemenyek, ASorokUtaniKijelolesNemTorol) {
    TEsemenyTar tar;
    int kijelolt = 0;
    for (const char* szoveg : {"a", "b"}) EsemenyFelvetel(tar, kijelolt, esemeny(szoveg));
    for (int rossz : {3, -1}) {
        EsemenyTorles(tar, rossz);
        EXPECT_EQ(tar.EsemenyDb, 2);
    }
    EXPECT_EQ(tar.esemenyek[1].esemeny, "a");
    EXPECT_EQ(tar.esemenyek[2].esemeny, "b");
}

TEST(Esemenyek, ATeliListabolIsTorol) {
    TEsemenyTar tar;
    int kijelolt = 0;
    for (int i = 1; i <= 20; ++i) EsemenyFelvetel(tar, kijelolt, esemeny(std::to_string(100 + i).c_str()));
    kijelolt = 4;
    EsemenyTorles(tar, kijelolt);
    EXPECT_EQ(tar.EsemenyDb, 19);
    for (int i = 1; i <= 19; ++i)
        EXPECT_EQ(tar.esemenyek[i].esemeny, std::to_string(100 + i + (i < 4 ? 0 : 1)));
    EXPECT_TRUE(EsemenyFelvetel(tar, kijelolt, esemeny("x")));
    EXPECT_EQ(tar.esemenyek[20].esemeny, "x");
}

TEST(EsemenyKezdoMezok, EsemenyNelkulASzuletesIdejeEsHelye) {
    TEsemenyTar tar;
    tar.esemenyek[1] = esemeny("above the count");
    TEletesemeny szuletes = esemeny("x");
    szuletes.pillanat = {1985, 7, 21, 6, 4, 9};
    szuletes.helyseg = "Szeged";
    szuletes.idozona = 2;
    szuletes.hosszFok = 20;
    szuletes.hosszPerc = 9;
    szuletes.szelFok = 46;
    szuletes.szelPerc = 14;
    szuletes.solarNap = 5;
    const TEletesemeny e = EsemenyKezdoMezok(tar, szuletes);
    EXPECT_EQ(e.esemeny, "");
    EXPECT_EQ(e.analogia, "");
    EXPECT_EQ(e.solarNap, 0);
    EXPECT_EQ(e.nyariIdo, 1);  // the summer of 1985
    TEletesemeny elvart = szuletes;
    elvart.esemeny = elvart.analogia = "";
    elvart.solarNap = 0;
    elvart.nyariIdo = 1;
    EXPECT_EQ(e, elvart);
}

TEST(EsemenyKezdoMezok, AzUtolsoEsemenyIdejeEsHelyeANyariIdoATablabol) {
    TEsemenyTar tar;
    int kijelolt = 0;
    EsemenyFelvetel(tar, kijelolt, esemeny("a"));
    TEletesemeny utolso = esemeny("b");
    utolso.pillanat = {1999, 12, 24, 18, 0, 0};
    utolso.helyseg = "Pécs";
    utolso.hosszFok = 18;
    utolso.nyariIdo = 1;  // by hand
    EsemenyFelvetel(tar, kijelolt, utolso);
    const TEletesemeny e = EsemenyKezdoMezok(tar, esemeny("birth"));
    EXPECT_EQ(e.pillanat, utolso.pillanat);
    EXPECT_EQ(e.helyseg, "Pécs");
    EXPECT_EQ(e.hosszFok, 18);
    EXPECT_EQ(e.nyariIdo, 0);
    EXPECT_EQ(e.esemeny, "");
    EXPECT_EQ(tar.esemenyek[2].esemeny, "b");
}

TEST(EsemenyKezdoMezok, HelyNelkuliEsemenyUtanASzuletesHelye) {
    TEsemenyTar tar;
    int kijelolt = 0;
    TEletesemeny utolso = esemeny("a");
    utolso.pillanat = {1999, 12, 24, 18, 0, 0};
    EsemenyFelvetel(tar, kijelolt, utolso);
    TEletesemeny szuletes;
    szuletes.pillanat = {1985, 7, 21, 6, 4, 9};
    szuletes.helyseg = "Szeged";
    szuletes.szelFok = 46;
    const TEletesemeny e = EsemenyKezdoMezok(tar, szuletes);
    EXPECT_EQ(e.pillanat, utolso.pillanat);
    EXPECT_EQ(e.helyseg, "Szeged");
    EXPECT_EQ(e.szelFok, 46);
    EXPECT_EQ(e.nyariIdo, 0);
}

TEST(EsemenyLista, AzonosHaAFelsoroltEsemenyekAzok) {
    TEsemenyTar a, b;
    EXPECT_TRUE(EsemenyListaAzonos(a, b));
    b.esemenyek[1] = esemeny("above the count");
    EXPECT_TRUE(EsemenyListaAzonos(a, b));
    int kijelolt = 0;
    EsemenyFelvetel(a, kijelolt, esemeny("a"));
    EXPECT_FALSE(EsemenyListaAzonos(a, b));
    EsemenyFelvetel(b, kijelolt, esemeny("a"));
    EXPECT_TRUE(EsemenyListaAzonos(a, b));
    a.esemenyek[1].solarNap = 3;
    EXPECT_FALSE(EsemenyListaAzonos(a, b));
}

TEST(Esemenyek, UresSzovegNemKerulBeAKijelolesMarad) {
    TEsemenyTar tar;
    int kijelolt = 0;
    EsemenyFelvetel(tar, kijelolt, esemeny("a"));
    kijelolt = 1;
    EXPECT_FALSE(EsemenyFelvetel(tar, kijelolt, esemeny("")));
    EXPECT_EQ(kijelolt, 1);
    EXPECT_EQ(tar.esemenyek[1].esemeny, "a");
}

TEST(Esemenyek, HuszNalACsereIsElmarad) {
    TEsemenyTar tar;
    int kijelolt = 0;
    for (int i = 0; i < 20; ++i) EXPECT_TRUE(EsemenyFelvetel(tar, kijelolt, esemeny("a")));
    EXPECT_FALSE(EsemenyFelvetel(tar, kijelolt, esemeny("b")));
    kijelolt = 5;
    EXPECT_FALSE(EsemenyFelvetel(tar, kijelolt, esemeny("b")));
    EXPECT_EQ(tar.esemenyek[5].esemeny, "a");
    EXPECT_EQ(tar.EsemenyDb, 20);
}

TEST(Esemenyek, AzonosSzovegnelAKesobbitJeloliKi) {
    TEsemenyTar tar;
    int kijelolt = 0;
    for (const char* szoveg : {"esküvő", "költözés", "esküvő"})
        EsemenyFelvetel(tar, kijelolt, esemeny(szoveg));
    tar.esemenyek[2].analogia = "IV";
    EXPECT_EQ(EsemenyKijeloles(tar, "esküvő"), 3);
    EXPECT_EQ(EsemenyKijeloles(tar, "1"), 1);
    EXPECT_EQ(EsemenyKijeloles(tar, "IV"), 2);
    EXPECT_EQ(EsemenyKijeloles(tar, "nincs"), 0);
    EXPECT_EQ(EsemenyKijeloles(tar, ""), 0);
}

TEST(Esemenyek, NullaOraNyariIdovelAzElozoNap) {
    TEletesemeny e = esemeny("a");
    e.pillanat.ev = 2000, e.pillanat.ho = 3, e.pillanat.nap = 1;
    e.nyariIdo = 1;
    EXPECT_EQ(EsemenyGmt(e), (TPillanat{2000, 2, 29, 22, 0, 0}));
    e.idozona = -5;
    e.nyariIdo = 0;
    e.pillanat.ora = 20;
    EXPECT_EQ(EsemenyGmt(e), (TPillanat{2000, 3, 2, 1, 0, 0}));
}

TEST(Esemenyek, AHelybolANyariIdoCsakZonaOraval) {
    const TPillanat nyar{2000, 7, 1, 12, 0, 0};
    EXPECT_EQ(EsemenyHelyNyariIdo(TIdoTipus::ZN, nyar), 1);
    EXPECT_EQ(EsemenyHelyNyariIdo(TIdoTipus::ZN, {2000, 1, 1, 12, 0, 0}), 0);
    EXPECT_EQ(EsemenyHelyNyariIdo(TIdoTipus::LMT, nyar), 0);
    EXPECT_EQ(EsemenyHelyNyariIdo(TIdoTipus::GMT, nyar), 0);
}

TEST(Esemenyek, ASorTizenotSzovege) {
    TEsemenyTar tar;
    int kijelolt = 0;
    TEletesemeny e = esemeny("esküvő");
    e.pillanat.ev = 2000, e.pillanat.ho = 3, e.pillanat.nap = 5, e.pillanat.ora = 9, e.pillanat.perc = 8,
    e.pillanat.mperc = 7;
    e.helyseg = "Pécs";
    e.hosszFok = 18, e.hosszPerc = 14, e.szelFok = 46, e.szelPerc = 4;
    e.solarNap = 10;
    EsemenyFelvetel(tar, kijelolt, e);
    EXPECT_EQ(EsemenySor(tar, 1),
              (std::array<std::string, 15>{"1", "esküvő", "I", "2000.", "03.", "05", "08:", "08:", "07",
                                           "Pécs", "18°", "14'", "46°", "4'", " X"}));
    EXPECT_EQ(EsemenySor(tar, 2), (std::array<std::string, 15>{}));
}

TEST(SolarNap, ANapHazaASolarKepletbol) {
    // The same Sun moved on by whole houses of the place: checked against the Ascendant of the return's
    // moment.
    const TSzuletes sz{{1975, 7, 21, 6, 4, 9}, 0, 1, 72586};
    const double nap = 117.8409;  // 27°50'27'' Cancer, as the chart on screen shows it
    for (int ev = 1980; ev < 2060; ++ev) {
        TEletesemeny e = esemeny("a");
        e.pillanat.ev = ev, e.pillanat.ho = 12, e.szelFok = 47, e.szelPerc = 30, e.hosszFok = 19,
        e.hosszPerc = 4;
        const TSolar solar = SolarKereses(nap * 3600, napSzama({ev, 12, 1}) - julianszamAlap);
        const TSolarKeplet k = SolarKeplet(solar, 68640, 171000);
        int haz = 0;
        double legkozelebb = 360;
        for (int h = 1; h <= 12; ++h) {
            const double tav = std::fmod(nap - k.csucsok[h] + (h % 3 == 1 ? 5 : 3) + 720, 360);
            if (tav < legkozelebb) legkozelebb = tav, haz = h;
        }
        if (legkozelebb < 0.02) continue;  // too near a boundary for the Sun's rounded longitude
        EXPECT_EQ(EsemenySolarNap(sz, e), haz) << ev;
    }
}

TEST(SolarNap, ASolarKepletHelyetolFugg) {
    const TSzuletes sz{{1975, 3, 21, 6, 4, 9}, 0, 1, 72586};
    TEletesemeny e = esemeny("a");
    e.pillanat.ev = 1976, e.pillanat.ho = 3, e.pillanat.nap = 20, e.pillanat.ora = 12;
    e.szelFok = 46, e.szelPerc = 14;
    // The same return seen from four places a quarter of the Earth's turning apart: four different houses.
    std::set<int> hazak;
    for (const int fok : {20, -70, -160, 110}) {
        e.hosszFok = fok;
        const int haz = EsemenySolarNap(sz, e);
        EXPECT_TRUE(haz >= 1 && haz <= 12);
        hazak.insert(haz);
    }
    EXPECT_EQ(hazak.size(), 4U);
}

}  // namespace
