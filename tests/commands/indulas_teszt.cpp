// The program's start, without a window.

#include <gtest/gtest.h>

#include "chart/kepletciklus.h"
#include "chart/statuszsor.h"
#include "commands/indulas.h"
#include "ideiglenesmappa.h"
#include "indultprogram.h"
#include "mintakeplet.h"
#include "probaablak.h"
#include "rendszerhatar.h"

namespace {

class TIndulas : public TIndultProgram {};

TEST_F(TIndulas, IndulasUtanAJelenPillanatBudapesten) {
    EXPECT_EQ(a.Keplet.pillanat, (TPillanat{2024, 3, 5, 8, 15, 0}));
    EXPECT_EQ(a.RadixPillanat, a.Keplet.pillanat);
    EXPECT_EQ(a.SzuletesiPillanat, a.Keplet.pillanat);
    EXPECT_EQ(a.InduloDatum, a.Keplet.pillanat);
    EXPECT_EQ(a.RevDatum, a.Keplet.pillanat);
    EXPECT_EQ(a.TercierDatum, a.Keplet.pillanat);
    EXPECT_EQ(a.Szemely.beirt, a.Keplet.pillanat);
    EXPECT_EQ(a.Keplet.helyseg, "Budapest");
    EXPECT_EQ(panel(panelTipus), "Radix");
    EXPECT_EQ(panel(panelNev), "Most");
    EXPECT_EQ(panel(panelIdo), "2024.03.05. 08:15:00 ZN");
    EXPECT_EQ(panel(panelHely), "Budapest");
    EXPECT_EQ(panel(panelKoordinata), "19°4'K  47°30'É");
    EXPECT_EQ(a.Feliratok.mostGomb, "Állj");
    EXPECT_EQ(a.Feliratok.valtGomb, "Mundán");
    EXPECT_EQ(a.FeliratSzamlalo, 400);
    EXPECT_FALSE(a.TeljesTorles);
    EXPECT_EQ(a.PontositasHatotav, 25);
    EXPECT_EQ(a.TercierOrbisNap, 45.0);
    const Allapot most = szuletesiKeplet({2024, 3, 5, 8, 15, 0}, "Budapest");
    EXPECT_EQ(a.Keplet.armcOra, most.Keplet.armcOra);
    EXPECT_EQ(a.Keplet.armcPerc, most.Keplet.armcPerc);
    EXPECT_EQ(a.Keplet.bolygo, most.Keplet.bolygo);
    EXPECT_EQ(a.Keplet.hazCsucs, most.Keplet.hazCsucs);
}

/// Notes where the Sun and the Ascendant stand when the first drawing is asked for.
struct TElsoRajz : TProbaAblak {
    explicit TElsoRajz(const Allapot& allapot) : a(allapot) {}
    void RajzolKeplet() override {
        nap = a.Keplet.bolygo[1];
        elsoCsucs = a.Keplet.hazCsucs[1];
        torles = a.TeljesTorles;
    }
    const Allapot& a;
    double nap = 0, elsoCsucs = 0;
    bool torles = true;
};

TEST(Indulas, AzElsoRajzEgyKeszKepleteE) {
    Allapot a;
    TElsoRajz ablak(a);
    ASSERT_TRUE(Indulas(a, ablak, {}));
    EXPECT_NEAR(ablak.nap, 345, 0.5);  // on the 5th of March the Sun is halfway through Pisces
    EXPECT_GT(ablak.elsoCsucs, 0);
    EXPECT_FALSE(ablak.torles);
    Allapot ujra = a;
    KepletCiklus(ujra);
    EXPECT_EQ(ujra.Keplet.bolygo[1], ablak.nap);
    EXPECT_EQ(ujra.Keplet.hazCsucs[1], ablak.elsoCsucs);
}

TEST(Indulas, OlvashatatlanDatumnalMegall) {
    Allapot a;
    TProbaAblak ablak;
    ablak.datum = "ma";
    EXPECT_FALSE(Indulas(a, ablak, {}));
    EXPECT_TRUE(ablak.hivasok.empty());
}

TEST(Indulas, BetutipusNelkulAPotNev) {
    Allapot a;
    TProbaAblak ablak;
    Indulas(a, ablak, {"/nincs ilyen mappa/"});
    EXPECT_EQ(a.Rajz.szimbolumFont, "AstroMidget Bold");
}

TEST(Indulas, ACimFajlAzAktualisMappabolValo) {
    const TIdeiglenesMappa itt;
    const TIdeiglenesMappa mashol;
    itt.irj("Korvend.txt", "első cím\nm\xE1sodik\n");
    TProbaAblak ablak;
    for (const TIdeiglenesMappa* mappa : {&itt, &mashol}) {
        const TMunkaMappa munka(mappa->ut());
        Allapot a;
        ASSERT_TRUE(Indulas(a, ablak, {}));
        const bool van = mappa == &itt;
        EXPECT_EQ(a.FeliratSzovegek[1].substr(0, 11), van ? "első cím " : "");
        EXPECT_EQ(a.FeliratSzovegek[2].substr(0, 9), van ? "második " : "");
        EXPECT_EQ(a.FeliratSzovegek[3], "");
    }
}

#ifndef _WIN32
/// Where a drive's letter means nothing, the folder's name is the beginning of a plain file name.
TEST(Indulas, ABetutipusARendszerMeghajtoMappajaban) {
    const TIdeiglenesMappa mappa;
    const TMunkaMappa munka(mappa.ut());
    for (const char* fajl : {"times.ttf", "arial.ttf", "Astro Symbols.ttf"})
        mappa.irj(std::string("F:\\WINDOWS\\Fonts\\") + fajl, "");
    Allapot a;
    TProbaAblak ablak;
    ASSERT_TRUE(Indulas(a, ablak, {"/nincs ilyen mappa/"}));
    EXPECT_EQ(a.Rajz.szimbolumFont, "Astro Symbols");
}

TEST(Indulas, ACsovezetekNemCimFajl) {
    const TIdeiglenesMappa mappa;
    const TMunkaMappa munka(mappa.ut());
    const TCsovezetek cso(mappa.fajl("Korvend.txt"));
    ASSERT_TRUE(cso.van());
    Allapot a;
    TProbaAblak ablak;
    ASSERT_TRUE(Indulas(a, ablak, {}));
    for (const std::string& cim : a.FeliratSzovegek) EXPECT_EQ(cim, "");
}
#endif

}  // namespace
