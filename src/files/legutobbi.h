#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What the file dialogs remember between runs: their last folder and the charts last opened or saved.
struct TLegutobbiak {
    std::string mappa;                ///< empty before the first one
    std::vector<std::string> fajlok;  ///< full paths, the last one first

    friend bool operator==(const TLegutobbiak&, const TLegutobbiak&) = default;
};

inline constexpr std::size_t legtobbLegutobbi = 10;

/// Puts a chart to the front; each stands once, the oldest beyond the tenth is forgotten.
void LegutobbiFelvetel(TLegutobbiak& legutobbiak, const std::string& fajl);

/// As it is kept: the folder, then the charts, one a line. A line break or a backslash in a name stands as
/// "\n" or "\\".
std::string LegutobbiSzoveg(const TLegutobbiak& legutobbiak);

/// Reads it back. Empty lines, doubles and lines beyond the tenth chart are passed over.
TLegutobbiak LegutobbiOlvas(std::string_view szoveg);
