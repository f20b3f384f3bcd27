#pragma once

#include "chart/allapot.h"
#include "files/adatlap.h"

/// An event as the program holds it and as the record of a chart file.

/// @note the coordinates of an event hold no seconds of arc
TEletesemeny EletesemenyBol(const TKvhRekord& rekord);
TKvhRekord EsemenyRekord(const TEletesemeny& esemeny);
