#include "commands/orajel.h"

#include <array>
#include <string>
#include <string_view>

#include "chart/kepletciklus.h"
#include "chart/kepletmutatas.h"
#include "chart/statuszsor.h"
#include "commands/rendszerido.h"
#include "engine/uralkodok.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"
#include "tables/szoveg.h"
#include "tables/tomb.h"

namespace {

constexpr int feliratValtas = 500;    ///< ticks that a title text runs
constexpr int uresFeliratUgras = 15;  ///< added a tick while the slot is empty
constexpr int hosszuPanel = 29;       ///< characters that stand still in a panel

void cimValtas(Allapot& a) {
    if (++a.FeliratSzamlalo <= feliratValtas) return;
    a.FeliratSzamlalo = 0;
    a.FeliratIndex = a.FeliratIndex % feliratHelyek + 1;
    a.AktFelirat = a.FeliratSzovegek[a.FeliratIndex];
}

void cimGorgetes(Allapot& a) {
    TFeliratok& f = a.Feliratok;
    if (!a.AktFelirat.empty()) {
        gordit(a.AktFelirat);
        f.cim = a.AktFelirat;
        return;
    }
    a.FeliratSzamlalo += uresFeliratUgras;
    f.cim.assign(a.FutoSzoveg).append("  ").append(f.statusz[panelIdo]).append("  ").append(a.Szemely.nev);
}

void futoSzoveg(Allapot& a) {
    if (a.KepletTipus == TKepletTipus::dekad) {
        a.FutoSzoveg = kapcsolatSor;
        return;
    }
    std::string& szoveg =
        a.KepletTipus == TKepletTipus::radix ? a.Uralkodok.UralkodoSzoveg : a.Uralkodok.MundanUralkodoSzoveg;
    gordit(szoveg);
    a.FutoSzoveg = szoveg;
}

void panelGorgetes(std::string& panel) {
    if (karakterSzam(panel) > hosszuPanel) gordit(panel);
}

void hangCimGorgetes(Allapot& a) {
    if (!a.HangAktiv) return;
    gordit(a.HangCim);
    a.Feliratok.hangCim = a.HangCim;
}

/// An unreadable computer date or time leaves the last moment standing.
void mostPillanat(Allapot& a, FoAblak& ablak) {
    ++a.MostSzamlalo;
    TPillanat most = a.Keplet.pillanat;
    OlvasIdo(ablak.RendszerIdo(), most);
    OlvasDatum(ablak.RendszerDatum(), most);
    a.Keplet.pillanat = most;
    DatumRendezes(a.Keplet);
    a.Feliratok.statusz[panelNev] = "Most";
}

void idoEsStatusz(Allapot& a) {
    IdoAdatok(a);
    a.Szemely.idoTipus = a.Szemely.valasztottIdoTipus.value_or(TIdoTipus::ZN);
    IrStatuszSor(a, a.Keplet.pillanat, TIdoTipus::ZN);
    a.Feliratok.memo.clear();
    if (a.LeptetesVolt) LeptetoCimIras(a.Feliratok);
}

void teljesUjraszamitas(Allapot& a, FoAblak& ablak) {
    a.LeptetesVolt = false;
    a.MundanFrissites = false;
    KepletCiklus(a);
    a.MostSzamlalo = 0;
    KepletMutatas(a, ablak);
}

}  // namespace

void Orajel(Allapot& a, FoAblak& ablak) {
    cimValtas(a);
    cimGorgetes(a);
    futoSzoveg(a);
    panelGorgetes(a.Feliratok.statusz[panelNev]);
    panelGorgetes(a.Feliratok.statusz[panelHely]);
    hangCimGorgetes(a);
    if (a.MundanAblakNyitva) ablak.MundanFrissit();

    const auto kertMunka = [&a] { return a.MundanFrissites || a.LeptetesVolt; };
    if (kertMunka() || a.MostFut) {
        if (a.LeptetesVolt) a.Feliratok.statusz[panelNev] = a.Szemely.nev;
        if (a.MostFut) mostPillanat(a, ablak);
        idoEsStatusz(a);
        if (kertMunka() || a.MostSzamlalo >= mostTeljesUjraszamitas) {
            teljesUjraszamitas(a, ablak);
            return;
        }
    }
    ablak.Mutat();
}

namespace {

void visszaARadixhoz(Allapot& a) {
    a.Feliratok.statusz[panelTipus] = "Radix";
    a.MostFut = false;
    a.RadixPillanat = a.SzuletesiPillanat;
    a.Keplet.helyseg = a.helysegMentett;
    a.VisszaMod = false;
}

void oraIndul(Allapot& a) {
    a.Feliratok.mostGomb = "Vissza";
    a.Feliratok.statusz[panelNev] = "Most";
    a.Szemely.jegyzetMentett = a.Szemely.jegyzet;
}

void radixVisszater(Allapot& a) {
    a.Feliratok.mostGomb = "Most";
    a.Feliratok.statusz[panelNev] = a.Szemely.nev;
    a.Keplet.pillanat = a.RadixPillanat;
    a.Feliratok.memo = a.Szemely.jegyzetMentett;
    DatumRendezes(a.Keplet);
    IdoAdatok(a);
    IrStatuszSor(a, a.Keplet.pillanat, TIdoTipus::ZN);
    KepletCiklus(a);
}

}  // namespace

void MostParancs(Allapot& a, FoAblak& ablak) {
    a.MostSzamlalo = mostTeljesUjraszamitas;
    a.MostFut = !a.MostFut;
    ablak.Ujrafest();
    if (a.VisszaMod) visszaARadixhoz(a);
    if (a.MostFut) {
        oraIndul(a);
        ablak.Mutat();
        return;
    }
    radixVisszater(a);
    KepletMutatas(a, ablak);
}
