#include <gtest/gtest.h>

#include "drawing/oldalpanel.h"
#include "rajzteszt.h"

namespace {

std::vector<std::array<int, 2>> korok(const std::vector<TMuvelet>& m) {
    std::vector<std::array<int, 2>> sugarTollal;
    for (const TKorMuvelet& k : csak<TKorMuvelet>(m)) sugarTollal.push_back({k.r, k.toll});
    return sugarTollal;
}
using TKorok = std::vector<std::array<int, 2>>;

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

TEST(RadixNezet, AKorokKivulrolBefele_AztanAKisKerekek) {
    Allapot a = probaKeplet();
    const auto m = rajz(a);
    // Small Dekád: round(0.37 x 120 + 10) is 54.
    EXPECT_EQ(korok(m),
              (TKorok{{258, 1}, {249, 3}, {194, 1}, {59, 1}, {37, 3}, {4, 3}, {120, 2}, {120, 2}, {54, 1}}));
    const auto k = csak<TKorMuvelet>(m);
    EXPECT_EQ(k[0].x, 342);
    EXPECT_EQ(k[0].y, 322);
    EXPECT_EQ(k[6].x, 803);
    EXPECT_EQ(k[6].y, 161);
    EXPECT_EQ(k[7].y, 483);
    // The large wheel is the last to use the window's centre.
    EXPECT_EQ(a.Rajz.kozpontX, 342);
    EXPECT_EQ(a.Rajz.kerekSugar, 258);
}

TEST(MundanNezet, AKorokEsAKicsereltKozpont) {
    Allapot a = probaKeplet();
    const auto m = rajz(a, 2);
    EXPECT_EQ(korok(m), (TKorok{{258, 1},
                                {249, 3},
                                {194, 1},
                                {37, 1},  // no R3, no R5
                                {120, 1},
                                {115, 1},
                                {73, 1},
                                {41, 1},
                                {21, 2},
                                {2, 2},  // small Radix
                                {120, 1},
                                {54, 1}}));  // w2 of the small radius
    EXPECT_EQ(csak<TKorMuvelet>(m)[4].x, 803);
    EXPECT_EQ(csak<TKorMuvelet>(m)[4].y, 161);
    EXPECT_EQ(a.Rajz.kozpontX, 803);
    EXPECT_EQ(a.Rajz.kozpontY, 161);
    EXPECT_EQ(a.Rajz.kerekSugar, 120);
}

TEST(DekadNezet, AKisRadixbolHianyzikABolygokKore) {
    Allapot a = probaKeplet();
    const auto m = rajz(a, 3);
    // round(0.88 x 258) is 227, round(0.37 x 258 + 10) is 105.
    EXPECT_EQ(korok(m), (TKorok{{227, 2}, {105, 1}, {120, 2}, {120, 1}, {115, 1}, {41, 1}, {21, 2}, {2, 2}}));
    EXPECT_EQ(a.Rajz.kozpontX, 803);
    EXPECT_EQ(a.Rajz.kozpontY, 483);
    EXPECT_EQ(a.Rajz.kerekSugar, 120);
}

TEST(Nezetek, NegyvenotAlattNincsenekKisKerekek) {
    for (int tipus = 1; tipus <= 3; ++tipus) {
        Allapot a = probaKeplet();
        const auto m = rajz(a, tipus, 500, 900);
        for (const TKorMuvelet& k : csak<TKorMuvelet>(m)) {
            EXPECT_EQ(k.x, 250);
            EXPECT_EQ(k.y, 450);
        }
        EXPECT_NE(a.Rajz.panel[0].szoveg, "");  // the panel is written all the same
    }
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
}

TEST(Bolygok, AJelAGyuruKozepenARetrogradBetuJobbraLent) {
    Allapot a = probaKeplet(3);
    a.Keplet.mozgas[1] = 'R';
    a.Keplet.mozgas[2] = 'S';
    a.Keplet.mozgas[3] = '?';
    const auto m = rajz(a);
    // B is 55: radius 27.5 + 194 is 221.5, to the even 222; height 24.75; offset 11. The Sun stands at the
    // Ascendant.
    const auto nap = szovegek(m, "A");
    EXPECT_EQ(nap[0].x, 342 - 222 - 11);
    EXPECT_EQ(nap[0].y, 322 - 11);
    EXPECT_EQ(nap[0].magassag, 25);
    const auto r = szovegek(m, "R");
    ASSERT_EQ(r.size(), 2U);  // large Radix and small Mundán
    EXPECT_EQ(r[0].betutipus, "Times New Roman");
    EXPECT_EQ(r[0].magassag, 12);          // 27.5 x 0.45 is 12.375
    EXPECT_EQ(r[0].x, 342 - 222 + 7 - 4);  // 0.12 x 55 is 6.6
    EXPECT_EQ(r[0].y, 322 + 7 + 2);
    EXPECT_EQ(szovegek(m, "S").size(), 2U);
    EXPECT_EQ(szovegek(m, "?").size(), 2U);
    EXPECT_EQ(szovegek(m, "D").size(), 2U);  // only Venus's glyph, on two wheels
}

TEST(Bolygok, AFokokEsPercekFeliratai) {
    Allapot a = probaKeplet(3);
    a.Keplet.bolygo[1] = 5 + 5 / 60.0 + 0.001;  // 5 degrees 5 minutes
    a.Keplet.bolygo[2] = 40 + 59.99 / 60;       // 10 degrees
    const auto m = rajz(a);
    const auto ot = szovegek(m, "  5");
    ASSERT_GE(ot.size(), 1U);
    EXPECT_EQ(ot[0].betutipus, "Ariel");
    EXPECT_EQ(ot[0].magassag, 19);  // 27.5 x 0.7 is 19.25
    EXPECT_EQ(szovegek(m, "5").size(), 1U);
    EXPECT_EQ(szovegek(m, "5")[0].magassag, 11);
    EXPECT_EQ(szovegek(m, "5")[0].x, ot[0].x + 11 + 7);  // from the point less 11 to the point and 7
    EXPECT_EQ(szovegek(m, "5")[0].y, ot[0].y);
    EXPECT_EQ(szovegek(m, "10")[0].magassag, 19);
    EXPECT_EQ(szovegek(m, "59").size(), 1U);
}

TEST(Bolygok, ACsucsokFeliratai) {
    Allapot a = probaKeplet(100.25);
    const auto t = csak<TSzovegMuvelet>(rajz(a));
    // Height of the cusps' degrees: 27.5 x 0.6 is 16.5, to the even 16.
    std::vector<std::string> fokok;
    for (const auto& sz : t)
        if (sz.betutipus == "Ariel" && sz.magassag == 16) fokok.push_back(sz.szoveg);
    EXPECT_EQ(fokok.size(), 6U);
    a.Keplet.hazCsucs[2] = 131;
    a.Keplet.hazCsucs[3] = 162;
    a.Keplet.hazCsucs[10] = 13;
    a.Keplet.hazCsucs[11] = 44;
    a.Keplet.hazCsucs[12] = 75;
    fokok.clear();
    for (const auto& sz : csak<TSzovegMuvelet>(rajz(a)))
        if (sz.betutipus == "Ariel" && sz.magassag == 16) fokok.push_back(sz.szoveg);
    EXPECT_EQ(fokok, (std::vector<std::string>{"10", "11", "12", "13", "14", "15"}));
}

TEST(Bolygok, AMutatokAzIgaziEsASzetteritettHelyKozott) {
    Allapot a = probaKeplet(0);
    a.Keplet.bolygo[1] = 0;
    a.Keplet.bolygo[2] = 0;  // spread to 356 and 4
    const auto v = csak<TVonalMuvelet>(rajz(a));
    const auto van = [&](const TVonalMuvelet& mi) { return std::find(v.begin(), v.end(), mi) != v.end(); };
    // p = round(249 / 21) = 12: from 249 at the left to 237, 4 degrees up for the Sun, down for the Moon.
    EXPECT_TRUE(van({342 - 249, 322, 342 - 236, 322 - 17, 2, 0}));
    EXPECT_TRUE(van({342 - 249, 322, 342 - 236, 322 + 17, 2, 0}));
    EXPECT_TRUE(van({342 - 194, 322, 342 - 205, 322 - 14, 2,
                     0}));  // inner: 194 to 206, whose cosine part is 205.5 less a little
    // On the Mundán wheel p = round(249 / 18) = 14 and there is no inner one.
    const auto w = csak<TVonalMuvelet>(rajz(a, 2));
    EXPECT_NE(std::find(w.begin(), w.end(), TVonalMuvelet{342 - 249, 322, 342 - 234, 322 - 16, 2, 0}),
              w.end());
    EXPECT_EQ(std::find(w.begin(), w.end(), TVonalMuvelet{342 - 194, 322, 342 - 208, 322 - 15, 2, 0}),
              w.end());
}

TEST(Fenyszogek, AVonalakStilusaOtonkentUjrakezdodik) {
    Allapot a = probaKeplet(0);
    for (int j = 2; j <= 8; ++j) a.FenyszogRadix[1][j] = 'P';
    a.FenyszogRadix[2][1] = 'P';
    std::vector<int> stilusok;
    for (const auto& v : csak<TVonalMuvelet>(rajz(a)))
        if (std::abs(std::hypot(v.x1 - 342, v.y1 - 322) - 194) < 1 &&
            std::abs(std::hypot(v.x2 - 342, v.y2 - 322) - 194) < 1)
            stilusok.push_back(v.stilus);
    EXPECT_EQ(stilusok,
              (std::vector<int>{0, 1, 2, 3, 4, 0, 1, 2}));  // the pair in both triangles is drawn twice
}

TEST(Fenyszogek, ABetuAVonalKozepen) {
    Allapot a = probaKeplet(0);
    a.Keplet.bolygo[1] = 0;
    a.Keplet.bolygo[2] = 90;
    a.FenyszogRadix[1][2] = 'R';
    const auto r = szovegek(rajz(a), "R");
    ASSERT_EQ(r.size(), 1U);  // no letters on the small wheel
    // 194 / 22 + 4 is 12.8: height 13, offset 6. The points stand at the left and below.
    EXPECT_EQ(r[0].magassag, 13);
    EXPECT_EQ(r[0].x, 342 - 97 - 6);
    EXPECT_EQ(r[0].y, 322 + 97 - 6);
}

TEST(Fenyszogek, FenyszogNelkulNincsBetuEsAStilusFolytonos) {
    Allapot a = probaKeplet();
    for (const auto& v : csak<TVonalMuvelet>(rajz(a))) EXPECT_EQ(v.stilus, 0);
    for (const char* betu : {"M", "N", "O", "P", "T", "V", "W"}) EXPECT_TRUE(szovegek(rajz(a), betu).empty());
}

TEST(Fenyszogek, ANagyMundanKerekenAzUtolsoStilusErvenybenMarad) {
    Allapot a = probaKeplet();
    a.FenyszogRadix[1][2] = 'P';
    a.FenyszogRadix[1][3] = 'P';
    const auto m = rajz(a, 2);
    EXPECT_EQ(csak<TKorMuvelet>(m)[3].stilus, 0);
    EXPECT_EQ(csak<TKorMuvelet>(m)[4].stilus, 1);
    EXPECT_EQ(csak<TVonalMuvelet>(m).back().stilus, 1);
    // On the large Radix wheel the axes' step ends solid.
    for (const auto& v : csak<TKorMuvelet>(rajz(a, 1))) EXPECT_EQ(v.stilus, 0);
}

/// Aspects drawn to the Ascendant for a body at a distance from it.
int tengelyVonalak(double tavolsag, const TOrbisTabla& orbis, char betu) {
    Allapot a = probaKeplet(20);
    a.OrbisTabla = orbis;
    a.Keplet.hazCsucs[10] = 20 + 7;  // far from any angle used here
    for (int i = 1; i <= 10; ++i) a.Keplet.bolygo[i] = 20 + tavolsag;
    const double sugar = (249 - 59) / 2.0 + 59;
    int szam = 0;
    const auto m = rajz(a);
    for (const auto& v : csak<TVonalMuvelet>(m))
        szam += std::abs(std::hypot(v.x1 - 342, v.y1 - 322) - 194) < 1 &&
                        std::abs(std::hypot(v.x2 - 342, v.y2 - 322) - sugar) < 1
                    ? 1
                    : 0;
    EXPECT_EQ(static_cast<std::size_t>(szam), szovegek(m, std::string(1, betu)).size());
    return szam;
}

TOrbisTabla egyOrbis(int oszlop, double tengely, double bolygo) {
    TOrbisTabla t;
    t[1][oszlop] = tengely;
    t[3][oszlop] = bolygo;  // the Sun alone
    return t;
}

TEST(TengelyFenyszogek, AzOrbisMindketHataraBenneVan) {
    // The other bodies have orb 0 themselves: (0 + 4) / 2 is 2, the Sun's (8 + 4) / 2 is 6.
    EXPECT_EQ(tengelyVonalak(126, egyOrbis(6, 4, 8), 'S'), 1);
    EXPECT_EQ(tengelyVonalak(114, egyOrbis(6, 4, 8), 'S'), 1);
    EXPECT_EQ(tengelyVonalak(126.01, egyOrbis(6, 4, 8), 'S'), 0);
    EXPECT_EQ(tengelyVonalak(122, egyOrbis(6, 4, 8), 'S'), 10);
}

TEST(TengelyFenyszogek, ANullaTengelyOrbisuOszlopKimarad) {
    EXPECT_EQ(tengelyVonalak(30, egyOrbis(2, 0, 8), 'N'), 0);
    EXPECT_EQ(tengelyVonalak(30, egyOrbis(2, 1, 8), 'N'), 10);
}

TEST(TengelyFenyszogek, ASzembenalloFenyszogKilencedikOszlop) {
    EXPECT_EQ(tengelyVonalak(180, egyOrbis(9, 0.5, 0), 'W'), 10);
    EXPECT_EQ(tengelyVonalak(-180 + 360, egyOrbis(9, 0.5, 0), 'W'), 10);
}

TEST(TengelyFenyszogek, AzElozoVonalStilusabanRajzol) {
    Allapot a = probaKeplet(20);
    a.OrbisTabla[1][6] = 4;
    a.FenyszogRadix[1][2] = 'P';
    a.FenyszogRadix[1][3] = 'P';
    a.Keplet.bolygo[5] = 140;
    bool volt = false;
    for (const auto& v : csak<TVonalMuvelet>(rajz(a)))
        if (std::abs(std::hypot(v.x2 - 342, v.y2 - 322) - 154) < 1 &&
            std::abs(std::hypot(v.x1 - 342, v.y1 - 322) - 194) < 1) {
            EXPECT_EQ(v.stilus, 1);
            volt = true;
        }
    EXPECT_TRUE(volt);
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

TEST(DekadNezet, AKisMundanKerekAzElozoRajzSzetteriteset_Mutatja) {
    Allapot a = probaKeplet();
    rajz(a, 1);
    const auto elobb = szovegek(rajz(a, 3), "A");
    a.Keplet.bolygo[1] = 200;  // a new chart, drawn once
    const auto kesik = szovegek(rajz(a, 3), "A");
    ASSERT_EQ(kesik.size(), 2U);
    EXPECT_EQ(kesik[0].x, elobb[0].x);  // small Mundán
    EXPECT_NE(kesik[1].x, elobb[1].x);  // small Radix
    const auto utoleri = szovegek(rajz(a, 3), "A");
    EXPECT_NE(utoleri[0].x, elobb[0].x);
}

TEST(OldalPanel, AHelyzetLevagvaPadlasNelkul) {
    EXPECT_EQ(helyzetSzoveg(42 + 5 / 60.0 + 9.8 / 3600), "12°5'9''");
    EXPECT_EQ(helyzetSzoveg(0), "0°0'0''");
    EXPECT_EQ(helyzetSzoveg(359.99999), "29°59'59''");
}

TEST(OldalPanel, TizBolygoEsHatCsucs) {
    Allapot a = probaKeplet(100);
    rajz(a, 3);
    EXPECT_EQ(a.Rajz.panel[0].jel, "a");
    EXPECT_EQ(a.Rajz.panel[0].szoveg, "3°0'0''");
    EXPECT_EQ(a.Rajz.panel[9].jel, "k");                      // 327
    const char* csucsJegyek[]{"d", "e", "f", "a", "b", "c"};  // 100, 130, 160, 10, 40, 70
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(a.Rajz.panel[10 + i].jel, csucsJegyek[i]);
    a.Keplet.hazCsucs[1] = 360.2;
    rajz(a, 1);
    EXPECT_EQ(a.Rajz.panel[10].jel, "");  // no thirteenth sign
}

TEST(FenyszogPontok, TizenhatPontAKoronBelul) {
    Allapot a = probaKeplet();
    a.Keplet.bolygo[1] = 10;
    a.Keplet.bolygo[2] = 350;
    a.Keplet.bolygo[3] = 180;
    rajz(a, 2);
    const double vart[]{10, 40, 340, 55, 325, 70, 310, 100, 280, 130, 250, 145, 235, 160, 220, 190};
    for (int k = 1; k <= 16; ++k) EXPECT_DOUBLE_EQ(a.Rajz.FenyszogPontok[1][k], vart[k - 1]);
    EXPECT_DOUBLE_EQ(a.Rajz.FenyszogPontok[2][2], 20);
    EXPECT_DOUBLE_EQ(a.Rajz.FenyszogPontok[2][16], 170);
    EXPECT_DOUBLE_EQ(a.Rajz.FenyszogPontok[3][16], 0);  // 360 becomes 0
}

}  // namespace
