#pragma once

#include <iosfwd>
#include <string>

#include "chart/allapot.h"
#include "tables/tomb.h"

/// Name of the title file, looked for in the process's current directory.
inline constexpr const char* cimFajlNev = "Korvend.txt";

/// Reads up to six title texts, one a line, up to the first empty line. Each line gets a blank and is
/// repeated until it is at least 200 characters long, so that it can scroll. Slots without a line stay empty.
/// A line that is not UTF-8 is read as code page 1250, as older editors write it.
void CimFajlOlvas(std::istream& be, Tomb<std::string, feliratHelyek>& szovegek);
