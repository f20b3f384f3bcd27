#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "ellenorzoosszeg.h"
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

TEST(Efemerida, ARekordMezoinekHelye) {
    static_assert(offsetof(TEfemeridaNap, ev) == 0 && offsetof(TEfemeridaNap, csillagOra) == 12);
    static_assert(offsetof(TEfemeridaNap, nap_hossz) == 24 && offsetof(TEfemeridaNap, pluto_hossz) == 60);
    static_assert(offsetof(TEfemeridaNap, mozgas) == 64);
    const char* sor1 = reinterpret_cast<const char*>(&Efemerida[1]);
    const char* sor65536 = reinterpret_cast<const char*>(&Efemerida[65536]);
    EXPECT_EQ(sor65536 - sor1, 65535 * 72);
    // 1900 is 0x076c, the low byte first.
    EXPECT_EQ(std::string(sor1, 4), std::string("\x6c\x07\0\0", 4));
}

TEST(Efemerida, ANapEsAHoldNapiLepese) {
    std::array<std::pair<int, int>, 2> hatarok;
    for (std::size_t b = 0; b < 2; ++b) {
        hatarok[b] = {lepes(1, b), lepes(1, b)};
        for (int sor = 2; sor < efemeridaSorok; ++sor)
            hatarok[b] = {std::min(hatarok[b].first, lepes(sor, b)),
                          std::max(hatarok[b].second, lepes(sor, b))};
    }
    EXPECT_EQ(hatarok[0], std::pair(3430, 3672));
    EXPECT_EQ(hatarok[1], std::pair(42360, 55380));
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
    double legnagyobb = 0;
    int masfelFolott = 0;
    for (int sor = 1; sor <= efemeridaSorok; ++sor) {
        if (sor < efemeridaSorok) {
            const int d = (csillagido(sor + 1) - csillagido(sor) + 86400) % 86400;
            ASSERT_TRUE(d == 236 || d == 237) << sor;
        }
        // Newcomb's mean time at 0h, from 1900 January 0.5.
        const double t = (sor - 0.5) / 36525;
        const double kozepido = std::fmod(23925.836 + 8640184.542 * t + 0.0929 * t * t, 86400);
        const double elteres = std::abs(std::remainder(csillagido(sor) - kozepido, 86400));
        ASSERT_LT(elteres, 1.8) << sor;
        legnagyobb = std::max(legnagyobb, elteres);
        if (elteres > 1.5) ++masfelFolott;
    }
    // The time is apparent: nutation brings it up to 1.76 s from the mean, rounding included.
    EXPECT_NEAR(legnagyobb, 1.76, 0.005);
    EXPECT_EQ(masfelFolott, 1016);
}

TEST(Efemerida, ATablaSzeleiMasolatok) {
    EXPECT_EQ(&Efemerida[0], &Efemerida[1]);
    EXPECT_EQ(&Efemerida[-1000000000000], &Efemerida[1]);
    EXPECT_EQ(&Efemerida[65537], &Efemerida[65536]);
    EXPECT_EQ(&Efemerida[1000000000000], &Efemerida[65536]);
    EXPECT_EQ(&efemeridaNap(2415020), &Efemerida[1]);
}

TEST(Efemerida, ATablaEllenorzoOsszege) {
    EllenorzoOsszeg osszeg;
    for (int sor = 1; sor <= efemeridaSorok; ++sor) {
        const TEfemeridaNap& n = Efemerida[sor];
        for (const int x : {n.ev, n.ho, n.nap, n.csillagOra, n.csillagPerc, n.csillagMasodperc})
            osszeg.szam(x);
        for (std::size_t b = 0; b < 10; ++b) osszeg.szam(hossz(sor, b));
        for (const char betu : n.mozgas) osszeg.bajt(static_cast<unsigned char>(betu));
    }
    EXPECT_EQ(osszeg.ertek(), 0x838a760c41e59aeULL) << std::hex << osszeg.ertek();
}

TEST(Efemerida, KetezerElsoNapja) {
    // The unrounded longitudes are 1007493.157, 782255.859, 976002.510, 867461.067, 1179271.684, 90839.432,
    // 145461.101, 1133222.868, 1091430.854 and 905173.512, the sidereal time 23991.419: the Sun and the time
    // to the second, the others to the minute.
    constexpr std::array vart{1007493, 782280, 976020,  867480,  1179300,
                              90840,   145440, 1133220, 1091460, 905160};
    EXPECT_EQ((std::array{Efemerida[36525].ev, Efemerida[36525].ho, Efemerida[36525].nap}),
              (std::array{2000, 1, 1}));
    EXPECT_EQ(csillagido(36525), 23991);
    for (std::size_t b = 0; b < 10; ++b) EXPECT_EQ(hossz(36525, b), vart[b]) << b;
}

