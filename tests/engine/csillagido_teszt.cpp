#include <gtest/gtest.h>

#include "engine/csillagido.h"
#include "tables/efemerida.h"

namespace {

struct TEredmeny {
    double napresz = -1;
    std::int32_t napEltolas = 0;
    std::int32_t ora = -1, perc = -1;
    double mperc = -1;
};

struct THely {
    std::int32_t hosszusag = 68640;
    std::int32_t nyariIdo = 0;
    std::int32_t idozona = 1;
};

TEredmeny szamit(std::int32_t ev, std::int32_t ho, std::int32_t nap, int ora, int perc, int mperc,
                 THely hely = {}) {
    TEredmeny e;
    const std::int32_t kezdet = DatumbolJulianszam(ev, ho, nap);
    std::int32_t julianszam = kezdet;
    CsillagIdo(ora, perc, mperc, e.napresz, julianszam, hely.hosszusag, e.mperc, e.perc, e.ora, hely.nyariIdo,
               hely.idozona);
    e.napEltolas = julianszam - kezdet;
    return e;
}

TEST(CsillagIdo, BudapestEzerkilencszazJanuarMasodikanEjfelkor) {
    const TEredmeny e = szamit(1900, 1, 2, 0, 0, 0);
    EXPECT_EQ(e.napEltolas, -1);
    EXPECT_DOUBLE_EQ(e.napresz, 82800.0 / 86400);
    // 111647 s is 31:00:47, less 24 hours; the fraction is that of 82800 x 0.0027379050925925926 =
    // 226.6985416…
    EXPECT_EQ(e.ora, 7);
    EXPECT_EQ(e.perc, 0);
    EXPECT_NEAR(e.mperc, 47.69854, 1e-5);
    EXPECT_NEAR(e.mperc, 47 + (82800 * 0.0027379050925925926 - 226), 1e-9);
}

TEST(CsillagIdo, NullaOraNyariIdovelAzElozoNap22Ora) {
    const TEredmeny e = szamit(2000, 7, 2, 0, 0, 0, {68640, 1, 1});
    EXPECT_EQ(e.napEltolas, -1);
    EXPECT_DOUBLE_EQ(e.napresz, 22.0 / 24);
}

TEST(CsillagIdo, NyugatiZonabanANapreszEgyFolottEsNincsAtvitel) {
    const TEredmeny e = szamit(2000, 1, 1, 23, 0, 0, {0, 0, -5});
    EXPECT_EQ(e.napEltolas, 0);
    EXPECT_DOUBLE_EQ(e.napresz, 28.0 / 24);
    // 6:39:51 at 0h, 28 hours and 275 s of gain: 34:44:26, less one day.
    EXPECT_EQ(e.ora, 10);
    EXPECT_EQ(e.perc, 44);
    EXPECT_EQ(static_cast<int>(e.mperc), 26);
}

TEST(CsillagIdo, CsakEgyHuszonnegyOratVeszLe) {
    // 2000-09-01 is 244 days after the 6:39:51 of January 1: 22:41:50 at 0h. 28 hours and 275 s later it is
    // 50:46:26; 26 hours remain.
    const TEredmeny e = szamit(2000, 9, 1, 23, 0, 0, {0, 0, -5});
    EXPECT_EQ(e.ora, 26);
    EXPECT_EQ(e.perc, 46);
    EXPECT_DOUBLE_EQ(e.napresz, 28.0 / 24);
}

TEST(CsillagIdo, PontosanHuszonnegyOraNullaLesz) {
    // From 6:40:45 at 0h on 1900-01-01, 17:16:25 and its gain of 170 s make 24:00:00.
    const TEredmeny teli = szamit(1900, 1, 1, 17, 16, 25, {0, 0, 0});
    EXPECT_EQ(teli.napEltolas, 0);
    EXPECT_EQ(teli.ora, 0);
    EXPECT_EQ(teli.perc, 0);
    EXPECT_NEAR(teli.mperc, 62185 * 0.0027379050925925926 - 170, 1e-9);
    const TEredmeny elotte = szamit(1900, 1, 1, 17, 16, 24, {0, 0, 0});
    EXPECT_EQ(elotte.ora, 23);
    EXPECT_EQ(elotte.perc, 59);
    EXPECT_NEAR(elotte.mperc, 59 + (62184 * 0.0027379050925925926 - 170), 1e-9);
}

TEST(CsillagIdo, EjfelkorGreenwichbenASorIdeje) {
    const TEredmeny e = szamit(1900, 1, 2, 0, 0, 0, {0, 0, 0});
    EXPECT_EQ(e.napEltolas, 0);
    EXPECT_DOUBLE_EQ(e.napresz, 0);
    EXPECT_EQ(e.ora, 6);
    EXPECT_EQ(e.perc, 44);
    EXPECT_DOUBLE_EQ(e.mperc, 42);
}

TEST(CsillagIdo, EgyNapAlatt236MasodpercAGyarapodas) {
    // 12 hours gain half of 236.555 s: 6:40:45 + 12 h + 118.2775 s.
    const TEredmeny e = szamit(1900, 1, 1, 12, 0, 0, {0, 0, 0});
    EXPECT_EQ(e.ora, 18);
    EXPECT_EQ(e.perc, 42);
    EXPECT_NEAR(e.mperc, 43.2775, 1e-7);
}

TEST(CsillagIdo, BudapestNyugatiTukorkepe) {
    // 68640 seconds of arc are 76 min 16 s of time: 6:40:45 less that is 5:24:29.
    const TEredmeny e = szamit(1900, 1, 1, 0, 0, 0, {-68640, 0, 0});
    EXPECT_EQ(e.ora, 5);
    EXPECT_EQ(e.perc, 24);
    EXPECT_DOUBLE_EQ(e.mperc, 29);
}

TEST(CsillagIdo, ANyugatiHosszusagTortMasodperceIsElvesz) {
    // The remainder is cut towards zero on both sides of Greenwich: 29 seconds of arc are one second of time.
    const TEredmeny nyugat = szamit(1900, 1, 1, 0, 0, 0, {-29, 0, 0});
    EXPECT_DOUBLE_EQ(nyugat.mperc, 44);
    const TEredmeny kozel = szamit(1900, 1, 1, 0, 0, 0, {-14, 0, 0});
    EXPECT_DOUBLE_EQ(kozel.mperc, 45);
}

TEST(CsillagIdo, ANyariIdoEgyOratVeszEl) {
    const TEredmeny teli = szamit(2000, 7, 1, 12, 0, 0, {68640, 0, 1});
    const TEredmeny nyari = szamit(2000, 7, 1, 13, 0, 0, {68640, 1, 1});
    EXPECT_DOUBLE_EQ(nyari.napresz, 11.0 / 24);
    EXPECT_DOUBLE_EQ(nyari.napresz, teli.napresz);
    EXPECT_EQ(nyari.ora, teli.ora);
    EXPECT_EQ(nyari.perc, teli.perc);
    EXPECT_DOUBLE_EQ(nyari.mperc, teli.mperc);
}

TEST(CsillagIdo, ANyugatiHosszusagLevonodik) {
    // 15 degrees are an hour of time.
    const TEredmeny kelet = szamit(2000, 1, 1, 12, 0, 0, {54000, 0, 0});
    const TEredmeny nulla = szamit(2000, 1, 1, 12, 0, 0, {0, 0, 0});
    const TEredmeny nyugat = szamit(2000, 1, 1, 12, 0, 0, {-54000, 0, 0});
    EXPECT_EQ(kelet.ora, nulla.ora + 1);
    EXPECT_EQ(nyugat.ora, nulla.ora - 1);
    EXPECT_EQ(nyugat.perc, nulla.perc);
    EXPECT_DOUBLE_EQ(nyugat.mperc, nulla.mperc);
}

TEST(CsillagIdo, AHosszusagEgyMasodpercnelRovidebbReszeElvesz) {
    // 15 arcseconds are a second of time.
    const TEredmeny tizenot = szamit(2000, 1, 1, 12, 0, 0, {15, 0, 0});
    const TEredmeny tizennegy = szamit(2000, 1, 1, 12, 0, 0, {14, 0, 0});
    const TEredmeny nulla = szamit(2000, 1, 1, 12, 0, 0, {0, 0, 0});
    EXPECT_DOUBLE_EQ(tizennegy.mperc, nulla.mperc);
    EXPECT_DOUBLE_EQ(tizenot.mperc, nulla.mperc + 1);
}

TEST(CsillagIdo, AzElsoNapElottATablaElsoSoraAll) {
    // 1899-12-31 23:00 in Greenwich reads the copy of row 1, 6:40:45.
    const TEredmeny e = szamit(1900, 1, 1, 0, 0, 0);
    EXPECT_EQ(e.napEltolas, -1);
    // 23 h + 6:40:45 + 76 min 16 s + 226 s = 31:00:47.
    EXPECT_EQ(e.ora, 7);
    EXPECT_EQ(e.perc, 0);
    EXPECT_EQ(static_cast<int>(e.mperc), 47);
}

TEST(CsillagIdo, ANegativIdoMegtartjaCsonkitottReszeit) {
    // Zone 12 and 180 degrees west: on 2000-01-01 at 12:10 the clock of Greenwich shows 0:10, the sidereal
    // sum 6:39:51 + 0:10 - 12 h + 1 s is -5:10:08 and keeps its sign in all parts.
    const TEredmeny e = szamit(2000, 1, 1, 12, 10, 0, {-648000, 0, 12});
    EXPECT_EQ(e.ora, -5);
    EXPECT_EQ(e.perc, -10);
    EXPECT_NEAR(e.mperc, -8 + (600 * 0.0027379050925925926 - 1), 1e-9);
}

TEST(CsillagIdo, ANapBemenetEsAGreenwichiNapKulonJonKi) {
    const TCsillagIdo ejfelUtan = CsillagIdo(2442614, 0, 30, 0, 72540, 0, 1);
    EXPECT_EQ(ejfelUtan.julianszam, 2442613);
    EXPECT_DOUBLE_EQ(ejfelUtan.napresz, 23.5 / 24);
    EXPECT_EQ(CsillagIdo(2442614, 1, 0, 0, 72540, 0, 1).julianszam, 2442614);
}

}  // namespace
