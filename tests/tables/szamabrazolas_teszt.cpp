// The numbers of the machine, which the answers of the program stand on.

#include <cfloat>
#include <limits>

#include <gtest/gtest.h>

namespace {

/// The sidereal gain, the tertiary key and the rectification's time are worked out in 80 bits; in 64 the last
/// digits of some answers would be others.
TEST(Szamabrazolas, AHosszuLebegopontosSzam80Bites) {
    using T = std::numeric_limits<long double>;
    EXPECT_EQ(T::digits, 64);
    EXPECT_EQ(T::max_exponent, 16384);
    EXPECT_EQ(T::min_exponent, -16381);
    EXPECT_TRUE(T::is_iec559);
}

/// The unit really keeps 64 bits: a system or a library may have set it to fewer at start-up.
TEST(Szamabrazolas, ASzamolas64BitenMegyNemKevesebben) {
    volatile long double egy = 1.0L;
    volatile long double kicsi = 0x1p-63L;
    volatile long double osszeg = egy + kicsi;
    EXPECT_TRUE(osszeg > egy);
    EXPECT_TRUE(osszeg - egy == kicsi);
    volatile long double harmad = egy / 3;
    EXPECT_TRUE(harmad == 0xAAAAAAAAAAAAAAABp-65L);
}

/// Doubles are rounded at each step, to 53 bits.
TEST(Szamabrazolas, ASimaLebegopontosSzam64Bites) {
    EXPECT_EQ(std::numeric_limits<double>::digits, 53);
    EXPECT_TRUE(std::numeric_limits<double>::is_iec559);
    EXPECT_EQ(FLT_EVAL_METHOD, 0);
    volatile double egy = 1.0;
    volatile double kicsi = 0x1p-53;
    EXPECT_TRUE(egy + kicsi == egy);
}

}  // namespace
