// The look-up of a chart's sound file.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "commands/hang.h"

namespace {

TEST(Hang, AKeresesSorrendje) {
    const auto mappak = HangMappak("/ide", "/otthon", false);
    EXPECT_EQ(mappak, (std::vector<std::string>{"/ide/", "/otthon/Korvend/", "/otthon/"}));
    const auto meghajtok = HangMappak("D:\\ide", "", true);
    ASSERT_EQ(meghajtok.size(), 15U);
    EXPECT_EQ(meghajtok[0], std::string("D:\\ide\\"));
    EXPECT_EQ(meghajtok[1], std::string("C:\\Korvend\\"));
    EXPECT_EQ(meghajtok[2], std::string("C:\\"));
    EXPECT_EQ(meghajtok[14], std::string("I:\\"));
    const auto van = [](const std::string& f) {
        return f == "/otthon/N.mpe" || f == "/otthon/Korvend/N.mpe";
    };
    EXPECT_EQ(HangFajlKeres("N", mappak, van), std::string("/otthon/Korvend/N.mpe"));
    EXPECT_EQ(HangFajlKeres("M", mappak, van), std::string());
    EXPECT_EQ(HangFajlKeres("Korvend/N", mappak, van), std::string());
}

TEST(Hang, AJelAzElsoKarakter) {
    TSzemely sz;
    EXPECT_FALSE(VanHang(sz));
    for (const char* jel : {"H", "Hang"}) {
        sz.hangJel = jel;
        EXPECT_TRUE(VanHang(sz));
    }
    for (const char* jel : {"h", " H", "XH"}) {
        sz.hangJel = jel;
        EXPECT_FALSE(VanHang(sz));
    }
}

}  // namespace
