#include <string>

#include <gtest/gtest.h>

#include "tables/szoveg.h"

namespace {

TEST(Szoveg, KarakterenkentSzamolVagEsGordit) {
    EXPECT_EQ(karakterSzam("őrség"), 5);
    EXPECT_EQ(elsoKarakterek("őrség", 2), "őr");
    EXPECT_EQ(elsoKarakterek("ő", 20), "ő");
    std::string s = "őab";
    gordit(s);
    EXPECT_EQ(s, "abő");
    s.clear();
    gordit(s);
    EXPECT_EQ(s, "");
    EXPECT_EQ(ketJegy(9), "09");
    EXPECT_EQ(ketJegy(10), "10");
}

TEST(Szoveg, AzErvenyesUtf8) {
    // The first and the last character of each length, and those beside the surrogates.
    for (const char* szoveg :
         {"", "abc", "\x7F", "őűŐŰ", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
          "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "a漢b😀c"})
        EXPECT_TRUE(ervenyesUtf8(szoveg)) << szoveg;
}

TEST(Szoveg, AzErvenytelenUtf8) {
    for (const char* szoveg : {"\x80",
                               "\xBF",
                               "\xF5",
                               "a\xF5",
                               "\xF5 a",  // bytes that no character begins with
                               "\xC5",
                               "\xC5 ",
                               "\xE6\xBC",
                               "\xE6\xBC x",
                               "\xF0\x9F\x98",  // cut short
                               "ő\x91",
                               "a\x80",
                               "\xE6\xBC\xA2\xA2",  // one byte more than it takes
                               "\xC0\x80",
                               "\xC1\xBF",
                               "\xE0\x9F\xBF",
                               "\xF0\x8F\xBF\xBF",  // overlong
                               "\xED\xA0\x80",
                               "\xED\xBF\xBF",  // halves of a surrogate pair
                               "\xF4\x90\x80\x80",
                               "\xF5\x80\x80\x80",
                               "\xF8\x88\x80\x80",
                               "\xFF",
                               "\xFE"})  // beyond the last character
        EXPECT_FALSE(ervenyesUtf8(szoveg)) << szoveg;
    EXPECT_FALSE(ervenyesUtf8(std::string("\xD5rz\xF5")));  // code page 1250
}

}  // namespace
