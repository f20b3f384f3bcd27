#pragma once

#include <random>

#include "engine/mundanlanc.h"
#include "tables/efemerida.h"
#include "tables/telepulesek.h"

/// Trial charts for the tests of the mundane houses.

struct TProbaPillanat {
    int julianszam, ora, perc, mperc;
    TMundanHely hely;
};

/// A moment between 1900 and 2078 at a settlement of the gazetteer.
inline TProbaPillanat veletlenPillanat(std::mt19937& veletlen) {
    const auto szam = [&](int also, int felso) {
        return std::uniform_int_distribution<int>(also, felso)(veletlen);
    };
    const TTelepules& t = Telepulesek[static_cast<std::size_t>(szam(0, 3137))];
    return {
        szam(2415021, 2480000), szam(0, 23), szam(0, 59), szam(0, 59), {t.idozona, t.szelesseg, t.hosszusag}};
}

inline TMundanLanc lefuttat(const TProbaPillanat& p) {
    TMundanLanc lanc;
    MundanLanc(p.julianszam, p.ora, p.perc, p.mperc, p.hely, OrbisAlap, lanc);
    return lanc;
}

/// A chart made by hand: no aspect at all, every body in Aries and in the first house, whole-sign cusps.
inline TMundanLanc uresLanc() {
    TMundanLanc lanc;
    for (TJelMatrix* m : {&lanc.FenyszogRadix, &lanc.AlsoFelsoMatrix, &lanc.EgyuttallasMatrix}) {
        for (auto& sor : *m) sor.tolt('.');
        for (int i = 1; i <= 10; ++i) (*m)[i][i] = '+';
    }
    lanc.JegySzam.tolt(1);
    lanc.BolygoHazak.tolt(1);
    for (int h = 1; h <= 12; ++h) lanc.Hazcsucsok[h] = 30.0 * (h - 1);
    return lanc;
}

/// Body k stands in square to body i, below it.
inline void kvadrat(TMundanLanc& lanc, int i, int k) {
    lanc.FenyszogRadix[i][k] = 'R';
    lanc.AlsoFelsoMatrix[i][k] = 'A';
}
