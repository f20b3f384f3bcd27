#pragma once

#include <array>
#include <cassert>
#include <cstddef>

/// Fixed table with the index running from 1 to N, as all tables of the program are counted.
/// The index is checked in debug and sanitizer builds (`assert`).
template <typename T, std::size_t N>
struct Tomb {
    std::array<T, N> elemek{};

    constexpr T& operator[](int index) {
        assert(index >= 1 && index <= static_cast<int>(N));
        return elemek[static_cast<std::size_t>(index - 1)];
    }
    constexpr const T& operator[](int index) const {
        assert(index >= 1 && index <= static_cast<int>(N));
        return elemek[static_cast<std::size_t>(index - 1)];
    }

    static constexpr int meret() { return static_cast<int>(N); }
    constexpr void tolt(const T& ertek) { elemek.fill(ertek); }

    constexpr auto begin() { return elemek.begin(); }
    constexpr auto end() { return elemek.end(); }
    constexpr auto begin() const { return elemek.begin(); }
    constexpr auto end() const { return elemek.end(); }

    friend bool operator==(const Tomb&, const Tomb&) = default;
};

/// Square table, both indices from 1.
template <typename T, std::size_t N, std::size_t M = N>
using Matrix = Tomb<Tomb<T, M>, N>;
