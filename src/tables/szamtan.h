#pragma once

#include <cmath>
#include <cstdint>

/// The program's arithmetic in one place, so that a reader sees which rounding is meant.
/// C++'s own integer `/` and `%` truncate towards zero, as the program's do.

/// Integer part of a real, towards zero. Values outside int32 are held at its ends; NaN gives 0.
inline int egesz(double x) {
    if (!(x == x)) return 0;
    if (x >= 2147483647.0) return INT32_MAX;
    if (x <= -2147483648.0) return INT32_MIN;
    return static_cast<int>(x);
}

/// Nearest whole number, ties to the even one: 41.5 gives 42, 40.5 gives 40. Ends as in `egesz`.
inline int kerekit(double x) {
    return egesz(std::nearbyint(x));
}

/// Remainder that is never negative, for a positive divisor: the row of a table that closes on itself.
constexpr int kormaradek(std::int64_t a, int b) {
    const auto m = static_cast<int>(a % b);
    return m < 0 ? m + b : m;
}

/// The full circle.
inline constexpr int korIvmasodperc = 1296000;
inline constexpr int korIvperc = 21600;

/// The day, and the seconds of a time in it; the numbers may also lie outside a day's.
inline constexpr std::int64_t napMasodperc = 86400;
constexpr std::int64_t idoMasodperc(std::int64_t ora, std::int64_t perc, std::int64_t mperc) {
    return ora * 3600 + perc * 60 + mperc;
}

/// Keeps the low 32 bits of a sum that input beyond all dialogs' ranges may carry over int32.
constexpr std::int32_t alsoBitek(std::int64_t x) {
    return static_cast<std::int32_t>(x);
}
