#pragma once

#include <string>

#include "chart/allapot.h"
#include "tables/pillanat.h"

/// Makes the birth the chart's moment and computes its bodies: place by name, summer time looked up, the
/// sidereal step, `Bolygok`. The searches read them there. What the picture shows stays, and the chart's
/// place name; giving the moment back is the caller's.
/// @param pillanat  birth date and time, zone clock
void NatalisBolygok(Allapot& allapot, const TPillanat& pillanat, const std::string& helyseg);
