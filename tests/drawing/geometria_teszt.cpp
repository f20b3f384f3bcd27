#include <gtest/gtest.h>

#include "drawing/geometria.h"

namespace {

TRajz ablak(int szelesseg, int magassag) {
    TRajz r;
    AblakGeometria(r, 90, szelesseg, magassag);
    return r;
}

TEST(Geometria, AKilencszaznyolcvanhetszerHatszaznegyvennegyesFelulet) {
    const TRajz r = ablak(987, 644);
    EXPECT_EQ(r.kozpontX, 342);
    EXPECT_EQ(r.kozpontY, 322);
    EXPECT_EQ(r.kerekSugar, 258);
    EXPECT_DOUBLE_EQ(r.forgatas, 3.141592653589793 / 2);
    const TSugarak s = GyuruSugarak(258, false);
    EXPECT_EQ(s.kulso, 258);
    EXPECT_EQ(s.skala, 249);
    EXPECT_EQ(s.bolygo, 194);
    EXPECT_EQ(s.haz, 59);
    EXPECT_EQ(s.belso, 37);
    EXPECT_EQ(s.mag, 4);
    EXPECT_EQ(TollVastagsag(2, 258), 2);
    EXPECT_EQ(TollVastagsag(3, 258), 3);
    EXPECT_EQ(TollVastagsag(4, 258), 3);
    const TKisKerekek k = KisKerekGeometria(r);
    EXPECT_EQ(k.kisSugar, 120);
    EXPECT_EQ(k.kis1X, 803);
    EXPECT_EQ(k.kis1Y, 161);
    EXPECT_EQ(k.kis2X, 803);
    EXPECT_EQ(k.kis2Y, 483);
    const TSugarak kicsi = GyuruSugarak(120, false);
    EXPECT_EQ(kicsi.skala, 115);
    EXPECT_EQ(kicsi.bolygo, 73);
    EXPECT_EQ(kicsi.haz, 41);
    EXPECT_EQ(kicsi.belso, 21);
    EXPECT_EQ(kicsi.mag, 2);
}

TEST(Geometria, ALegkisebbKerekGyuruiKeresztezikEgymast) {
    const TSugarak s = GyuruSugarak(45, false);
    EXPECT_EQ(s.skala, 42);
    EXPECT_EQ(s.bolygo, 8);
    EXPECT_EQ(s.haz, 31);
    EXPECT_EQ(s.belso, 11);
    EXPECT_EQ(s.mag, 1);
}

TEST(Geometria, AKeskenyAblakbanAKerekKozepen) {
    const TRajz r = ablak(500, 900);
    EXPECT_EQ(r.kozpontX, 250);
    EXPECT_EQ(r.kerekSugar, 200);
    // (500 - 480) div 2 is 10, round(0.8 x 10) is 8.
    EXPECT_EQ(KisKerekGeometria(r).kisSugar, 8);
    EXPECT_LT(KisKerekGeometria(ablak(300, 900)).kisSugar, 45);
}

TEST(Geometria, ANegyzetesAblakbanIsKozepen) {
    EXPECT_EQ(ablak(600, 600).kozpontX, 300);
    EXPECT_EQ(ablak(602, 600).kozpontX, 320);  // wider than high: 20 right of the height's half
    EXPECT_EQ(ablak(602, 600).kozpontY, 300);
}

TEST(Geometria, AHuszszorosFelulet) {
    const TRajz r = ablak(19740, 12880);
    EXPECT_EQ(r.kozpontX, 6460);
    EXPECT_EQ(r.kozpontY, 6440);
    EXPECT_EQ(r.kerekSugar, 5152);
    // (19740 - 12900) div 2 is 3420; 4.3 x 3420 is above 12880, so round(12880 / 4.3) is 2995.
    const TKisKerekek k = KisKerekGeometria(r);
    EXPECT_EQ(k.kis1X, 19740 - 2995 - 646);
    EXPECT_EQ(k.kis1Y, 3220);
    EXPECT_EQ(k.kis2Y, 9660);
    EXPECT_EQ(k.kisSugar, 2396);
}

TEST(Geometria, NyomtatasnalMasGyuruk) {
    const TSugarak s = GyuruSugarak(300, true);
    EXPECT_EQ(s.skala, 290);
    EXPECT_EQ(s.bolygo, 290 - 88);  // 45 x 290 / 300 + 45 is 88.5, to the even 88
    EXPECT_EQ(s.haz, 107);          // 69 + 38
    EXPECT_EQ(s.belso, 107 - 49);   // 12.84 + 36
    EXPECT_EQ(s.mag, 6);            // 5.8
}

TEST(Geometria, NyomtatasnalAKisKerekekAlulEgymasMellett) {
    TRajz r;
    r.nyomtatasMod = true;
    LapGeometria(r, 2000, 3000);
    EXPECT_EQ(r.kozpontX, 1000);
    EXPECT_EQ(r.kozpontY, 1000);  // not 1500: the wheel stands at the top
    EXPECT_EQ(r.kerekSugar, 750);
    const TKisKerekek k = KisKerekGeometria(r);
    // (3000 - 2000) div 2 is 500; 4.3 x 500 is above 2000, so round(2000 / 4.3) is 465.
    EXPECT_EQ(k.kis1Y, 3000 - 465 - 100);
    EXPECT_EQ(k.kis1X, 500);
    EXPECT_EQ(k.kisSugar, 372);
    EXPECT_EQ(k.kis2X, 1500);
    EXPECT_EQ(k.kis2Y, k.kis1Y);
}

TEST(Geometria, AParatlanLapMaradekaFele) {
    TRajz r;
    r.nyomtatasMod = true;
    LapGeometria(r, 2000, 2401);
    const TKisKerekek k = KisKerekGeometria(r);
    EXPECT_EQ(k.kisSugar, 160);  // (2401 - 2000) div 2 is 200
    EXPECT_EQ(k.kis1Y, 2401 - 200 - 100);
    EXPECT_EQ(k.kis1X, 500);
}

TEST(Geometria, AFekvoLapKozepeMarad) {
    TRajz r;
    r.nyomtatasMod = true;
    LapGeometria(r, 3000, 2000);
    EXPECT_EQ(r.kozpontX, 1500);
    EXPECT_EQ(r.kozpontY, 1000);
    EXPECT_EQ(r.kerekSugar, 750);
    EXPECT_EQ(KisKerekGeometria(r).kisSugar, 0);  // no room below: (2000 - 2000) div 2
}

TEST(Geometria, AGyurukAranyaiNagySugaron) {
    // At this size a divisor off by one shows in the pixels.
    const TSugarak s = GyuruSugarak(30000, false);
    EXPECT_EQ(s.skala, 30000 - 802);
    EXPECT_EQ(s.bolygo, 29198 - 2950);  // 2919.8 + 30
    EXPECT_EQ(s.haz, 3925);
    EXPECT_EQ(s.belso, 3925 - 254);  // 235.5 + 18, to the even
    EXPECT_EQ(s.mag, 367);
    EXPECT_EQ(GyuruSugarak(60000, false).belso, 7825 - 488);  // 469.5 + 18, to the even
    const TSugarak lapon = GyuruSugarak(30000, true);
    EXPECT_EQ(lapon.skala, 29198);
    EXPECT_EQ(lapon.bolygo, 29198 - 4425);  // 4379.7 + 45
    EXPECT_EQ(lapon.haz, 6938);
    EXPECT_EQ(lapon.belso, 6938 - 869);  // 832.56 + 36
    EXPECT_EQ(lapon.mag, 607);
    EXPECT_EQ(TollVastagsag(2, 30000), 200);
    EXPECT_EQ(TollVastagsag(0, 30000), 0);
}

}  // namespace
