#include <cmath>
#include <cstdint>
#include <numbers>

#include <gtest/gtest.h>

#include "tables/haztablak.h"

namespace {

template <typename TTabla>
std::int64_t osszeg(const TTabla& tabla) {
    std::int64_t s = 0;
    for (const auto& elem : tabla) {
        if constexpr (requires { elem.begin(); })
            s += osszeg(elem);
        else
            s += elem;
    }
    return s;
}

using TSor = std::array<std::int32_t, 5>;
const TSor& haz(int szelesseg, int ramc) {
    return HazTabla[static_cast<std::size_t>(szelesseg - 42)][static_cast<std::size_t>(ramc)];
}
int ferde(int szelesseg, int sor) {
    return FerdeAszcenzioTabla[static_cast<std::size_t>(szelesseg - 42)][static_cast<std::size_t>(sor)];
}

TEST(Haztablak, AzOsszegek) {
    EXPECT_EQ(osszeg(McTabla), 233928000);
    EXPECT_EQ(osszeg(HazTabla), 368973693);
    EXPECT_EQ(osszeg(FerdeAszcenzioTabla), 74077176);
    EXPECT_EQ(osszeg(RektaszcenzioTabla), 23338740);
    EXPECT_EQ(osszeg(HosszusagTabla), 23338800);
}

TEST(McTabla, AzIdezettSorok) {
    EXPECT_EQ(McTabla[0], 0);
    EXPECT_EQ(McTabla[1], 3924);
    EXPECT_EQ(McTabla[45], 170876);
    EXPECT_EQ(McTabla[90], 324000);
    EXPECT_EQ(McTabla[135], 477124);
    EXPECT_EQ(McTabla[180], 648000);
    EXPECT_EQ(McTabla[270], 972000);
    EXPECT_EQ(McTabla[359], 1292076);
    EXPECT_EQ(McTabla[360], 1296000);
}

constexpr double fokbol = std::numbers::pi / 180;

double irany(double y, double x) {
    const double a = std::atan2(y, x) / fokbol;
    return a < 0 ? a + 360 : a;
}

TEST(McTabla, ATangensSzabalyHatMasodpercenBelul) {
    for (int a = 0; a < 360; ++a) {
        const double mc = irany(std::sin(a * fokbol), std::cos(a * fokbol) * std::cos(23.45 * fokbol));
        EXPECT_NEAR(McTabla[static_cast<std::size_t>(a)], 3600 * mc, 6) << a;
    }
}

TEST(HazTabla, AzIdezettSorok) {
    EXPECT_EQ(haz(42, 0), (TSor{6583, 7736, 9080, 2194, 4558}));
    EXPECT_EQ(haz(42, 1), (TSor{6631, 7786, 9136, 2263, 4618}));
    EXPECT_EQ(haz(43, 0), (TSor{6621, 7757, 9087, 2204, 4591}));
    EXPECT_EQ(haz(60, 0), (TSor{7474, 8221, 9243, 2517, 5533}));
    EXPECT_EQ(haz(47, 0)[0], 6786);
    EXPECT_EQ(haz(48, 0)[0], 6830);
}

TEST(HazTabla, A360SorANullas) {
    for (int f = 42; f <= 60; ++f) EXPECT_EQ(haz(f, 360), haz(f, 0));
}

TEST(HazTabla, Ramc240MasodikHazKezzelBeallitva) {
    EXPECT_EQ(haz(57, 240)[1], 0);
    EXPECT_EQ(haz(58, 240)[1], 21599);
    EXPECT_EQ(haz(59, 240)[1], 0);
    EXPECT_EQ(haz(60, 240)[1], 21599);
}

TEST(HazTabla, CsakHaromHelyenAllASzelessegAKetOldalon) {
    int ugrasok = 0;
    for (int f = 42; f < 60; ++f)
        for (int r = 0; r < 360; ++r)
            for (std::size_t c = 0; c < 5; ++c)
                if (std::abs(haz(f + 1, r)[c] - haz(f, r)[c]) > 10800) ++ugrasok;
    EXPECT_EQ(ugrasok, 3);
}

/// Right ascension of a Placidus cusp by bisection of its own condition: the share of the semi-arc, measured
/// from the meridian, that the point has covered. Another road than the tables' iteration.
double felivHossz(double ramc, double szelesseg, double hanyad, bool fold) {
    constexpr double e = 23.4453 * fokbol;
    const auto hiba = [&](double meridiantavolsag) {
        const double rekt = fold ? ramc + 180 - meridiantavolsag : ramc + meridiantavolsag;
        const double ad =
            std::asin(std::tan(szelesseg * fokbol) * std::tan(e) * std::sin(rekt * fokbol)) / fokbol;
        const double feliv = fold ? 90 - ad : 90 + ad;
        return meridiantavolsag - hanyad * feliv;
    };
    double also = 0;
    double felso = 180;
    for (int i = 0; i < 60; ++i) {
        const double kozep = (also + felso) / 2;
        (hiba(kozep) < 0 ? also : felso) = kozep;
    }
    const double rekt = fold ? ramc + 180 - also : ramc + also;
    return irany(std::sin(rekt * fokbol), std::cos(rekt * fokbol) * std::cos(e));
}

TEST(HazTabla, AFelivekHarmadolasaUjraszamolva) {
    int nezett = 0;
    for (int f = 42; f <= 60; f += 3) {
        for (int r = 0; r < 360; r += 7, ++nezett) {
            const double vart[4]{felivHossz(r, f, 2.0 / 3, true), felivHossz(r, f, 1.0 / 3, true),
                                 felivHossz(r, f, 1.0 / 3, false), felivHossz(r, f, 2.0 / 3, false)};
            for (std::size_t c = 0; c < 4; ++c)
                EXPECT_EQ(haz(f, r)[c + 1], std::lround(60 * vart[c]) % 21600) << f << ' ' << r << ' ' << c;
        }
    }
    EXPECT_EQ(nezett, 7 * 52);
}

TEST(HazTabla, AzAszcendensAHorizontKeletiPontja) {
    constexpr double e = 23.4453 * fokbol;
    for (int f = 42; f <= 60; ++f) {
        for (int r = 0; r < 360; r += 11) {
            const double a = r * fokbol;
            const double asc =
                irany(std::cos(a), -(std::sin(a) * std::cos(e) + std::tan(f * fokbol) * std::sin(e)));
            EXPECT_EQ(haz(f, r)[0], std::lround(60 * asc) % 21600) << f << ' ' << r;
        }
    }
}

TEST(RektaszcenzioTabla, AzIdezettEsAKezzelBeallitottSorok) {
    const int elsok[]{0, 9, 18, 28, 37, 46};
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(RektaszcenzioTabla[i], elsok[i]);
    EXPECT_EQ(RektaszcenzioTabla[102], 910);
    EXPECT_EQ(RektaszcenzioTabla[1182], 11710);
    EXPECT_EQ(RektaszcenzioTabla[2160], 21600);
}

TEST(HosszusagTabla, AzIdezettSorok) {
    const int elsok[]{0, 11, 22, 32, 43, 54};
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(HosszusagTabla[i], elsok[i]);
    EXPECT_EQ(HosszusagTabla[2160], 21600);
}

TEST(FerdeAszcenzioTabla, AzIdezettEsAKezzelBeallitottSorok) {
    const int elsok42[]{0, 33, 67, 101};
    const int elsok60[]{0, 14, 27, 41};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(ferde(42, i), elsok42[i]);
        EXPECT_EQ(ferde(60, i), elsok60[i]);
    }
    EXPECT_EQ(ferde(42, 16), 571);
    EXPECT_EQ(ferde(42, 209), 13007);
    EXPECT_EQ(ferde(47, 323), 20411);
}

TEST(FerdeAszcenzioTabla, MindenBlokkNoEsATeljesKorig) {
    for (int f = 42; f <= 60; ++f) {
        EXPECT_EQ(ferde(f, 0), 0);
        EXPECT_EQ(ferde(f, 360), 21600);
        for (int i = 0; i < 360; ++i) EXPECT_LT(ferde(f, i), ferde(f, i + 1)) << f << ' ' << i;
    }
}

}  // namespace
