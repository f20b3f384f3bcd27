#pragma once

#include <cstdint>

#include "engine/keszlet.h"

/// Positions of the ten bodies by a straight line between two rows of `Efemerida`.
/// @param julianszam  day in GMT, as `CsillagIdo` returns it
/// @param napresz     fraction of that day; above 1 it extrapolates along the same step
/// @param[out] Bolygok   degrees. A direct body is reduced on reaching the full circle (0 is possible,
///                       360 is not), a retrograde one is lifted on reaching 0 (360 is possible, 0 is not);
///                       one rule for both would change signs and
///                       houses of bodies exactly on 0 degrees of Aries.
/// @param[out] Mozgasok  'D' for Sun and Moon, the row's own letter for the others; 'S' moves like 'D'
void BolygoHelyek(std::int32_t julianszam, double napresz, TBolygok& Bolygok, TMozgasok& Mozgasok);

/// Way of a body from one row to the next in arcseconds, the way round that its motion letter tells.
int KoztesLepes(std::int32_t x0, std::int32_t x1, char mozgas);

/// Longitude in arcseconds between two rows for one body, by the rule of its motion letter.
double KoztesHossz(std::int32_t x0, std::int32_t x1, double napresz, char mozgas);
