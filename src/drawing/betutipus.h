#pragma once

#include <functional>
#include <string>
#include <vector>

/// Choice of the symbol font. A font file's base name is its face name.

using TFajlVan = std::function<bool(const std::string& fajl)>;

/// Letter of the drive with the system's fonts: the first of C to H that has both times.ttf and arial.ttf,
/// C if none has. Systems without drive letters end with C too.
char RendszerMeghajtoKeres(const TFajlVan& fajlVan);

/// Folder of the system's fonts on a drive, with its closing separator.
std::string MeghajtoBetuMappa(char meghajto);

/// "Astro Symbols" if its file is in one of the folders, otherwise "AstroMidget Bold", unchecked.
/// @param mappak  folders with their closing separator
std::string SzimbolumFontValaszt(const std::vector<std::string>& mappak, const TFajlVan& fajlVan);
