#include <gtest/gtest.h>

#include "chart/kepletciklus.h"
#include "commands/lepteto.h"
#include "tables/efemerida.h"

namespace {

const TLepes& gomb(std::string_view nev) {
    for (const TLepes& l : lepesek)
        if (l.gomb == nev) return l;
    throw std::out_of_range("gomb");
}

TPillanat lep(const TPillanat& p, std::initializer_list<const char*> gombok) {
    Allapot a;
    a.Keplet.pillanat = p;
    for (const char* nev : gombok) Leptetes(a, gomb(nev));
    TPillanat q = a.Keplet.pillanat;
    EXPECT_EQ(a.Keplet.julianszam, DatumbolJulianszam(q.ev, q.ho, q.nap));
    return a.Keplet.pillanat;
}

TEST(Lepteto, TizenhatGombANevukkelEsFeliratukkal) {
    const char* feliratok[]{"+", "-", "+",  "-",  "+", "-", "+",  "-",
                            "+", "-", "++", "--", "+", "-", "++", "--"};
    ASSERT_EQ(lepesek.size(), 16U);
    for (std::size_t i = 0; i < 16; ++i) EXPECT_EQ(lepesek[i].felirat, feliratok[i]);
    EXPECT_EQ(lepesek[0].gomb, "Button1evp");
    EXPECT_EQ(lepesek[15].gomb, "Button16mpercmm");
}

TEST(Lepteto, JanuarHarmincegyediketEgyHonappalEloreMarciusLesz) {
    EXPECT_EQ(lep({1999, 1, 31, 12, 0, 0}, {"Button3hop"}), (TPillanat{1999, 3, 3, 12, 0, 0}));
    EXPECT_EQ(lep({2000, 1, 31, 12, 0, 0}, {"Button3hop"}), (TPillanat{2000, 3, 2, 12, 0, 0}));
}

TEST(Lepteto, SzokonapEgyEvvelMarciusElseje) {
    EXPECT_EQ(lep({2000, 2, 29, 12, 0, 0}, {"Button1evp"}), (TPillanat{2001, 3, 1, 12, 0, 0}));
    EXPECT_EQ(lep({2000, 2, 29, 12, 0, 0}, {"Button2evm"}), (TPillanat{1999, 3, 1, 12, 0, 0}));
}

TEST(Lepteto, EjfelElottEgyMasodperccelAKovetkezoNap) {
    EXPECT_EQ(lep({1999, 12, 31, 23, 59, 59}, {"Button13mpercp"}), (TPillanat{2000, 1, 1, 0, 0, 0}));
}

TEST(Lepteto, EjfelElottTizMasodperccel) {
    EXPECT_EQ(lep({2000, 1, 1, 0, 0, 0}, {"Button16mpercmm"}), (TPillanat{1999, 12, 31, 23, 59, 50}));
    EXPECT_EQ(lep({2000, 1, 1, 0, 0, 0}, {"Button14mpercm"}), (TPillanat{1999, 12, 31, 23, 59, 59}));
}

TEST(Lepteto, OtvenotPercEsTiz) {
    EXPECT_EQ(lep({2000, 1, 1, 8, 55, 7}, {"Button11percpp"}), (TPillanat{2000, 1, 1, 9, 5, 7}));
    EXPECT_EQ(lep({2000, 1, 1, 0, 5, 7}, {"Button12percmm"}), (TPillanat{1999, 12, 31, 23, 55, 7}));
}

TEST(Lepteto, AMasodpercTizesLepeseUtanAPercEgyesselVisz) {
    EXPECT_EQ(lep({2000, 1, 1, 8, 59, 55}, {"Button15mpercpp"}), (TPillanat{2000, 1, 1, 9, 0, 5}));
}

TEST(Lepteto, AHonapEsAzOraAtvitele) {
    EXPECT_EQ(lep({1999, 12, 5, 8, 0, 0}, {"Button3hop"}), (TPillanat{2000, 1, 5, 8, 0, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 8, 0, 0}, {"Button4hom"}), (TPillanat{1999, 12, 5, 8, 0, 0}));
    EXPECT_EQ(lep({1999, 12, 31, 23, 10, 0}, {"Button7orap"}), (TPillanat{2000, 1, 1, 0, 10, 0}));
    EXPECT_EQ(lep({2000, 1, 1, 0, 10, 0}, {"Button8oram"}), (TPillanat{1999, 12, 31, 23, 10, 0}));
    EXPECT_EQ(lep({2000, 2, 29, 0, 10, 0}, {"Button5napp", "Button5napp", "Button6napm"}),
              (TPillanat{2000, 3, 1, 0, 10, 0}));
    EXPECT_EQ(lep({2000, 1, 1, 10, 59, 0}, {"Button9percp", "Button10percm", "Button10percm"}),
              (TPillanat{2000, 1, 1, 10, 58, 0}));
}

TEST(Lepteto, AMezoVegeElottNincsAtvitel) {
    EXPECT_EQ(lep({2000, 11, 5, 8, 0, 0}, {"Button3hop"}), (TPillanat{2000, 12, 5, 8, 0, 0}));
    EXPECT_EQ(lep({2000, 2, 5, 8, 0, 0}, {"Button4hom"}), (TPillanat{2000, 1, 5, 8, 0, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 22, 0, 0}, {"Button7orap"}), (TPillanat{2000, 1, 5, 23, 0, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 1, 0, 0}, {"Button8oram"}), (TPillanat{2000, 1, 5, 0, 0, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 8, 49, 0}, {"Button11percpp"}), (TPillanat{2000, 1, 5, 8, 59, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 8, 10, 0}, {"Button12percmm"}), (TPillanat{2000, 1, 5, 8, 0, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 8, 0, 58}, {"Button13mpercp"}), (TPillanat{2000, 1, 5, 8, 0, 59}));
    EXPECT_EQ(lep({2000, 1, 5, 8, 0, 1}, {"Button14mpercm"}), (TPillanat{2000, 1, 5, 8, 0, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 8, 9, 50}, {"Button15mpercpp"}), (TPillanat{2000, 1, 5, 8, 10, 0}));
}

/// Only a derived chart or a foreign file brings a field beyond its end: the hours of a return at midnight.
TEST(Lepteto, AMezoVegenTulrolAzEgyesLepesAzElsoErtekre) {
    EXPECT_EQ(lep({2000, 1, 5, 8500, 10, 0}, {"Button7orap"}), (TPillanat{2000, 1, 6, 0, 10, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 8, 75, 0}, {"Button9percp"}), (TPillanat{2000, 1, 5, 9, 0, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 8, 75, 0}, {"Button11percpp"}), (TPillanat{2000, 1, 5, 9, 25, 0}));
    EXPECT_EQ(lep({2000, 1, 5, -7, 10, 0}, {"Button8oram"}), (TPillanat{2000, 1, 4, 23, 10, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 8, -20, 0}, {"Button10percm"}), (TPillanat{2000, 1, 5, 7, 59, 0}));
    EXPECT_EQ(lep({2000, 1, 5, 8, -20, 0}, {"Button12percmm"}), (TPillanat{2000, 1, 5, 7, 30, 0}));
}

TEST(Lepteto, AFutoOratIsMegallitja) {
    Allapot a;
    a.Keplet.pillanat = {2000, 1, 1, 1, 1, 1};
    a.MostFut = true;
    Leptetes(a, lepesek[15]);
    EXPECT_FALSE(a.MostFut);
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{2000, 1, 1, 1, 0, 51}));
}

