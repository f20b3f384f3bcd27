#pragma once

#include "shell/allapot.h"

/// Puts the natal moment and bodies into the chart's work fields: place by name, summer time looked up, the
/// sidereal step, `Bolygok`. What the picture shows stays.
/// @param pillanat  birth date and time, zone clock
void NatalisBolygok(Allapot& allapot, const TPillanat& pillanat, const std::string& helyseg);
