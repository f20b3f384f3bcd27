#include "files/kodlap1250.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "tables/szoveg.h"

namespace {

/// Unicode numbers of the bytes 128 to 255 of code page 1250; 0 where it has no character.
constexpr std::array<char16_t, 128> felsoKarakterek{
    0x20AC, 0,      0x201A, 0,      0x201E, 0x2026, 0x2020, 0x2021, 0,      0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0,      0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};

constexpr unsigned elsoFelso = 128;

/// UTF-8 of a character of the table, two or three bytes.
void hozzafuz(std::string& ki, char16_t c) {
    const auto farok = [](unsigned bitek) { return static_cast<char>(0x80U | (bitek & 0x3FU)); };
    if (c < 0x800) {
        ki += static_cast<char>(0xC0U | c >> 6U);
    } else {
        ki += static_cast<char>(0xE0U | c >> 12U);
        ki += farok(c >> 6U);
    }
    ki += farok(c);
}

/// One UTF-8 character as a byte of the code page. Characters are compared by their bytes, so that overlong
/// and broken ones match none.
char egyKarakter(std::string_view karakter) {
    if (karakter.size() == 1 && static_cast<unsigned char>(karakter[0]) < elsoFelso) return karakter[0];
    const auto hely = std::find_if(felsoKarakterek.begin(), felsoKarakterek.end(), [&](char16_t c) {
        std::string utf8;
        if (c != 0) hozzafuz(utf8, c);
        return utf8 == karakter;
    });
    if (hely == felsoKarakterek.end()) return '?';
    return static_cast<char>(elsoFelso + static_cast<unsigned>(hely - felsoKarakterek.begin()));
}

}  // namespace

std::string kodlapra(std::string_view utf8) {
    std::string ki;
    while (!utf8.empty()) {
        const std::size_t hossz = karakterHossz(utf8);
        ki += egyKarakter(utf8.substr(0, hossz));
        utf8.remove_prefix(hossz);
    }
    return ki;
}

std::string kodlaprol(std::string_view kodlap1250) {
    std::string ki;
    for (const char bajt : kodlap1250) {
        const auto b = static_cast<unsigned char>(bajt);
        if (b < elsoFelso)
            ki += bajt;
        else if (const char16_t c = felsoKarakterek[b - elsoFelso]; c != 0)
            hozzafuz(ki, c);
        else
            ki += '?';
    }
    return ki;
}
