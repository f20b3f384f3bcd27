#pragma once

#include "engine/keszlet.h"
#include "tables/tomb.h"

/// The sixteen aspect points of each body, degrees, 0..360: column 1 is the body itself, the others stand in
/// the order of `FenyszogEltolasok`.
using TFenyszogPontok = Matrix<double, 10, 16>;

/// @param bolygo  longitudes, degrees
void FenyszogPontSzamitas(const TBolygok& bolygo, TFenyszogPontok& FenyszogPontok);
