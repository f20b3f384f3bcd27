#pragma once

#include <string>
#include <vector>

#include "rectify/analogiak.h"
#include "rectify/mundankereses.h"

/// The mundane analogies in names instead of letters of the symbol font, one line a label row.

/// A house: its heading with the verdict on it, the mundane and the horizon half. What belongs to the second
/// of two rulers stands behind a semicolon.
/// @param haz  1..12
std::vector<std::string> AnalogiaOlvashato(const TMundanErtekeles& ertekeles, int haz);

/// The verdict, then all twelve houses.
std::vector<std::string> MindenAnalogiaOlvashato(const TMundanErtekeles& ertekeles);
