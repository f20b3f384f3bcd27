#pragma once

#include <string>

#include "chart/allapot.h"
#include "tables/pillanat.h"

/// Makes the birth the chart's moment and computes its bodies: place by name, summer time looked up, the
/// sidereal step, `Bolygok`. The moment stays so, also where a step or a derived chart was on screen: meant
/// so. What the picture shows stays, and the chart's place name.
/// @param pillanat  birth date and time, zone clock
void NatalisBolygok(Allapot& allapot, const TPillanat& pillanat, const std::string& helyseg);
