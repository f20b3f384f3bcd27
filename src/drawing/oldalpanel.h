#pragma once

#include <array>
#include <string>

#include "chart/allapot.h"
#include "engine/keszlet.h"

/// Houses whose cusps the side panel and the cusp labels show.
inline constexpr std::array<int, 6> feliratosCsucsok{1, 2, 3, 10, 11, 12};

/// Degrees, minutes and seconds within the sign, all cut off and unpadded, as in 12°5'9''.
std::string helyzetSzoveg(double hossz);

/// The sixteen rows of the side panel from the kept bodies and cusps.
void OldalPanelIras(const TBolygok& bolygo, const THazcsucsok& hazCsucs, TPanel& panel);
