// Tertiary directions.

#include <array>
#include <cmath>
#include <cstddef>
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

/// The houses of a text of hits: the directed body's, then those of the bodies that it meets, an opposed
/// one's from the other side.
std::string vartHazak(const std::string& jelek, const TBolygoHazak& hazak) {
    constexpr std::array<const char*, 12> cimkek{"I",   "2", "3", "IV", "5",  "6",
                                                 "VII", "8", "9", "X",  "11", "12"};
    const auto cimke = [&](char bolygo, int eltolas) {
        return cimkek[static_cast<std::size_t>((hazak[bolygo - 'A' + 1] - 1 + eltolas) % 12)];
    };
    std::string ki;
    for (std::size_t i = 0; i < jelek.size();) {
        ki += cimke(jelek[i + 1], 0);
        for (i += 2; i < jelek.size() && jelek[i] != 'Q'; i += 3)
            ki += std::string("-") + cimke(jelek[i + 2], jelek[i] == 'W' ? 6 : 0);
        if (i < jelek.size()) ki += "  ";
        ++i;
    }
    return ki;
}

TEST(Tercier, ATalalatokADefinicioSzerint) {
    int talalt = 0;
    for (int nap = 0; nap < 12000; nap += 37) {
        TPillanat szuletett = szuletesnap;
        szuletett.ora = nap % 24;  // so that bodies come to every house
        Allapot a = szuletes(szuletett);
        const double orbis = 1 + nap % 99;
        const TTercier t = TercierKeres(a, szuletett, napokkal(szuletett, nap), "Szeged", orbis);
        EXPECT_EQ(t.TercierSzoveg, vartTercier(a.Keplet.Bolygok, nap, orbis)) << nap;
        talalt += !t.TercierSzoveg.empty();
        EXPECT_EQ(t.TercierHazSzoveg, vartHazak(t.TercierSzoveg, a.Keplet.BolygoHazak));
    }
    EXPECT_GT(talalt, 100);
}

/// The Sun opposite to the last degree before the point of Aries, or to the first one behind it: a body
/// directed there meets it on both sides.
void aKosPontjanal(int szeptember, double legalabb, const std::string& szembenallas) {
    const TPillanat oszi{1975, 9, szeptember, 1, 0, 0};
    int talalt = 0;
    for (int nap = 0; nap < 26000; ++nap) {
        Allapot a = szuletes(oszi);
        const TTercier t = TercierKeres(a, oszi, napokkal(oszi, nap), "Szeged", 20);
        ASSERT_GT(a.Keplet.Bolygok[1], legalabb);
        ASSERT_LT(a.Keplet.Bolygok[1], legalabb + 1);
        ASSERT_EQ(t.TercierSzoveg, vartTercier(a.Keplet.Bolygok, nap, 20)) << nap;
        talalt += t.TercierSzoveg.find(szembenallas) != std::string::npos;
    }
    EXPECT_GT(talalt, 100);
}

TEST(Tercier, AKosPontjaElottiSzemkoztiHely) {
    aKosPontjanal(23, 179, "WfA");
}

TEST(Tercier, AKosPontjaMogottiSzemkoztiHely) {
    aKosPontjanal(24, 180, "WgA");
}

TEST(Tercier, ASzuletesNapjanCsakARadixEgyuttallasai) {
    Allapot a = szuletes();
    const TTercier t = TercierKeres(a, szuletesnap, szuletesnap, "Szeged", 99);
    EXPECT_EQ(t.TercierSzoveg, vartTercier(a.Keplet.Bolygok, 0, 99));
}

/// Whoever comes after finds the natal chart in hand, with its distances.
TEST(Tercier, ASzuletesKepleteMaradUtana) {
    Allapot a;
    TercierKeres(a, szuletesnap, napokkal(szuletesnap, 9000), "Szeged", 45);
    EXPECT_EQ(a.Keplet.pillanat, szuletesnap);
    const Allapot natalis = szuletes();
    EXPECT_EQ(a.Keplet.Hazcsucsok, natalis.Keplet.Hazcsucsok);
    EXPECT_EQ(a.Keplet.BolygoHazak, natalis.Keplet.BolygoHazak);
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(a.Keplet.Bolygok[i], natalis.Keplet.Bolygok[i]) << i;
        for (int j = 1; j <= 10; ++j)
            EXPECT_NEAR(a.Munka.Elteresek[i][j],
                        std::abs(std::remainder(natalis.Keplet.Bolygok[i] - natalis.Keplet.Bolygok[j], 360)),
                        1e-9);
    }
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

