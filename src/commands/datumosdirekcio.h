#pragma once

#include <string>

#include "chart/allapot.h"
#include "drawing/vaszon.h"
#include "predictive/tercier.h"
#include "tables/pillanat.h"

/// The directions of a date: tertiary directions, or the solar ingress; `TercierAblak` tells which. What
/// their dialog does with its fields.

/// Carries a date whose spins have run one step over an end: day 0 or 32, month 0 or 13. The year stops at
/// 1900 and 2068 while the month still wraps.
void DatumAtfordulas(TPillanat& datum);

/// Searches a date for the birth of the chart. The chart on screen, also a stepped or a derived one, keeps
/// its moment, day number and place; the work arrays are those of the search.
/// @param orbisNap  orb in days; plays no part in the ingress
/// @return the hits in letters of the symbol font
std::string DatumosKereses(Allapot& allapot, const TPillanat& datum, int orbisNap);

/// What the search in force says of its result.
const TVerdikt& DatumosVerdikt(const Allapot& allapot);

/// "Rendben": keeps the date, put right through its day number, and the orb.
void DatumosRendben(Allapot& allapot, const TPillanat& datum, int orbisNap);

/// Writes the confirmed date and its hits over the picture; they vanish with the next drawing.
void DatumosKiiras(Vaszon& vaszon, const Allapot& allapot, const std::string& talalatok);
