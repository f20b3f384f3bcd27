#include "tables/pillanat.h"

#include "tables/efemerida.h"
#include "tables/nyariido.h"
#include "tables/szamtan.h"

int DatumbolJulianszam(TPillanat& p) {
    return DatumbolJulianszam(p.ev, p.ho, p.nap);
}

int napSzama(TPillanat p) {
    return DatumbolJulianszam(p);
}

void JulianszambolDatum(std::int32_t julianszam, TPillanat& p) {
    JulianszambolDatum(julianszam, p.ev, p.ho, p.nap);
}

int NyariIdoE(const TPillanat& p) {
    return NyariIdoE(napSzama(p), p.ora, p.perc, p.mperc);
}

int oraEltolas(TPillanat& p, std::int64_t orak) {
    p.ora = alsoBitek(p.ora + orak);
    if (p.ora > 23) {
        p.ora -= 24;
        return 1;
    }
    if (p.ora < 0) {
        p.ora += 24;
        return -1;
    }
    return 0;
}
