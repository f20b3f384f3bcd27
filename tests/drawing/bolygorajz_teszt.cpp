// Bodies on the wheels.

#include <algorithm>
#include <string>
#include <utility>
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
    EXPECT_EQ(szovegek(m, "  9").size(), 1U);  // body 7 at 219
}

TEST(Bolygok, ACsucsokFeliratai) {
    Allapot a = probaKeplet(100.25);
    const auto t = csak<TSzovegMuvelet>(rajz(a));
    // Height of the cusps' degrees: 27.5 x 0.6 is 16.5, to the even 16.
    std::vector<std::string> fokok;
    for (const auto& sz : t)
        if (sz.betutipus == "Ariel" && sz.magassag == 16) fokok.push_back(sz.szoveg);
    EXPECT_EQ(fokok.size(), 6U);
    a.Keplet.hazCsucs[2] = 130;
    a.Keplet.hazCsucs[3] = 162;
    a.Keplet.hazCsucs[10] = 13;
    a.Keplet.hazCsucs[11] = 44;
    a.Keplet.hazCsucs[12] = 75;
    fokok.clear();
    for (const auto& sz : csak<TSzovegMuvelet>(rajz(a)))
        if (sz.betutipus == "Ariel" && sz.magassag == 16) fokok.push_back(sz.szoveg);
    EXPECT_EQ(fokok, (std::vector<std::string>{"10", "10", "12", "13", "14", "15"}));
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

// Of the surface of twenty times the size: R1 is 5013, R2 4482, B 531.

TEST(Bolygok, AJelekANagyKerekenIsArany) {
    Allapot a = probaKeplet(3);  // the Sun stands at the Ascendant, 3 degrees into the sign
    a.Keplet.mozgas[1] = 'R';
    a.Keplet.bolygo[1] = 3 + 7 / 60.0 + 0.001;
    a.Keplet.hazCsucs[1] = a.Keplet.bolygo[1];
    const auto m = nagyRajz(a);
    const auto nap = szovegek(m, "A");
    EXPECT_EQ(nap[0].magassag, 239);         // 265.5 x 0.9
    EXPECT_EQ(nap[0].x, 6460 - 4748 - 106);  // 265.5 + 4482 to the even; 531 x 0.2
    EXPECT_EQ(nap[0].y, 6440 - 106);
    const auto r = szovegek(m, "R");
    EXPECT_EQ(r[0].magassag, 119);            // 265.5 x 0.45
    EXPECT_EQ(r[0].x, 6460 - 4748 + 64 - 4);  // 0.12 x 531
    EXPECT_EQ(r[0].y, 6440 + 64 + 2);
    // The labels inside the ring: round(0.94 x 4482) is 4213.
    const auto fok = szovegek(m, "  3");
    EXPECT_EQ(fok[0].magassag, 186);  // 265.5 x 0.7
    EXPECT_EQ(fok[0].x, 6460 - 4213 - 106);
    EXPECT_EQ(fok[0].y, 6440 - 106);
    const auto perc = szovegek(m, "7");
    ASSERT_EQ(perc.size(), 2U);
    EXPECT_EQ(perc[0].magassag, 106);  // 265.5 x 0.4
    EXPECT_EQ(perc[0].x, 6460 - 4213 + 106 - 4);
    EXPECT_EQ(perc[0].y, 6440 - 106);
    // The cusp's, at half of R2.
    const auto csucs =
        std::find_if(fok.begin(), fok.end(), [](const auto& sz) { return sz.magassag == 159; });
    ASSERT_NE(csucs, fok.end());  // 265.5 x 0.6
    EXPECT_EQ(csucs->x, 6460 - 2241 - 106);
    EXPECT_EQ(csucs->y, 6440 - 106);
    EXPECT_EQ(perc[1].magassag, 106);
    EXPECT_EQ(perc[1].x, 6460 - 2241 + 106 - 4);
    EXPECT_EQ(perc[1].y, 6440 - 106);
}

TEST(Bolygok, AKisMundanKerekenIsArany) {
    Allapot a = probaKeplet();
    a.Keplet.mozgas[1] = 'R';
    const auto m = nagyRajz(a);
    // 3100 from the centre, 3 degrees on from the left: 3096 and 162.
    const auto nap = szovegek(m, "A");
    ASSERT_EQ(nap.size(), 2U);
    EXPECT_EQ(nap[1].magassag, 306);  // 2396 / 8 + 6 to the even
    EXPECT_EQ(nap[1].x, 16099 - 3096 - 153);
    EXPECT_EQ(nap[1].y, 3220 + 162 - 153);
    const auto r = szovegek(m, "R");
    ASSERT_EQ(r.size(), 2U);
    EXPECT_EQ(r[1].betutipus, "Times New Roman");
    EXPECT_EQ(r[1].magassag, 203);         // 2396 / 12 + 3
    EXPECT_EQ(r[1].x, 16099 - 3096 + 41);  // a fifth of it
    EXPECT_EQ(r[1].y, 3220 + 162 + 41);
}

TEST(Bolygok, AMutatokANagyKerekenIsArany) {
    Allapot a = probaKeplet(0);
    a.Keplet.bolygo[1] = 0;
    a.Keplet.bolygo[2] = 0;  // spread to 356 and 4
    /// The end of the Moon's pointer that starts at the left, this far from the centre.
    const auto vege = [&](int tipus, int eleje) {
        for (const auto& v : csak<TVonalMuvelet>(nagyRajz(a, tipus)))
            if (v.toll == 34 && v.x1 == 6460 - eleje && v.y1 == 6440 && v.y2 > 6440)
                return std::pair(6460 - v.x2, v.y2 - 6440);
        return std::pair(0, 0);
    };
    // On the Radix wheel p is round(5013 / 21), 239: 4774 and 4721, 4 degrees down.
    EXPECT_EQ(vege(1, 5013), std::pair(4762, 333));
    EXPECT_EQ(vege(1, 4482), std::pair(4709, 329));
    // On the Mundán wheel 5013 / 18 is 278.5, to the even: 4735. There is no inner one.
    EXPECT_EQ(vege(2, 5013), std::pair(4723, 330));
    EXPECT_EQ(vege(2, 4482), std::pair(0, 0));
}

}  // namespace
