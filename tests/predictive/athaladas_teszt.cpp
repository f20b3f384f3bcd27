#include <gtest/gtest.h>

#include "predictive/athaladas.h"

namespace {

TEST(NapiLepesben, AKezdeteBenneAVegeNem) {
    EXPECT_TRUE(NapiLepesben(1000, 4600, 1000));
    EXPECT_TRUE(NapiLepesben(1000, 4600, 4599.9));
    EXPECT_FALSE(NapiLepesben(1000, 4600, 4600));
    EXPECT_FALSE(NapiLepesben(1000, 4600, 999.9));
}

TEST(NapiLepesben, AKosPontjanAtCsakAzAtfordulasUtaniResz) {
    EXPECT_TRUE(NapiLepesben(1294000, 1600, 0));
    EXPECT_TRUE(NapiLepesben(1294000, 1600, 1599.9));
    EXPECT_FALSE(NapiLepesben(1294000, 1600, 1600));
    EXPECT_FALSE(NapiLepesben(1294000, 1600, -0.1));
    // The last part of Pisces, the day's own longitude too, stands above the bound of 360.
    EXPECT_FALSE(NapiLepesben(1294000, 1600, 1294000));
    EXPECT_FALSE(NapiLepesben(1294000, 1600, 1295999));
}

TEST(NapiLepesben, AHaromszazhatvanasHatarMasodpercekben) {
    // Only a step back from below six minutes of arc shows where the bound stands.
    EXPECT_TRUE(NapiLepesben(300, 100, 300));
    EXPECT_TRUE(NapiLepesben(300, 100, 359.9));
    EXPECT_FALSE(NapiLepesben(300, 100, 360));
    EXPECT_FALSE(NapiLepesben(300, 100, 200));
    EXPECT_TRUE(NapiLepesben(300, 100, 99.9));
}

TEST(NapiResz, ALepesAranyosResze) {
    EXPECT_DOUBLE_EQ(NapiResz(1000, 4600, 2800), 0.5);
    EXPECT_DOUBLE_EQ(NapiResz(1000, 4600, 1900), 0.25);
    EXPECT_DOUBLE_EQ(NapiResz(1000, 4600, 4600), 1);
}

TEST(NapiResz, AKosPontjanAt) {
    // From 1295000 to 3000 are 4000 arcseconds.
    EXPECT_DOUBLE_EQ(NapiResz(1295000, 3000, 1296000), 0.25);
    EXPECT_DOUBLE_EQ(NapiResz(1295000, 3000, 0), 0.25);
    EXPECT_DOUBLE_EQ(NapiResz(1295000, 3000, 1000), 0.5);
}

TEST(NapiResz, APontosTalalatEgyTeljesKorrelTobb) {
    EXPECT_DOUBLE_EQ(NapiResz(1000, 4600, 1000), 360);
    EXPECT_DOUBLE_EQ(NapiResz(1295000, 3000, 1295000), 324);
}

TEST(NapiResz, AzAlloLepesEgyTeljesKor) {
    EXPECT_DOUBLE_EQ(NapiResz(1000, 1000, 325000), 0.25);
    EXPECT_DOUBLE_EQ(NapiResz(1000, 1000, 1000), 1);
}

void egyezik(double resz, int ora, int perc, int mperc) {
    const TNapszak n = napszak(resz);
    EXPECT_EQ(n.ora, ora) << resz;
    EXPECT_EQ(n.perc, perc) << resz;
    EXPECT_EQ(n.mperc, mperc) << resz;
}

TEST(Napszak, LevagvaKerekitesNelkul) {
    egyezik(0, 0, 0, 0);
    egyezik(0.5, 12, 0, 0);
    egyezik(59.9 / 86400, 0, 0, 59);
    egyezik(60.1 / 86400, 0, 1, 0);
    egyezik(3599.9 / 86400, 0, 59, 59);
    egyezik(3600.1 / 86400, 1, 0, 0);
    egyezik(86399.9 / 86400, 23, 59, 59);
    egyezik(45296.7 / 86400, 12, 34, 56);
}

TEST(Napszak, AzOraHuszonnegyFoleMehet) {
    egyezik(1.25, 30, 0, 0);
    egyezik(360, 8640, 0, 0);
}

}  // namespace
