#pragma once

#include <cstdint>
#include <string>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"

/// Entering a chart: what the personal-data dialog does with its fields.

/// The dialog's fields. Degrees carry the sign, minutes always add.
struct TSzemelyiAdatok {
    std::string nev;
    TPillanat ido;
    std::string helyseg;
    std::int32_t idozona = 1;
    std::int32_t nyariIdo = 0;
    std::int32_t hosszFok = 0, hosszPerc = 0;
    std::int32_t szelFok = 0, szelPerc = 0;
    std::string jegyzet;
};

/// Turns an "LMT" or "GMT" clock into zone time; "ZN" stays. Summer time plays no part.
/// @param[in,out] pillanat    its time; the date is written anew from the day number
/// @param[in,out] julianszam  day of the clock; one day is carried at most
/// @param idozona    hours, east positive
/// @param hosszusag  arcseconds; for "LMT" whole minutes of arc count, seconds do not
void IdoAtvaltas(TPillanat& pillanat, std::int32_t& julianszam, TIdoTipus idoTipus, std::int32_t idozona,
                 std::int32_t hosszusag);

/// Fields for a new chart: default name, no note, the place's own values; sets the time kind to "ZN".
TSzemelyiAdatok UjKepletMezok(Allapot& allapot);
/// Fields for the chart in hand.
TSzemelyiAdatok SzemelyMezok(const Allapot& allapot);

/// The place's text changed: zone, coordinates and summer time follow it, and the date is put right.
/// The state takes the place at once, so "Mégsem" does not undo it: the running clock under the dialog shows
/// the place that is being typed.
void HelysegValtozas(Allapot& allapot, TSzemelyiAdatok& mezok);

/// A Hungarian sentence where the summer time of the fields is not the one that belongs to their date and
/// time, empty where it is: under a zone clock the table's, under the other clocks 0.
/// @param index  the radio group's; -1, no selection, counts as "ZN"
std::string NyariIdoElteres(const TSzemelyiAdatok& mezok, int index);

/// The time kind of a radio index; -1, no selection, counts as "ZN". It stands against the ticks of the
/// running clock, which write "ZN", until the dialog closes.
void IdoTipusValasztas(Allapot& allapot, int index);

/// The dialog has closed, however: the next tick of a running clock writes "ZN" again.
void SzemelyiAblakZarult(Allapot& allapot);

/// "Rendben": takes the fields; the chart's moment becomes zone time, the typed one is kept beside it.
void SzemelyiRendben(Allapot& allapot, const TSzemelyiAdatok& mezok);

/// Shows a chart just typed or opened, with its own place values: stops the clock, goes to the Radix view,
/// makes the moment the Radix and birth moment, recomputes and draws.
void BevittKepletMutatasa(Allapot& allapot, FoAblak& ablak);
