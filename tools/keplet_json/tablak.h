#pragma once

#include <string>

/// Writes the fixed tables as files to a folder.
/// @return false if one can't be written
bool tablakIrasa(const std::string& mappa);
