#pragma once

#include <string_view>

#include "drawing/geometria.h"
#include "drawing/kerek.h"
#include "engine/fenyszogek.h"
#include "engine/keszlet.h"

/// Aspect lines. The pen style runs through its five kinds from line to line and carries no meaning.

/// Aspects of the bodies with their letters, across a large wheel; the last line's style stays in force.
void FenyszogVonalak(const TKerek& kerek, int sugar, const TJelMatrix& FenyszogRadix, const TBolygok& bolygo,
                     std::string_view szimbolumFont);

/// Aspects of the bodies to Ascendant and Midheaven, in the style and font left in force; ends solid.
void TengelyFenyszogek(const TKerek& kerek, const TSugarak& s, const TBolygok& bolygo,
                       const THazcsucsok& hazCsucs, const TOrbisTabla& OrbisTabla);

/// The lines alone, on the small Mundán wheel; ends solid.
void KisFenyszogVonalak(const TKerek& kerek, int sugar, const TJelMatrix& FenyszogRadix,
                        const TBolygok& bolygo);
