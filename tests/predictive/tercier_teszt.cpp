// Tertiary directions.

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "iranyteszt.h"
#include "predictive/tercier.h"

namespace {

TEST(Tercier, AKulcsEvenkentOtFoknyi) {
    EXPECT_NEAR(static_cast<double>(TercierKulcs), 5.07285 / 365.25, 1e-12);
    EXPECT_NEAR(static_cast<double>(TercierKulcs * 45), 0.625, 1e-3);
    EXPECT_NEAR(static_cast<double>(TercierKulcs * 99), 1.375, 1e-3);
}

/// All hits by the plain definition: the directed body within the orb of another's place or opposite.
/// A directed place beyond the circle is not reduced and meets nothing.
std::string vartTercier(const TBolygok& lon, int napok, double orbisNap) {
    const double orb = 0.013888706365503 * orbisNap;
    const double iv = 0.013888706365503 * napok;
    std::string szoveg;
    for (int j = 1; j <= 10; ++j) {
        std::string resz;
        const auto jel = [&](int i) {
            return std::string{static_cast<char>('a' + static_cast<int>(lon[i] / 30)),
                               static_cast<char>('A' + i - 1)};
        };
        for (int i = 1; i <= 10; ++i) {
            if (i == j) continue;
            if (lon[j] - iv >= 360) continue;
            const double d = std::abs(std::remainder(lon[j] - iv - lon[i], 360.0));
            if (d <= orb) resz += "M" + jel(i);
            if (180 - d <= orb) resz += "W" + jel(i);
        }
        if (!resz.empty()) szoveg += (szoveg.empty() ? "" : "Q") + jel(j) + resz;
    }
    return szoveg;
}

TEST(Tercier, ATalalatokADefinicioSzerint) {
    int talalt = 0;
    for (int nap = 0; nap < 12000; nap += 37) {
        Allapot a = szuletes();
        const double orbis = 1 + nap % 99;
        const TTercier t = TercierKeres(a, szuletesnap, napokkal(szuletesnap, nap), "Szeged", orbis);
        EXPECT_EQ(t.TercierSzoveg, vartTercier(a.Keplet.Bolygok, nap, orbis)) << nap;
        talalt += !t.TercierSzoveg.empty();
        EXPECT_EQ(t.TercierSzoveg.empty(), t.TercierHazSzoveg.empty());
    }
    EXPECT_GT(talalt, 100);
}

TEST(Tercier, ASzuletesNapjanCsakARadixEgyuttallasai) {
    Allapot a = szuletes();
    const TTercier t = TercierKeres(a, szuletesnap, szuletesnap, "Szeged", 99);
    EXPECT_EQ(t.TercierSzoveg, vartTercier(a.Keplet.Bolygok, 0, 99));
}

TEST(Tercier, ASzuletesElottiEsemenyIranyaElore) {
    int talalt = 0;
    int koronKivul = 0;
    for (int nap = -27000; nap < 0; nap += 37) {
        Allapot a = szuletes();
        const TTercier t = TercierKeres(a, szuletesnap, napokkal(szuletesnap, nap), "Szeged", 99);
        EXPECT_EQ(t.TercierSzoveg, vartTercier(a.Keplet.Bolygok, nap, 99)) << nap;
        talalt += !t.TercierSzoveg.empty();
        for (const double hossz : a.Keplet.Bolygok) koronKivul += hossz - 0.013888706365503 * nap >= 360;
    }
    EXPECT_GT(talalt, 100);
    EXPECT_GT(koronKivul, 100);
}

TEST(Tercier, AVerdiktekSzovegei) {
    EXPECT_STREQ(tercierVerdikt.van, "Van direkció!");
    EXPECT_STREQ(tercierVerdikt.nincs, "Nincs direkció!");
    EXPECT_STREQ(tercierVerdikt.uresKep, "Nincs tercier direkció!");
    EXPECT_STREQ(ingresszioVerdikt.van, "Van inresszió!");
    EXPECT_STREQ(ingresszioVerdikt.nincs, "Nincs ingresszió!");
    EXPECT_STREQ(ingresszioVerdikt.uresKep, "Nincs szolár-ingresszió!");
}

}  // namespace
