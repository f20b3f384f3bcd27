#pragma once

#include <array>
#include <cstdint>

/// One period of summer time. Days are day numbers, hours those of the clock in force when they fall.
struct TNyariIdoszak {
    std::int32_t kezdoNap;
    std::int32_t vegeNap;
    std::int32_t kezdoOra;  ///< summer time runs from this full hour on `kezdoNap`
    std::int32_t vegeOra;   ///< and up to, not including, this one on `vegeNap`
};

/// The country's summer-time periods from 1916 to the end of the ephemeris, ascending.
extern const std::array<TNyariIdoszak, 116> NyariIdoszakok;

/// 1 if a clock moment lies in summer time, else 0; a year without a period has none.
int NyariIdoE(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc);
