#pragma once

#include <array>
#include <cstdint>

/// Tables of houses and ascensions for a fixed obliquity, read-only. Rows count from 0.
/// Latitude blocks: block b is the latitude 42 + b degrees north, b = 0..18.

inline constexpr int legkisebbSzelesseg = 42;  ///< degrees
inline constexpr int legnagyobbSzelesseg = 60;
inline constexpr int szelessegBlokkok = 19;

/// Ecliptic longitude of the Midheaven in arcseconds for RAMC 0..360 degrees; row 360 is 1296000.
extern const std::array<std::int32_t, 361> McTabla;

/// Placidus cusps of houses 1, 2, 3, 11, 12 in arcminutes, 0..21599, by latitude block and RAMC degree.
extern const std::array<std::array<std::array<std::int32_t, 5>, 361>, szelessegBlokkok> HazTabla;

/// Oblique ascension in arcminutes, by latitude block and ecliptic degree 0..360.
extern const std::array<std::array<std::int32_t, 361>, szelessegBlokkok> FerdeAszcenzioTabla;

/// Right ascension in arcminutes of the ecliptic longitudes 0, 10', ... 360 degrees.
extern const std::array<std::int32_t, 2161> RektaszcenzioTabla;

/// Ecliptic longitude in arcminutes of the right ascensions 0, 10', ... 360 degrees.
extern const std::array<std::int32_t, 2161> HosszusagTabla;
