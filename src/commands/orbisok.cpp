#include "commands/orbisok.h"

#include "chart/kepletciklus.h"
#include "chart/kepletmutatas.h"
#include "engine/keszlet.h"

void OrbisUjraszamitas(Allapot& allapot, FoAblak& ablak) {
    // A search may have left another chart in the work tables.
    TKeplet& k = allapot.Keplet;
    k.Bolygok = k.bolygo;
    k.Mozgasok = k.mozgas;
    k.Hazcsucsok = k.hazCsucs;
    FenyszogCiklus(allapot);
    KepletMutatas(allapot, ablak);
}
