#pragma once

#include <cstdint>

#include "tables/tomb.h"

/// Shapes of the engine's tables. Bodies count 1..10 (Sun to Pluto), houses and signs 1..12.

using TBolygok = Tomb<double, 10>;            ///< ecliptic longitudes, degrees
using TMozgasok = Tomb<char, 10>;             ///< 'D', 'R' or 'S'
using THazcsucsok = Tomb<double, 12>;         ///< cusps, degrees; 360 and a little above is possible
using TBolygoHazak = Tomb<std::int32_t, 10>;  ///< house of each body, 0 where it fits none
using TJelMatrix = Matrix<char, 10>;          ///< one letter a pair of bodies, '.' for none
using TSzogMatrix = Matrix<double, 10>;       ///< degrees a pair of bodies

/// The aspect routines' work tables. They are separate from the tables that the screen shows,
/// so that a trial chart never touches the picture.
struct TFenyszogMunka {
    TSzogMatrix Elteresek;
    Tomb<double, 10> DekadKezdetek;
    TJelMatrix FenyszogMatrix;
    TSzogMatrix FenyszogOrbis;
};