TEST(TercierTalalat, MindketVegeIsBenneVan) {
    const TOrbisAblak sima{10, 12};
    EXPECT_TRUE(TercierTalalat(10, sima));
    EXPECT_TRUE(TercierTalalat(12, sima));
    EXPECT_FALSE(TercierTalalat(std::nextafter(10, 0), sima));
    EXPECT_FALSE(TercierTalalat(std::nextafter(12, 20), sima));
    const TOrbisAblak atlepo = OrbisAblak(0.5, 1);
    EXPECT_TRUE(TercierTalalat(359.5, atlepo));
    EXPECT_TRUE(TercierTalalat(std::nextafter(360, 0), atlepo));
    EXPECT_TRUE(TercierTalalat(0, atlepo));
    EXPECT_TRUE(TercierTalalat(1.5, atlepo));
    EXPECT_FALSE(TercierTalalat(std::nextafter(359.5, 0), atlepo));
    EXPECT_FALSE(TercierTalalat(std::nextafter(1.5, 2), atlepo));
    EXPECT_FALSE(TercierTalalat(180, atlepo));
    // Ends that meet, as those of an orb of 180 degrees, leave nothing out.
    EXPECT_TRUE(TercierTalalat(200, {10, 10}));
    EXPECT_TRUE(TercierTalalat(5, {10, 10}));
    // A directed place that has left the circle.
    EXPECT_FALSE(TercierTalalat(360, atlepo));
    EXPECT_FALSE(TercierTalalat(-0.1, atlepo));
}

TEST(Tercier, ANullaFokonAtnyuloAblak) {
    // Born at the equinox, the Sun just before 0 degrees. The days are those of one turn: what an arc beyond
    // it leaves below 0 meets nothing.
    const TPillanat napejegyenloseg{1975, 3, 21, 6, 4, 9};
    int elotte = 0;
    int utana = 0;
    for (int nap = 0; nap < 25900; nap += 5) {
        Allapot a = szuletes(napejegyenloseg);
        const TTercier t = TercierKeres(a, napejegyenloseg, napokkal(napejegyenloseg, nap), "Szeged", 99);
        const TBolygok& lon = a.Keplet.Bolygok;
        ASSERT_NEAR(lon[1], 359.96, 0.02);
        EXPECT_EQ(t.TercierSzoveg, vartTercier(lon, nap, 99)) << nap;
        for (int j = 2; j <= 10; ++j) {
            const double d = std::fmod(lon[j] - 0.013888706365503 * nap + 360, 360);
            const std::string talalat = {static_cast<char>('a' + static_cast<int>(lon[j] / 30)),
                                         static_cast<char>('A' + j - 1), 'M', 'l', 'A'};
            if (t.TercierSzoveg.find(talalat) == std::string::npos) continue;
            ++(d > 180 ? elotte : utana);
        }
    }
    EXPECT_GT(elotte, 20);
    EXPECT_GT(utana, 20);
}

TEST(Tercier, AVerdiktekSzovegei) {
    EXPECT_STREQ(tercierVerdikt.van, "Van direkció!");
    EXPECT_STREQ(tercierVerdikt.nincs, "Nincs direkció!");
    EXPECT_STREQ(tercierVerdikt.uresKep, "Nincs tercier direkció!");
    EXPECT_STREQ(ingresszioVerdikt.van, "Van inresszió!");
    EXPECT_STREQ(ingresszioVerdikt.nincs, "Nincs ingresszió!");
    EXPECT_STREQ(ingresszioVerdikt.uresKep, "Nincs szolár-ingresszió!");
}

TEST(OrbisAblak, AVegeiAKorbeEsnek) {
    EXPECT_EQ(OrbisAblak(359, 1).felso, 0);
    EXPECT_EQ(OrbisAblak(358.5, 1).felso, 359.5);
    EXPECT_EQ(OrbisAblak(359.5, 1).felso, 0.5);
    EXPECT_EQ(OrbisAblak(1, 1).also, 0);
    EXPECT_EQ(OrbisAblak(0.5, 1).also, 359.5);
}

TEST(TercierTalalat, AFelsoHatarNullaFok) {
    const TOrbisAblak ablak = OrbisAblak(359, 1);
    EXPECT_TRUE(TercierTalalat(0, ablak));
    EXPECT_TRUE(TercierTalalat(358, ablak));
    EXPECT_FALSE(TercierTalalat(0.1, ablak));
    EXPECT_FALSE(TercierTalalat(357.9, ablak));
}

}  // namespace
