#include "commands/kepatadas.h"

#include <cstddef>
#include <string_view>

#include "chart/statuszsor.h"
#include "commands/datumosdirekcio.h"
#include "drawing/geometria.h"
#include "drawing/kepletrajz.h"
#include "drawing/oldalpanel.h"
#include "predictive/olvashato.h"
#include "tables/szotar.h"

void KepRajz(Vaszon& vaszon, const Allapot& allapot, const TKepletKep& kep) {
    Allapot masolat = allapot;
    AblakGeometria(masolat.Rajz, masolat.Keplet.hazCsucs[1], kep.szelesseg, kep.magassag);
    KepletRajz(vaszon, masolat);
    if (kep.talalatok) DatumosKiiras(vaszon, masolat, *kep.talalatok);
}

std::string KepCim(const Allapot& allapot) {
    std::string cim;
    for (const int panel : {panelNev, panelIdo, panelHely}) {
        std::string_view szoveg = allapot.Feliratok.statusz[static_cast<std::size_t>(panel)];
        szoveg = szoveg.substr(0, szoveg.find_last_not_of(' ') + 1);
        if (!szoveg.empty()) cim.append(cim.empty() ? "" : ", ").append(szoveg);
    }
    return cim;
}

std::string PanelSzoveg(const Allapot& allapot) {
    std::string szoveg = KepCim(allapot) + "\n\n";
    const auto& panel = allapot.Rajz.panel;
    const std::size_t bolygok = panel.size() - feliratosCsucsok.size();
    for (std::size_t i = 0; i < panel.size(); ++i) {
        const std::string jegy = panel[i].jel.empty() ? "" : JelNev(panel[i].jel[0]);
        if (i < bolygok)
            szoveg += JelNev(bolygoJel[static_cast<int>(i) + 1]);
        else
            szoveg.append(HazCimkeRovid[feliratosCsucsok[i - bolygok]]).append(". ház");
        szoveg.append("\t").append(jegy).append("\t").append(panel[i].szoveg).append("\n");
    }
    return szoveg;
}
