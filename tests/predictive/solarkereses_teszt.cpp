#include <gtest/gtest.h>

#include "engine/bolygohelyek.h"
#include "predictive/solarkereses.h"
#include "tables/efemerida.h"

namespace {

double hossz(const TSolar& s) {
    TBolygok b;
    TMozgasok m;
    BolygoHelyek(s.napsorszam + julianszamAlap, s.napresz, b, m);
    return b[1] * 3600;
}

int sor(std::int32_t ev, std::int32_t ho, std::int32_t nap) {
    return DatumbolJulianszam(ev, ho, nap) - julianszamAlap;
}

TEST(SolarKereses, AzUtolsoEvforduloraTalal) {
    const double s = 100.5 * 3600;
    const TSolar solar = SolarKereses(s, sor(2000, 12, 1));
    EXPECT_NEAR(hossz(solar), s, 1e-6);
    EXPECT_GE(solar.napsorszam, sor(2000, 6, 25));
    EXPECT_LE(solar.napsorszam, sor(2000, 7, 10));
    // The return on the starting day itself counts, whatever the hour.
    EXPECT_EQ(SolarKereses(s, solar.napsorszam).napsorszam, solar.napsorszam);
    EXPECT_NEAR(SolarKereses(s, solar.napsorszam - 1).napsorszam, solar.napsorszam - 365, 1);
    EXPECT_EQ(solar.ido.ora * 3600 + solar.ido.perc * 60 + solar.ido.mperc,
              static_cast<int>(solar.napresz * 86400));
}

TEST(SolarKereses, APontosTalalatTortje_EgyFeletti) {
    const int nap = sor(2000, 7, 2);
    const double s = Efemerida[nap].nap_hossz;
    const TSolar solar = SolarKereses(s, nap + 5);
    EXPECT_EQ(solar.napsorszam, nap);
    const double lepes = Efemerida[nap + 1].nap_hossz - Efemerida[nap].nap_hossz;
    EXPECT_DOUBLE_EQ(solar.napresz, 1296000 / lepes);
    EXPECT_GT(solar.ido.ora, 8000);
}

TEST(SolarKereses, AHalakVegenAHaromszazhatvanasHatar) {
    // On the crossing day from a to past Aries 0 a longitude between a and the end of Pisces is compared with
    // 360.
    int nap = sor(2000, 3, 25);
    while (Efemerida[nap].nap_hossz < Efemerida[nap + 1].nap_hossz) --nap;
    const double s = Efemerida[nap].nap_hossz + 30;
    ASSERT_LT(s, 1296000);
    const TSolar solar = SolarKereses(s, sor(2000, 12, 1));
    EXPECT_LT(solar.napsorszam, nap - 300);  // an earlier year whose pair holds it plainly
    EXPECT_NEAR(hossz(solar), s, 1e-6);
    // Past Aries 0 the crossing day is found.
    EXPECT_EQ(SolarKereses(30, sor(2000, 12, 1)).napsorszam, nap);
}

TEST(SolarKereses, ATablaElejenMegall) {
    EXPECT_EQ(SolarKereses(1e9, 500).napsorszam, 1);
    const double masodikUtan = Efemerida[2].nap_hossz + 60;  // in the second day's step
    EXPECT_EQ(SolarKereses(masodikUtan, 2).napsorszam, 2);
    EXPECT_EQ(SolarKereses(masodikUtan, 1).napsorszam, 1);
}

TEST(SolarKeplet, AGreenwichiOraraADatumNapjan) {
    const TSolar solar{36525, 0.5, 12, 0, 0};
    const TSolarKeplet k = SolarKeplet(solar, 0, 171000);
    EXPECT_EQ(k.ido.julianszam, 36525 + 2415019);
    EXPECT_DOUBLE_EQ(k.ido.napresz, 0.5);
    // 2000-01-01 12h in Greenwich: sidereal time 18:42; the Midheaven at 279 to 280 degrees.
    EXPECT_EQ(k.ido.armcOra, 18);
    EXPECT_NEAR(k.ido.armcPerc, 42, 1);
    EXPECT_NEAR(k.csucsok[10], 279.6, 0.5);
}

}  // namespace
