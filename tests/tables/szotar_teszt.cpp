#include <array>
#include <string_view>

#include <gtest/gtest.h>

#include "tables/szotar.h"

namespace {

TEST(Szotar, AHazakCimkeiNullatolTizenkettoig) {
    constexpr std::array<std::string_view, 13> cimkek{" 0",  " I", " 2", " 3", "IV", " 5", " 6",
                                                      "VII", " 8", " 9", " X", "11", "12"};
    for (int haz = 0; haz <= 12; ++haz) EXPECT_EQ(HazCimke(haz), cimkek[static_cast<std::size_t>(haz)]);
    EXPECT_EQ(HazCimke(13), "");
    EXPECT_EQ(HazCimke(-1), "");
}

TEST(Szotar, AJegyekBetui) {
    EXPECT_EQ(jegyBetu(1), "a");
    EXPECT_EQ(jegyBetu(12), "l");
    EXPECT_EQ(jegyBetu(0), "");
    EXPECT_EQ(jegyBetu(13), "");
}

}  // namespace
