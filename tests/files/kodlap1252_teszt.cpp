#include <array>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "files/bajtszoveg.h"
#include "files/kodlap1252.h"

namespace {

TEST(Kodlap1252, AFelsoJelekEsANyugatiBetuk) {
    EXPECT_EQ(kodlap1252rol("Sch\xF6n \xDF \xE9"), "Schön ß é");
    EXPECT_EQ(kodlap1252rol("\x80\x84\x96\x9F"), "€„–Ÿ");
    EXPECT_EQ(kodlap1252rol("\xF5\xFB"), "õû");  // where code page 1250 has ő and ű
    EXPECT_EQ(kodlap1252rol(""), "");
}

/// Unicode numbers of 0x80 to 0x9F in code page 1252; 0 where it has none.
constexpr std::array<unsigned, 32> szamok{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                          0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                          0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                          0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

/// Unicode number of one character of UTF-8, three bytes at most.
unsigned unicode(std::string_view utf8) {
    const auto b = [&](std::size_t i) { return static_cast<unsigned>(static_cast<unsigned char>(utf8[i])); };
    if (utf8.size() == 1) return b(0);
    if (utf8.size() == 2) return (b(0) & 0x1FU) << 6U | (b(1) & 0x3FU);
    return (b(0) & 0x0FU) << 12U | (b(1) & 0x3FU) << 6U | (b(2) & 0x3FU);
}

TEST(Kodlap1252, MindA256Bajt) {
    for (unsigned b = 0; b < 256; ++b) {
        const bool kozep = b >= 0x80 && b < 0xA0;
        const unsigned vart = !kozep ? b : szamok[b - 0x80] == 0 ? '?' : szamok[b - 0x80];
        EXPECT_EQ(unicode(kodlap1252rol(std::string(1, static_cast<char>(b)))), vart) << b;
    }
}

TEST(BajtSzoveg, AHianyzoKarakterekSzama) {
    int hianyok = 0;
    EXPECT_EQ(KodlapSzoveg("a\x81?b\x8D", TKodlap::cp1252, hianyok), "a??b?");
    EXPECT_EQ(hianyok, 2);
    EXPECT_EQ(KodlapSzoveg("\xF5\x81", TKodlap::cp1250, hianyok), "ő?");
    EXPECT_EQ(hianyok, 3);
}

TEST(BajtSzoveg, ABajtsorrendJelKimarad) {
    EXPECT_EQ(BajtsorrendJelNelkul("\xEF\xBB\xBF"
                                   "a"),
              "a");
    EXPECT_EQ(BajtsorrendJelNelkul("a\xEF\xBB\xBF"), "a\xEF\xBB\xBF");
    EXPECT_EQ(BajtsorrendJelNelkul("\xEF\xBB"), "\xEF\xBB");
}

}  // namespace
