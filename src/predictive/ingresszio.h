#pragma once

#include <string>

#include "chart/allapot.h"
#include "engine/keszlet.h"
#include "tables/pillanat.h"

/// Half-width of the solar ingress, degrees: half a day of the year's circle.
inline constexpr long double IngresszioTures = 0.4931506849315068L;

/// Pairs of bodies at a distance: within `IngresszioTures` of it, both ends left out. A pair is " AMB".
/// @param Elteresek  distances, degrees
/// @param szog       degrees
std::string IngresszioParok(const TSzogMatrix& Elteresek, double szog);

/// Solar ingress of a date: pairs of bodies of the last solar chart before it whose distance equals the angle
/// that the date has come in the solar year; each body pairs with itself near the return.
/// Leaves the natal moment and `Bolygok` recomputed and the work `Elteresek` of the solar chart.
std::string IngresszioKeres(Allapot& allapot, const TPillanat& szuletes, const TPillanat& esemeny,
                            const std::string& helyseg);