TEST(Lepteto, KetezerhetvennyolcutanNincsEv) {
    EXPECT_EQ(lep({2078, 5, 6, 7, 8, 9}, {"Button1evp"}), (TPillanat{2078, 5, 6, 7, 8, 9}));
    EXPECT_EQ(lep({1900, 5, 6, 7, 8, 9}, {"Button2evm"}), (TPillanat{1900, 5, 6, 7, 8, 9}));
}

TEST(Lepteto, ALepesJelziMagatEsMegallitjaAzOrat) {
    Allapot a;
    a.Keplet.pillanat = {2000, 1, 1, 1, 1, 1};
    a.RadixPillanat = {1990, 1, 1, 1, 1, 1};
    a.Szemely.beirt = {1991, 1, 1, 1, 1, 1};
    a.Feliratok.mostGomb = "Állj";
    Leptetes(a, lepesek[0]);
    EXPECT_TRUE(a.Modositott);
    EXPECT_TRUE(a.LeptetesVolt);
    EXPECT_FALSE(a.MostFut);
    EXPECT_EQ(a.RadixPillanat.ev, 1990);
    EXPECT_EQ(a.Szemely.beirt.ev, 1991);
    EXPECT_EQ(a.Feliratok.mostGomb, "Állj");
}

}  // namespace
