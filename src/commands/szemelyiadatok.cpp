#include "commands/szemelyiadatok.h"

#include <algorithm>
#include <array>

#include "chart/kepletciklus.h"
#include "chart/kepletmutatas.h"
#include "chart/statuszsor.h"
#include "commands/nezet.h"
#include "tables/fokperc.h"
#include "tables/nyariido.h"
#include "tables/pillanat.h"
#include "tables/szamtan.h"
#include "tables/telepulesek.h"

namespace {

/// Local mean time to zone time by the meridian's offset, 4 minutes of time a degree.
void helyiKozepidobol(TPillanat& p, std::int32_t& julianszam, std::int32_t idozona, std::int32_t hosszusag) {
    const auto [fok, perc] = fokPercre(hosszusag);
    const std::int64_t eltolas = std::int64_t{perc} * 4 + std::int64_t{fok} * 240;
    std::int64_t t = idoMasodperc(std::int64_t{p.ora} + idozona, p.perc, p.mperc) - eltolas;
    if (t < 0) {
        t += napMasodperc;
        --julianszam;
    } else if (t >= napMasodperc) {
        t -= napMasodperc;
        ++julianszam;
    }
    p.ora = alsoBitek(t / 3600);
    p.perc = alsoBitek(t % 3600 / 60);
    p.mperc = alsoBitek(t % 60);
}

}  // namespace

void IdoAtvaltas(TPillanat& pillanat, std::int32_t& julianszam, TIdoTipus idoTipus, std::int32_t idozona,
                 std::int32_t hosszusag) {
    if (idoTipus == TIdoTipus::LMT) helyiKozepidobol(pillanat, julianszam, idozona, hosszusag);
    if (idoTipus == TIdoTipus::GMT) julianszam += oraEltolas(pillanat, idozona);
    JulianszambolDatum(julianszam, pillanat);
}

namespace {

void koordinataMezok(TSzemelyiAdatok& mezok, std::int32_t hosszusag, std::int32_t szelesseg) {
    const auto [hosszFok, hosszPerc] = fokPercre(hosszusag);
    const auto [szelFok, szelPerc] = fokPercre(szelesseg);
    mezok.hosszFok = hosszFok;
    mezok.hosszPerc = hosszPerc;
    mezok.szelFok = szelFok;
    mezok.szelPerc = szelPerc;
}

}  // namespace

TSzemelyiAdatok UjKepletMezok(Allapot& allapot) {
    allapot.Szemely.idoTipus = TIdoTipus::ZN;
    allapot.Szemely.idoTipusIndex = 0;

    TSzemelyiAdatok mezok;
    mezok.nev = "Új képlet";
    mezok.ido = allapot.Szemely.beirt;
    mezok.helyseg = allapot.Keplet.helyseg;
    mezok.nyariIdo = NyariIdoE(mezok.ido);
    const TTelepules& hely = TelepulesKeres(mezok.helyseg);
    mezok.idozona = hely.idozona;
    koordinataMezok(mezok, hely.hosszusag, hely.szelesseg);
    return mezok;
}

TSzemelyiAdatok SzemelyMezok(const Allapot& allapot) {
    const TKeplet& k = allapot.Keplet;
    TSzemelyiAdatok mezok;
    mezok.nev = allapot.Szemely.nev;
    mezok.ido = allapot.Szemely.beirt;
    mezok.helyseg = k.helyseg;
    mezok.idozona = k.idozona;
    mezok.nyariIdo = k.nyariIdo;
    koordinataMezok(mezok, k.hosszusag, k.szelesseg);
    mezok.jegyzet = allapot.Szemely.jegyzet;
    return mezok;
}

void HelysegValtozas(Allapot& allapot, TSzemelyiAdatok& mezok) {
    TKeplet& k = allapot.Keplet;
    k.helyseg = mezok.helyseg;
    TelepulesKeres(k.helyseg, k.idozona, k.szelesseg, k.hosszusagJel, k.szelessegJel, k.hosszusag);
    mezok.idozona = k.idozona;
    koordinataMezok(mezok, k.hosszusag, k.szelesseg);

    TPillanat& ido = mezok.ido;
    k.julianszam = DatumbolJulianszam(ido);
    JulianszambolDatum(k.julianszam, ido);
    allapot.Szemely.beirt = ido;

    k.nyariIdo =
        allapot.Szemely.idoTipus == TIdoTipus::ZN ? NyariIdoE(k.julianszam, ido.ora, ido.perc, ido.mperc) : 0;
    mezok.nyariIdo = k.nyariIdo;
}

namespace {

TIdoTipus idoTipus(int index) {
    return static_cast<TIdoTipus>(std::clamp(index, 0, 2));
}

}  // namespace

std::string NyariIdoElteres(const TSzemelyiAdatok& mezok, int index) {
    if (idoTipus(index) != TIdoTipus::ZN)
        return mezok.nyariIdo == 0 ? "" : "Helyi vagy greenwichi időhöz nem tartozik nyári időszámítás.";
    const int tablaban = NyariIdoE(mezok.ido);
    if (mezok.nyariIdo == tablaban) return "";
    return "Eltér a nyári időszámítás táblájától: ekkor ott " + std::to_string(tablaban) + " áll.";
}

void IdoTipusValasztas(Allapot& allapot, int index) {
    allapot.Szemely.idoTipus = idoTipus(index);
    allapot.Szemely.valasztottIdoTipus = allapot.Szemely.idoTipus;
    allapot.Szemely.idoTipusIndex = index;
}

void SzemelyiAblakZarult(Allapot& allapot) {
    allapot.Szemely.valasztottIdoTipus.reset();
}

void SzemelyiRendben(Allapot& allapot, const TSzemelyiAdatok& mezok) {
    TKeplet& k = allapot.Keplet;
    TSzemely& szemely = allapot.Szemely;
    szemely.jegyzet = mezok.jegyzet;
    szemely.nev = mezok.nev;
    TPillanat beirt = mezok.ido;
    k.julianszam = DatumbolJulianszam(beirt);
    szemely.beirt = beirt;

    k.helyseg = mezok.helyseg;
    k.nyariIdo = mezok.nyariIdo;
    k.idozona = mezok.idozona;
    k.hosszusag = ivmasodpercre(mezok.hosszFok, mezok.hosszPerc);
    k.szelesseg = ivmasodpercre(mezok.szelFok, mezok.szelPerc);

    TPillanat pillanat = szemely.beirt;
    IdoAtvaltas(pillanat, k.julianszam, szemely.idoTipus, k.idozona, k.hosszusag);
    k.pillanat = pillanat;
    allapot.Megsem2 = false;
}

void BevittKepletMutatasa(Allapot& allapot, FoAblak& ablak) {
    TFeliratok& feliratok = allapot.Feliratok;
    feliratok.memo = allapot.Szemely.jegyzet;
    allapot.MostFut = false;
    feliratok.mostGomb = "Most";
    NezetBeallitas(allapot, TKepletTipus::radix);
    feliratok.statusz[panelNev] = allapot.Szemely.nev + " ";
    ablak.Mutat();
    ablak.Ujrafest();

    CsillagIdoLepes(allapot.Keplet);
    allapot.RadixPillanat = allapot.Keplet.pillanat;
    allapot.SzuletesiPillanat = allapot.Keplet.pillanat;
    allapot.Szemely.jegyzetMentett = allapot.Szemely.jegyzet;

    IrStatuszSor(allapot, allapot.Szemely.beirt, allapot.Szemely.idoTipus);
    feliratok.statusz[panelHely] += " ";
    KepletCiklus(allapot);
    KepletMutatas(allapot, ablak);
}
