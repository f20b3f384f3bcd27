#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

/// Files and their names.

/// The way back from `FajlUt`.
std::string UtvonalSzoveg(const std::filesystem::path& ut);

/// Ending of a file name in small letters, with its dot.
std::string Vegzodes(const std::filesystem::path& ut);

/// The bytes of a file, or nothing if it can't be read.
/// @param legfeljebb  reading stops here
std::optional<std::string> FajlBajtok(const std::filesystem::path& ut,
                                      std::size_t legfeljebb = std::string::npos);

/// Writes a file whole or not at all; what is no regular file, as the standard output, is written to as it
/// is.
bool FajlbaIr(const std::filesystem::path& ut, std::string_view bajtok);

/// A plain file name of at most 60 characters made of a person's name, without ending.
std::string KepletFajlNev(std::string_view nev);

/// A name that `TFajlNevek` gave, taken apart: what it was given for, and the number behind it, else 0.
std::pair<std::string, int> SzamozottNev(const std::string& nev);

/// Gives each chart of a run a file name of its own: the second of one name is "név (2)". Names that differ
/// by small and capital letters only are the same, as they are on some systems.
class TFajlNevek {
public:
    std::string uj(std::string_view nev);

private:
    std::set<std::string> foglalt_;
    std::map<std::string, int> szamok_;  ///< last number given to a name
};
