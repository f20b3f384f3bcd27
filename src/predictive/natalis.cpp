#include "predictive/natalis.h"

#include "chart/kepletciklus.h"
#include "engine/bolygohelyek.h"

void NatalisBolygok(Allapot& allapot, const TPillanat& pillanat, const std::string& helyseg) {
    TKeplet& k = allapot.Keplet;
    const std::string kepernyoHely = k.helyseg;
    k.pillanat = pillanat;
    k.helyseg = helyseg;
    DatumRendezes(k);
    IdoAdatok(allapot);
    BolygoHelyek(k.julianszam, k.napresz, k.Bolygok, k.Mozgasok);
    k.helyseg = kepernyoHely;
}
