#include <gtest/gtest.h>

#include "engine/hazak.h"
#include "tables/haztablak.h"

namespace {

THazcsucsok csucsok(int ora, int perc, double mperc, int szelesseg) {
    THazcsucsok h;
    Hazak(ora, perc, mperc, h, szelesseg);
    return h;
}

constexpr int fok(int f, int p = 0) {
    return f * 3600 + p * 60;
}

double cella(int szelesseg, int ramc, std::size_t oszlop) {
    return HazTabla[static_cast<std::size_t>(szelesseg - 42)][static_cast<std::size_t>(ramc)][oszlop] / 60.0;
}

TEST(Hazak, AszcendensKetSzelessegKozott) {
    EXPECT_NEAR(csucsok(0, 0, 0, 171000)[1], 113.46667, 1e-5);
    EXPECT_DOUBLE_EQ(csucsok(0, 0, 0, 171000)[1], (6786 + 44 * 1800 / 3600.0) / 60);
}

TEST(Hazak, RacspontonATablaCellaja) {
    const THazcsucsok h = csucsok(0, 0, 0, fok(42));
    EXPECT_DOUBLE_EQ(h[1], 6583 / 60.0);
    EXPECT_DOUBLE_EQ(h[2], 7736 / 60.0);
    EXPECT_DOUBLE_EQ(h[3], 9080 / 60.0);
    EXPECT_DOUBLE_EQ(h[11], 2194 / 60.0);
    EXPECT_DOUBLE_EQ(h[12], 4558 / 60.0);
    EXPECT_DOUBLE_EQ(h[10], 0);
    EXPECT_DOUBLE_EQ(csucsok(0, 4, 0, fok(42))[1], 6631 / 60.0);
}

TEST(Hazak, AzEgeszFokElottiMasodpercMegAzAlsoSavbanAll) {
    for (int f = 43; f <= 60; ++f)
        EXPECT_NEAR(csucsok(0, 0, 0, fok(f) - 1)[1], (cella(f - 1, 0, 0) + 3599 * cella(f, 0, 0)) / 3600,
                    1e-9)
            << f;
}

TEST(Hazak, EgyFokRamcNegyPercCsillagido) {
    // Two minutes past the grid: half way between the rows 0 and 1.
    const THazcsucsok h = csucsok(0, 2, 0, fok(42));
    EXPECT_DOUBLE_EQ(h[1], (6583 + 6631) / 2.0 / 60);
    EXPECT_DOUBLE_EQ(h[10], 3924 / 2.0 / 3600);
}

TEST(Hazak, ElobbASzelessegAztanAzIdo) {
    const THazcsucsok h = csucsok(0, 1, 30, fok(42, 15));
    // (6621 - 6583) x 900 / 3600 at row 0, then 90 of 240 s towards row 1.
    const double a = (6621 - 6583) * 900 / 3600.0 + 6583;
    const double b = (HazTabla[1][1][0] - 6631) * 900 / 3600.0 + 6631;
    EXPECT_DOUBLE_EQ(h[1], ((b - a) * 90 / 240 + a) / 60);
}

TEST(Hazak, ANegyPercenBeluliPercAMaradekbaMegy) {
    // 5:43:30 stands 210 seconds past row 85 (5:40).
    const THazcsucsok h = csucsok(5, 43, 30, fok(50));
    EXPECT_DOUBLE_EQ(h[1], cella(50, 85, 0) + (cella(50, 86, 0) - cella(50, 85, 0)) * 210 / 240);
    EXPECT_DOUBLE_EQ(h[3], cella(50, 85, 2) + (cella(50, 86, 2) - cella(50, 85, 2)) * 210 / 240);
    EXPECT_DOUBLE_EQ(h[12], cella(50, 85, 4) + (cella(50, 86, 4) - cella(50, 85, 4)) * 210 / 240);
    EXPECT_DOUBLE_EQ(h[10], (McTabla[85] + (McTabla[86] - McTabla[85]) * 210 / 240.0) / 3600);
}

TEST(Hazak, MindenRacspontATablaSajatErteke) {
    constexpr int hazak[]{1, 2, 3, 11, 12};
    for (int f = 42; f <= 60; f += 6) {
        for (int r = 0; r < 360; ++r) {
            const THazcsucsok h = csucsok(r / 15, r % 15 * 4, 0, fok(f));
            for (std::size_t c = 0; c < 5; ++c)
                ASSERT_DOUBLE_EQ(h[hazak[c]], cella(f, r, c)) << f << ' ' << r << ' ' << c;
            ASSERT_DOUBLE_EQ(h[10], McTabla[static_cast<std::size_t>(r)] / 3600.0) << r;
        }
    }
}

TEST(Hazak, BudapestElsoRacsonKivuliKepe) {
    // The local sidereal time 7:00:47.69854 of Budapest, 47 degrees 30 minutes: 47.69854 s past row 105.
    const THazcsucsok h = csucsok(7, 0, 47.69854, 171000);
    const double a = (cella(47, 105, 0) + cella(48, 105, 0)) / 2;
    const double b = (cella(47, 106, 0) + cella(48, 106, 0)) / 2;
    EXPECT_NEAR(h[1], a + (b - a) * 47.69854 / 240, 1e-9);
    EXPECT_NEAR(h[10], (McTabla[105] + (McTabla[106] - McTabla[105]) * 47.69854 / 240) / 3600, 1e-9);
}

TEST(Hazak, NegyvenketFoknalAzElsoBlokk) {
    EXPECT_DOUBLE_EQ(csucsok(0, 0, 0, fok(42))[12], 4558 / 60.0);
    EXPECT_DOUBLE_EQ(csucsok(0, 0, 0, fok(42, 30))[12], (4558 + 4591) / 2.0 / 60);
}

TEST(Hazak, AzUtolsoFokFeleutonKetBlokkKozott) {
    EXPECT_DOUBLE_EQ(csucsok(0, 0, 0, fok(59, 30))[11], (cella(59, 0, 3) + 2517 / 60.0) / 2);
}

TEST(Hazak, HatvanFoknalAzUtolsoBlokkJon) {
    EXPECT_DOUBLE_EQ(csucsok(0, 0, 0, fok(60))[1], 7474 / 60.0);
    EXPECT_DOUBLE_EQ(csucsok(0, 0, 0, fok(60))[12], 5533 / 60.0);
}

TEST(Hazak, ASavonKivuliSzelessegASavSzelere) {
    EXPECT_EQ(csucsok(5, 6, 7, fok(41, 59)), csucsok(5, 6, 7, fok(42)));
    EXPECT_EQ(csucsok(5, 6, 7, -fok(33)), csucsok(5, 6, 7, fok(42)));
    EXPECT_EQ(csucsok(5, 6, 7, fok(75)), csucsok(5, 6, 7, fok(60)));
}

TEST(Hazak, ASzemkoztiHazakPontosan180Fokra) {
    for (int ora = 0; ora < 24; ++ora) {
        const THazcsucsok h = csucsok(ora, 17, 31.5, 171000);
        for (int i = 1; i <= 3; ++i) EXPECT_DOUBLE_EQ(h[i + 6], h[i] < 180 ? h[i] + 180 : h[i] - 180);
        for (int i = 10; i <= 12; ++i) EXPECT_DOUBLE_EQ(h[i - 6], h[i] < 180 ? h[i] + 180 : h[i] - 180);
    }
}

TEST(Hazak, Az359SorUtanANullasJon) {
    const THazcsucsok h = csucsok(23, 58, 0, fok(42));
    EXPECT_DOUBLE_EQ(h[10], (1292076 + (1296000 - 1292076) / 2.0) / 3600);
    EXPECT_DOUBLE_EQ(h[1], (cella(42, 359, 0) + cella(42, 0, 0)) / 2);
}

TEST(Hazak, ACsucs360FoleKerulhet) {
    // At 58 degrees house 2 stands at 21599 minutes at RAMC 240 and past Aries 0 at 241: the later row is
    // lifted.
    const int b = HazTabla[16][241][1];
    ASSERT_GT(b, 2);
    ASSERT_LT(b, 200);
    const THazcsucsok h = csucsok(16, 3, 0, fok(58));
    EXPECT_DOUBLE_EQ(h[2], ((b + 21600 - 21599) * 180 / 240.0 + 21599) / 60);
    EXPECT_GT(h[2], 360);
    EXPECT_DOUBLE_EQ(h[8], h[2] - 180);
}

TEST(Hazak, Ramc240NelASzelessegekKozottNincsAtfordulas) {
    // House 2 stands at 0, 21599, 0, 21599 minutes for 57 to 60 degrees.
    EXPECT_DOUBLE_EQ(csucsok(16, 0, 0, fok(57, 30))[2], 21599 / 2.0 / 60);
    EXPECT_DOUBLE_EQ(csucsok(16, 0, 0, fok(58, 30))[2], 21599 / 2.0 / 60);
    EXPECT_DOUBLE_EQ(csucsok(16, 0, 0, fok(59, 30))[2], 21599 / 2.0 / 60);
    EXPECT_DOUBLE_EQ(csucsok(16, 0, 0, fok(56, 30))[2], 0);
}

TEST(Hazak, Ramc240NelARosszMasodikHazIdovelSemJavul) {
    // Half way from 57 to 58 degrees the false 10799.5 minutes of RAMC 240 is followed by the true, small
    // value of 241, which is lifted above it: the cusp runs through half of the circle in four minutes.
    const double a = 21599 / 2.0;
    const double b = (cella(57, 241, 1) + cella(58, 241, 1)) / 2 * 60 + 21600;
    EXPECT_DOUBLE_EQ(csucsok(16, 2, 0, fok(57, 30))[2], (a + (b - a) / 2) / 60);
}

TEST(Hazak, ANegativCsillagidoSoraKorbeer) {
    // -1 h is RAMC -15, row 345, also for 23 h.
    EXPECT_EQ(csucsok(-1, 0, 0, 171000), csucsok(23, 0, 0, 171000));
    // 26 h is row 30, as for 2 h.
    EXPECT_EQ(csucsok(26, 0, 0, 171000), csucsok(2, 0, 0, 171000));
}

TEST(Hazak, ASzaznyolcvanFokKorulIsASzemkoztiFelen) {
    // Two minutes of sidereal time are half a degree of right ascension on either side of Libra 0.
    const THazcsucsok elotte = csucsok(11, 58, 0, fok(47));
    EXPECT_GT(elotte[10], 179);
    EXPECT_LT(elotte[10], 180);
    EXPECT_EQ(elotte[4], elotte[10] + 180);
    const THazcsucsok utana = csucsok(12, 2, 0, fok(47));
    EXPECT_GT(utana[10], 180);
    EXPECT_LT(utana[10], 181);
    EXPECT_EQ(utana[4], utana[10] - 180);
}

TEST(Hazak, ASzaznyolcvanFokosCsucsSzemkoztjeNulla) {
    // Sidereal time 12 h is the start of Libra on the meridian, 0 h that of Aries.
    const THazcsucsok delben = csucsok(12, 0, 0, fok(47));
    EXPECT_EQ(delben[10], 180);
    EXPECT_EQ(delben[4], 0);
    const THazcsucsok ejfelkor = csucsok(0, 0, 0, fok(47));
    EXPECT_EQ(ejfelkor[10], 0);
    EXPECT_EQ(ejfelkor[4], 180);
}

}  // namespace
