#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

/// The program's command line: a desktop hands a chart file over by it.

enum class TParancsFajta { indulas, ujJelszo, sugo, verzio, hibas };

struct TParancssor {
    TParancsFajta fajta = TParancsFajta::indulas;
    std::string fajl;  ///< chart to open; empty for none
    std::string hiba;  ///< of a wrong line: what is wrong, in one sentence
};

/// Exit code of a command line that the program does not understand.
inline constexpr int hibasParancssorKod = 2;

/// Reads the arguments from left to right; the first one that settles the matter does. "--" ends the options:
/// what follows is a file even with a hyphen at its front. Options of the toolkit with their values are left
/// to it.
/// @param argumentumok  without the program's own name
TParancssor ParancssorOlvas(const std::vector<std::string>& argumentumok);

/// A sentence as the program writes it to the error output, with its name before it.
std::string ParancssorHiba(const std::string& mondat);

/// Answers a line that needs no window: help, version, what is wrong.
/// @return exit code; nothing if the program is to start
std::optional<int> ParancssorValasz(const TParancssor& parancs, std::ostream& ki, std::ostream& hiba);
