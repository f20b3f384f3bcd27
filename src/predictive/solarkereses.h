#pragma once

#include <cstdint>

#include "engine/csillagido.h"
#include "engine/keszlet.h"
#include "predictive/athaladas.h"

/// The Sun's last passage over a longitude before a day: the scan that solar charts of life events, of
/// primary directions and of the solar ingress share.
struct TSolar {
    std::int32_t napsorszam;  ///< the day of the passage
    double napresz;  ///< fraction of that day; far above 1 if the Sun stands exactly on the longitude at 0h
    TNapszak ido;    ///< the same as Greenwich time
};

/// @param hossz   longitude, arcseconds
/// @param kezdo   row where the scan begins; it goes back and stops at row 1
/// @note A passage that `NapiLepesben` misses is found a year earlier.
TSolar SolarKereses(double hossz, std::int32_t kezdo);

/// The solar chart of a return, cast for a place by the Greenwich clock.
struct TSolarKeplet {
    TCsillagIdo ido;
    THazcsucsok csucsok;  ///< degrees
};

/// @param hosszusag,szelesseg  arcseconds
TSolarKeplet SolarKeplet(const TSolar& solar, std::int32_t hosszusag, std::int32_t szelesseg);
