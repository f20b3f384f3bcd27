#pragma once

#include <string_view>

#include "tables/pillanat.h"

/// Reads a short date as groups of decimal digits, each other character being one separator: the group of
/// four digits is the year; of the others the first is the month, the second the day. A month above 12 takes
/// the day's value while the day stays, so both hold the same: a day-first date with a day above 12 falls
/// into it, and the day number then holds the month to 12. Guessing the order from the digits would give a
/// right date on some days and a wrong one on others; this way the fault shows on the first such day.
/// @param[out] pillanat  its date; untouched on failure
/// @return false if one of the three groups is empty or no number, or none has four digits
bool OlvasDatum(std::string_view szoveg, TPillanat& pillanat);

/// Reads a time text in the same way: the first three groups are hours, minutes, seconds.
/// @param[out] pillanat  its time; untouched on failure
bool OlvasIdo(std::string_view szoveg, TPillanat& pillanat);
