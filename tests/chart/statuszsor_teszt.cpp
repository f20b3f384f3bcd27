#include <array>
#include <string>

#include <gtest/gtest.h>

#include "chart/statuszsor.h"

namespace {

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

TEST(StatuszSor, AzEgeszFokPercei) {
    EXPECT_EQ(koordinataSzoveg(19 * 3600, 47 * 3600), "19°0'K  47°0'É");
    EXPECT_EQ(koordinataSzoveg(-19 * 3600, -47 * 3600), "19°0'Ny  47°0'D");
    EXPECT_EQ(koordinataSzoveg(19 * 3600 - 1, 47 * 3600 + 59), "18°59'K  47°0'É");
    EXPECT_EQ(koordinataSzoveg(19 * 3600 + 60, 47 * 3600 - 60), "19°1'K  46°59'É");
}

TEST(StatuszSor, ANegyPanelAKepletbol) {
    Allapot a;
    a.Feliratok.statusz[panelTipus] = "Radix";
    a.Feliratok.statusz[panelNev] = "Kovács Éva";
    a.Keplet.helyseg = "Szeged";
    a.Keplet.hosszusag = 72586;
    a.Keplet.szelesseg = 166497;
    a.Keplet.armcOra = 23;
    a.Keplet.armcPerc = 4;
    a.Keplet.armcMperc = 5.5;
    IrStatuszSor(a, {1975, 7, 21, 6, 4, 9}, TIdoTipus::LMT);
    // In the bar's order; view and name are others' to write, and the last panel stays empty.
    EXPECT_EQ(a.Feliratok.statusz,
              (std::array<std::string, 7>{"Radix", "ARMC:  23:04:05", "Kovács Éva",
                                          "1975.07.21. 06:04:09 LMT", "Szeged", "20°9'K  46°14'É", ""}));
    LeptetoCimIras(a.Feliratok);
    EXPECT_EQ(a.Feliratok.leptetoCim, "1975.07.21. 06:04:09");
}

}  // namespace
