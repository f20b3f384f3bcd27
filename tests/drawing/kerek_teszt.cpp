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

}  // namespace
