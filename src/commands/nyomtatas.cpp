#include "commands/nyomtatas.h"

#include <array>
#include <string_view>

#include "chart/statuszsor.h"
#include "commands/nezet.h"
#include "drawing/geometria.h"
#include "drawing/kepletrajz.h"
#include "files/fajlnev.h"
#include "tables/pillanat.h"
#include "tables/szamtan.h"
#include "tables/szotar.h"
#include "tables/szoveg.h"

std::string FejlecSzoveg(const TKeplet& k, const std::string& megnevezes) {
    const TPillanat& p = k.pillanat;
    const std::string datum = datumSzoveg(p);
    const std::string ido = std::to_string(p.ora) + ":" + ketJegy(p.perc) + ":" + ketJegy(p.mperc);
    const std::string armc =
        std::to_string(k.armcOra) + ":" + ketJegy(k.armcPerc) + ":" + std::to_string(egesz(k.armcMperc));
    return megnevezes + ",  " + datum + "  " + ido + "  " + k.helyseg + ",  ARMC: " + armc;
}

void NyomtatasNezete(Allapot& allapot, const std::string& megnevezes) {
    NezetBeallitas(allapot, TKepletTipus::radix);
    allapot.Feliratok.statusz[panelNev] = megnevezes;
}

std::string KepFajlNev(const Allapot& allapot, std::string_view kiterjesztes) {
    const TPillanat& p = allapot.Keplet.pillanat;
    const std::string datum = std::to_string(p.ev) + "-" + ketJegy(p.ho) + "-" + ketJegy(p.nap);
    const std::string nev = FajlNev(allapot.Szemely.nev);
    return (nev.empty() ? datum : nev + " " + datum) + std::string(kiterjesztes);
}

namespace {

constexpr int fejlecMagassag = 60;  ///< device pixels
constexpr int kapcsolatMagassag = 36;

void kozepreIras(Vaszon& vaszon, std::string_view szoveg, int betuMagassag, int szelesseg, int y) {
    vaszon.Betu(szovegFont, betuMagassag);
    vaszon.TextOut((szelesseg - vaszon.TextWidth(szoveg)) / 2, y, szoveg);
}

}  // namespace

void LapRajz(Vaszon& vaszon, Allapot& allapot, const std::string& fejlec, int szelesseg, int magassag) {
    LapGeometria(allapot.Rajz, szelesseg, magassag);
    KepletRajz(vaszon, allapot);
    kozepreIras(vaszon, fejlec, fejlecMagassag, szelesseg, egesz(magassag * 0.03));
    kozepreIras(vaszon, kapcsolatSor, kapcsolatMagassag, szelesseg, egesz(magassag - magassag * 0.05));
}
