#pragma once

#include <cstdint>
#include <string>

/// What the tables and the dialogs' fields hold of a place. A chart file may hold other values; they are
/// computed with as they stand, and the user is told.

inline constexpr int legnagyobbIdozona = 12;  ///< hours, east and west
inline constexpr int legnagyobbFok = 180;     ///< degrees, to all four sides

/// One Hungarian sentence that names the values lying outside, or an empty text if none does: the latitude
/// outside the tables of houses (42..60 degrees), a coordinate beyond 180 degrees, a zone beyond 12 hours, a
/// summer time other than 0 and 1.
/// @param hosszusag,szelesseg  arcseconds
std::string HelyenKivul(std::int32_t idozona, std::int32_t nyariIdo, std::int32_t hosszusag,
                        std::int32_t szelesseg);
