// Aspect lines.

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "rajzteszt.h"

namespace {

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

TEST(Fenyszogek, ABetuFerdeVonalKozepenIs) {
    Allapot a = probaKeplet(0);
    a.Keplet.bolygo[1] = 30;
    a.Keplet.bolygo[2] = 120;
    a.FenyszogRadix[1][2] = 'R';
    const auto r = szovegek(rajz(a), "R");
    ASSERT_EQ(r.size(), 1U);
    // The points are (-168.01, 97) and (97, 168.01) from the centre, their middle (-35.50, 132.50); offset 6.
    EXPECT_EQ(r[0].x, 300);
    EXPECT_EQ(r[0].y, 449);
}

TEST(Fenyszogek, AVonalakNagyFeluletenIsEgyPixelesek) {
    Allapot a = probaKeplet(0);
    a.Keplet.bolygo[1] = 90;
    a.FenyszogRadix[1][2] = 'R';
    a.OrbisTabla[1][5] = 2;  // the Sun's square to the Ascendant
    /// Lines with both ends so far from a centre, and those of them that are one pixel wide.
    const auto vonalak = [](const std::vector<TMuvelet>& m, int x, int y, double r1, double r2) {
        std::pair<int, int> szam;
        for (const auto& v : csak<TVonalMuvelet>(m)) {
            if (std::abs(std::hypot(v.x1 - x, v.y1 - y) - r1) > 1) continue;
            if (std::abs(std::hypot(v.x2 - x, v.y2 - y) - r2) > 1) continue;
            ++szam.first;
            szam.second += v.toll == 1;
        }
        return szam;
    };
    const auto m = nagyRajz(a);
    EXPECT_EQ(vonalak(m, 6460, 6440, 4482, 4482), std::pair(1, 1));
    EXPECT_EQ(vonalak(m, 6460, 6440, 4482, 2854), std::pair(1, 1));
    EXPECT_EQ(vonalak(m, 16099, 3220, 2396, 2396), std::pair(1, 1));
    EXPECT_EQ(vonalak(nagyRajz(a, 2), 6460, 6440, 4482, 4482), std::pair(1, 1));
}

TEST(Fenyszogek, ABetuANagyFeluletenIsArany) {
    Allapot a = probaKeplet(0);
    a.Keplet.bolygo[1] = 0;
    a.Keplet.bolygo[2] = 90;
    a.FenyszogRadix[1][2] = 'R';
    const auto r = szovegek(nagyRajz(a), "R");
    ASSERT_EQ(r.size(), 1U);
    // R2 is 4482: 4482 / 22 + 4 is 207.7, half of it 103.9.
    EXPECT_EQ(r[0].magassag, 208);
    EXPECT_EQ(r[0].x, 6460 - 2241 - 104);
    EXPECT_EQ(r[0].y, 6440 + 2241 - 104);
}

TEST(TengelyFenyszogek, ABetuAGyuruEsATengelyKozepeKozott) {
    Allapot a = probaKeplet(0);
    a.OrbisTabla[1][5] = 2;
    for (int i = 1; i <= 10; ++i) a.Keplet.bolygo[i] = 20;
    a.Keplet.bolygo[1] = 90;  // square to the Ascendant alone
    const auto r = szovegek(nagyRajz(a), "R");
    ASSERT_EQ(r.size(), 1U);
    // The Sun's point below, 4482 off; the Ascendant's at the left, half-way from R3 to R1: 2854.
    EXPECT_EQ(r[0].x, 6460 - 1427 - 104);
    EXPECT_EQ(r[0].y, 6440 + 2241 - 104);
}

TEST(TengelyFenyszogek, AMediumCoelieAMasodikOrbissorral) {
    Allapot a = probaKeplet(0);
    a.OrbisTabla[2][5] = 2;
    for (int i = 1; i <= 10; ++i) a.Keplet.bolygo[i] = 20;
    a.Keplet.hazCsucs[10] = 280;
    a.Keplet.bolygo[1] = 10;  // square to the Medium Coeli alone
    const auto r = szovegek(nagyRajz(a), "R");
    ASSERT_EQ(r.size(), 1U);
    // The Sun's point 4414 left and 778 below, the Medium Coeli's 496 left and 2811 above.
    EXPECT_NEAR(r[0].x, 6460 - 2455 - 104, 1);
    EXPECT_NEAR(r[0].y, 6440 - 1016 - 104, 1);
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

/// Aspect lines of the large wheel whose ends are these bodies' places.
int vonalKozottuk(Allapot& a, double egyik, double masik) {
    const auto hely = [](double hossz, double& x, double& y) {
        const double szog = (180 - hossz) * 3.141592653589793 / 180;
        x = 342 + 194 * std::cos(szog);
        y = 322 + 194 * std::sin(szog);
    };
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    hely(egyik, x1, y1);
    hely(masik, x2, y2);
    int szam = 0;
    for (const auto& v : csak<TVonalMuvelet>(rajz(a)))
        szam += std::hypot(v.x1 - x1, v.y1 - y1) < 1 && std::hypot(v.x2 - x2, v.y2 - y2) < 1 ? 1 : 0;
    return szam;
}

TEST(Fenyszogek, APlutoSoraEsOszlopaIsMegvan) {
    // Pluto stands at 327, Neptune at 291, the Sun at 3 degrees.
    Allapot a = probaKeplet(0);
    a.FenyszogRadix[10][1] = 'P';
    EXPECT_EQ(vonalKozottuk(a, 327, 3), 1);
    EXPECT_EQ(vonalKozottuk(a, 3, 327), 0);
    EXPECT_EQ(szovegek(rajz(a), "P").size(), 1U);
    a.FenyszogRadix[9][10] = 'P';
    EXPECT_EQ(vonalKozottuk(a, 291, 327), 1);
    a.FenyszogRadix[10][9] = 'P';
    EXPECT_EQ(vonalKozottuk(a, 327, 291), 1);
    EXPECT_EQ(szovegek(rajz(a), "P").size(), 3U);
}

}  // namespace
