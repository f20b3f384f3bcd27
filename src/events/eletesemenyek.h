#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "chart/allapot.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"

/// The life events: the store's operations, the texts of the list, and the solar return before an event.

/// Event time in Greenwich: the hour less zone and summer time, at most one day carried.
TPillanat EsemenyGmt(const TEletesemeny& esemeny);

/// Summer time that a change of the event's place sets: the table's answer where the chart's clock is a zone
/// clock, else 0. A change of the date or time asks the table whatever the clock, as users know it.
int EsemenyHelyNyariIdo(TIdoTipus idoTipus, const TPillanat& pillanat);

/// What the editor's fields start with at its opening: date, time and place of the last listed event, or of
/// the birth where none is listed, the place also where that event names none; summer time by the table for
/// that date and time. Texts, analogies and the Sun's house are empty, so that a fresh opening adds nothing
/// by itself.
/// @param szuletes  moment and place of the birth
TEletesemeny EsemenyKezdoMezok(const TEsemenyTar& tar, const TEletesemeny& szuletes);

/// Whether two stores list the same events; what lies above the count does not matter.
bool EsemenyListaAzonos(const TEsemenyTar& egyik, const TEsemenyTar& masik);

/// What a natal Sun is worked out from.
struct TSzuletes {
    TPillanat pillanat;
    std::int32_t nyariIdo = 0;
    std::int32_t idozona = 1;
    std::int32_t hosszusag = 0;  ///< arcseconds
};

/// House 1..12 of the natal Sun in the solar chart of the last return before an event, cast for the event's
/// place; 0 if it fits none.
std::int32_t EsemenySolarNap(const TSzuletes& szuletes, const TEletesemeny& esemeny);

/// Adds an event, or replaces the selected one.
/// @param kijelolt  1..20, or 0 for a new one; becomes 0 when the event was taken
/// @return false if nothing was done: twenty are listed already, which counts first and bars replacing too,
/// or the
///         event's text is empty
bool EsemenyFelvetel(TEsemenyTar& tar, int& kijelolt, const TEletesemeny& esemeny);

/// Takes the selected event out; the later ones move up. `kijelolt` becomes 0.
void EsemenyTorles(TEsemenyTar& tar, int& kijelolt);

/// The event that a clicked label's text selects: the rows from 20 down to 1, first by number, then by event
/// text, then by analogies; 0 if none matches. Of two events with the same text it is the later one.
int EsemenyKijeloles(const TEsemenyTar& tar, const std::string& felirat);

inline constexpr int esemenyOszlopok = 15;

/// The fifteen texts of a row; all empty above the count. The time stands in Greenwich time.
/// @param sor  1..20
std::array<std::string, esemenyOszlopok> EsemenySor(const TEsemenyTar& tar, int sor);
