#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>

inline constexpr std::size_t legnagyobbSor = std::size_t{16} << 20;  ///< bytes of a request
inline constexpr int legnagyobbMelyseg = 64;                         ///< arrays and objects within each other

/// The answer to one request line, itself one line. Whatever the line holds, there is an answer.
std::string kerelemValasz(std::string_view sor);

/// Reads the next line. Of one that is too long only so much is kept that it shows.
/// @return false at the end of the input
bool kerelemSor(std::istream& be, std::string& sor);
