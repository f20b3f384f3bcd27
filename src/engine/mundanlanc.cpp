#include "engine/mundanlanc.h"

#include <array>
#include <cmath>
#include <string_view>

#include "engine/bolygohelyek.h"
#include "engine/csillagido.h"
#include "engine/hazak.h"
#include "engine/uralkodok.h"
#include "tables/nyariido.h"
#include "tables/szamtan.h"

void MundanHelyzetek(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc,
                     const TMundanHely& hely, int nyariIdo, TMundanLanc& lanc) {
    const TCsillagIdo ido = CsillagIdo(julianszam, ora, perc, mperc, hely.hosszusag, nyariIdo, hely.idozona);
    Hazak(ido.armcOra, ido.armcPerc, ido.armcMperc, lanc.Hazcsucsok, hely.szelesseg);
    BolygoHelyek(ido.julianszam, ido.napresz, lanc.Bolygok, lanc.Mozgasok);
}

void MundanFenyszogek(const TOrbisTabla& OrbisTabla, TMundanLanc& lanc) {
    ElteresSzamitas(lanc.Bolygok, lanc.Munka);
    for (int i = 1; i <= 10; ++i) lanc.JegySzam[i] = egesz(lanc.Bolygok[i] / 30) + 1;
    Fenyszogek(OrbisTabla, lanc.Munka);
    for (int i = 1; i <= 10; ++i) lanc.Munka.FenyszogMatrix[i][i] = '+';
    lanc.FenyszogRadix = lanc.Munka.FenyszogMatrix;

    lanc.EgyuttallasMatrix = lanc.FenyszogRadix;
    EgyuttallasLanc(lanc.EgyuttallasMatrix);
    lanc.AlsoFelsoMatrix = lanc.FenyszogRadix;
    AlsoFelso(lanc.Bolygok, lanc.AlsoFelsoMatrix);
}

void MundanBesorolas(TMundanLanc& lanc) {
    lanc.BolygoHazak.tolt(0);
    HazBesorolas(lanc.Bolygok, lanc.Hazcsucsok, lanc.BolygoHazak);
}

void MundanLanc(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc,
                const TMundanHely& hely, const TOrbisTabla& OrbisTabla, TMundanLanc& lanc) {
    const int nyariIdo = hely.nyariIdo ? *hely.nyariIdo : NyariIdoE(julianszam, ora, perc, mperc);
    MundanHelyzetek(julianszam, ora, perc, mperc, hely, nyariIdo, lanc);
    MundanFenyszogek(OrbisTabla, lanc);
    MundanBesorolas(lanc);
    lanc.MundanEredmeny = MundanEllenorzes(lanc);
}

int csucsJegye(double csucs) {
    return egesz(std::floor(csucs / 30)) + 1;
}

TMundanKeszletek MundanKeszletek(const TMundanLanc& lanc, const Tomb<TJegyHalmaz, 10>& parJegyek) {
    // A body standing somewhere brings the signs that it rules and those of its aspects.
    Tomb<TJegyHalmaz, 10> hozott;
    for (int i = 1; i <= 10; ++i) hozott[i] = bolygoJegyeiHalmaza[i] | parJegyek[i];

    TMundanKeszletek k;
    for (int i = 1; i <= 10; ++i) {
        if (lanc.JegySzam[i] >= 1 && lanc.JegySzam[i] <= 12) k.jegyben[lanc.JegySzam[i]] |= hozott[i];
        if (lanc.BolygoHazak[i] >= 1) k.hazban[lanc.BolygoHazak[i]] |= hozott[i];
    }
    for (int jegy = 1; jegy <= 12; ++jegy) {
        for (const char betu : JegyUrai[jegy]) {
            const int b = betuBolygo(betu);
            if (b == 0) continue;
            k.urak[jegy] |= jegyTarsai(lanc.JegySzam[b]) | jegyTarsai(lanc.BolygoHazak[b]) | parJegyek[b];
            for (int j = 1; j <= 10; ++j)
                if (lanc.EgyuttallasMatrix[b][j] == 'M') k.urak[jegy] |= hozott[j];
        }
    }
    return k;
}

namespace {

/// Signs that each body's own row of hard aspects links.
Tomb<TJegyHalmaz, 10> sorJegyek(const TMundanLanc& lanc) {
    Tomb<TJegyHalmaz, 10> jegyek;
    for (int i = 1; i < plutoSor; ++i)
        for (int j = 1; j <= 10; ++j)
            if (kemenyFenyszog(lanc, i, j)) jegyek[i] |= jegyHalmaz(FenyszogParok[i].jegyek);
    for (const auto& [masik, par] : plutoParok)
        if (kemenyFenyszog(lanc, plutoSor, masik)) jegyek[plutoSor] |= jegyHalmaz(par.jegyek);
    return jegyek;
}

}  // namespace

char MundanEllenorzes(const TMundanLanc& lanc) {
    const TMundanKeszletek k = MundanKeszletek(lanc, sorJegyek(lanc));
    for (int h = 1; h <= 12; ++h) {
        const int jegy = csucsJegye(lanc.Hazcsucsok[h]);
        const TJegyHalmaz HazKeszlet = jegyTarsai(jegy) | k.hazban[h] | k.csucsUrai(jegy);
        if ((jegyTarsai(h) & HazKeszlet) == 0) return '0';
    }
    for (const int b : sarokHazak) {
        const TJegyHalmaz JegyKeszlet = k.jegyben[b] | k.urak[b];
        if ((jegyTarsai(egesz(DekadHazSzamitas(lanc.Hazcsucsok[b]))) & JegyKeszlet) != 0) return '1';
    }
    return '2';
}
