#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

/// A file name, UTF-8 as all texts of the program, as the system's own path. A narrow name would be read in
/// the code page of the machine where that is not UTF-8.
std::filesystem::path FajlUt(std::string_view nev);

/// Opens a file for reading bytes. Only a regular file, or a link to one, opens: a pipe would keep the
/// program waiting for whoever writes into it, and a device may never end.
std::ifstream OlvasasraNyit(const std::string& fajl);

/// Writes a whole file: beside the old one and down to the disk, then replaces the old one by a rename, so
/// that after a failure (a full disk, a missing folder) the old file stands as it was and no fragment is
/// left, and after a program killed or a computer switched off in between it stands too. A link stays a link.
/// What is there but is no regular file, or is one that can't be written, is a failure.
/// @return false on failure
bool FajlIras(const std::string& fajl, std::string_view tartalom);
