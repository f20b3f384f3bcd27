#pragma once

#include "chart/allapot.h"
#include "chart/foablak.h"

/// The three views of a chart and the commands that switch them. None of these commands sets the day number
/// from the date anew, so a chart whose clock less zone and summer time is negative moves one day back at
/// each of them while the status bar stands still. Users know it and press "Most" to come back; setting the
/// number anew here would change what their saved work shows.

/// Sets the view with the text of panel 0 and the caption of the button that leads to the next view.
void NezetBeallitas(Allapot& allapot, TKepletTipus tipus);

/// "Vált": the next view in the ring, with the whole cycle.
void ValtParancs(Allapot& allapot, FoAblak& ablak);
/// "Horizont": the Radix view, with the whole cycle.
void HorizontParancs(Allapot& allapot, FoAblak& ablak);
/// "Mundán", "Dekád": the rulers and their sentences stay as they were; only the decan texts follow.
void MundanParancs(Allapot& allapot, FoAblak& ablak);
void DekadParancs(Allapot& allapot, FoAblak& ablak);
