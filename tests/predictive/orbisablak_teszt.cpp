#include <gtest/gtest.h>

#include "predictive/orbisablak.h"

namespace {

void egyezik(double hely, double orb, double also, double felso) {
    const TOrbisAblak ablak = OrbisAblak(hely, orb);
    EXPECT_DOUBLE_EQ(ablak.also, also) << hely << ' ' << orb;
    EXPECT_DOUBLE_EQ(ablak.felso, felso) << hely << ' ' << orb;
}

TEST(OrbisAblak, AKorBelsejebenAKetOldal) {
    egyezik(100, 1.5, 98.5, 101.5);
    egyezik(100, 0, 100, 100);
}

TEST(OrbisAblak, ANullaAlaNyuloVegKoronBelul) {
    egyezik(0.5, 1, 359.5, 1.5);
    egyezik(0, 0.25, 359.75, 0.25);
}

TEST(OrbisAblak, AHaromszazhatvanFoleNyuloVegKoronBelul) {
    egyezik(359.5, 1, 358.5, 0.5);
    egyezik(360, 1, 359, 1);  // a retrograde body lifted to the full circle
}

TEST(OrbisAblak, APontosNullaMaradAPontosHaromszazhatvanNulla) {
    egyezik(1, 1, 0, 2);
    egyezik(359, 1, 358, 0);
    egyezik(0, 0, 0, 0);
}

TEST(OrbisAblak, AFelkorMindketVegenUgyanott) {
    egyezik(0, 180, 180, 180);
    egyezik(180, 180, 0, 0);
}

}  // namespace
