#pragma once

#include "chart/allapot.h"
#include "chart/foablak.h"

/// Repeats the direction lists that are open, the rectification before the primary list. Every recompute of
/// the chart ends with it, after the drawing has filled the aspect points that the lists read.
void IranyListak(const Allapot& allapot, FoAblak& ablak);

/// Shows a recomputed chart: its texts, the picture, and the direction lists that are open. A paint request
/// draws from here on.
void KepletMutatas(Allapot& allapot, FoAblak& ablak);
