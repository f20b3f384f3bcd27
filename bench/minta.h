#pragma once

#include "display/oldalpanel.h"
#include "shell/kepletciklus.h"

/// A birth chart with all that the searches read.
inline Allapot mintaKeplet() {
    Allapot allapot;
    allapot.Keplet.pillanat({1975, 3, 21, 6, 4, 9});
    allapot.Keplet.helyseg = "Szeged";
    DatumRendezes(allapot.Keplet);
    allapot.RadixPillanat = allapot.SzuletesiPillanat = allapot.Keplet.pillanat();
    IdoAdatok(allapot);
    KepletCiklus(allapot);
    FenyszogPontSzamitas(allapot);
    return allapot;
}
