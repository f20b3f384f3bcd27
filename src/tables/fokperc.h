#pragma once

#include <cstdint>

#include "tables/szamtan.h"

/// Coordinates between arcseconds and the degrees and minutes of the dialogs' fields.

/// Degrees and minutes of a coordinate in arcseconds, both truncated towards zero.
struct TFokPerc {
    std::int32_t fok, perc;
};
constexpr TFokPerc fokPercre(std::int32_t ivmasodperc) {
    return {ivmasodperc / 3600, ivmasodperc % 3600 / 60};
}

/// Arcseconds; the minutes add to negative degrees too, so -19 and 4 is -68160, that is -18°56'.
constexpr std::int32_t ivmasodpercre(std::int32_t fok, std::int32_t perc) {
    return alsoBitek(std::int64_t{fok} * 3600 + std::int64_t{perc} * 60);
}
