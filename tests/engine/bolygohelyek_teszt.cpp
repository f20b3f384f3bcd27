#include <array>
#include <string>

#include <gtest/gtest.h>

#include "engine/bolygohelyek.h"
#include "tables/efemerida.h"

namespace {

struct TPoz {
    TBolygok b;
    TMozgasok m;
};

TPoz helyek(int julianszam, double napresz) {
    TPoz p;
    BolygoHelyek(julianszam, napresz, p.b, p.m);
    return p;
}

TEST(BolygoHelyek, NullaNapresznelASorErtekei) {
    const TPoz p = helyek(2415020, 0);
    EXPECT_DOUBLE_EQ(p.b[1], 1008552 / 3600.0);
    EXPECT_NEAR(p.b[1], 280.15333, 1e-5);
    EXPECT_DOUBLE_EQ(p.b[2], 980700 / 3600.0);
    EXPECT_DOUBLE_EQ(p.b[10], 270900 / 3600.0);
    EXPECT_EQ(std::string(p.m.begin(), p.m.end()), "DDDDDDDDRR");
}

TEST(BolygoHelyek, EgyNapreszAKovetkezoSorig) {
    const TPoz p = helyek(2415020, 0.5);
    EXPECT_DOUBLE_EQ(p.b[1], (1008552 + 1012223) / 2.0 / 3600);
    EXPECT_DOUBLE_EQ(p.b[9], (306780 + 306660) / 2.0 / 3600);  // Neptune, retrograde
}

TEST(BolygoHelyek, MindATizBolygoANapNegyedeben) {
    // Rows 1 and 2 of the ephemeris, three parts of the first and one of the second.
    constexpr std::array elso{1008552, 980700, 932400, 1102920, 1021920,
                              868080,  963780, 900480, 306780,  270900};
    constexpr std::array masodik{1012223, 1032780, 937020, 1107420, 1024680,
                                 868800,  964200,  900720, 306660,  270840};
    const TPoz p = helyek(2415020, 0.25);
    for (std::size_t i = 0; i < 10; ++i)
        EXPECT_DOUBLE_EQ(p.b[static_cast<int>(i) + 1], (3.0 * elso[i] + masodik[i]) / 4 / 3600) << i;
}

TEST(BolygoHelyek, ANulladikNapEgeszenAzElsoSoronAll) {
    const TPoz p = helyek(2415019, 0.75);
    EXPECT_DOUBLE_EQ(p.b[1], 1008552 / 3600.0);
    EXPECT_DOUBLE_EQ(p.b[10], 270900 / 3600.0);
    EXPECT_EQ(std::string(p.m.begin(), p.m.end()), "DDDDDDDDRR");
}

TEST(BolygoHelyek, AzUtolsoElottiNapMegATablabanVan) {
    const TPoz p = helyek(2480554, 1);
    EXPECT_DOUBLE_EQ(p.b[1], 271855 / 3600.0);
    EXPECT_DOUBLE_EQ(p.b[2], 575220 / 3600.0);
    EXPECT_DOUBLE_EQ(p.b[6], 1029420 / 3600.0);  // Jupiter, retrograde
    EXPECT_EQ(std::string(p.m.begin(), p.m.end()), "DDDDDRRRDD");
}

TEST(BolygoHelyek, EgyFolottANapreszARetrogradotIsTovabbviszi) {
    EXPECT_DOUBLE_EQ(KoztesHossz(1000, 880, 1.25, 'R'), 850);
    EXPECT_DOUBLE_EQ(KoztesHossz(1270000, 24000, 1.5, 'D'), 1270000 + 50000 * 1.5 - 1296000);
}

TEST(BolygoHelyek, ALepesElojeleAMozgasBetujetol) {
    EXPECT_EQ(KoztesLepes(100, 40, 'R'), -60);
    EXPECT_EQ(KoztesLepes(100, 100, 'R'), 0);
    EXPECT_EQ(KoztesLepes(100, 101, 'R'), 1 - 1296000);  // over Aries, the long way round
    EXPECT_EQ(KoztesLepes(40, 100, 'D'), 60);
    EXPECT_EQ(KoztesLepes(100, 100, 'S'), 0);
    EXPECT_EQ(KoztesLepes(101, 100, 'D'), 1296000 - 1);
    EXPECT_EQ(KoztesLepes(101, 100, 'S'), 1296000 - 1);
}

TEST(BolygoHelyek, AzAtfordulasElottAzErtekMarad) {
    EXPECT_DOUBLE_EQ(KoztesHossz(1295000, 20000, 0.04, 'D'), 1295840);
    EXPECT_DOUBLE_EQ(KoztesHossz(0, 21000, 0, 'D'), 0);
    EXPECT_DOUBLE_EQ(KoztesHossz(0, 1295940, 0, 'R'), 1296000);
}

TEST(BolygoHelyek, AHoldAKosFolyamatanAtfordul) {
    // From 1295000 to 20000 the step is 21000; half of it ends at 1305500, that is 9500.
    EXPECT_DOUBLE_EQ(KoztesHossz(1295000, 20000, 0.5, 'D'), 9500);
}

TEST(BolygoHelyek, ARetrogradAKoson_Visszafele) {
    EXPECT_DOUBLE_EQ(KoztesHossz(100, 1295980, 1, 'R'), 1295980);
    EXPECT_DOUBLE_EQ(KoztesHossz(100, 1295980, 0.5, 'R'), 40);
}

TEST(BolygoHelyek, AzAtfordulasAszimmetriaja) {
    // Direct: the full circle is reduced to 0. Retrograde: 0 is lifted to the full circle.
    EXPECT_DOUBLE_EQ(KoztesHossz(1295940, 0, 1, 'D'), 0);
    EXPECT_DOUBLE_EQ(KoztesHossz(60, 0, 1, 'R'), 1296000);
}

TEST(BolygoHelyek, AzAlloLepesNelkulMarad) {
    EXPECT_DOUBLE_EQ(KoztesHossz(5000, 5000, 0.7, 'S'), 5000);
    EXPECT_DOUBLE_EQ(KoztesHossz(1295940, 60, 0.5, 'S'), 0);  // moves like a direct one
}

TEST(BolygoHelyek, EllentetesLepesuRetrogradAHosszabbUton) {
    // A forward step with 'R' is read the long way round.
    EXPECT_DOUBLE_EQ(KoztesHossz(1000, 1060, 0.5, 'R'), 1000 + (60 - 1296000) * 0.5 + 1296000);
}

TEST(BolygoHelyek, AzAlloBetuAtmegy) {
    // Row 37760 (2003-05-20): Mercury and Neptune stand still.
    const TPoz p = helyek(julianszamAlap + 37760, 0.25);
    EXPECT_EQ(p.m[3], 'S');
    EXPECT_EQ(p.m[9], 'S');
    EXPECT_EQ(p.m[10], 'R');
    EXPECT_EQ(p.m[1], 'D');
    EXPECT_EQ(p.m[2], 'D');
}

TEST(BolygoHelyek, EgyFolottANapreszTovabbvisz) {
    const TPoz p = helyek(2415020, 28.0 / 24);
    EXPECT_DOUBLE_EQ(p.b[1], (1008552 + (1012223 - 1008552) * (28.0 / 24)) / 3600);
}

TEST(BolygoHelyek, AzUtolsoNapSajatMasolataigTart) {
    const TPoz p = helyek(2480555, 0.5);
    EXPECT_DOUBLE_EQ(p.b[1], 271855 / 3600.0);
}

}  // namespace
