#include "chart/kepletciklus.h"

#include <string>

#include "engine/bolygohelyek.h"
#include "engine/csillagido.h"
#include "engine/fenyszogek.h"
#include "engine/hazak.h"
#include "engine/keszlet.h"
#include "engine/uralkodok.h"
#include "tables/nyariido.h"
#include "tables/pillanat.h"
#include "tables/telepulesek.h"
#include "tables/tomb.h"

void HelyAdatok(Allapot& allapot) {
    TKeplet& k = allapot.Keplet;
    k.nyariIdo = NyariIdoE(k.julianszam, k.pillanat.ora, k.pillanat.perc, k.pillanat.mperc);
    TelepulesKeres(k.helyseg, k.idozona, k.szelesseg, k.hosszusagJel, k.szelessegJel, k.hosszusag);
}

void CsillagIdoLepes(TKeplet& k) {
    CsillagIdo(k.pillanat.ora, k.pillanat.perc, k.pillanat.mperc, k.napresz, k.julianszam, k.hosszusag,
               k.armcMperc, k.armcPerc, k.armcOra, k.nyariIdo, k.idozona);
}

void IdoAdatok(Allapot& allapot) {
    HelyAdatok(allapot);
    CsillagIdoLepes(allapot.Keplet);
}

namespace {

void hazakLepes(TKeplet& k) {
    Hazak(k.armcOra, k.armcPerc, k.armcMperc, k.Hazcsucsok, k.szelesseg);
    k.hazCsucs = k.Hazcsucsok;
}

void bolygokLepes(TKeplet& k) {
    BolygoHelyek(k.julianszam, k.napresz, k.Bolygok, k.Mozgasok);
    k.bolygo = k.Bolygok;
    k.mozgas = k.Mozgasok;
}

}  // namespace

void FenyszogCiklus(Allapot& allapot, UralkodoLepes lepes) {
    TKeplet& k = allapot.Keplet;
    TFenyszogMunka& munka = allapot.Munka;

    ElteresSzamitas(k.Bolygok, munka);
    Fenyszogek(allapot.OrbisTabla, munka);
    allapot.DekadKezdetek = munka.DekadKezdetek;
    allapot.Elteresek = munka.Elteresek;
    allapot.FenyszogOrbis = munka.FenyszogOrbis;
    allapot.FenyszogRadix = munka.FenyszogMatrix;

    EgyuttallasLanc(munka.FenyszogMatrix);
    allapot.EgyuttallasMatrix = munka.FenyszogMatrix;

    munka.FenyszogMatrix = allapot.FenyszogRadix;
    AlsoFelso(k.Bolygok, munka.FenyszogMatrix);
    allapot.AlsoFelsoMatrix = munka.FenyszogMatrix;

    HazBesorolas(k.Bolygok, k.Hazcsucsok, k.BolygoHazak);

    if (lepes == UralkodoLepes::teljes)
        UralkodoSzamitas(k.Bolygok, k.Hazcsucsok, k.BolygoHazak, allapot.EgyuttallasMatrix,
                         allapot.Uralkodok);
    else
        DekadSzovegek(k.Bolygok, allapot.Uralkodok);
}

void KepletCiklus(Allapot& allapot, UralkodoLepes lepes) {
    hazakLepes(allapot.Keplet);
    bolygokLepes(allapot.Keplet);
    FenyszogCiklus(allapot, lepes);
}

void DatumRendezes(TKeplet& k) {
    k.julianszam = DatumbolJulianszam(k.pillanat);
    JulianszambolDatum(k.julianszam, k.pillanat);
}
