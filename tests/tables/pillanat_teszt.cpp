#include <gtest/gtest.h>

#include "tables/pillanat.h"

namespace {

struct TEltolt {
    TPillanat pillanat;
    int nap;
};

TEltolt eltol(int ora, int orak) {
    TPillanat p{2000, 2, 29, ora, 30, 15};
    const int nap = oraEltolas(p, orak);
    return {p, nap};
}

void egyezik(int ora, int orak, int ujOra, int nap) {
    const TEltolt e = eltol(ora, orak);
    EXPECT_EQ(e.pillanat, (TPillanat{2000, 2, 29, ujOra, 30, 15})) << ora << ' ' << orak;
    EXPECT_EQ(e.nap, nap) << ora << ' ' << orak;
}

TEST(OraEltolas, ANaponBelulNincsAtvitel) {
    egyezik(12, 2, 14, 0);
    egyezik(12, -12, 0, 0);
    egyezik(12, 11, 23, 0);
    egyezik(12, 0, 12, 0);
}

TEST(OraEltolas, HuszonnegynelAKovetkezoNap) {
    egyezik(23, 1, 0, 1);
    egyezik(20, 12, 8, 1);
}

TEST(OraEltolas, NullaAlattAzElozoNap) {
    egyezik(0, -1, 23, -1);
    egyezik(0, -13, 11, -1);
}

TEST(OraEltolas, LegfeljebbEgyNapotVisz) {
    egyezik(23, 49, 48, 1);
    egyezik(0, -49, -25, -1);
}

TEST(NapSzama, AzErvenyesDatumSzama) {
    EXPECT_EQ(napSzama({1900, 1, 1}), 2415020);
    // A hundred years with 24 leap days.
    EXPECT_EQ(napSzama({2000, 1, 1}), 2415020 + 36524);
    EXPECT_EQ(napSzama({2000, 2, 30}), napSzama({2000, 3, 1}));
}

TEST(NapSzama, ADatumUgyAllAhogyBeirtak) {
    TPillanat p{2100, 14, 40, 25, 61, 62};
    const TPillanat elobb = p;
    const int nap = napSzama(p);
    EXPECT_EQ(p, elobb);
    // The reference takes the clamps, and the same number.
    EXPECT_EQ(DatumbolJulianszam(p), nap);
    EXPECT_EQ(p, (TPillanat{2078, 12, 32, 25, 61, 62}));
}

TEST(JulianszambolDatum, AzOraMarad) {
    TPillanat p{1975, 7, 21, 6, 4, 9};
    JulianszambolDatum(2415020 + 36524 + 59, p);
    EXPECT_EQ(p, (TPillanat{2000, 2, 29, 6, 4, 9}));
}

TEST(NyariIdo, AzOrakatallitasPillanataban) {
    EXPECT_EQ(NyariIdoE(TPillanat{2000, 10, 29, 2, 59, 59}), 1);
    EXPECT_EQ(NyariIdoE(TPillanat{2000, 10, 29, 3, 0, 0}), 0);
    EXPECT_EQ(NyariIdoE(TPillanat{2000, 1, 15, 12, 0, 0}), 0);
}

TEST(NyariIdo, ANemLetezoNapAHonaptolSzamolva) {
    // 31 April is 1 May, on which the summer time of 1945 began at 23 o'clock.
    EXPECT_EQ(NyariIdoE(TPillanat{1945, 4, 31, 22, 59, 59}), 0);
    EXPECT_EQ(NyariIdoE(TPillanat{1945, 4, 31, 23, 0, 0}), 1);
}

}  // namespace
