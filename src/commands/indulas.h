#pragma once

#include <string>
#include <vector>

#include "chart/allapot.h"
#include "chart/foablak.h"

/// Start-up of the program's state: the present moment at Budapest, its texts, and the first chart drawn.
/// @param mappak  folders where symbol fonts are looked for, besides the system drive's
/// @return false if the computer's date or time text can't be read: start-up ends at that point
bool Indulas(Allapot& allapot, FoAblak& ablak, const std::vector<std::string>& mappak);
