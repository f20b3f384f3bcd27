#pragma once

#include <string>

#include "engine/keszlet.h"
#include "tables/tomb.h"

/// Rulers and placement of one chart.
struct TUralkodok {
    Tomb<bool, 10> Forditott;    ///< the rule of parity is reversed by conjunctions
    Tomb<bool, 10> PratlanJegy;  ///< outcome of the parity rule
    Tomb<int, 10> UralkodoJegy;  ///< the one sign that each body rules in this chart
    Tomb<int, 12> HazJegy;       ///< sign on each horizon cusp; 13 for a cusp above 360
    Tomb<int, 12> HazUra;        ///< house of each house's ruler, 0 if it has none
    Tomb<int, 12> MundanHazUra;  ///< the same for the mundane houses (house h is the h-th sign)
    Tomb<double, 10> DekadHaz;   ///< decan house of each body
    std::string UralkodoSzoveg;  ///< the twelve sentences; the title bar scrolls them in place
    std::string MundanUralkodoSzoveg;
    Tomb<std::string, 12> DekadSzoveg;  ///< letters of the bodies in each decan house
};

/// Boundary of a house, degrees: the cusp less 5 degrees for an angular house, less 3 for another.
double hazHatar(double csucs, int haz);

/// House of each body. A body counts in a house from 5 degrees before the cusps 1, 4, 7, 10 and from 3
/// degrees before the others on; exactly on that boundary it counts in the later house.
/// @param[in,out] BolygoHazak  a body that fits no house keeps the number it came with; where two houses
///                             overlap the later one stands
void HazBesorolas(const TBolygok& Bolygok, const THazcsucsok& Hazcsucsok, TBolygoHazak& BolygoHazak);

/// Decan house of a longitude in degrees: its sign, advanced by four signs for each full decan. 1..12.
double DekadHazSzamitas(double hossz);

/// Rulers, the sentences on them, and the decan texts.
void UralkodoSzamitas(const TBolygok& Bolygok, const THazcsucsok& Hazcsucsok, const TBolygoHazak& BolygoHazak,
                      const TJelMatrix& EgyuttallasMatrix, TUralkodok& uralkodok);

/// The decan houses and texts alone: the last steps of `UralkodoSzamitas`.
void DekadSzovegek(const TBolygok& Bolygok, TUralkodok& uralkodok);
