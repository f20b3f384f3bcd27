#include <gtest/gtest.h>

#include "engine/fenyszogpontok.h"

namespace {

TEST(FenyszogPontok, TizenhatPontAKoronBelul) {
    TBolygok bolygo;
    bolygo[1] = 10;
    bolygo[2] = 350;
    bolygo[3] = 180;
    TFenyszogPontok pontok;
    FenyszogPontSzamitas(bolygo, pontok);
    const double vart[]{10, 40, 340, 55, 325, 70, 310, 100, 280, 130, 250, 145, 235, 160, 220, 190};
    for (int k = 1; k <= 16; ++k) EXPECT_DOUBLE_EQ(pontok[1][k], vart[k - 1]);
    EXPECT_DOUBLE_EQ(pontok[2][2], 20);
    EXPECT_DOUBLE_EQ(pontok[2][16], 170);
    EXPECT_DOUBLE_EQ(pontok[3][16], 0);  // 360 becomes 0
}

}  // namespace
