#pragma once

#include <string>
#include <string_view>

/// Text of code page 1252, the western one of old programs, as UTF-8. A byte without a character becomes '?'.
std::string kodlap1252rol(std::string_view kodlap1252);
