// The fields of AAF records.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "files/aafmezok.h"

namespace {

constexpr std::int32_t szog(std::int32_t fok, std::int32_t perc, std::int32_t mperc = 0) {
    return fok * 3600 + perc * 60 + mperc;
}

TEST(AafMezok, AMezoKoruliFeherKozNemSzamit) {
    EXPECT_EQ(AafVagott(" \t Szeged \r"), "Szeged");
    EXPECT_EQ(AafVagott("  "), "");
    EXPECT_EQ(AafDatum(" 27.9.1970 ").value().ev, 1970);
    EXPECT_EQ(AafIdo(" 6:04 "), 6 * 3600 + 4 * 60);
    EXPECT_EQ(AafNyariIdo(" 1 ").value().orak, 1);
    EXPECT_TRUE(AafJulian(" 2415020.5 ").has_value());
    EXPECT_EQ(AafSzelesseg(" 47n30 "), szog(47, 30));
}

TEST(AafMezok, ACsillagEsAzUresIsmeretlen) {
    EXPECT_TRUE(AafIsmeretlen("*"));
    EXPECT_TRUE(AafIsmeretlen(" * "));
    EXPECT_TRUE(AafIsmeretlen(""));
    EXPECT_FALSE(AafIsmeretlen("**"));
    EXPECT_FALSE(AafIsmeretlen("0"));
}

TEST(AafMezok, ADatumNapHoEv) {
    const auto d = AafDatum("27.9.1970");
    ASSERT_TRUE(d);
    EXPECT_EQ(d->ev, 1970);
    EXPECT_EQ(d->ho, 9);
    EXPECT_EQ(d->nap, 27);
    EXPECT_FALSE(d->julianNaptar);
    EXPECT_EQ(AafDatum("01.02.2003").value().nap, 1);
    EXPECT_EQ(AafDatum("1.1.-44").value().ev, -44);
    EXPECT_EQ(AafDatum("31.12.9999").value().ev, 9999);
    EXPECT_EQ(AafDatum("31.2.1999").value().nap, 31);  // whether the month has it is not asked
}

TEST(AafMezok, ADatumMogottANaptarBetuje) {
    EXPECT_FALSE(AafDatum("27.9.1970G").value().julianNaptar);
    EXPECT_FALSE(AafDatum("27.9.1970 g").value().julianNaptar);
    EXPECT_TRUE(AafDatum("27.9.1570J").value().julianNaptar);
    EXPECT_TRUE(AafDatum("27.9.1570 j").value().julianNaptar);
    EXPECT_EQ(AafDatum("27.9.1570J").value().ev, 1570);
    EXPECT_FALSE(AafDatum("27.9.1970X"));
}

TEST(AafMezok, ARosszDatumNemDatum) {
    for (const char* rossz :
         {"", "27.9", "27/9/1970", "0.9.1970", "32.9.1970", "27.0.1970", "27.13.1970", "27.9.70.1", "a.b.c",
          "27.9.", "-1.9.1970", "27.9.10000", "+7.9.1970", "J", "27. 9.1970"})
        EXPECT_FALSE(AafDatum(rossz)) << rossz;
}

TEST(AafMezok, AzOraidoMasodperccelEsAnelkul) {
    EXPECT_EQ(AafIdo("11:04"), 11 * 3600 + 4 * 60);
    EXPECT_EQ(AafIdo("0:00"), 0);
    EXPECT_EQ(AafIdo("23:59:59"), 86399);
    EXPECT_EQ(AafIdo("06:04:09"), 6 * 3600 + 4 * 60 + 9);
    for (const char* rossz :
         {"", "11", "24:00", "11:60", "11:04:60", "11:04:09:01", "11.04", "-1:00", "11:", ":04"})
        EXPECT_FALSE(AafIdo(rossz)) << rossz;
    EXPECT_EQ(AafIdoSzoveg(11, 4, 0), "11:04");
    EXPECT_EQ(AafIdoSzoveg(0, 0, 9), "0:00:09");
}

TEST(AafMezok, ASzelessegEszakonEsDelen) {
    EXPECT_EQ(AafSzelesseg("47n30"), szog(47, 30));
    EXPECT_EQ(AafSzelesseg("47n30:15"), szog(47, 30, 15));
    EXPECT_EQ(AafSzelesseg("33s52"), -szog(33, 52));
    EXPECT_EQ(AafSzelesseg("0s30"), -szog(0, 30));
    EXPECT_EQ(AafSzelesseg("51N38:00"), szog(51, 38));
    EXPECT_EQ(AafSzelesseg("47n"), szog(47, 0));
    EXPECT_EQ(AafSzelesseg("90n00"), szog(90, 0));
    for (const char* rossz : {"", "47", "n30", "47e30", "47n60", "47n30:60", "91n00", "90n01", "47n30:15:1",
                              "-47n30", "47n 30", "47nn30"})
        EXPECT_FALSE(AafSzelesseg(rossz)) << rossz;
}

TEST(AafMezok, AHosszusagKeletenEsNyugaton) {
    EXPECT_EQ(AafHosszusag("19e04"), szog(19, 4));
    EXPECT_EQ(AafHosszusag("19e04:48"), szog(19, 4, 48));
    EXPECT_EQ(AafHosszusag("74w00"), -szog(74, 0));
    EXPECT_EQ(AafHosszusag("008E31:00"), szog(8, 31));
    EXPECT_EQ(AafHosszusag("5e27"), szog(5, 27));
    EXPECT_EQ(AafHosszusag("180w00"), -szog(180, 0));
    for (const char* rossz : {"19n04", "181e00", "180e00:01", "19e04,5", "e"})
        EXPECT_FALSE(AafHosszusag(rossz)) << rossz;
}

TEST(AafMezok, AKoordinatakSzovegei) {
    EXPECT_EQ(AafSzelessegSzoveg(szog(47, 30)), "47n30");
    EXPECT_EQ(AafSzelessegSzoveg(-szog(0, 5, 7)), "0s05:07");
    EXPECT_EQ(AafHosszusagSzoveg(szog(19, 4, 48)), "19e04:48");
    EXPECT_EQ(AafHosszusagSzoveg(-szog(18, 56)), "18w56");
    EXPECT_EQ(AafHosszusagSzoveg(0), "0e00");
    EXPECT_EQ(AafHosszusagSzoveg(INT32_MIN), "596523w14:08");
}

TEST(AafMezok, AzIdozona) {
    EXPECT_EQ(AafZona("1he00"), 3600);
    EXPECT_EQ(AafZona("1he"), 3600);
    EXPECT_EQ(AafZona("1hE00:00"), 3600);
    EXPECT_EQ(AafZona("5hw00"), -5 * 3600);
    EXPECT_EQ(AafZona("5he30"), 5 * 3600 + 1800);
    EXPECT_EQ(AafZona("0hw20:04"), -(20 * 60 + 4));
    EXPECT_EQ(AafZona("24he00"), 24 * 3600);
    EXPECT_EQ(AafZona("24hw00"), -24 * 3600);
    EXPECT_FALSE(AafZona("24he00:01"));
    for (const char* rossz : {"1", "h", "1h", "1e00", "25he00", "1he60", "1hn00"})
        EXPECT_FALSE(AafZona(rossz)) << rossz;
    EXPECT_EQ(AafZonaSzoveg(1), "1he00");
    EXPECT_EQ(AafZonaSzoveg(-5), "5hw00");
    EXPECT_EQ(AafZonaSzoveg(0), "0he00");
}

TEST(AafMezok, ANyariIdoOraiEsAHelyiKozepido) {
    for (int orak : {0, 1, 2}) {
        const auto ny = AafNyariIdo(std::to_string(orak));
        ASSERT_TRUE(ny);
        EXPECT_EQ(ny->orak, orak);
        EXPECT_FALSE(ny->helyiKozepido);
    }
    EXPECT_TRUE(AafNyariIdo("L").value().helyiKozepido);
    EXPECT_TRUE(AafNyariIdo(" l ").value().helyiKozepido);
    EXPECT_EQ(AafNyariIdo("L").value().orak, 0);
    for (const char* rossz : {"3", "-1", "S", "", "1h"}) EXPECT_FALSE(AafNyariIdo(rossz)) << rossz;
}

// 1900-01-01 0h is the Julian day 2415020.5 and the day number 2415020.
TEST(AafMezok, AJulianNapFelNappalTovabbiNapszam) {
    constexpr std::int64_t nap = 86400;
    EXPECT_EQ(AafJulian("2415020.5").value().masodperc, 2415020 * nap);
    EXPECT_EQ(AafJulian("2415021").value().masodperc, 2415020 * nap + nap / 2);
    EXPECT_EQ(AafJulian("2415020.25").value().masodperc, 2415019 * nap + 18 * 3600);
    // 0.10500 of a day past noon is 2 h 31 m 12 s.
    EXPECT_EQ(AafJulian("2440065.10500").value().masodperc, 2440064 * nap + 14 * 3600 + 31 * 60 + 12);
    // 0.432 and 0.5184 seconds go to the nearest one.
    EXPECT_EQ(AafJulian("2415020.500005").value().masodperc, 2415020 * nap);
    EXPECT_EQ(AafJulian("2415020.500006").value().masodperc, 2415020 * nap + 1);
    EXPECT_DOUBLE_EQ(AafJulian("2440065.10500").value().pontossag, 0.864);
    EXPECT_DOUBLE_EQ(AafJulian("2440065.1").value().pontossag, 8640);
    EXPECT_DOUBLE_EQ(AafJulian("2440065").value().pontossag, 86400);
    EXPECT_EQ(AafJulian("2415020.4999999999999999999999").value().masodperc, 2415020 * nap);
    // Nine digits count, a billionth of a day; more say nothing.
    EXPECT_DOUBLE_EQ(AafJulian("2415020.123456789").value().pontossag, 86400e-9);
    EXPECT_DOUBLE_EQ(AafJulian("2415020.1234567891").value().pontossag, 86400e-9);
    EXPECT_EQ(AafJulian("9999999.5").value().masodperc, 9999999 * nap);
    for (const char* rossz : {"", "x", "2415020,5", "24150205000", "-1.5", "2415020.5e1", ".5", "2415020.-5"})
        EXPECT_FALSE(AafJulian(rossz)) << rossz;
}

TEST(AafMezok, AJulianNapSzovegeHatTizedessel) {
    constexpr std::int64_t nap = 86400;
    EXPECT_EQ(AafJulianSzoveg(2415020 * nap), "2415020.500000");
    EXPECT_EQ(AafJulianSzoveg(2415020 * nap + nap / 2), "2415021.000000");
    EXPECT_EQ(AafJulianSzoveg(2415020 * nap + nap / 2 + 1), "2415021.000012");  // 1 s is 0.0000116 days
    EXPECT_EQ(AafJulianSzoveg(2415020 * nap + nap / 2 - 1), "2415020.999988");
}

TEST(AafMezok, AJulianNapMindenMasodpercreVisszaad) {
    for (std::int64_t m = 0; m < 86400; ++m) {
        const std::int64_t vart = std::int64_t{2440000} * 86400 + m;
        ASSERT_EQ(AafJulian(AafJulianSzoveg(vart))->masodperc, vart);
    }
}

TEST(AafMezok, ANapszamokAzEfemeriszenTulIs) {
    EXPECT_EQ(AafNapSzam(1900, 1, 1), 2415020);
    EXPECT_EQ(AafNapSzam(2079, 6, 6), 2480555);
    EXPECT_EQ(AafNapSzam(1899, 12, 31), 2415019);
    EXPECT_EQ(AafNapSzam(1839, 1, 19), 2392758);  // JD 2392758.53 is the 19th, 0h38 UT
    EXPECT_EQ(AafNapSzam(1999, 2, 31), AafNapSzam(1999, 3, 3));
    for (const std::int64_t nap : {2415020, 2415019, 2480556, 2392758}) {
        const TAafDatum d = AafNapDatuma(nap);
        EXPECT_EQ(AafNapSzam(d.ev, d.ho, d.nap), nap);
    }
    EXPECT_EQ(AafNapDatuma(2480556).nap, 7);
}

}  // namespace
