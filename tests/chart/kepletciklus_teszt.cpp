// The recompute cycle.

#include <random>

#include <gtest/gtest.h>

#include "chart/kepletciklus.h"
#include "chart/statuszsor.h"
#include "mintakeplet.h"
#include "mundanteszt.h"

namespace {

TEST(KepletCiklus, IsmeretlenHelyAzAlapertekekkel) {
    const Allapot a = kepernyoKeplet({1975, 3, 21, 6, 4, 9}, "Xanadu");
    EXPECT_EQ(a.Keplet.idozona, 1);
    EXPECT_EQ(a.Feliratok.statusz[panelKoordinata], "19°4'K  47°30'É");
}

TEST(KepletCiklus, AKepernyoTablaiTeljesMasolatok) {
    const Allapot a = kepernyoKeplet({1975, 3, 21, 6, 4, 9}, "Szeged");
    EXPECT_EQ(a.Keplet.bolygo, a.Keplet.Bolygok);
    EXPECT_EQ(a.Keplet.hazCsucs, a.Keplet.Hazcsucsok);
    EXPECT_EQ(a.Keplet.mozgas, a.Keplet.Mozgasok);
    EXPECT_EQ(a.Elteresek, a.Munka.Elteresek);
    EXPECT_EQ(a.DekadKezdetek, a.Munka.DekadKezdetek);
    EXPECT_EQ(a.DekadKezdetek[1], 350);
    EXPECT_EQ(a.FenyszogOrbis, a.Munka.FenyszogOrbis);
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(a.FenyszogRadix[i][i], '.');
        EXPECT_EQ(a.EgyuttallasMatrix[i][i], '+');
        EXPECT_EQ(a.AlsoFelsoMatrix[i][i], '+');
    }
    // Sun at the end of Pisces and Jupiter at the beginning of Aries are conjunct, and Jupiter lies ahead.
    EXPECT_EQ(a.FenyszogRadix[1][6], 'M');
    EXPECT_EQ(a.EgyuttallasMatrix[1][6], 'M');
    EXPECT_EQ(a.AlsoFelsoMatrix[1][6], 'F');
    EXPECT_EQ(a.AlsoFelsoMatrix[6][1], 'A');
}

TEST(MundanLanc, UgyanaztAdjaMintAKepernyoKeplete) {
    std::mt19937 veletlen(11);
    for (int n = 0; n < 4000; ++n) {
        const TProbaPillanat p = veletlenPillanat(veletlen);
        const TMundanLanc lanc = lefuttat(p);

        Allapot a;
        TKeplet& k = a.Keplet;
        k.julianszam = p.julianszam;
        JulianszambolDatum(k.julianszam, k.pillanat.ev, k.pillanat.ho, k.pillanat.nap);
        k.pillanat.ora = p.ora, k.pillanat.perc = p.perc, k.pillanat.mperc = p.mperc;
        k.helyseg = "Szeged";
        HelyAdatok(a);  // summer time; the place is set after it
        k.idozona = p.hely.idozona, k.szelesseg = p.hely.szelesseg, k.hosszusag = p.hely.hosszusag;
        CsillagIdoLepes(k);
        KepletCiklus(a);

        ASSERT_EQ(lanc.Bolygok, k.Bolygok);
        ASSERT_EQ(lanc.Mozgasok, k.Mozgasok);
        ASSERT_EQ(lanc.Hazcsucsok, k.Hazcsucsok);
        ASSERT_EQ(lanc.BolygoHazak, k.BolygoHazak);
        ASSERT_EQ(lanc.EgyuttallasMatrix, a.EgyuttallasMatrix);
        ASSERT_EQ(lanc.AlsoFelsoMatrix, a.AlsoFelsoMatrix);
        for (int i = 1; i <= 10; ++i) {
            ASSERT_EQ(lanc.JegySzam[i], static_cast<int>(k.Bolygok[i] / 30) + 1);
            for (int j = 1; j <= 10; ++j) {
                if (i == j) {
                    ASSERT_EQ(lanc.FenyszogRadix[i][j], '+');
                    ASSERT_EQ(a.FenyszogRadix[i][j], '.');
                } else {
                    ASSERT_EQ(lanc.FenyszogRadix[i][j], a.FenyszogRadix[i][j]);
                }
            }
        }
    }
}

}  // namespace
