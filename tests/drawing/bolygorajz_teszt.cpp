// Bodies on the wheels.

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "rajzteszt.h"

namespace {

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

}  // namespace
