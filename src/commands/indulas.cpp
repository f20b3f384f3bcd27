#include "commands/indulas.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "chart/kepletciklus.h"
#include "chart/statuszsor.h"
#include "commands/rendszerido.h"
#include "drawing/betutipus.h"
#include "files/cimfajl.h"
#include "files/fajlmuvelet.h"
#include "tables/pillanat.h"

namespace {

bool fajlVan(const std::string& fajl) {
    std::error_code hiba;
    return std::filesystem::exists(FajlUt(fajl), hiba);
}

void cimekOlvasasa(Allapot& allapot) {
    std::ifstream be = OlvasasraNyit(cimFajlNev);
    if (be.is_open()) CimFajlOlvas(be, allapot.FeliratSzovegek);
}

void betutipusValasztas(Allapot& allapot, std::vector<std::string> mappak) {
    mappak.insert(mappak.begin(), MeghajtoBetuMappa(RendszerMeghajtoKeres(fajlVan)));
    allapot.Rajz.szimbolumFont = SzimbolumFontValaszt(mappak, fajlVan);
}

void jelenPillanat(Allapot& allapot, const TPillanat& most) {
    allapot.Keplet.pillanat = most;
    allapot.Szemely.beirt = most;
    allapot.RadixPillanat = most;
    allapot.SzuletesiPillanat = most;
    allapot.InduloDatum = most;
    allapot.RevDatum = most;
    allapot.TercierDatum = most;
}

void elsoKeplet(Allapot& allapot, FoAblak& ablak) {
    allapot.Keplet.helyseg = "Budapest";
    DatumRendezes(allapot.Keplet);
    IdoAdatok(allapot);
    auto& panelek = allapot.Feliratok.statusz;
    IrStatuszSor(allapot, allapot.Keplet.pillanat, allapot.Szemely.idoTipus);
    panelek[panelNev] = "Most";
    panelek[panelTipus] = "Radix";
    KepletCiklus(allapot);
    ablak.Mutat();
    allapot.TeljesTorles = false;
    ablak.RajzolKeplet();
}

}  // namespace

bool Indulas(Allapot& allapot, FoAblak& ablak, const std::vector<std::string>& mappak) {
    TPillanat most;
    if (!OlvasDatum(ablak.RendszerDatum(), most)) return false;
    cimekOlvasasa(allapot);
    betutipusValasztas(allapot, mappak);
    if (!OlvasIdo(ablak.RendszerIdo(), most)) return false;
    jelenPillanat(allapot, most);
    elsoKeplet(allapot, ablak);
    return true;
}
