#include "commands/lepteto.h"

#include <cstdint>

#include "tables/pillanat.h"
#include "tables/szamtan.h"

namespace {

/// Adds to a clock field. Past its end it wraps by a whole turn and the next greater field moves by one.
/// @return -1, 0 or 1, the carry
int atvitel(std::int32_t& mezo, int mertek, int kor) {
    mezo = alsoBitek(std::int64_t{mezo} + mertek);
    if (mezo > kor - 1) {
        // A step of one comes to rest on the first value, also from a field that stood beyond its end.
        mezo = mertek == 1 ? 0 : mezo - kor;
        return 1;
    }
    if (mezo < 0) {
        mezo = mertek == -1 ? kor - 1 : mezo + kor;
        return -1;
    }
    return 0;
}

void evLepes(TPillanat& p, int mertek) {
    p.ev = alsoBitek(std::int64_t{p.ev} + mertek);
}

void honapLepes(TPillanat& p, int mertek) {
    p.ho = alsoBitek(std::int64_t{p.ho} + mertek);
    if (p.ho > 12) {
        p.ho = 1;
        evLepes(p, 1);
    } else if (p.ho < 1) {
        p.ho = 12;
        evLepes(p, -1);
    }
}

}  // namespace

int IdoLeptetes(TPillanat& p, LepesMezo mezo, int mertek) {
    int lepes = mertek;
    if (mezo == LepesMezo::mperc) lepes = atvitel(p.mperc, lepes, 60);
    if (mezo >= LepesMezo::perc && lepes != 0) lepes = atvitel(p.perc, lepes, 60);
    if (mezo >= LepesMezo::ora && lepes != 0) lepes = atvitel(p.ora, lepes, 24);
    return lepes;
}

void Leptetes(Allapot& allapot, const TLepes& lepes) {
    allapot.Modositott = true;
    allapot.MostFut = false;
    allapot.LeptetesVolt = true;

    TKeplet& k = allapot.Keplet;
    if (lepes.mezo == LepesMezo::ev) evLepes(k.pillanat, lepes.mertek);
    if (lepes.mezo == LepesMezo::ho) honapLepes(k.pillanat, lepes.mertek);
    k.julianszam = DatumbolJulianszam(k.pillanat);
    if (lepes.mezo >= LepesMezo::nap) k.julianszam += IdoLeptetes(k.pillanat, lepes.mezo, lepes.mertek);
    JulianszambolDatum(k.julianszam, k.pillanat);
}
