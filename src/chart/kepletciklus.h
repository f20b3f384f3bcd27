#pragma once

#include "chart/allapot.h"

/// Summer time and place of the chart's moment from the tables. A name that the gazetteer lacks gets the
/// default place, so typed coordinates are lost here. Nothing protects them: the place's name is the one
/// source of a recomputed place, so that a view, a step and the tick always agree on it.
void HelyAdatok(Allapot& allapot);

/// The sidereal step: writes `napresz` and the ARMC fields and may lower `julianszam` by one, which is not
/// restored; callers that do not set the day number from the date anew let the day creep.
void CsillagIdoLepes(TKeplet& keplet);

/// The moment and place step: `HelyAdatok`, then `CsillagIdoLepes`.
void IdoAdatok(Allapot& allapot);

/// What the last step of the cycle works out.
enum class UralkodoLepes { teljes, csakDekad };

/// From sidereal time and place to cusps, bodies, aspects and rulers, with the copies kept for the picture.
/// The picture's tables change only by whole copies of finished work tables.
void KepletCiklus(Allapot& allapot, UralkodoLepes lepes = UralkodoLepes::teljes);

/// The part of the cycle from given bodies and cusps on: aspects, houses, rulers.
void FenyszogCiklus(Allapot& allapot, UralkodoLepes lepes = UralkodoLepes::teljes);

/// `julianszam` from the chart's date, and the date written back from it.
void DatumRendezes(TKeplet& keplet);
