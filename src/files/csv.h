#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "files/adatlap.h"
#include "files/bajtszoveg.h"

/// Charts as a table: RFC 4180, UTF-8, a header, one chart a line, lines ended by CR LF.
///
/// Columns of the chart: nev, ev, ho, nap, ora, perc, mperc, idozona, nyariIdo, helyseg, hosszusag,
/// szelesseg, jegyzet, hang. Then for each event the same with its number in front: "1. esemeny", "1. ev" …
/// "1. szelesseg", "1. analogia", "1. solarNap", as many as the chart with the most events needs. Numbers are
/// whole numbers in cells of their own, since a spreadsheet would turn dates and times into its own;
/// coordinates are texts as 20°09'46"K and 46°15'É, which it leaves alone.

/// How a table is written: separator, and whether with a byte order mark.
struct TCsvMod {
    char elvalaszto = ',';
    bool bajtsorrend = false;
};

/// Reads a table. The separator is the header's (comma, semicolon or tab), the order of the columns is free,
/// and only nev, ev, ho, nap, ora and perc must be there; an event without any text in its cells is none. A
/// line that can't be read is reported and left out.
/// @param kodlap  of lines that are no UTF-8; without it such a line can't be read
TAdatlapok CsvOlvasas(std::string_view bajtok, std::optional<TKodlap> kodlap = {});

/// @param esemenyek  number of events that get columns
std::string CsvFejlec(std::size_t esemenyek, const TCsvMod& mod = {});
std::string CsvSor(const TAdatlap& lap, std::size_t esemenyek, const TCsvMod& mod = {});

/// Coordinate as `FokSzoveg` writes it. Also read: colons or blanks between the numbers, the signs ′ and ″,
/// the letters N, S, E, W, small letters. Plain degrees and degrees with minutes do; a letter must be there.
std::optional<std::int32_t> FokErtek(std::string_view szoveg, bool szelesseg);
