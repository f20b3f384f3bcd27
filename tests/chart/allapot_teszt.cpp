// What the program starts with.

#include <array>
#include <string>

#include <gtest/gtest.h>

#include "chart/allapot.h"
#include "chart/statuszsor.h"

namespace {

TEST(Allapot, AKepletHelyeBudapestAmigMasNincs) {
    const TKeplet k;
    EXPECT_EQ(k.idozona, 1);
    EXPECT_EQ(k.szelesseg, 171000);
    EXPECT_EQ(k.hosszusag, 68640);
    EXPECT_EQ(k.szelessegJel, 'N');
    EXPECT_EQ(k.hosszusagJel, 'E');
    EXPECT_EQ(k.nyariIdo, 0);
    EXPECT_EQ(k.helyseg, "");
    EXPECT_EQ(k.pillanat, (TPillanat{1900, 1, 1, 0, 0, 0}));
    EXPECT_EQ(k.julianszam, napSzama(k.pillanat));
    EXPECT_EQ(k.napresz, 0);
    EXPECT_EQ(k.armcOra, 0);
    EXPECT_EQ(k.armcPerc, 0);
    EXPECT_EQ(k.armcMperc, 0);
}

TEST(Allapot, ASzemelyZonaIdobenNevtelen) {
    const TSzemely sz;
    EXPECT_EQ(sz.nev + sz.jegyzet + sz.jegyzetMentett + sz.hangJel, "");
    EXPECT_EQ(sz.idoTipus, TIdoTipus::ZN);
    EXPECT_EQ(sz.idoTipusIndex, 0);
    EXPECT_FALSE(sz.valasztottIdoTipus.has_value());
}

TEST(Allapot, AzEsemenyekHelyeiUresek) {
    const TEsemenyTar tar;
    EXPECT_EQ(tar.EsemenyDb, 0);
    EXPECT_EQ(tar.esemenyek.end() - tar.esemenyek.begin(), 20);
    for (const TEletesemeny& e : tar.esemenyek) {
        EXPECT_EQ(e.esemeny + e.analogia + e.helyseg, "");
        EXPECT_EQ(e.pillanat, (TPillanat{1900, 1, 1, 0, 0, 0}));
        EXPECT_EQ(e.idozona, 1);
        EXPECT_EQ(e.nyariIdo, 0);
        for (const int ertek : {e.hosszFok, e.hosszPerc, e.szelFok, e.szelPerc, e.solarNap})
            EXPECT_EQ(ertek, 0);
    }
}

TEST(Allapot, AJelzokAProgramIndulasakor) {
    const Allapot a;
    for (const bool igaz : {a.MostFut, a.TeljesTorles, a.MemoKicsi, a.Megsem2, a.Megsem3, a.Megsem14,
                            a.TercierAblak, a.JelszoRendben})
        EXPECT_TRUE(igaz);
    for (const bool hamis :
         {a.VisszaMod, a.Modositott, a.LeptetesVolt, a.MundanFrissites, a.MundanAblakNyitva, a.KeresesVolt,
          a.PontositasFut, a.PrimerFut, a.HangAktiv, a.Rajz.nyomtatasMod})
        EXPECT_FALSE(hamis);
    EXPECT_EQ(a.KepletTipus, TKepletTipus::radix);
    EXPECT_EQ(a.MostSzamlalo, 0);
    EXPECT_EQ(a.FeliratSzamlalo, 400);
    EXPECT_EQ(a.FeliratIndex, 0);
    EXPECT_EQ(a.JelszoProba, 0);
    EXPECT_EQ(a.AktivHaz, 1);
    EXPECT_EQ(a.PontositasHatotav, 25);
    EXPECT_EQ(a.TercierOrbisNap, 45.0);
    EXPECT_EQ(a.Visszateresek.szamlalo, 0);
    EXPECT_EQ(a.OrbisTabla, OrbisAlap);
}

TEST(Allapot, ANezetekSzamai) {
    EXPECT_EQ(static_cast<int>(TKepletTipus::radix), 1);
    EXPECT_EQ(static_cast<int>(TKepletTipus::mundan), 2);
    EXPECT_EQ(static_cast<int>(TKepletTipus::dekad), 3);
}

TEST(Allapot, AFeliratokAzElsoKepElott) {
    const TFeliratok f;
    EXPECT_EQ(f.statusz,
              (std::array<std::string, 7>{"Típus", "ARMC", "Név", "Szül.idő", "Hely", "Koordináták", ""}));
    EXPECT_EQ(f.mostGomb, "Állj");
    EXPECT_EQ(f.valtGomb, "Mundán");
    EXPECT_EQ(f.leptetoCim, "Léptet");
    EXPECT_EQ(f.hangCim, "Hanglejátszás");
    EXPECT_EQ(f.cim + f.memo, "");
}

}  // namespace
