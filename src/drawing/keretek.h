#pragma once

#include <string>
#include <string_view>

#include "drawing/geometria.h"
#include "drawing/kerek.h"
#include "engine/keszlet.h"
#include "tables/tomb.h"

/// Frames of the three kinds of wheel. Circles come first and from the outside inward, since each erases what
/// stood inside it.

/// Radix wheel: rings, house numerals and lines, signs, degree scale, axes.
/// @param r2Kor  the circle inside the bodies' ring; the small wheel of the Dekád view leaves it out
void RadixKeret(const TKerek& kerek, const TSugarak& s, const THazcsucsok& hazCsucs,
                std::string_view szimbolumFont, bool r2Kor);

/// Large Mundán wheel: twelve equal sectors from 0 degrees of Aries, signs, degree scale.
void MundanKeret(const TKerek& kerek, const TSugarak& s, std::string_view szimbolumFont);

/// Circle and spokes of the small Mundán wheel.
void KisMundanKeret(const TKerek& kerek, int kisSugar, int toll);
/// Signs of the small Mundán wheel, at the beginning of each sector.
void KisMundanJegyek(const TKerek& kerek, int kisSugar, std::string_view szimbolumFont);

/// Dekád wheels, complete: circles, spokes, the bodies of each decan house outside, the signs inside.
/// @param DekadSzoveg  letters of the bodies in each decan house
void DekadKerek(const TKerek& kerek, int kerekSugar, const Tomb<std::string, 12>& DekadSzoveg,
                std::string_view szimbolumFont);
void KisDekadKerek(const TKerek& kerek, int kisSugar, int toll, const Tomb<std::string, 12>& DekadSzoveg,
                   std::string_view szimbolumFont);
