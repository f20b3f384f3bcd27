#pragma once

#include <cstdint>

#include "engine/csillagido.h"
#include "engine/keszlet.h"

/// The Sun's last passage over a longitude before a day: the scan that solar charts of life events, of
/// primary directions and of the solar ingress share.
struct TSolar {
    std::int32_t napsorszam;  ///< the day of the passage
    double napresz;  ///< fraction of that day; far above 1 if the Sun stands exactly on the longitude at 0h
    std::int32_t ora, perc, mperc;  ///< the same as Greenwich time, cut off
};

/// @param hossz   longitude, arcseconds
/// @param kezdo   row where the scan begins; it goes back and stops at row 1
/// @note On the day on which the Sun passes 0 degrees of Aries the longitude is compared with 360, although
/// it is in
///       arcseconds: a longitude in the last part of Pisces is missed there and found a year earlier. Meant
///       so.
TSolar SolarKereses(double hossz, std::int32_t kezdo);

/// The solar chart of a return, cast for a place by the Greenwich clock.
struct TSolarKeplet {
    TCsillagIdo ido;
    THazcsucsok csucsok;  ///< degrees
};

/// @param hosszusag,szelesseg  arcseconds
TSolarKeplet SolarKeplet(const TSolar& solar, std::int32_t hosszusag, std::int32_t szelesseg);
