// The three views, whole.

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "rajzteszt.h"

namespace {

std::vector<std::array<int, 2>> korok(const std::vector<TMuvelet>& m) {
    std::vector<std::array<int, 2>> sugarTollal;
    for (const TKorMuvelet& k : csak<TKorMuvelet>(m)) sugarTollal.push_back({k.r, k.toll});
    return sugarTollal;
}
using TKorok = std::vector<std::array<int, 2>>;

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

/// The wheel of a surface of 987 x 644 that a text stands nearest to: 0 the large one, 1 the upper small one,
/// 2 the lower.
int kereke(const TSzovegMuvelet& sz) {
    constexpr std::array kozepek{std::pair(342, 322), std::pair(803, 161), std::pair(803, 483)};
    const auto tavol = [&](const std::pair<int, int>& k) {
        return std::hypot(sz.x - k.first, sz.y - k.second);
    };
    return static_cast<int>(std::ranges::min_element(kozepek, {}, tavol) - kozepek.begin());
}

/// Each body by its glyph, alone, on two wheels of each view; a decan wheel has them in its texts.
TEST(Nezetek, MindenBolygoAKetKereken) {
    constexpr std::array kerekek{std::pair(0, 1), std::pair(0, 1), std::pair(1, 2)};
    for (std::size_t tipus = 1; tipus <= 3; ++tipus) {
        Allapot a = probaKeplet();
        a.Keplet.mozgas.tolt('R');
        rajz(a, 1);  // the small Mundán wheel of the third view shows what was spread before
        const auto m = rajz(a, static_cast<int>(tipus));
        for (const char jel : std::string("ABCDEFGHIJ")) {
            const auto sz = szovegek(m, std::string(1, jel));
            ASSERT_EQ(sz.size(), 2U) << tipus << jel;
            EXPECT_EQ(sz[0].betutipus, "Jelek") << tipus << jel;  // also behind the "R" of the one before
            EXPECT_EQ(sz[1].betutipus, "Jelek") << tipus << jel;
            EXPECT_EQ(std::pair(kereke(sz[0]), kereke(sz[1])), kerekek[tipus - 1]) << tipus << jel;
        }
    }
}

/// A body at the Ascendant, alone: its pointer goes straight in from the left edge of the scale. The small
/// wheel of radius 2396 has its scale at 2330 and pointers of 2330 / 18, 129.
TEST(Nezetek, AKisRadixKeretenIsMutatok) {
    Allapot a = probaKeplet(0);
    a.Keplet.bolygo[1] = 0;
    for (const auto& [tipus, y] : {std::pair(2, 3220), std::pair(3, 9660)}) {
        const auto v = csak<TVonalMuvelet>(nagyRajz(a, tipus));
        const TVonalMuvelet mutato{16099 - 2330, y, 16099 - 2330 + 129, y, 16, 0};
        EXPECT_EQ(std::count(v.begin(), v.end(), mutato), 1) << tipus;
    }
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

TEST(Nezetek, NegyvenotosSugarralMegVannakKisKerekek) {
    // 432 x 300: the centre is 170, (432 - 320) div 2 is 56, and 0.8 x 56 rounds to 45; at 430 to 44.
    for (int tipus = 1; tipus <= 3; ++tipus) {
        Allapot a = probaKeplet();
        const auto sugaru = [&](int szelesseg, int sugar) {
            int szam = 0;
            for (const TKorMuvelet& k : csak<TKorMuvelet>(rajz(a, tipus, szelesseg, 300)))
                szam += k.x > 300 && k.r == sugar ? 1 : 0;
            return szam;
        };
        EXPECT_EQ(sugaru(432, 45), 2) << tipus;  // the outer circle of each small wheel
        EXPECT_EQ(sugaru(430, 44), 0) << tipus;
    }
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

TEST(MundanNezet, AzUjKepletASajatSzetteritesevel) {
    Allapot a = probaKeplet();
    const auto elobb = szovegek(rajz(a, 2), "A");
    a.Keplet.bolygo[1] = 200;
    Allapot friss = a;
    friss.Rajz.Rendezett = {};
    EXPECT_EQ(szovegek(rajz(a, 2), "A"), szovegek(rajz(friss, 2), "A"));
    EXPECT_NE(szovegek(rajz(a, 2), "A"), elobb);
}

/// Whatever pen the canvas was left with.
TEST(Nezetek, AKorokFolytonosak) {
    Allapot a = probaKeplet();
    RogzitoVaszon vaszon;
    vaszon.Stilus(TollStilus::pontozott);
    AblakGeometria(a.Rajz, a.Keplet.hazCsucs[1], 987, 644);
    KepletRajz(vaszon, a);
    for (const TKorMuvelet& k : csak<TKorMuvelet>(vaszon.muveletek())) EXPECT_EQ(k.stilus, 0);
}

TEST(Nezetek, MindegyikUjraTolti_AFenyszogPontokat) {
    for (int tipus = 1; tipus <= 3; ++tipus) {
        Allapot a = probaKeplet();
        a.Keplet.bolygo[1] = 10;
        rajz(a, tipus);
        EXPECT_DOUBLE_EQ(a.Rajz.FenyszogPontok[1][1], 10);
        EXPECT_DOUBLE_EQ(a.Rajz.FenyszogPontok[1][16], 190);
    }
}

}  // namespace
