#pragma once

#include <string_view>

#include "chart/allapot.h"
#include "drawing/geometria.h"
#include "drawing/kerek.h"
#include "engine/keszlet.h"

/// Bodies on the wheels: glyphs at their spread places, motion letters, labels, pointers to the true places.

/// Glyphs and motion letters between the scale and the bodies' circle, in the order of the spread table.
void BolygoJelek(const TKerek& kerek, const TSugarak& s, const TRendezett& Rendezett,
                 std::string_view szimbolumFont);

/// Degrees and minutes of the bodies and of six cusps; large Radix wheel only.
void FokFeliratok(const TKerek& kerek, const TSugarak& s, const TRendezett& Rendezett,
                  const THazcsucsok& hazCsucs);

/// Which pointers a wheel has, and how deep they reach: R1 / osztas.
struct TMutato {
    double osztas;
    bool belso;  ///< a second line inside the bodies' circle
};
inline constexpr TMutato nagyRadixMutato{21.0, true};
inline constexpr TMutato tobbiMutato{18.0, false};
void MutatoVonalak(const TKerek& kerek, const TSugarak& s, const TBolygok& bolygo,
                   const TRendezett& Rendezett, TMutato mutato);

/// Bodies of the small Mundán wheel, outside its circle.
void KisMundanBolygok(const TKerek& kerek, int kisSugar, const TBolygok& bolygo, const TRendezett& Rendezett,
                      std::string_view szimbolumFont);
