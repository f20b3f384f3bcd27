#pragma once

#include <functional>
#include <limits>

#include "chart/allapot.h"
#include "engine/mundanlanc.h"
#include "rectify/analogiak.h"

/// Rectification by mundane houses: what its window's commands do.

/// Place of the chart on screen for trial charts. If it is the gazetteer's own, with the table's summer time,
/// summer time is asked anew for each trial moment; values that were typed stand.
TMundanHely MundanHely(const TKeplet& keplet);

/// A trial chart with its verdict.
struct TMundanErtekeles {
    TMundanLanc lanc;
    TAnalogiak analogiak;
};

/// The chart's moment, by its local date.
TMundanErtekeles MundanErtekeles(const Allapot& allapot, const TMundanHely& hely);

/// Opening: the first house, the kept moment, the flag, the stepper's title.
void MundanNyitas(Allapot& allapot);

/// How far a search may go.
struct TKeresesKeret {
    int legfeljebb = std::numeric_limits<int>::max();  ///< days away from the start
    /// Asked on each new day that the search comes to; false ends it there.
    std::function<bool(const TPillanat&)> tovabb;
};

/// The frame of the window's searches. Within the tables a verdict changes in hours or days and a search may
/// run to the table's end; figures from a zone, a summer time or coordinates outside them may never change
/// it, so that it ends after a month there.
TKeresesKeret MundanKeret(const TMundanHely& hely);

/// Moves the chart's moment to where the verdict changes: by 30 seconds until it does, then from the last
/// moment before that by one second until it does again. The first search after the program's start ends
/// where it began. A step that leaves the ephemeris or the search's own frame ends it too; the moment stays
/// where that step put it.
/// @param irany  1 forward, -1 backward
/// @return the verdict there
TMundanErtekeles MundanKereses(Allapot& allapot, const TMundanHely& hely, int irany,
                               const TKeresesKeret& keret = {});

/// Back to the moment of the opening.
void MundanVissza(Allapot& allapot);
