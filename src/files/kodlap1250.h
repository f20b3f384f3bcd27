#pragma once

#include <string>
#include <string_view>

/// Code page 1250, which stands only in chart files. A character or byte without a counterpart becomes '?'.
std::string kodlapra(std::string_view utf8);
std::string kodlaprol(std::string_view kodlap1250);
