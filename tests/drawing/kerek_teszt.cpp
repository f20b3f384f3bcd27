#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "drawing/kerek.h"
#include "drawing/rogzitovaszon.h"

namespace {

TEST(Kerek, AzAszcendensBaloldaltAHosszusagBalraForog) {
    RogzitoVaszon v;
    const TKerek kerek(v, 500, 400, 3.141592653589793 * 75 / 180);
    const auto pont = [&](double hossz) { return kerek.pont(100, kerek.szog(hossz)); };
    EXPECT_EQ(pont(75).x, 400);
    EXPECT_EQ(pont(75).y, 400);
    EXPECT_EQ(pont(165).x, 500);
    EXPECT_EQ(pont(165).y, 500);  // 90 degrees on stands below: counter-clockwise from the left
    EXPECT_EQ(pont(255).x, 600);
    EXPECT_EQ(pont(345).y, 300);
}

TEST(RogzitoVaszon, AzUjVaszonTollaEgyPixelesASarokban) {
    RogzitoVaszon v;
    v.LineTo(3, 4);
    v.TextOut(1, 2, "x");
    v.Ellipse(0, 0, 10, 10);
    EXPECT_EQ(v.muveletek(),
              (std::vector<TMuvelet>{TVonalMuvelet{0, 0, 3, 4, 1, 0}, TSzovegMuvelet{1, 2, "x", "", 0},
                                     TKorMuvelet{5, 5, 5, 1, 0}}));
}

TEST(RogzitoVaszon, AVonalAzElozoVegetolFolytatodik) {
    RogzitoVaszon v;
    v.MoveTo(1, 2);
    v.LineTo(3, 4);
    v.LineTo(5, 6);
    EXPECT_EQ(v.muveletek(),
              (std::vector<TMuvelet>{TVonalMuvelet{1, 2, 3, 4, 1, 0}, TVonalMuvelet{3, 4, 5, 6, 1, 0}}));
}

/// A recording canvas that notes what is set too.
struct TBeallitasok : RogzitoVaszon {
    std::vector<std::string> sorok;
    void TollSzelesseg(int szelesseg) override {
        sorok.push_back("toll " + std::to_string(szelesseg));
        RogzitoVaszon::TollSzelesseg(szelesseg);
    }
    void Stilus(TollStilus stilus) override {
        sorok.push_back("stilus " + std::to_string(static_cast<int>(stilus)));
        RogzitoVaszon::Stilus(stilus);
    }
    void Betu(std::string_view nev, int magassag) override {
        sorok.push_back(std::string(nev) + " " + std::to_string(magassag));
        RogzitoVaszon::Betu(nev, magassag);
    }
};

TEST(RogzitoVaszon, AFelvettMuveletekMasVaszonraUgyanugyKerulnek) {
    const std::vector<TMuvelet> felvett{
        TVonalMuvelet{1, 2, 3, 4, 0, 2},    TVonalMuvelet{9, 8, 7, 6, 0, 2},
        TKorMuvelet{50, 60, 11, 0, 0},      TKorMuvelet{-5, 60, 0, 4, 0},
        TSzovegMuvelet{1, 2, "a", "B", 9},  TSzovegMuvelet{3, 4, "", "B", 9},
        TSzovegMuvelet{5, 6, "c", "B", 12}, TSzovegMuvelet{7, 8, "d", "D", 12},
        TKorMuvelet{1, 1, 1, 4, 3},         TSzovegMuvelet{9, 9, "e", "D", 12}};
    TBeallitasok masik;
    RajzolMuveletek(felvett, masik);
    EXPECT_EQ(masik.muveletek(), felvett);
}

TEST(RogzitoVaszon, AVisszajatszasCsakAValtozastAllitjaBe) {
    TBeallitasok vaszon;
    RajzolMuveletek(
        {TVonalMuvelet{1, 2, 3, 4, 1, 0}, TVonalMuvelet{3, 4, 5, 6, 1, 0}, TSzovegMuvelet{1, 2, "a", "B", 9},
         TKorMuvelet{5, 5, 5, 1, 1}, TSzovegMuvelet{3, 4, "b", "B", 9}, TKorMuvelet{5, 5, 5, 2, 1}},
        vaszon);
    EXPECT_EQ(vaszon.sorok, (std::vector<std::string>{"toll 1", "stilus 0", "B 9", "stilus 1", "toll 2"}));
}

}  // namespace
