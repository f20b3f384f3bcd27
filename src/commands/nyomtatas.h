#pragma once

#include <string>
#include <string_view>

#include "chart/allapot.h"
#include "drawing/vaszon.h"

/// Header of the printed page: name, date, time, place, sidereal time.
std::string FejlecSzoveg(const TKeplet& keplet, const std::string& megnevezes);

/// State changes of printing: the Radix view for good, the name in the status bar, where it stays.
void NyomtatasNezete(Allapot& allapot, const std::string& megnevezes);

/// File name that a picture of the chart is proposed under: the person's name and the chart's date, as a
/// plain file name.
/// @param kiterjesztes  with its dot
std::string KepFajlNev(const Allapot& allapot, std::string_view kiterjesztes);

/// What printing to a PDF proposes.
inline std::string PdfFajlNev(const Allapot& allapot) {
    return KepFajlNev(allapot, ".pdf");
}

/// Resolution of the print, dots per inch, at which the fixed heights of the page's lines are 5 and 3 mm.
/// What a printer lists as its own does not count: the page goes to it as a drawing, which it scales, and
/// keeps another one only where it must.
inline constexpr int nyomtatasiFelbontas = 300;

/// Draws the chart on a page with its header and contact line. Their heights of 60 and 36 device pixels do
/// not follow the page, so that the lines look alike on every size of paper; the resolution is chosen for
/// them.
/// @param szelesseg,magassag  page in device pixels
void LapRajz(Vaszon& vaszon, Allapot& allapot, const std::string& fejlec, int szelesseg, int magassag);
