#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "files/kodlap1250.h"
#include "tables/szoveg.h"

namespace {

TEST(Kodlap, AMagyarBetukEgyBajton) {
    EXPECT_EQ(kodlapra("őűŐŰá"), "\xF5\xFB\xD5\xDB\xE1");
    EXPECT_EQ(kodlaprol("\xF5\xFB\xD5\xDB\xE1"), "őűŐŰá");
    EXPECT_EQ(kodlapra("€"), "\x80");
}

TEST(Kodlap, AHianyzoKarakterKerdojel) {
    EXPECT_EQ(kodlapra("a漢b😀c"), "a?b?c");
    EXPECT_EQ(kodlapra("a\xFF"
                       "b"),
              "a?b");
    EXPECT_EQ(kodlaprol("a\x81"), "a?");
}

/// The code page from 0x80 on, sixteen bytes a line; '?' where it has no character.
constexpr std::string_view felsoFel =
    "€?‚?„…†‡?‰Š‹ŚŤŽŹ"
    "?‘’“”•–—?™š›śťžź"
    "\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż"
    "°±˛ł´µ¶·¸ąş»Ľ˝ľż"
    "ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎ"
    "ĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
    "ŕáâăäĺćçčéęëěíîď"
    "đńňóôőö÷řůúűüýţ˙";

std::string egyBajt(std::size_t b) {
    return {static_cast<char>(b)};
}

/// The 256 characters in the order of their bytes.
std::array<std::string, 256> kodlap() {
    std::array<std::string, 256> karakterek;
    for (std::size_t b = 0; b < 128; ++b) karakterek[b] = egyBajt(b);
    std::string_view maradek = felsoFel;
    for (std::size_t b = 128; b < 256; ++b) {
        const std::size_t hossz = karakterHossz(maradek);
        karakterek[b] = maradek.substr(0, hossz);
        maradek.remove_prefix(hossz);
    }
    EXPECT_TRUE(maradek.empty());
    return karakterek;
}

bool lyuk(std::size_t b) {
    return b == 0x81 || b == 0x83 || b == 0x88 || b == 0x90 || b == 0x98;
}

TEST(Kodlap, MindA256BajtASajatKaraktere) {
    const auto vart = kodlap();
    for (std::size_t b = 0; b < 256; ++b) {
        EXPECT_EQ(lyuk(b), b >= 128 && vart[b] == "?") << b;
        EXPECT_EQ(kodlaprol(egyBajt(b)), vart[b]) << b;
    }
}

TEST(Kodlap, AKarakterekVisszaUgyanarraABajtra) {
    const auto karakterek = kodlap();
    for (std::size_t b = 0; b < 256; ++b) {
        if (lyuk(b)) continue;
        EXPECT_EQ(kodlapra(karakterek[b]), egyBajt(b)) << b;
    }
}

/// UTF-8 of a number from 0x80 on.
std::string utf8(unsigned c) {
    const auto farok = [c](unsigned tolas) { return static_cast<char>(0x80U | (c >> tolas & 0x3FU)); };
    if (c < 0x800) return {static_cast<char>(0xC0U | c >> 6U), farok(0)};
    return {static_cast<char>(0xE0U | c >> 12U), farok(6), farok(0)};
}

TEST(Kodlap, AKodlaponKivuliekMindKerdojelek) {
    const auto karakterek = kodlap();
    int kivul = 0;
    for (unsigned c = 0x80; c < 0x2200; ++c) {
        const std::string karakter = utf8(c);
        if (std::find(karakterek.begin(), karakterek.end(), karakter) != karakterek.end()) continue;
        ASSERT_EQ(kodlapra(karakter), "?") << c;
        ++kivul;
    }
    EXPECT_EQ(kivul, 0x2200 - 0x80 - 123);
    EXPECT_EQ(kodlapra("\xC2\x81"), "?");  // the control character of that number is not the byte
}

TEST(Kodlap, ATulhosszuAlakKerdojel) {
    EXPECT_EQ(kodlapra("\xC0\xAF"), "?");      // a slash in two bytes
    EXPECT_EQ(kodlapra("\xC1\x81"), "?");      // an A in two bytes
    EXPECT_EQ(kodlapra("\xC0\x80"), "?");      // a zero in two bytes, as no byte of the page is
    EXPECT_EQ(kodlapra("\xE0\x85\x91"), "?");  // an ő in three bytes
    EXPECT_EQ(kodlapra("x\xE0\x85\x91y"), "x?y");
}

TEST(Kodlap, AMagabanAlloFolytatoBajtKerdojel) {
    EXPECT_EQ(kodlapra("\x80"), "?");  // the first that is no character of its own
    EXPECT_EQ(kodlapra("\x91"), "?");
    EXPECT_EQ(kodlapra("\x91x"), "?x");
    for (const std::string szoveg : {"b\x91x", "\x91\x91", "ő\x91", "\xC5", "\xC5x"}) {
        const std::string bajtok = kodlapra(szoveg);
        EXPECT_EQ(bajtok.size(), static_cast<std::size_t>(karakterSzam(szoveg))) << szoveg;
        EXPECT_NE(bajtok.find('?'), std::string::npos) << szoveg;
    }
}

}  // namespace
