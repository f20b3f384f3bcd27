#include <random>

#include <gtest/gtest.h>

#include "drawing/rendezett.h"
#include "rajzteszt.h"

namespace {

using TRendezett = Tomb<TRendezettSor, 10>;

/// Spreads bodies at these longitudes; the rest stand 12 degrees apart from 112 on, body i at 100 + 12 i.
TRendezett szetterit(std::vector<double> hosszak) {
    TBolygok b;
    TMozgasok m;
    m.tolt('D');
    for (int i = 1; i <= 10; ++i) b[i] = 100 + 12 * i;
    for (std::size_t i = 0; i < hosszak.size(); ++i) b[static_cast<int>(i) + 1] = hosszak[i];
    TRendezett r;
    RendezettEpites(r, b, m);
    Szetteritas(r);
    return r;
}

double hely(const TRendezett& r, char jel) {
    for (const TRendezettSor& sor : r)
        if (sor.rendJel == jel) return sor.rendHossz;
    return -1000;
}

TEST(Rendezett, AzonosHelyrolNegyFoknyira) {
    const TRendezett r = szetterit({50, 50});
    EXPECT_DOUBLE_EQ(hely(r, 'A'), 46);
    EXPECT_DOUBLE_EQ(hely(r, 'B'), 54);
}

TEST(Rendezett, AKosPontjaKorulHajtodikVissza) {
    // 2 apart: at the threshold 3 they move to 357 and 3, which is 6 and passes.
    const TRendezett r = szetterit({359, 1});
    EXPECT_DOUBLE_EQ(hely(r, 'A'), 357);
    EXPECT_DOUBLE_EQ(hely(r, 'B'), 3);
}

TEST(Rendezett, AzEgeszKorNemHajtodikVissza) {
    // 2 apart: at the threshold 3 they move to 354 and 360, which is not above 360.
    const TRendezett r = szetterit({356, 358});
    EXPECT_DOUBLE_EQ(hely(r, 'A'), 354);
    EXPECT_DOUBLE_EQ(hely(r, 'B'), 360);
}

/// The exchange sort holds row a against each row b from a on and exchanges whole rows, so that of two equal
/// longitudes the earlier row may land behind the later one. A 50, B 50, C 10: row 1 is not greater than row
/// 2, but greater than row 3; A and C change places, and C, B, A stay so. The seven others stand from 148 on,
/// 12 degrees apart and 94 from the nearest of these, so that only A and B, at distance 0, move: to 48 and 52
/// at the threshold 1, to 46 and 54 at the threshold 5, B downward since its row comes first.
TEST(Rendezett, ACsereAzEgyenlokSorrendjetMegfordithatja) {
    const TRendezett r = szetterit({50, 50, 10});
    const std::string vart = "CBADEFGHIJ";
    for (int sor = 1; sor <= 10; ++sor) EXPECT_EQ(r[sor].rendJel, vart[static_cast<std::size_t>(sor - 1)]);
    EXPECT_DOUBLE_EQ(hely(r, 'C'), 10);
    EXPECT_DOUBLE_EQ(hely(r, 'B'), 46);
    EXPECT_DOUBLE_EQ(hely(r, 'A'), 54);
    EXPECT_DOUBLE_EQ(hely(r, 'D'), 148);
    EXPECT_DOUBLE_EQ(hely(r, 'J'), 220);
}

/// Each pass begins again with the closest pairs. C 100, D 101.5, E 102: D and E go first, to 99.5 and 104;
/// then D and C, to 97.5 and 102; C and E to 100 and 106; D and C to 95.5 and 102; C and E to 100 and 108; D
/// and C to 93.5 and 102. If C and D, who stand before them, went first, C would come to 94.
TEST(Rendezett, ALegkozelebbiParMegyElobb) {
    for (const double masodik : {62.0, 50.0}) {  // with and without a pair that has moved before
        const TRendezett r = szetterit({50, masodik, 100, 101.5, 102});
        EXPECT_DOUBLE_EQ(hely(r, 'C'), 102) << masodik;
        EXPECT_DOUBLE_EQ(hely(r, 'D'), 93.5) << masodik;
        EXPECT_DOUBLE_EQ(hely(r, 'E'), 108) << masodik;
    }
    EXPECT_DOUBLE_EQ(hely(szetterit({50, 50, 100, 101.5, 102}), 'A'), 46);
}

TEST(Rendezett, PontosanHatFokElfogadhato) {
    const TRendezett r = szetterit({50, 56});
    EXPECT_DOUBLE_EQ(hely(r, 'A'), 50);
    EXPECT_DOUBLE_EQ(hely(r, 'B'), 56);
    const TRendezett kozelebb = szetterit({50, 55.5});
    EXPECT_DOUBLE_EQ(hely(kozelebb, 'A'), 48);
    EXPECT_DOUBLE_EQ(hely(kozelebb, 'B'), 57.5);
}

TEST(Rendezett, AFokEsAPercAzIgaziHelye) {
    const TRendezett r = szetterit({40.5, 41.25});
    for (const TRendezettSor& sor : r) {
        if (sor.rendJel == 'A') {
            EXPECT_DOUBLE_EQ(sor.rendFok, 10.5);
            EXPECT_DOUBLE_EQ(sor.rendPerc, 30);
            EXPECT_NE(sor.rendHossz, 40.5);
        }
    }
}

TEST(Rendezett, AFokAJegyElejetolAVegeig) {
    for (int jegy = 0; jegy < 12; ++jegy) {
        const TRendezett r = szetterit({jegy * 30.0, jegy * 30 + 29.75});
        for (const TRendezettSor& sor : r) {
            if (sor.rendJel == 'C') break;
            EXPECT_DOUBLE_EQ(sor.rendFok, sor.rendJel == 'A' ? 0 : 29.75) << jegy;
            EXPECT_DOUBLE_EQ(sor.rendPerc, sor.rendJel == 'A' ? 0 : 45) << jegy;
        }
    }
}

TEST(Rendezett, ANullaAlaTolodottElolAll) {
    // 1 and 2.5: they move to -1 and 4.5 at the threshold 2, and -1 is the first row of the next pass. At the
    // wrap the last body is greater, so the row takes 360 and stands at 359.
    TBolygok b;
    TMozgasok m;
    m.tolt('D');
    for (int i = 1; i <= 10; ++i) b[i] = 20 * i;
    b[1] = 1;
    b[2] = 3;
    TRendezett r;
    RendezettEpites(r, b, m);
    Szetteritas(r);
    EXPECT_DOUBLE_EQ(std::fmod(hely(r, 'A') + 360, 360), 359);
    EXPECT_DOUBLE_EQ(hely(r, 'B'), 5);
}

TEST(Rendezett, BarmelyKepletbenLegalabbHatFok) {
    std::mt19937 veletlen(7);
    std::uniform_real_distribution<double> kor(0, 360);
    std::uniform_real_distribution<double> halmaz(0, 25);
    for (int keplet = 0; keplet < 3000; ++keplet) {
        std::vector<double> hosszak(10);
        const double kozep = kor(veletlen);
        for (double& hossz : hosszak)
            hossz = keplet % 2 == 0 ? kor(veletlen) : std::fmod(kozep + halmaz(veletlen), 360);
        const TRendezett r = szetterit(hosszak);
        std::vector<double> helyek;
        std::string jelek;
        for (const TRendezettSor& sor : r) {
            helyek.push_back(std::fmod(sor.rendHossz + 720, 360));
            jelek += sor.rendJel;
        }
        std::sort(helyek.begin(), helyek.end());
        for (std::size_t i = 0; i < 10; ++i) {
            const double koz = i + 1 < 10 ? helyek[i + 1] - helyek[i] : helyek[0] + 360 - helyek[9];
            ASSERT_GE(koz, 6 - 1e-9) << keplet;
        }
        std::sort(jelek.begin(), jelek.end());
        ASSERT_EQ(jelek, "ABCDEFGHIJ");
    }
}

TEST(Rendezett, ATavoliErtekSemPorgetiAVegtelenbe) {
    const TRendezett r = szetterit({1e12, -1e12});
    EXPECT_LT(std::abs(hely(r, 'A')), 4000);
}

/// By whole turns: 7205 degrees are 20 turns and 5 degrees.
TEST(Rendezett, ATavoliErtekEgeszKorokkelJonVissza) {
    EXPECT_DOUBLE_EQ(hely(szetterit({7205}), 'A'), 5);
    EXPECT_DOUBLE_EQ(hely(szetterit({7285, 77}), 'A'), 85);
}

}  // namespace
