#include <gtest/gtest.h>

#include "engine/keszlet.h"
#include "iranyteszt.h"
#include "predictive/ingresszio.h"
#include "predictive/natalis.h"
#include "predictive/tercier.h"

namespace {

/// The search leaves the birth as the chart's moment, also when a stepped one was on screen.
TEST(Natalis, ASzuletesMaradAKepletPillanata) {
    for (const bool tercier : {true, false}) {
        Allapot a = szuletes();
        a.Keplet.pillanat = {1990, 1, 2, 3, 4, 5};
        a.Keplet.helyseg = "Pécs";
        const THazcsucsok kep = a.Keplet.hazCsucs;
        if (tercier)
            TercierKeres(a, szuletesnap, {2000, 1, 1}, "Szeged", 45);
        else
            IngresszioKeres(a, szuletesnap, {2000, 1, 1}, "Szeged");
        const Allapot natalis = szuletes();
        EXPECT_EQ(a.Keplet.pillanat, szuletesnap);
        EXPECT_EQ(a.Keplet.julianszam, natalis.Keplet.julianszam);
        EXPECT_EQ(a.Keplet.Bolygok, natalis.Keplet.Bolygok);
        EXPECT_EQ(a.Keplet.helyseg, "Pécs");
        EXPECT_EQ(a.Keplet.hazCsucs, kep);
    }
}

/// The birth place gives the sidereal time and the latitude, whatever place is on screen.
TEST(Natalis, ASzuletesHelyevelSzamolEsNemAKepernyoevel) {
    const Allapot szeged = szuletes();
    Allapot a = szuletesiKeplet(szuletesnap, "Pécs");
    ASSERT_NE(a.Keplet.hosszusag, szeged.Keplet.hosszusag);
    NatalisBolygok(a, szuletesnap, "Szeged");
    EXPECT_EQ(a.Keplet.hosszusag, szeged.Keplet.hosszusag);
    EXPECT_EQ(a.Keplet.szelesseg, szeged.Keplet.szelesseg);
    EXPECT_EQ(a.Keplet.armcOra, szeged.Keplet.armcOra);
    EXPECT_EQ(a.Keplet.armcPerc, szeged.Keplet.armcPerc);
    EXPECT_EQ(a.Keplet.armcMperc, szeged.Keplet.armcMperc);
    EXPECT_EQ(a.Keplet.helyseg, "Pécs");
}

}  // namespace
