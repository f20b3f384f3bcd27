#pragma once

#include "mintakeplet.h"
#include "tables/efemerida.h"

/// The birth that the tests of the directions start from.

inline constexpr TPillanat szuletesnap{1975, 7, 21, 6, 4, 9};

inline Allapot szuletes(const TPillanat& p = szuletesnap) {
    return szuletesiKeplet(p);
}

inline TPillanat napokkal(TPillanat p, int napok) {
    JulianszambolDatum(DatumbolJulianszam(p.ev, p.ho, p.nap) + napok, p.ev, p.ho, p.nap);
    return p;
}
