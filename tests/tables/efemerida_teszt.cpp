#include <array>
#include <cmath>
#include <cstring>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "tables/efemerida.h"

namespace {

struct TEllenorzoSor {
    int napsorszam;
    std::array<int, 3> datum;
    std::array<int, 3> csillagido;
    std::array<int, 10> hosszusagok;
    std::string mozgas;
};

const TEllenorzoSor ellenorzoSorok[]{
#include "ellenorzosorok.inc"
};

int hossz(int sor, std::size_t bolygo) {
    return Efemerida[sor].*efemeridaOszlopok[bolygo];
}

/// Step from a row to the next, the short way round.
int lepes(int sor, std::size_t bolygo) {
    const int d = hossz(sor + 1, bolygo) - hossz(sor, bolygo);
    return d >= 648000 ? d - 1296000 : d < -648000 ? d + 1296000 : d;
}

int csillagido(int sor) {
    const TEfemeridaNap& n = Efemerida[sor];
    return n.csillagOra * 3600 + n.csillagPerc * 60 + n.csillagMasodperc;
}

TEST(Efemerida, AzEllenorzoSorok) {
    static_assert(std::size(ellenorzoSorok) == 27);
    for (const TEllenorzoSor& s : ellenorzoSorok) {
        const TEfemeridaNap& n = Efemerida[s.napsorszam];
        EXPECT_EQ((std::array{n.ev, n.ho, n.nap}), s.datum) << s.napsorszam;
        EXPECT_EQ((std::array{n.csillagOra, n.csillagPerc, n.csillagMasodperc}), s.csillagido)
            << s.napsorszam;
        for (std::size_t b = 0; b < 10; ++b)
            EXPECT_EQ(hossz(s.napsorszam, b), s.hosszusagok[b]) << s.napsorszam;
        EXPECT_EQ(std::string(n.mozgas.begin(), n.mozgas.end()), s.mozgas) << s.napsorszam;
    }
}

TEST(Efemerida, ANapokHezagNelkulKovetkeznek) {
    constexpr std::array napok{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int ev = 1900;
    int ho = 1;
    int nap = 1;
    for (int sor = 1; sor <= efemeridaSorok; ++sor) {
        const TEfemeridaNap& n = Efemerida[sor];
        ASSERT_EQ((std::array{n.ev, n.ho, n.nap}), (std::array{ev, ho, nap})) << sor;
        const bool szokoev = (ev % 4 == 0 && ev % 100 != 0) || ev % 400 == 0;
        const int hossza = napok[static_cast<std::size_t>(ho - 1)] + (ho == 2 && szokoev ? 1 : 0);
        if (++nap > hossza) {
            nap = 1;
            if (++ho > 12) {
                ho = 1;
                ++ev;
            }
        }
    }
    EXPECT_EQ((std::array{ev, ho, nap}), (std::array{2079, 6, 7}));
}

TEST(Efemerida, AzErtekekTartomanya) {
    for (int sor = 1; sor <= efemeridaSorok; ++sor) {
        const TEfemeridaNap& n = Efemerida[sor];
        ASSERT_TRUE(n.csillagOra >= 0 && n.csillagOra < 24 && n.csillagPerc >= 0 && n.csillagPerc < 60 &&
                    n.csillagMasodperc >= 0 && n.csillagMasodperc < 60)
            << sor;
        for (std::size_t b = 0; b < 10; ++b) {
            ASSERT_TRUE(hossz(sor, b) >= 0 && hossz(sor, b) < 1296000) << sor;
            if (b > 0) {
                ASSERT_EQ(hossz(sor, b) % 60, 0) << sor;
            }
        }
    }
}

TEST(Efemerida, ANapEsAHoldNapiLepese) {
    for (int sor = 1; sor < efemeridaSorok; ++sor) {
        ASSERT_TRUE(lepes(sor, 0) >= 3430 && lepes(sor, 0) <= 3672) << sor;
        ASSERT_TRUE(lepes(sor, 1) >= 42360 && lepes(sor, 1) <= 55380) << sor;
    }
}

TEST(Efemerida, AMozgasBetuiALepesekElojelei) {
    for (int sor = 1; sor < efemeridaSorok; ++sor) {
        for (std::size_t b = 2; b < 10; ++b) {
            const int d = lepes(sor, b);
            switch (Efemerida[sor].mozgas[b - 2]) {
                case 'D':
                    ASSERT_GE(d, 0) << sor;
                    break;
                case 'R':
                    ASSERT_LE(d, 0) << sor;
                    break;
                case 'S':
                    ASSERT_EQ(d, 0) << sor;
                    break;
                default:
                    FAIL() << sor;
            }
        }
    }
}

TEST(Efemerida, AMozgasokSzama) {
    struct TSzamok {
        int d, r, s;
    };
    constexpr TSzamok vart[]{{52913, 12469, 154},  {60777, 4675, 84},    {59212, 6109, 215},
                             {45152, 19262, 1122}, {40812, 22999, 1725}, {37276, 25564, 2696},
                             {35648, 26534, 3354}, {34899, 26880, 3757}};
    for (std::size_t b = 0; b < 8; ++b) {
        std::map<char, int> szam;
        for (int sor = 1; sor <= efemeridaSorok; ++sor) ++szam[Efemerida[sor].mozgas[b]];
        EXPECT_EQ(szam['D'], vart[b].d);
        EXPECT_EQ(szam['R'], vart[b].r);
        EXPECT_EQ(szam['S'], vart[b].s);
    }
}

TEST(Efemerida, ACsillagidoNapiLepeseEsAKozepidotolValoElterese) {
    for (int sor = 1; sor <= efemeridaSorok; ++sor) {
        if (sor < efemeridaSorok) {
            const int d = (csillagido(sor + 1) - csillagido(sor) + 86400) % 86400;
            ASSERT_TRUE(d == 236 || d == 237) << sor;
        }
        // Newcomb's mean time at 0h, from 1900 January 0.5.
        const double t = (sor - 0.5) / 36525;
        const double kozepido = std::fmod(23925.836 + 8640184.542 * t + 0.0929 * t * t, 86400);
        const double elteres = std::remainder(csillagido(sor) - kozepido, 86400);
        ASSERT_LT(std::abs(elteres), 1.8) << sor;
    }
}

TEST(Efemerida, ATablaSzeleiMasolatok) {
    EXPECT_EQ(&Efemerida[0], &Efemerida[1]);
    EXPECT_EQ(&Efemerida[-1000000000000], &Efemerida[1]);
    EXPECT_EQ(&Efemerida[65537], &Efemerida[65536]);
    EXPECT_EQ(&Efemerida[1000000000000], &Efemerida[65536]);
    EXPECT_EQ(&efemeridaNap(2415020), &Efemerida[1]);
}

TEST(Efemerida, ATablaEllenorzoOsszege) {
    // Guards the kept data against an unmeant change: FNV-1a over all records as they stand in the image.
    std::uint64_t fnv = 14695981039346656037ULL;
    for (int sor = 1; sor <= efemeridaSorok; ++sor) {
        std::array<unsigned char, sizeof(TEfemeridaNap)> bajtok{};
        std::memcpy(bajtok.data(), &Efemerida[sor], bajtok.size());
        for (const unsigned char b : bajtok) fnv = (fnv ^ b) * 1099511628211ULL;
    }
    EXPECT_EQ(fnv, 0x838a760c41e59aeULL) << std::hex << fnv;
}

int julianszam(std::int32_t ev, std::int32_t ho, std::int32_t nap) {
    return DatumbolJulianszam(ev, ho, nap);
}

std::array<std::int32_t, 3> visszaolvasva(std::int32_t ev, std::int32_t ho, std::int32_t nap) {
    const int szam = DatumbolJulianszam(ev, ho, nap);
    JulianszambolDatum(szam, ev, ho, nap);
    return {ev, ho, nap};
}

using TDatum = std::array<std::int32_t, 3>;

TEST(Datum, AzElsoNapok) {
    EXPECT_EQ(julianszam(1900, 1, 1), 2415020);
    EXPECT_EQ(julianszam(1900, 3, 1), 2415079);
    EXPECT_EQ(julianszam(2000, 1, 1), 2415019 + 36525);
}

TEST(Datum, KetezerSzokoevEzerkilencszazNem) {
    EXPECT_EQ(visszaolvasva(2000, 2, 29), (TDatum{2000, 2, 29}));
    EXPECT_EQ(julianszam(2000, 3, 1) - julianszam(2000, 2, 29), 1);
    EXPECT_EQ(julianszam(1900, 2, 29), julianszam(1900, 3, 1));
    EXPECT_EQ(visszaolvasva(1900, 2, 29), (TDatum{1900, 3, 1}));
}

TEST(Datum, ANemLetezoNapATovabbszamoltNap) {
    EXPECT_EQ(visszaolvasva(1990, 2, 30), (TDatum{1990, 3, 2}));
    EXPECT_EQ(visszaolvasva(2000, 3, 0), (TDatum{2000, 3, 1}));
    EXPECT_EQ(visszaolvasva(1990, 4, 31), (TDatum{1990, 5, 1}));
    EXPECT_EQ(visszaolvasva(1990, 1, 32), (TDatum{1990, 2, 1}));
}

TEST(Datum, AKorlatokVisszairodnak) {
    std::int32_t ev = 1899, ho = 0, nap = 0;
    DatumbolJulianszam(ev, ho, nap);
    EXPECT_EQ((TDatum{ev, ho, nap}), (TDatum{1900, 1, 1}));
    ev = 2079, ho = 13, nap = 33;
    DatumbolJulianszam(ev, ho, nap);
    EXPECT_EQ((TDatum{ev, ho, nap}), (TDatum{2078, 12, 32}));
    ev = 2000, ho = 13, nap = 5;  // no carry into the next year
    DatumbolJulianszam(ev, ho, nap);
    EXPECT_EQ((TDatum{ev, ho, nap}), (TDatum{2000, 12, 5}));
}

TEST(Datum, KetezerhetvenkilencreCsakADecemberHarminckettedikevel) {
    EXPECT_EQ(visszaolvasva(2078, 12, 32), (TDatum{2079, 1, 1}));
    EXPECT_EQ(visszaolvasva(2079, 1, 1), (TDatum{2078, 1, 1}));
    std::int32_t ev = 0, ho = 0, nap = 0;
    JulianszambolDatum(2480555, ev, ho, nap);
    EXPECT_EQ((TDatum{ev, ho, nap}), (TDatum{2079, 6, 6}));
}

TEST(Datum, MindenNapVisszaolvashato) {
    for (int sor = 1; Efemerida[sor].ev < 2079; ++sor) {
        const TEfemeridaNap& n = Efemerida[sor];
        ASSERT_EQ(julianszam(n.ev, n.ho, n.nap), sor + julianszamAlap);
    }
}

}  // namespace
