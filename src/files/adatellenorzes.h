#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/adatlap.h"
#include "tables/telepulesek.h"

/// What the program's own tables and ranges say about a chart that comes from outside. Each finding is a
/// sentence that begins with the field's name.

/// The place's row of the gazetteer, or null.
const TTelepules* IsmertTelepules(std::string_view nev);

/// Vehicle sign of the country where a place of the gazetteer lies.
std::string_view TelepulesOrszaga(const TTelepules& telepules);

/// Whether the summer-time table holds for a place: one of the gazetteer, within the country.
bool HazaiTelepules(std::string_view nev);

/// Fills the numbers of place and clock that the source left out: from the gazetteer and the summer-time
/// table for a place that they know; summer time is 0 elsewhere.
/// @param esemeny  of an event, whose coordinates hold no seconds of arc
/// @param[out] kozlesek  what was filled in
/// @return what can't be known, empty if nothing is missing; the Sun's house of an event is not looked at
std::string Kiegeszites(TAdatRekord& rekord, bool esemeny, std::vector<std::string>& kozlesek);

/// A coordinate of the gazetteer as a chart takes it, or an event: without its seconds of arc.
std::int32_t TablaKoordinata(std::int32_t ivmasodperc, bool esemeny);

/// Numbers outside the ranges of the program's dialogs.
std::vector<std::string> TartomanyHibak(const TKvhRekord& rekord, bool esemeny);

/// Latitudes for which the tables of houses have no row.
std::vector<std::string> SzelessegHibak(const TKvhRekord& rekord);

/// Contradictions to the gazetteer and the summer-time table, and a day that its month does not have.
/// A coordinate that differs by less than a minute of arc agrees: the dialogs drop the seconds.
std::vector<std::string> TablaElteresek(const TKvhRekord& rekord);
