#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "chart/allapot.h"
#include "predictive/primer.h"

/// Rectification by directions: which primary directions stood near an aspect point on each event's day, and
/// at what clock time of birth each would have been exact.

/// Sidereal seconds for each second of mean solar time.
inline constexpr long double CsillagNapArany = 1.0027379050925926L;

/// Clock time of birth at which a direction would be exact.
/// @param p            aspect point, degrees, 0 <= p < 360
/// @param iv           arc of the event, arcminutes; negative before birth
/// @param FerdeTabla   at the chart's latitude
/// @return seconds of the clock day; only one day is added or taken off
double JeloltIdo(IranyOszlop oszlop, double p, double iv, const TFerdeTabla& FerdeTabla, const TKeplet& k);

/// A time of day as hh:mm:ss.
/// @param t  seconds
/// @note The seconds are rounded while hours and minutes are cut off, so 59.6 seconds read "00" in the same
///       minute. Carrying the minute would make the list differ from the times that users have noted from it.
std::string jeloltSzoveg(double t);

/// The three lists, one line an event.
struct TPontositas {
    std::vector<std::string> Memo1;  ///< events
    std::vector<std::string> Memo2;  ///< house of the Sun, hits of the four columns
    std::vector<std::string> Memo3;  ///< candidate times of birth
};

/// Runs the lists for the chart's events with the reach `PontositasHatotav`. An event without a name ends
/// them.
TPontositas PontositasFutas(const Allapot& allapot);
