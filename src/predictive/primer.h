#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "chart/allapot.h"
#include "engine/keszlet.h"
#include "predictive/orbisablak.h"
#include "tables/pillanat.h"
#include "tables/szamtan.h"

/// Primary directions, and the routines on the equator that rectification uses too.

/// Arcseconds of right ascension for each day of life.
inline constexpr double PrimerKulcs = 9.715060995018346;

/// Oblique ascensions in arcminutes by ecliptic degree 0..360 at one latitude.
using TFerdeTabla = std::array<double, 361>;

/// Ecliptic longitude to right ascension and back, arcminutes, 0 <= x < 21600.
double EklToRekt(double x);
double RektToEkl(double x);

/// The table for a latitude in arcseconds; outside 42..60 degrees the last two blocks are extrapolated.
TFerdeTabla FerdeSor(std::int32_t szelesseg);

/// Longitude in arcminutes of an oblique ascension in arcminutes: between the first column at or above it and
/// the one before. A hit already at column 0 gives 0.
/// @param utolsoOszlop  360, or 359 for the primary list: there a value above column 359 takes 0 as the upper
///                      value and the result falls a little below 359 degrees. Rectification searches one
///                      column more; making the two alike would move lines of lists that users keep.
double FerdeToEkl(const TFerdeTabla& FerdeTabla, double t, int utolsoOszlop);

/// A sum on the equator brought into 0..21600 arcminutes by one turn.
constexpr double rektKorbe(double x) {
    return x >= korIvperc ? x - korIvperc : x < 0 ? x + korIvperc : x;
}

/// Whether an aspect point lies in the window. A window that spans 0 leaves out a point exactly on its lower
/// end while a plain one takes it: the spanning test is the negation of the gap, whose ends both count to it.
bool PontTalalat(double p, const TOrbisAblak& ablak);

/// The four directed points, in the order of the columns.
enum IranyOszlop { dMC = 0, cMC = 1, dAsc = 2, cAsc = 3 };
inline constexpr int iranyOszlopok = 4;

/// Directed points in degrees for an arc.
/// @param rektMC  right ascension of the natal Midheaven, arcminutes
/// @param iv      arc, arcminutes
std::array<double, iranyOszlopok> IranyitottPontok(double rektMC, double iv, const TFerdeTabla& FerdeTabla,
                                                   int utolsoOszlop);

/// House 1..12 of the Sun in the last solar chart before a date, cast for a place; 0 if it fits none.
/// @param bolygok              natal bodies, degrees
/// @param hosszusag,szelesseg  arcseconds
int SolarHaz(const TBolygok& bolygok, std::int32_t julianszam, std::int32_t hosszusag,
             std::int32_t szelesseg);

/// Blanks before each column's text in a line of the list.
inline constexpr std::array<std::size_t, iranyOszlopok> PrimerOszlopKoz{5, 20, 32, 46};

/// Lines of a list at most; a list of so many may have been cut.
inline constexpr std::size_t primerLegtobbSor = 22;

/// The list from a start date on: ten years, but no day, and no column of a day, behind the last line that it
/// may have.
std::vector<std::string> PrimerFutas(const Allapot& allapot, const TPillanat& kezdo);
