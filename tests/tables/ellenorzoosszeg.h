#pragma once

#include <cstdint>
#include <string_view>

/// FNV-1a, 64 bits: guards the kept tables against an unmeant change.
class EllenorzoOsszeg {
public:
    void bajt(unsigned char b) { ertek_ = (ertek_ ^ b) * 1099511628211ULL; }

    /// The number's four bytes, the lowest first.
    void szam(std::int32_t x) {
        for (int i = 0; i < 4; ++i)
            bajt(static_cast<unsigned char>(static_cast<std::uint32_t>(x) >> (8 * i)));
    }

    void szoveg(std::string_view s) {
        for (const char c : s) bajt(static_cast<unsigned char>(c));
    }

    std::uint64_t ertek() const { return ertek_; }

private:
    std::uint64_t ertek_ = 14695981039346656037ULL;
};
