#pragma once

#include "chart/kepletciklus.h"
#include "chart/statuszsor.h"
#include "engine/bolygohelyek.h"
#include "engine/fenyszogpontok.h"

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

/// The same with its status bar.
inline Allapot kepernyoKeplet(const TPillanat& p, const char* hely) {
    Allapot a = szuletesiKeplet(p, hely);
    IrStatuszSor(a, a.Keplet.pillanat, TIdoTipus::ZN);
    return a;
}

/// Longitudes of the bodies at a Greenwich moment, degrees.
inline TBolygok greenwichiBolygok(const TPillanat& gmt) {
    TBolygok hosszak;
    TMozgasok mozgasok;
    BolygoHelyek(napSzama(gmt), (gmt.ora * 3600 + gmt.perc * 60 + gmt.mperc) / 86400.0, hosszak, mozgasok);
    return hosszak;
}
