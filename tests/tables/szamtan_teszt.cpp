#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "tables/szamtan.h"

namespace {

constexpr double nemSzam = std::numeric_limits<double>::quiet_NaN();

TEST(Szamtan, AzEgeszreszANullaFele) {
    EXPECT_EQ(egesz(1.9), 1);
    EXPECT_EQ(egesz(-1.9), -1);
    EXPECT_EQ(egesz(-0.5), 0);
}

TEST(Szamtan, AKerekitesDontetlenbenAParoshoz) {
    EXPECT_EQ(kerekit(41.5), 42);
    EXPECT_EQ(kerekit(40.5), 40);
    EXPECT_EQ(kerekit(-40.5), -40);
    EXPECT_EQ(kerekit(-41.5), -42);
    EXPECT_EQ(kerekit(std::nextafter(40.5, 41)), 41);
}

TEST(Szamtan, ANemSzamNulla) {
    EXPECT_EQ(egesz(nemSzam), 0);
    EXPECT_EQ(egesz(-nemSzam), 0);
    EXPECT_EQ(kerekit(nemSzam), 0);
}

TEST(Szamtan, AzEgeszTartomanyVegein) {
    EXPECT_EQ(egesz(2147483646.5), INT32_MAX - 1);
    EXPECT_EQ(egesz(2147483647.0), INT32_MAX);
    EXPECT_EQ(egesz(2147483648.0), INT32_MAX);
    EXPECT_EQ(egesz(1e300), INT32_MAX);
    EXPECT_EQ(egesz(-2147483647.5), INT32_MIN + 1);
    EXPECT_EQ(egesz(-2147483648.0), INT32_MIN);
    EXPECT_EQ(egesz(-1e300), INT32_MIN);
    EXPECT_EQ(kerekit(std::numeric_limits<double>::infinity()), INT32_MAX);
    EXPECT_EQ(kerekit(-std::numeric_limits<double>::infinity()), INT32_MIN);
}

TEST(Szamtan, AKormaradekSohasemNegativ) {
    EXPECT_EQ(kormaradek(-1, 360), 359);
    EXPECT_EQ(kormaradek(-360, 360), 0);
    EXPECT_EQ(kormaradek(0, 360), 0);
    EXPECT_EQ(kormaradek(360, 360), 0);
    EXPECT_EQ(kormaradek(725, 360), 5);
}

}  // namespace
