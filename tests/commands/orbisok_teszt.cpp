// The recompute after the orb settings.

#include <utility>

#include <gtest/gtest.h>

#include "commands/orbisok.h"
#include "mintakeplet.h"
#include "probaablak.h"

namespace {

/// A chart on screen while a search has left another one in the work arrays.
Allapot idegenMunkaval(const Allapot& kep) {
    Allapot a = kep;
    const Allapot masik = szuletesiKeplet({1990, 12, 3, 18, 30, 0}, "Pécs");
    a.Keplet.Bolygok = masik.Keplet.Bolygok;
    a.Keplet.Mozgasok = masik.Keplet.Mozgasok;
    a.Keplet.Hazcsucsok = masik.Keplet.Hazcsucsok;
    a.Keplet.BolygoHazak = masik.Keplet.BolygoHazak;
    a.Munka = masik.Munka;
    return a;
}

TEST(OrbisUjraszamitas, AKepKepletebolHaMasAllAMunkatombokbenIs) {
    const Allapot kep = szuletesiKeplet({1975, 7, 21, 6, 4, 9});
    Allapot a = idegenMunkaval(kep);
    for (TJelMatrix* m : {&a.FenyszogRadix, &a.EgyuttallasMatrix, &a.AlsoFelsoMatrix})
        for (auto& sor : *m) sor.tolt('x');
    a.Elteresek = {};
    a.FenyszogOrbis = {};
    a.Uralkodok = {};
    TProbaAblak ablak;
    OrbisUjraszamitas(a, ablak);
    EXPECT_EQ(a.Keplet.Bolygok, kep.Keplet.bolygo);
    EXPECT_EQ(a.Keplet.Mozgasok, kep.Keplet.mozgas);
    EXPECT_EQ(a.Keplet.Hazcsucsok, kep.Keplet.hazCsucs);
    EXPECT_EQ(a.Keplet.bolygo, kep.Keplet.bolygo);
    EXPECT_EQ(a.Keplet.hazCsucs, kep.Keplet.hazCsucs);
    EXPECT_EQ(a.Keplet.BolygoHazak, kep.Keplet.BolygoHazak);
    EXPECT_EQ(a.Elteresek, kep.Elteresek);
    EXPECT_EQ(a.FenyszogOrbis, kep.FenyszogOrbis);
    EXPECT_EQ(a.FenyszogRadix, kep.FenyszogRadix);
    EXPECT_EQ(a.EgyuttallasMatrix, kep.EgyuttallasMatrix);
    EXPECT_EQ(a.AlsoFelsoMatrix, kep.AlsoFelsoMatrix);
    EXPECT_EQ(a.Uralkodok.UralkodoSzoveg, kep.Uralkodok.UralkodoSzoveg);
    EXPECT_EQ(a.Uralkodok.MundanUralkodoSzoveg, kep.Uralkodok.MundanUralkodoSzoveg);
    EXPECT_EQ(a.Uralkodok.DekadSzoveg, kep.Uralkodok.DekadSzoveg);
}

TEST(OrbisUjraszamitas, AzUjOrbisokSzerint) {
    // 94 degrees apart, decans 100 degrees apart: a square by an orb of 4 and more alone.
    Allapot a = szuletesiKeplet({1975, 7, 21, 6, 4, 9});
    a.Keplet.bolygo[1] = 18;
    a.Keplet.bolygo[2] = 112;
    TProbaAblak ablak;
    for (const auto& [orbis, jel] : {std::pair{8.0, 'R'}, std::pair{3.0, '.'}}) {
        for (int sor = 1; sor <= 12; ++sor) a.OrbisTabla[sor].tolt(orbis);
        OrbisUjraszamitas(a, ablak);
        EXPECT_EQ(a.FenyszogRadix[1][2], jel) << orbis;
    }
}

TEST(OrbisUjraszamitas, AKepletAzAblakban) {
    Allapot a = szuletesiKeplet({1975, 7, 21, 6, 4, 9});
    a.PrimerFut = true;
    TProbaAblak ablak;
    OrbisUjraszamitas(a, ablak);
    EXPECT_EQ(ablak.hivasok, (THivasok{"Ervenytelenit", "RajzolKeplet", "PrimerFuttat"}));
    EXPECT_FALSE(a.TeljesTorles);
}

}  // namespace
