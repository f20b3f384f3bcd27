#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/adatlap.h"

/// Chart files, read and written by the program's own routines.

/// The chart files of a folder, in the order of their names, "név" before "név (2)"; a file alone is itself.
/// Nothing if the folder can't be read.
std::optional<std::vector<std::filesystem::path>> KvhFajlok(const std::filesystem::path& ut);

/// Reads what the program would read. Reported is what it would not take, or take otherwise than it stands.
TAdatlapok KvhOlvasas(std::string_view bajtok);

/// The same of a file.
TAdatlapok KvhFajlOlvasas(const std::filesystem::path& ut);

/// Writes a chart file over what stands there.
/// @return the program's message after a failure, else empty
std::string KvhFajlIras(const TAdatlap& lap, const std::filesystem::path& ut);
