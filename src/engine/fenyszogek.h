#pragma once

#include "engine/keszlet.h"
#include "tables/tomb.h"

/// Orbs in degrees: rows Ascendant, Midheaven, Sun to Pluto; columns the nine aspects of `fenyszogSzog`.
using TOrbisTabla = Matrix<double, 12, 9>;

/// The table as delivered.
extern const TOrbisTabla OrbisAlap;

/// Row of a body in an orb table.
constexpr int orbisSor(int bolygo) {
    return bolygo + 2;
}

/// Distance of two longitudes the short way round, degrees, 0..180.
constexpr double szogTavolsag(double a, double b) {
    const double x = a > b ? a - b : b - a;
    return x > 180 ? 360 - x : x;
}

/// Fills `Elteresek` (distance of each pair, degrees) and `DekadKezdetek` (start of each body's decan,
/// degrees).
void ElteresSzamitas(const TBolygok& Bolygok, TFenyszogMunka& munka);

/// The aspects: pairs within orb, both bounds included, the greater angle winning where two overlap; and
/// pairs without one whose decans stand at the exact angle. Reads `Elteresek` and `DekadKezdetek`, fills
/// `FenyszogMatrix` (letter or '.') and `FenyszogOrbis` (the distance where the orb test hit, else 0).
void Fenyszogek(const TOrbisTabla& OrbisTabla, TFenyszogMunka& munka);

/// Chains of conjunctions: all bodies joined by 'M' cells become mutually 'M', everything else '.',
/// the diagonal '+'. In and out in `FenyszogMatrix`.
void EgyuttallasLanc(TJelMatrix& FenyszogMatrix);

/// The side on which the other body of each aspected pair lies: 'F' ahead by less than half the circle in the
/// order of the signs, 'A' behind, coincident or exactly opposite. In and out in `FenyszogMatrix`;
/// the diagonal becomes '+'.
void AlsoFelso(const TBolygok& Bolygok, TJelMatrix& FenyszogMatrix);
