#pragma once

#include "commands/szemelyiadatok.h"

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
