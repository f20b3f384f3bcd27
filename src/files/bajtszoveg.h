#pragma once

#include <string>
#include <string_view>

/// Bytes of text files: the byte order mark, and the code pages of old programs.

enum class TKodlap { cp1250, cp1252 };

/// What some editors put before UTF-8 text.
inline constexpr std::string_view bajtsorrendJel = "\xEF\xBB\xBF";

/// The bytes behind the byte order mark, if there is one.
std::string_view BajtsorrendJelNelkul(std::string_view bajtok);

/// Text of a code page as UTF-8.
/// @param[out] hianyok  grows by the number of bytes that are no character and became '?'
std::string KodlapSzoveg(std::string_view bajtok, TKodlap kodlap, int& hianyok);
