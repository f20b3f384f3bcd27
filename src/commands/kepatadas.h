#pragma once

#include <optional>
#include <string>

#include "chart/allapot.h"
#include "drawing/vaszon.h"

/// What the main window shows, handed on to other programs.

/// The picture on screen: the view in force, at the size of its surface.
struct TKepletKep {
    int szelesseg = 0, magassag = 0;  ///< pixels of the surface
    /// Hits of a directions' search that stand written over the picture; nothing where none do.
    std::optional<std::string> talalatok;
};

/// Draws the picture anew. The state stays as it is, and so does what a later drawing makes of it.
void KepRajz(Vaszon& vaszon, const Allapot& allapot, const TKepletKep& kep);

/// The chart on screen in one line: name, moment with its kind of time, place.
std::string KepCim(const Allapot& allapot);

/// The side panel in words: its heading, then a line for each row with its name, sign and position, separated
/// by tabs.
std::string PanelSzoveg(const Allapot& allapot);
