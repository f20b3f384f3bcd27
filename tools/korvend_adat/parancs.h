#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "files/bajtszoveg.h"

/// The command line.

enum class TFormatum { kvh, aaf, csv, json };

/// Wrong use; its text tells the user.
struct THasznalatHiba : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct TParancs {
    bool sugo = false;
    bool verzio = false;
    std::filesystem::path be, ki;
    TFormatum beFormatum = TFormatum::kvh, kiFormatum = TFormatum::kvh;
    bool soronkent = false;                     ///< JSON as one object a line instead of an array
    std::optional<TKodlap> beKodlap, kiKodlap;  ///< of AAF and, reading, CSV
    bool excel = false;                         ///< CSV with semicolons and a byte order mark
    bool felulir = false;
};

/// @param szavak  the arguments, UTF-8; may throw THasznalatHiba
TParancs ParancsErtelmezes(const std::vector<std::string>& szavak);

std::string_view SugoSzoveg();
