#pragma once

#include <functional>
#include <string_view>
#include <vector>

/// Width of a piece of text as it will be written.
using TJelMeres = std::function<int(std::string_view)>;

/// Breaks a text of symbol letters into lines of a width. Such a text has no words: a line ends behind the
/// sign 'Q' that parts two hits or behind the blank before a pair, and anywhere if not even one hit fits.
/// @param szelesseg  in the unit of `meres`; a single letter stands even if it is wider
/// @return the lines, which joined are the text again; none for an empty text
std::vector<std::string_view> JelSorok(std::string_view jelek, int szelesseg, const TJelMeres& meres);
