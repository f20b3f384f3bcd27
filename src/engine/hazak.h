#pragma once

#include <array>
#include <cstdint>

#include "engine/keszlet.h"

/// Twelve Placidus cusps from the local sidereal time and the latitude, by interpolation in `HazTabla`
/// and `McTabla`: latitude first, then time.
/// @param armcOra,armcPerc,armcMperc  local sidereal time; the table row is taken modulo 360
/// @param[out] Hazcsucsok  degrees, house 1 is the Ascendant, house 10 the Midheaven; a cusp whose
///                         interpolation crosses Aries may come out at 360 or a little above
/// @param szelesseg  latitude, arcseconds; outside 42..60 degrees it is held to the band of the tables
/// @note No wrap is made between latitudes: at RAMC 240 house 2 reads 0 and 21599 in turn between 57 and 60
///       degrees, and a place there gets a wrong second house. Charts of these latitudes agree with the
///       printed tables in this; a wrap would make them differ.
void Hazak(std::int32_t armcOra, std::int32_t armcPerc, double armcMperc, THazcsucsok& Hazcsucsok,
           std::int32_t szelesseg);

/// The two steps of `Hazak` for one who computes many cusps within the same degree of RAMC.

/// Place of a sidereal time in the tables.
struct THazHely {
    int sor;    ///< whole degree of RAMC, 0..359
    double dt;  ///< seconds past it
};
THazHely HazHely(std::int32_t armcOra, std::int32_t armcPerc, double armcMperc);

/// What the tables give for a degree of RAMC and the next one, at a latitude.
struct THazSor {
    int mc, mcLepes;             ///< arcseconds
    std::array<double, 5> a, b;  ///< houses 1, 2, 3, 11, 12, arcminutes
};
THazSor HazSor(int sor, std::int32_t szelesseg);

/// Cusps so many seconds past the degree.
void HazakSorban(const THazSor& sor, double dt, THazcsucsok& Hazcsucsok);
