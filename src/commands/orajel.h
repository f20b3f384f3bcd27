#pragma once

#include "chart/allapot.h"
#include "chart/foablak.h"

/// The program's pump and the `Most` mode.

inline constexpr int orajelEzredmasodperc = 250;
inline constexpr int mostTeljesUjraszamitas = 251;  ///< ticks from one full recompute to the next

/// One tick: scrolls the title and the long panels, follows the computer's clock while `MostFut` is set, and
/// carries out the work that other windows asked for.
void Orajel(Allapot& allapot, FoAblak& ablak);

/// The button of the `Most` mode: starts the clock, or returns to `RadixPillanat` or from a derived chart.
void MostParancs(Allapot& allapot, FoAblak& ablak);
