#pragma once

#include "chart/allapot.h"
#include "drawing/vaszon.h"

/// Draws the current view of the chart, and rewrites the side panel and the aspect points.
///
/// The surface's geometry (`AblakGeometria` or `LapGeometria`) must be set before each call: when small
/// wheels are drawn the centre and radius may end as theirs. The kept tables are read, the work tables never.
/// @note In the Dekád view the small Mundán wheel shows `Rendezett` as the drawing before left it, so after a
///       change of chart it lags by a drawing. The view builds the table for its Radix wheel, which comes
///       last; building it earlier would move glyphs that users compare between two drawings.
void KepletRajz(Vaszon& vaszon, Allapot& allapot);
