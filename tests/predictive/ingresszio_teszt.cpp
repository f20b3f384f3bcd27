// Solar ingress.

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "iranyteszt.h"
#include "predictive/ingresszio.h"
#include "predictive/visszateresek.h"

namespace {

std::string ingresszio(int napok) {
    Allapot a = szuletes();
    return IngresszioKeres(a, szuletesnap, napokkal(szuletesnap, napok), "Szeged");
}

/// The pairs as far apart as the year's angle, half a day's angle either way, by the distances that the
/// search leaves.
std::string vartParok(const Allapot& a, double szog) {
    std::string vart;
    for (int i = 1; i <= 10; ++i)
        for (int j = i; j <= 10; ++j)
            if (std::abs(a.Munka.Elteresek[i][j] - szog) < 180 / 365.0)
                vart += {' ', static_cast<char>('A' + i - 1), 'M', static_cast<char>('A' + j - 1)};
    return vart;
}

TEST(Ingresszio, ASolarNapjanMindenBolygoOnmagaval) {
    // The birth day is its own solar return: angle 0, the upper bound 0.493.
    const std::string szoveg = ingresszio(0);
    for (char b = 'A'; b <= 'J'; ++b)
        EXPECT_NE(szoveg.find(std::string{' ', b, 'M', b}), std::string::npos) << b;
    EXPECT_EQ(ingresszio(1).find(" AMA"), std::string::npos);  // an angle of 0.986
}

/// Just after midnight in Greenwich the Sun has gone a minute or two of the day's arc, and still the day is
/// its own return.
TEST(Ingresszio, AHajnalbanSzuletettNapjaIsASolarNapja) {
    for (int nap = 0; nap < 365; nap += 5) {
        const TPillanat hajnal = napokkal({1977, 1, 1, 1, 10, 0}, nap);  // no summer time yet in that year
        Allapot a = szuletes(hajnal);
        const std::string szoveg = IngresszioKeres(a, hajnal, hajnal, "Szeged");
        EXPECT_NE(szoveg.find(" AMA"), std::string::npos) << nap;
    }
}

TEST(Ingresszio, AFelevEsAzEvVegeVisszahajlik) {
    EXPECT_EQ(ingresszio(183).find(" AMA"), std::string::npos);
    // The last day before the next return: 364 x 360 / 365 is 359.01, folded to 0.99; 365 days are exactly
    // 360 and 0.
    EXPECT_EQ(ingresszio(364).find(" AMA"), std::string::npos);
    EXPECT_NE(ingresszio(365).find(" AMA"), std::string::npos);
}

TEST(Ingresszio, AParokTavolsagaANapokSzoge) {
    for (const int nap : {30, 90, 150, 200, 300}) {
        Allapot a = szuletes();
        const std::string szoveg = IngresszioKeres(a, szuletesnap, napokkal(szuletesnap, nap), "Szeged");
        double szog = nap * 360 / 365.0;
        if (szog > 180) szog = 360 - szog;
        int parok = 0;
        for (int i = 1; i <= 10; ++i)
            for (int j = i; j <= 10; ++j) parok += std::abs(a.Munka.Elteresek[i][j] - szog) < 180 / 365.0;
        EXPECT_EQ(szoveg.size(), static_cast<std::size_t>(4 * parok)) << nap;
    }
}

/// The first day past the half of the year: 183 x 360 / 365 is 180.49, folded to 179.51.
TEST(Ingresszio, AFelevUtaniElsoNapMarVisszafele) {
    constexpr double szog = 360 - 183 * 360 / 365.0;
    int talalt = 0;
    for (int nap = 0; nap < 60; ++nap) {  // two full Moons among them
        const TPillanat szuletett = napokkal(szuletesnap, nap);
        Allapot a = szuletes(szuletett);
        const std::string szoveg = IngresszioKeres(a, szuletett, napokkal(szuletett, 183), "Szeged");
        const std::string vart = vartParok(a, szog);
        EXPECT_EQ(szoveg, vart) << nap;
        talalt += !vart.empty();
    }
    EXPECT_GT(talalt, 0);
}

TEST(IngresszioParok, AHatarokonNincsTalalat) {
    constexpr double szog = 30;
    const auto also = static_cast<double>(szog - 180 / 365.0L);
    const auto felso = static_cast<double>(szog + 180 / 365.0L);
    TSzogMatrix tavolsagok;
    for (auto& sor : tavolsagok) sor.tolt(90);
    tavolsagok[1][2] = also;
    tavolsagok[3][4] = felso;
    EXPECT_EQ(IngresszioParok(tavolsagok, szog), "");
    tavolsagok[1][2] = std::nextafter(also, felso);
    EXPECT_EQ(IngresszioParok(tavolsagok, szog), " AMB");
    tavolsagok[3][4] = std::nextafter(felso, also);
    EXPECT_EQ(IngresszioParok(tavolsagok, szog), " AMB CMD");
}

TEST(Ingresszio, ATavolsagokASzolarKepletei) {
    Allapot rev = szuletes();
    VisszateresKereses(rev, RevolucioFajta(1), VisszateresCel(rev, RevolucioFajta(1)));
    const TPillanat solar = rev.Visszateresek.sorok[11].pillanat;  // in Greenwich, of the tenth birthday
    ASSERT_EQ(solar.ev, 1985);
    const TBolygok hossz = greenwichiBolygok(solar);

    Allapot a = szuletes();
    IngresszioKeres(a, szuletesnap, napokkal(solar, 100), "Szeged");
    for (int i = 1; i <= 10; ++i)
        for (int j = 1; j <= 10; ++j)
            EXPECT_NEAR(a.Munka.Elteresek[i][j], std::abs(std::remainder(hossz[i] - hossz[j], 360)), 0.001)
                << i << ' ' << j;
}

TEST(Ingresszio, AParokAzEvSzogebenEsNemMellette) {
    // Over a year, week by week: the whole text.
    for (int nap = 0; nap < 365; nap += 7) {
        Allapot a = szuletes();
        const std::string szoveg = IngresszioKeres(a, szuletesnap, napokkal(szuletesnap, nap), "Szeged");
        const double szog = nap * 2 <= 365 ? nap * 360 / 365.0 : 360 - nap * 360 / 365.0;
        const std::string vart = vartParok(a, szog);
        EXPECT_EQ(szoveg, vart) << nap;
    }
}

}  // namespace
