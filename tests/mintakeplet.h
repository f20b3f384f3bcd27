#pragma once

#include "display/oldalpanel.h"
#include "shell/kepletciklus.h"

/// A birth at Szeged on screen, with the aspect points of its drawing.
inline Allapot szegediKeplet(const TPillanat& p) {
    Allapot a;
    a.Keplet.pillanat(p);
    a.Keplet.helyseg = "Szeged";
    DatumRendezes(a.Keplet);
    a.RadixPillanat = a.SzuletesiPillanat = a.Keplet.pillanat();
    IdoAdatok(a);
    KepletCiklus(a);
    FenyszogPontSzamitas(a);
    return a;
}
