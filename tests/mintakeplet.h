#pragma once

#include "chart/kepletciklus.h"
#include "commands/szemelyiadatok.h"
#include "drawing/oldalpanel.h"

/// A birth on screen, with the aspect points of its drawing.
inline Allapot szuletesiKeplet(const TPillanat& p, const char* hely = "Szeged") {
    Allapot a;
    a.Keplet.pillanat = p;
    a.Keplet.helyseg = hely;
    DatumRendezes(a.Keplet);
    a.RadixPillanat = a.SzuletesiPillanat = a.Keplet.pillanat;
    IdoAdatok(a);
    KepletCiklus(a);
    FenyszogPontSzamitas(a.Keplet.bolygo, a.Rajz.FenyszogPontok);
    return a;
}

/// A person born at Szeged, as the personal-data dialog gives it.
inline TSzemelyiAdatok mintaSzemely(const TPillanat& p) {
    TSzemelyiAdatok m;
    m.nev = "Minta Anna";
    m.ido = p;
    m.helyseg = "Szeged";
    m.hosszFok = 20;
    m.hosszPerc = 9;
    m.szelFok = 46;
    m.szelPerc = 14;
    return m;
}