TEST(Efemerida, AMozdulatlanNapokAFordulotKeresikMindketOldalon) {
    // A zero step inside a phase keeps its letter; between two phases it is 'S'. The ends of the table, where
    // the steps outside it would be needed, are left out.
    for (std::size_t b = 2; b < 10; ++b) {
        int elozo = 0;  // last step that was not zero
        for (int sor = 1; sor < efemeridaSorok; ++sor) {
            const int d = lepes(sor, b);
            if (d != 0) {
                elozo = d;
                continue;
            }
            int utana = sor + 1;
            while (utana < efemeridaSorok && lepes(utana, b) == 0) ++utana;
            if (elozo == 0 || utana == efemeridaSorok) continue;
            const int kovetkezo = lepes(utana, b);
            const char vart = (elozo > 0) != (kovetkezo > 0) ? 'S' : elozo > 0 ? 'D' : 'R';
            ASSERT_EQ(Efemerida[sor].mozgas[b - 2], vart) << sor << ' ' << b;
        }
    }
}

TEST(Efemerida, ANullaLepesekEsALeghosszabbAllasok) {
    struct TSzamok {
        int d, r, leghosszabb;
    };
    constexpr TSzamok vart[]{{0, 0, 1},     {0, 0, 1},        {2, 5, 3},        {289, 291, 6},
                             {798, 812, 8}, {2065, 2138, 12}, {3712, 3882, 15}, {4831, 5122, 18}};
    for (std::size_t b = 0; b < 8; ++b) {
        std::map<char, int> nullaLepes;
        int allas = 0;
        int leghosszabb = 0;
        for (int sor = 1; sor < efemeridaSorok; ++sor) {
            const char betu = Efemerida[sor].mozgas[b];
            if (lepes(sor, b + 2) == 0) ++nullaLepes[betu];
            allas = betu == 'S' ? allas + 1 : 0;
            leghosszabb = std::max(leghosszabb, allas);
        }
        EXPECT_EQ(nullaLepes['D'], vart[b].d) << b;
        EXPECT_EQ(nullaLepes['R'], vart[b].r) << b;
        EXPECT_EQ(leghosszabb, vart[b].leghosszabb) << b;
    }
}

TEST(Efemerida, ATablaVegenTuliSorokATablaVegenekAzErtekeivel) {
    EXPECT_EQ(efemeridaNap(2415019).nap_hossz, 1008552);
    EXPECT_EQ(efemeridaNap(2480556).nap_hossz, 271855);
    EXPECT_EQ(efemeridaNap(2480556).pluto_hossz, 50220);
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

TEST(Datum, A2079EsEvElsoNapjanakASzama) {
    // 2079-06-06 is the 157th day of its year and 2480555.
    EXPECT_EQ(julianszam(2078, 12, 32), 2480555 - 156);
    EXPECT_EQ(julianszam(2078, 12, 31), 2480555 - 157);
}

TEST(Datum, AKorlatokASzamabrazolasSzelein) {
    constexpr std::int32_t also = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t felso = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(julianszam(also, also, also), 2415020);
    EXPECT_EQ(julianszam(felso, felso, felso), 2480555 - 156);
}

TEST(Datum, MindenEvJanuarElseje) {
    // The first of January of each year: 365 days, 366 in leap years.
    int vart = 2415020;
    for (int ev = 1900; ev <= 2078; ++ev) {
        EXPECT_EQ(julianszam(ev, 1, 1), vart) << ev;
        vart += ev % 4 == 0 && ev != 1900 ? 366 : 365;
    }
    EXPECT_EQ(vart, 2480555 - 156);
}

TEST(Datum, ATablanTuliSzamATablaSzelsoNapja) {
    std::int32_t ev = 0, ho = 0, nap = 0;
    JulianszambolDatum(2415019, ev, ho, nap);
    EXPECT_EQ((TDatum{ev, ho, nap}), (TDatum{1900, 1, 1}));
    JulianszambolDatum(2480556, ev, ho, nap);
    EXPECT_EQ((TDatum{ev, ho, nap}), (TDatum{2079, 6, 6}));
}

TEST(Datum, MindenNapVisszaolvashato) {
    for (int sor = 1; Efemerida[sor].ev < 2079; ++sor) {
        const TEfemeridaNap& n = Efemerida[sor];
        ASSERT_EQ(julianszam(n.ev, n.ho, n.nap), sor + julianszamAlap);
    }
}

}  // namespace
