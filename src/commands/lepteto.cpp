#include "commands/lepteto.h"

#include "tables/efemerida.h"
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

void honapLepes(TKeplet& k, int mertek) {
    k.ho = alsoBitek(std::int64_t{k.ho} + mertek);
    if (k.ho > 12) {
        k.ho = 1;
        k.ev = alsoBitek(std::int64_t{k.ev} + 1);
    } else if (k.ho < 1) {
        k.ho = 12;
        k.ev = alsoBitek(std::int64_t{k.ev} - 1);
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
    if (lepes.mezo == LepesMezo::ev || lepes.mezo == LepesMezo::ho) {
        if (lepes.mezo == LepesMezo::ev)
            k.ev = alsoBitek(std::int64_t{k.ev} + lepes.mertek);
        else
            honapLepes(k, lepes.mertek);
        k.julianszam = DatumbolJulianszam(k.ev, k.ho, k.nap);
    } else {
        k.julianszam = DatumbolJulianszam(k.ev, k.ho, k.nap);
        TPillanat p = k.pillanat();
        k.julianszam += IdoLeptetes(p, lepes.mezo, lepes.mertek);
        k.pillanat(p);
    }
    JulianszambolDatum(k.julianszam, k.ev, k.ho, k.nap);
}
