#include "files/kodlap1252.h"

#include <array>

namespace {

/// Characters of the bytes 0x80 to 0x9F; from 0xA0 on a byte is the Unicode number itself.
constexpr std::array<std::string_view, 32> also{"€", "?", "‚", "ƒ", "„", "…", "†", "‡", "ˆ", "‰", "Š",
                                                "‹", "Œ", "?", "Ž", "?", "?", "‘", "’", "“", "”", "•",
                                                "–", "—", "˜", "™", "š", "›", "œ", "?", "ž", "Ÿ"};

}  // namespace

std::string kodlap1252rol(std::string_view kodlap1252) {
    std::string ki;
    ki.reserve(kodlap1252.size());
    for (const char bajt : kodlap1252) {
        const auto b = static_cast<unsigned char>(bajt);
        if (b < 0x80) {
            ki += bajt;
        } else if (b < 0xA0) {
            ki += also[b - 0x80U];
        } else {
            ki += static_cast<char>(0xC0U | b >> 6U);
            ki += static_cast<char>(0x80U | (b & 0x3FU));
        }
    }
    return ki;
}
