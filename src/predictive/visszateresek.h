#pragma once

#include <string>
#include <vector>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"

/// Returns: the moments at which a body comes back to its Radix longitude (revolutions), or the Sun passes a
/// point of the Radix (personars). Both are one search over `Efemerida`, one table, one dialog and one way of
/// making the chart; what differs stands in a row of `VisszateresFajta`.

enum class VisszateresPont { bolygo, csucs };

struct TVisszateresFajta {
    TCim cim;              ///< caption of the dialog; text of status panel 0
    const char* listaCim;  ///< heading of the list
    VisszateresPont pont;  ///< the target: a Radix body as recomputed, or a cusp of the chart on screen
    int szam;              ///< body 1..10 or house
    int bolygo;            ///< the body whose way is walked
    int legfeljebb;        ///< rows at most
    bool mozgasJel;        ///< rows carry the direction letter
};

/// Kind of a revolution 1..7 or of a personar 1..11, in menu order.
TVisszateresFajta RevolucioFajta(int fajta);
TVisszateresFajta PersonarFajta(int fajta);

inline constexpr int revolucioFajtak = 7;
inline constexpr int personarFajtak = 11;

/// The start of the search: the Radix date less one day.
TPillanat VisszateresKezdo(const Allapot& allapot);

/// Recomputes the Radix bodies with the chart's own place and summer time looked up anew, and returns the
/// target in arcseconds. Writes the day number, `nyariIdo`, `napresz`, the ARMC fields and the engine's work
/// tables, which nothing restores after a cancel; what the picture shows stays.
double VisszateresCel(Allapot& allapot, const TVisszateresFajta& fajta);

/// One forward pass from the start day; fills `Allapot::Visszateresek` from row 1 on and sets its count.
///
/// The passage itself is `NapiLepesben` with its bound of 360. A day without a step is a hit for any target,
/// but not with the letter 'S': the lists name each day on which a slow body stands to the minute of arc.
void VisszateresKereses(Allapot& allapot, const TVisszateresFajta& fajta, double cel);

/// Texts of the list, as in "1975.03.21. 06:04:09 GMT", with " R" behind it for a retrograde crossing.
std::vector<std::string> VisszateresSorok(const Allapot& allapot, const TVisszateresFajta& fajta);

/// The row of the table, from 1, whose moment is nearest to a given one, whether before or after it; of two
/// as near the earlier row. 0 for an empty table.
int LegkozelebbiSor(const TVisszateresek& visszateresek, const TPillanat& pillanat);

/// Makes a row of the table the chart on screen, cast for a place one arcminute east and one north of the
/// stated one, without summer time. Users compare these charts with their older ones, which carry the minute.
/// @param sor  from 1; with an empty list row 1 of the table as the last search left it
void VisszateresKeplet(Allapot& allapot, FoAblak& ablak, const TVisszateresFajta& fajta, int sor,
                       const std::string& helyseg);

/// Makes a neighbour of the derived chart's row the chart on screen: the same kind, the same place. Nothing
/// happens beyond the ends of its list, where no derived chart is shown, or where another birth has been
/// entered or opened since.
/// @param lepes  1 the next row, -1 the one before
void VisszateresSzomszed(Allapot& allapot, FoAblak& ablak, int lepes);
