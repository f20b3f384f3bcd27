#pragma once

#include "chart/allapot.h"
#include "engine/keszlet.h"

/// Fills the table from the true longitudes: degrees and minutes within the sign, letter, motion.
/// @param bolygo  degrees
void RendezettEpites(TRendezett& Rendezett, const TBolygok& bolygo, const TMozgasok& mozgas);

/// Sorts the rows by longitude and spreads them until no two neighbours stand closer than 6 degrees; the
/// first pair at the lowest threshold that fails moves by 2 degrees each way. A row may end below 0.
void Szetteritas(TRendezett& Rendezett);
