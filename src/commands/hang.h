#pragma once

#include <functional>
#include <string>
#include <vector>

#include "chart/allapot.h"

/// The sound file of a chart: the name with ".mpe", next to the chart or in the sound folders.

/// Whether the chart's file says that it has a sound. The program itself never writes the mark.
bool VanHang(const TSzemely& szemely);

/// Sound folders in the order of the look-up: the current directory, then on each drive C to I "\Korvend\"
/// and the root; on a system without drives the same two under the home folder.
std::vector<std::string> HangMappak(const std::string& konyvtar, const std::string& otthon, bool meghajtok);

/// First existing file, empty if there is none. A name with a path character finds nothing.
std::string HangFajlKeres(const std::string& nev, const std::vector<std::string>& mappak,
                          const std::function<bool(const std::string&)>& fajlVan);
