// Frames of the wheels.

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "drawing/kerek.h"
#include "drawing/keretek.h"
#include "rajzteszt.h"

namespace {

/// Lines with the pen width and both ends at these distances from a centre, to the pixel.
int vonalak(const std::vector<TMuvelet>& m, int x, int y, double r1, double r2, int toll) {
    int szam = 0;
    for (const TVonalMuvelet& v : csak<TVonalMuvelet>(m)) {
        const double a = std::hypot(v.x1 - x, v.y1 - y);
        const double b = std::hypot(v.x2 - x, v.y2 - y);
        szam += v.toll == toll && std::abs(a - r1) < 1 && std::abs(b - r2) < 1 ? 1 : 0;
    }
    return szam;
}

/// Where twelve texts stand: about a centre, the first so many degrees on from the left, drawn from the top
/// left corner of the first letter.
struct TKorHely {
    double x, y, sugar;
    int elsoFok, eltolas;
};

void korben(const std::vector<TSzovegMuvelet>& tizenketto, const TKorHely& hely) {
    ASSERT_EQ(tizenketto.size(), 12U);
    for (int i = 0; i < 12; ++i) {
        const double szog = (30 * i + hely.elsoFok) * 3.141592653589793 / 180;
        const TSzovegMuvelet& sz = tizenketto[static_cast<std::size_t>(i)];
        EXPECT_NEAR(sz.x, hely.x - hely.sugar * std::cos(szog) - hely.eltolas, 1) << i;
        EXPECT_NEAR(sz.y, hely.y + hely.sugar * std::sin(szog) - hely.eltolas, 1) << i;
    }
}

/// The signs of a drawing's first, second or third wheel.
std::vector<TSzovegMuvelet> jegyek(const std::vector<TMuvelet>& m, std::size_t kerek) {
    std::vector<TSzovegMuvelet> ki;
    for (char jel = 'a'; jel <= 'l'; ++jel) ki.push_back(szovegek(m, {jel}).at(kerek));
    return ki;
}

TEST(RadixKeret, AFokskalaOsztasai) {
    Allapot a = probaKeplet();
    const auto m = rajz(a);
    // R0 - R1 is 9: 0.39 and 0.7 of it are 4 and 6.
    EXPECT_EQ(vonalak(m, 342, 322, 249, 253, 1), 360);
    EXPECT_EQ(vonalak(m, 342, 322, 249, 255, 1), 72);
    EXPECT_EQ(vonalak(m, 342, 322, 249, 258, 1), 36);
    // Sign dividers: (258 + 27.5) x 0.98 is 279.79.
    EXPECT_EQ(vonalak(m, 342, 322, 249, 280, 3), 12);
    EXPECT_EQ(vonalak(m, 342, 322, 37, 249, 1), 12);  // house lines
}

TEST(RadixKeret, ATengelyekEsANyilak) {
    Allapot a = probaKeplet(0);
    a.Keplet.hazCsucs[10] = 280;
    const auto v = csak<TVonalMuvelet>(rajz(a));
    // A = round(258 + 55 / 5) = 269.
    const auto van = [&](const TVonalMuvelet& mi) { return std::find(v.begin(), v.end(), mi) != v.end(); };
    EXPECT_TRUE(van({342 + 37, 322, 342 + 269, 322, 3, 0}));  // Descendant
    EXPECT_TRUE(van({342 - 37, 322, 342 - 271, 322, 3, 0}));  // Ascendant
    // Arrow head: from 276 at the left to 264 at 0.016 radians above and below, which is 4 pixels.
    EXPECT_TRUE(van({342 - 276, 322, 342 - 264, 322 - 4, 3, 0}));
    EXPECT_TRUE(van({342 - 276, 322, 342 - 264, 322 + 4, 3, 0}));
    // The Medium Coeli at 280 stands above and a little right; its unarrowed opposite end is the longer one.
    EXPECT_EQ(vonalak({v.begin(), v.end()}, 342, 322, 37, 271, 3), 2);
    EXPECT_EQ(vonalak({v.begin(), v.end()}, 342, 322, 37, 269, 3), 2);
}

TEST(RadixKeret, AHazakSzamaiAHazKozepen) {
    Allapot a = probaKeplet(100);
    const auto m = rajz(a);
    const auto sz = szovegek(m, "IV");
    ASSERT_EQ(sz.size(), 1U);
    EXPECT_EQ(sz[0].betutipus, "Ariel");
    EXPECT_EQ(sz[0].magassag, 59 - 37 - 8);
    // House 4 from 190 to 220, its middle 105 degrees after the Ascendant: radius 48, offset round(9.5 - 3)
    // = 6.
    EXPECT_EQ(sz[0].x, 342 + 12 - 6);  // 48 cos 75 is 12.4
    EXPECT_EQ(sz[0].y, 322 + 46 - 6);  // 48 sin 75 is 46.4
    std::vector<std::string> cimkek;
    for (const auto& t : csak<TSzovegMuvelet>(m))
        if (cimkek.size() < 12) cimkek.push_back(t.szoveg);
    EXPECT_EQ(cimkek, (std::vector<std::string>{" I", " 2", " 3", "IV", " 5", " 6", "VII", " 8", " 9", " X",
                                                "11", "12"}));
}

TEST(RadixKeret, AKosotAtlepoHazKozepe) {
    Allapot a = probaKeplet(345);  // house 1 from 345 to 15
    const auto sz = szovegek(rajz(a), " I");
    // The middle, 360, is 15 degrees after the Ascendant: left and a little below.
    EXPECT_EQ(sz[0].x, 342 - 46 - 6);
    EXPECT_EQ(sz[0].y, 322 + 12 - 6);
}

TEST(RadixKeret, AJegyekAKerekenKivul) {
    Allapot a = probaKeplet(0);
    const auto m = rajz(a);
    const auto kos = szovegek(m, "a");
    // (258 + 27.5) x 0.97 is 276.9, and 2: radius 279 at 15 degrees; height 24.75 -> 25; offset 13.75 -> 14.
    EXPECT_EQ(kos[0].x, 342 - 269 - 14);  // 279 cos 15 is 269.5
    EXPECT_EQ(kos[0].y, 322 + 72 - 14);   // 279 sin 15 is 72.2
    EXPECT_EQ(kos[0].magassag, 25);
    EXPECT_EQ(kos[0].betutipus, "Jelek");
    korben(jegyek(m, 0), {342, 322, 279, 15, 14});
}

TEST(DekadKerek, AKeretEsASzovegek) {
    Allapot a = probaKeplet();
    a.Uralkodok.DekadSzoveg[1] = "AB";
    const auto m = rajz(a, 3);
    EXPECT_EQ(vonalak(m, 342, 322, 25, 258, 1), 12);
    const auto t = csak<TSzovegMuvelet>(m);
    // All twelve strings, the empty ones too: height 17.2 + 10 -> 27, offset 14.6 -> 15, radius 258 at 15
    // degrees.
    EXPECT_EQ(t[0].szoveg, "AB");
    EXPECT_EQ(t[0].magassag, 27);
    EXPECT_EQ(t[0].x, 342 - 249 - 15);  // 258 cos 15 is 249.2
    EXPECT_EQ(t[0].y, 322 + 67 - 15);   // 258 sin 15 is 66.8
    for (std::size_t i = 1; i < 12; ++i) EXPECT_EQ(t[i].szoveg, "");
    // Signs: 258 / 25 + 8 is 18.3, offset 9, radius round(77.4).
    EXPECT_EQ(t[12].szoveg, "a");
    EXPECT_EQ(t[12].magassag, 18);
    EXPECT_EQ(t[12].x, 342 - 74 - 9);  // 77 cos 15 is 74.4
    EXPECT_EQ(t[12].y, 322 + 20 - 9);
}

TEST(KisDekadKerek, AMeretei) {
    Allapot a = probaKeplet();
    a.Uralkodok.DekadSzoveg[1] = "AB";
    const auto m = rajz(a, 1);
    EXPECT_EQ(vonalak(m, 803, 483, 16, 135, 1), 12);
    const auto sz = szovegek(m, "AB");
    // T = 135, radius round(148.5) to the even 148, height 12.86 + 10 -> 23, offset (10.8 + 12) / 2 -> 11.
    EXPECT_EQ(sz[0].magassag, 23);
    EXPECT_EQ(sz[0].x, 803 - 143 - 11);  // 148 cos 15 is 143.0
    EXPECT_EQ(sz[0].y, 483 + 38 - 11);
}

TEST(KisMundanKerek, AKullokEsAJegyek) {
    Allapot a = probaKeplet();
    const auto m = rajz(a, 1);
    EXPECT_EQ(vonalak(m, 803, 161, 120 / 1.125, 135, 2), 12);
    // P = round(135 x 1.15) = 155: height 6.2 + 5 -> 11; the sign stands 4 degrees into its sector, radius
    // 132.
    const auto kos = szovegek(m, "a");
    ASSERT_EQ(kos.size(), 3U);
    EXPECT_EQ(kos[1].magassag, 11);
    EXPECT_EQ(kos[1].x, 803 - 132 - 6);  // 132 cos 4 is 131.7
    EXPECT_EQ(kos[1].y, 161 + 9 - 6);
    // Bodies: radius 155, height 21, offset 10 (10.5 to the even); the Sun at 3 degrees.
    const auto nap = szovegek(m, "A");
    EXPECT_EQ(nap[1].magassag, 21);
    EXPECT_EQ(nap[1].x, 803 - 155 - 10);
    EXPECT_EQ(nap[1].y, 161 + 8 - 10);
    // Pointers from 120 to 120 / 9 + 5 + 120 with pen 1.
    EXPECT_EQ(vonalak(m, 803, 161, 120, 120 / 9.0 + 125, 1), 10);
}

TEST(KisMundanKerek, TizenketJegySzovegTobbSemmi) {
    RogzitoVaszon v;
    KisMundanJegyek(TKerek(v, 803, 161, 0), 120, "Jelek");
    ASSERT_EQ(v.muveletek().size(), 12U);
    for (std::size_t i = 0; i < 12; ++i)
        EXPECT_EQ(std::get<TSzovegMuvelet>(v.muveletek()[i]).szoveg,
                  std::string(1, static_cast<char>('a' + i)));
}

/// Directions, in whole degrees clockwise from the right, of the lines that `vonalak` counts; each line must
/// point away from the centre.
std::multiset<int> iranyok(const std::vector<TMuvelet>& m, int x, int y, double r1, double r2, int toll) {
    const auto irany = [&](int px, int py) {
        const auto fok = static_cast<int>(std::lround(std::atan2(py - y, px - x) * 180 / 3.141592653589793));
        return (fok + 360) % 360;
    };
    std::multiset<int> ki;
    for (const TVonalMuvelet& v : csak<TVonalMuvelet>(m)) {
        if (vonalak({v}, x, y, r1, r2, toll) == 0) continue;
        const int fok = irany(v.x2, v.y2);
        EXPECT_LE(std::abs(std::remainder(fok - irany(v.x1, v.y1), 360)), 2) << fok;
        ki.insert(fok);
    }
    return ki;
}

/// Whole directions with a step, from a first one.
std::multiset<int> lepesek(int elso, int lepes) {
    std::multiset<int> ki;
    for (int fok = 0; fok < 360; fok += lepes) ki.insert((elso + fok) % 360);
    return ki;
}

TEST(Keretek, ATizenketKulloIranyaHarmincFokonkent) {
    Allapot a = probaKeplet(100);
    EXPECT_EQ(iranyok(rajz(a, 2), 342, 322, 37, 258, 1), lepesek(0, 30));     // Mundán
    EXPECT_EQ(iranyok(rajz(a, 3), 342, 322, 25, 258, 1), lepesek(0, 30));     // Dekád
    EXPECT_EQ(iranyok(rajz(a, 1), 803, 161, 106.7, 135, 2), lepesek(0, 30));  // small Mundán
    EXPECT_EQ(iranyok(rajz(a, 1), 803, 483, 16, 135, 1), lepesek(0, 30));     // small Dekád
}

/// Whatever the Ascendant, Aries begins at the left of the Mundán wheel.
TEST(MundanKeret, AZodiakusABaloldaltolAll) {
    Allapot a = probaKeplet(100);
    const auto m = rajz(a, 2);
    korben(jegyek(m, 0), {342, 322, 279, 15, 14});
    EXPECT_EQ(iranyok(m, 342, 322, 249, 253, 1), lepesek(0, 1));
    EXPECT_EQ(iranyok(m, 342, 322, 249, 280, 3), lepesek(0, 30));
}

TEST(Keretek, AzOsztasokEsAHazakIranyaAzAszcendenstol) {
    // The Ascendant at 100 stands at the left, 180: Aries 0 stands at 280, and longitudes grow anticlockwise.
    Allapot a = probaKeplet(100);
    const auto m = rajz(a, 1);
    EXPECT_EQ(iranyok(m, 342, 322, 249, 253, 1), lepesek(0, 1));
    EXPECT_EQ(iranyok(m, 342, 322, 249, 255, 1), lepesek(0, 5));
    EXPECT_EQ(iranyok(m, 342, 322, 249, 258, 1), lepesek(0, 10));
    EXPECT_EQ(iranyok(m, 342, 322, 249, 280, 3), lepesek(10, 30));
    EXPECT_EQ(iranyok(m, 342, 322, 37, 249, 1), lepesek(0, 30));
    a = probaKeplet(103);
    EXPECT_EQ(iranyok(rajz(a, 1), 342, 322, 249, 258, 1), lepesek(3, 10));
    EXPECT_EQ(iranyok(rajz(a, 1), 342, 322, 249, 280, 3), lepesek(13, 30));
    // Unequal houses: each line at its own cusp.
    a = probaKeplet(100);
    a.Keplet.hazCsucs[2] = 123;
    a.Keplet.hazCsucs[8] = 303;
    std::multiset<int> hazak = lepesek(0, 30);
    hazak.erase(150);
    hazak.erase(330);
    hazak.insert(180 - 23);
    hazak.insert(360 - 23);
    EXPECT_EQ(iranyok(rajz(a, 1), 342, 322, 37, 249, 1), hazak);
}

// Of the surface of twenty times the size: R0 to R5 are 5152, 5013, 4482, 695, 635, 64.

TEST(RadixKeret, AHuszszorosFeluletenIsArany) {
    Allapot a = probaKeplet(0);
    a.Keplet.hazCsucs[10] = 280;
    const auto m = nagyRajz(a);
    EXPECT_EQ(vonalak(m, 6460, 6440, 5013, 5067, 1), 360);  // 0.39 x 139
    EXPECT_EQ(vonalak(m, 6460, 6440, 5013, 5110, 1), 72);   // 0.7 x 139
    EXPECT_EQ(vonalak(m, 6460, 6440, 5013, 5152, 1), 36);
    EXPECT_EQ(vonalak(m, 6460, 6440, 5013, 5309, 52), 12);  // (5152 + 265.5) x 0.98
    const auto kos = szovegek(m, "a");
    EXPECT_EQ(kos[0].magassag, 239);         // 265.5 x 0.9
    EXPECT_EQ(kos[0].x, 6460 - 5078 - 133);  // 5255 + 2 at 15 degrees; 531 / 4
    EXPECT_EQ(kos[0].y, 6440 + 1361 - 133);
    const auto elso = szovegek(m, " I");
    EXPECT_EQ(elso[0].magassag, 52);        // 695 - 635 - 8
    EXPECT_EQ(elso[0].x, 6460 - 642 - 26);  // 665 at 15 degrees; 57 / 2 - 3 to the even
    EXPECT_EQ(elso[0].y, 6440 + 172 - 26);
}

TEST(Keretek, MindenBolygonakVanMutatoja) {
    Allapot a = probaKeplet(0);  // the bodies at 3, 39, 75 ... 327
    const std::multiset<int> helyek{177, 141, 105, 69, 33, 357, 321, 285, 249, 213};
    const auto m = nagyRajz(a);
    EXPECT_EQ(iranyok(m, 6460, 6440, 5013, 4774, 34), helyek);  // a depth of round(5013 / 21), 239
    EXPECT_EQ(iranyok(m, 6460, 6440, 4482, 4721, 34), helyek);
    EXPECT_EQ(iranyok(m, 16099, 3220, 2396, 2667, 1), helyek);  // to 2396 / 9 + 5 beyond
}

TEST(RadixKeret, MindketTengelyNyila) {
    Allapot a = probaKeplet(0);
    a.Keplet.hazCsucs[10] = 280;
    const auto m = nagyRajz(a);
    // A is round(5152 + 531 / 5), 5258: two ends there, the two others 2 beyond.
    EXPECT_EQ(iranyok(m, 6460, 6440, 635, 5258, 69), (std::multiset<int>{0, 260}));
    EXPECT_EQ(iranyok(m, 6460, 6440, 635, 5260, 69), (std::multiset<int>{80, 180}));
    // Heads from A + 7 to A - 5, 0.016 radians to both sides, on the Ascendant and the Medium Coeli.
    EXPECT_EQ(iranyok(m, 6460, 6440, 5265, 5253, 52), (std::multiset<int>{179, 181, 259, 261}));
}

TEST(RadixKeret, AzEgyenlotlenHazakSzamaiIsAKozepukon) {
    Allapot a = probaKeplet(0);
    constexpr double csucsok[]{0, 23, 58, 97, 118, 150, 180, 210, 238, 277, 298, 330};
    // The half-widths of the first six: 11.5, 17.5, 19.5, 10.5, 16, 15. The seventh house is as wide as the
    // first, wherever the eighth begins.
    constexpr double kozepek[]{11.5, 40.5, 77.5, 107.5, 134, 165, 191.5, 227.5, 257.5, 287.5, 314, 345};
    for (int i = 1; i <= 12; ++i) a.Keplet.hazCsucs[i] = csucsok[i - 1];
    const auto m = nagyRajz(a);
    for (int i = 1; i <= 12; ++i) {
        const auto szam = szovegek(m, std::string(HazCimke(i)));
        ASSERT_FALSE(szam.empty()) << i;
        const double szog = kozepek[i - 1] * 3.141592653589793 / 180;
        EXPECT_NEAR(szam[0].x, 6460 - 665 * std::cos(szog) - 26, 1) << i;
        EXPECT_NEAR(szam[0].y, 6440 + 665 * std::sin(szog) - 26, 1) << i;
    }
}

TEST(RadixKeret, AzEgyezoCsucsokHazaAzEgeszKor) {
    Allapot a = probaKeplet(0);
    a.Keplet.hazCsucs[3] = a.Keplet.hazCsucs[2];
    // The middle of the second house lies half a circle on: 30 and 180, 30 right of the top.
    const auto sz = szovegek(nagyRajz(a), " 2");
    EXPECT_EQ(sz[0].x, 6460 + 576 - 26);  // 665 cos 30 is 575.9
    EXPECT_NEAR(sz[0].y, 6440 - 332.5 - 26, 1);
}

TEST(DekadKerek, AHuszszorosFeluletenIsArany) {
    Allapot a = probaKeplet();
    a.Uralkodok.DekadSzoveg[1] = "AB";
    const auto m = nagyRajz(a, 3);
    const auto k = csak<TKorMuvelet>(m);
    EXPECT_EQ(k[0].r, 4534);  // 0.88 x 5152
    EXPECT_EQ(k[0].toll, 34);
    EXPECT_EQ(k[1].r, 1916);  // 0.37 x 5152 + 10
    EXPECT_EQ(vonalak(m, 6460, 6440, 25, 5152, 1), 12);
    const auto t = csak<TSzovegMuvelet>(m);
    EXPECT_EQ(t[0].magassag, 353);         // 343.47 + 10
    EXPECT_EQ(t[0].x, 6460 - 4976 - 178);  // 5152 at 15 degrees; (343.47 + 12) / 2
    EXPECT_EQ(t[0].y, 6440 + 1333 - 178);
    EXPECT_EQ(t[12].szoveg, "a");
    EXPECT_EQ(t[12].magassag, 214);  // 206.08 + 8
    EXPECT_EQ(std::ranges::count(t, 214, &TSzovegMuvelet::magassag), 12);
    EXPECT_EQ(t[12].x, 6460 - 1493 - 107);  // 1546 at 15 degrees
    EXPECT_EQ(t[12].y, 6440 + 400 - 107);
    korben({t.begin(), t.begin() + 12}, {6460, 6440, 5152, 15, 178});
    korben(jegyek(m, 0), {6460, 6440, 1546, 15, 107});
}

TEST(KisDekadKerek, AHuszszorosFeluletenIsArany) {
    Allapot a = probaKeplet();
    a.Uralkodok.DekadSzoveg[1] = "AB";
    const auto m = nagyRajz(a);
    const auto k = csak<TKorMuvelet>(m);
    EXPECT_EQ(k[k.size() - 2].r, 2396);
    EXPECT_EQ(k[k.size() - 2].toll, 34);
    EXPECT_EQ(k.back().r, 897);  // 0.37 x 2396 + 10
    EXPECT_EQ(k.back().toll, 1);
    EXPECT_EQ(vonalak(m, 16099, 9660, 16, 2696, 1), 12);
    const auto sz = szovegek(m, "AB");
    EXPECT_EQ(sz[0].magassag, 267);          // 2696 / 10.5 + 10
    EXPECT_EQ(sz[0].x, 16099 - 2865 - 114);  // 2966 at 15 degrees; (215.68 + 12) / 2
    EXPECT_EQ(sz[0].y, 9660 + 768 - 114);
    const auto kos = szovegek(m, "a");
    ASSERT_EQ(kos.size(), 3U);
    EXPECT_EQ(kos[2].magassag, 127);        // 2966 / 25 + 8
    EXPECT_EQ(kos[2].x, 16099 - 860 - 63);  // 890 at 15 degrees
    EXPECT_EQ(kos[2].y, 9660 + 230 - 63);
    korben(jegyek(m, 2), {16099, 9660, 890, 15, 63});
}

TEST(KisMundanKerek, AHuszszorosFeluletenIsArany) {
    Allapot a = probaKeplet();
    const auto m = nagyRajz(a);
    EXPECT_EQ(vonalak(m, 16099, 3220, 2396 / 1.125, 2696, 34), 12);
    // P is round(2696 x 1.15), 3100.
    const auto kos = szovegek(m, "a");
    ASSERT_EQ(kos.size(), 3U);
    EXPECT_EQ(kos[1].magassag, 129);         // 124 + 5
    EXPECT_EQ(kos[1].x, 16099 - 2686 - 64);  // 2696 - 3 at 4 degrees; 64.5 to the even
    EXPECT_EQ(kos[1].y, 3220 + 188 - 64);
    korben(jegyek(m, 1), {16099, 3220, 2693, 4, 64});
}

}  // namespace
