#pragma once

#include <string>

#include "chart/allapot.h"
#include "drawing/vaszon.h"

/// Header of the printed page: name, date, time, place, sidereal time.
std::string FejlecSzoveg(const TKeplet& keplet, const std::string& megnevezes);

/// State changes of printing: the Radix view for good, the name in the status bar, where it stays.
void NyomtatasNezete(Allapot& allapot, const std::string& megnevezes);

/// Draws the chart on a page with its header and contact line. Their heights of 60 and 36 device pixels do
/// not follow the page, so that the lines look alike on every size of paper; the resolution is chosen for
/// them.
/// @param szelesseg,magassag  page in device pixels
void LapRajz(Vaszon& vaszon, Allapot& allapot, const std::string& fejlec, int szelesseg, int magassag);
