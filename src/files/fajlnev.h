#pragma once

#include <string>
#include <string_view>

/// A plain file name made of a text, without its extension: what a file name can't hold on some system (path
/// and drive signs, wildcards, quotes, control characters, stray bytes, blanks and dots at its ends) becomes
/// '-', and a device's name gets one in front, so that no name ever leads to another folder or a device or
/// hides its file. A text longer than 200 bytes is cut. An empty text
/// stays empty.
std::string FajlNev(std::string_view szoveg);

/// A path as typed, with an extension where its file name has none.
/// @param uj  the extension with its dot, as ".kvh"
/// @note what follows the last dot is an extension if it is of letters and digits with a letter among them:
///       neither "Dr. Kiss" nor "1975.03.21" has one
std::string Kiterjesztessel(std::string fajl, std::string_view uj);
