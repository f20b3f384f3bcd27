#pragma once

#include "chart/allapot.h"
#include "chart/foablak.h"

/// After the orb settings, confirmed or not: aspects, houses and rulers anew from the bodies and cusps on
/// screen, and the chart shown.
void OrbisUjraszamitas(Allapot& allapot, FoAblak& ablak);
