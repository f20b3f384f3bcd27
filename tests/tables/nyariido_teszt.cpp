// Summer time.

#include <array>
#include <cstdlib>
#include <ctime>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ellenorzoosszeg.h"
#include "tables/efemerida.h"
#include "tables/nyariido.h"
#include "tables/pillanat.h"

namespace {

int nap(std::int32_t ev, std::int32_t ho, std::int32_t n) {
    return DatumbolJulianszam(ev, ho, n);
}

int nyari(int ev, int ho, int n, int ora, int perc = 0, int mperc = 0) {
    return NyariIdoE(nap(ev, ho, n), ora, perc, mperc);
}

TEST(NyariIdoszakok, ASzamukOsszegukEsRendjuk) {
    std::int64_t osszeg = 0;
    for (const TNyariIdoszak& i : NyariIdoszakok) osszeg += i.kezdoNap + i.vegeNap + i.kezdoOra + i.vegeOra;
    EXPECT_EQ(osszeg, 570268135);
    for (std::size_t i = 1; i < NyariIdoszakok.size(); ++i)
        EXPECT_LT(NyariIdoszakok[i - 1].vegeNap, NyariIdoszakok[i].kezdoNap);
    EXPECT_EQ(NyariIdoszakok[0].kezdoNap, 2420983);
    EXPECT_EQ(NyariIdoszakok[0].vegeNap, 2421137);
}

TEST(NyariIdoszakok, ASzabalyosEvekVasarnapjai) {
    const auto& elso = NyariIdoszakok[20];
    EXPECT_EQ(elso.kezdoNap, nap(1984, 3, 25));
    EXPECT_EQ(elso.vegeNap, nap(1984, 9, 30));
    const auto& utolsoSzeptemberi = NyariIdoszakok[31];
    EXPECT_EQ(utolsoSzeptemberi.kezdoNap, nap(1995, 3, 26));
    EXPECT_EQ(utolsoSzeptemberi.vegeNap, nap(1995, 9, 24));
    EXPECT_EQ(NyariIdoszakok[32].vegeNap, nap(1996, 10, 27));
    for (std::size_t i = 20; i < 115; ++i) {
        EXPECT_EQ(NyariIdoszakok[i].kezdoOra, 2);
        EXPECT_EQ(NyariIdoszakok[i].vegeOra, 3);
        // 2000-03-26 was a Sunday.
        EXPECT_EQ((NyariIdoszakok[i].kezdoNap - nap(2000, 3, 26)) % 7, 0);
        EXPECT_EQ((NyariIdoszakok[i].vegeNap - nap(2000, 3, 26)) % 7, 0);
    }
    EXPECT_EQ(NyariIdoszakok[115].kezdoNap, nap(2078, 12, 32) + 84);  // 2079-03-26
    EXPECT_EQ(NyariIdoszakok[115].vegeNap, 2480555);
    EXPECT_EQ(NyariIdoszakok[115].vegeOra, 23);
}

struct TIdoszakDatum {
    std::array<int, 3> kezdo;
    int kezdoOra;
    std::array<int, 3> vege;
    int vegeOra;
    bool operator==(const TIdoszakDatum&) const = default;
};

std::array<int, 3> datum(int julianszam) {
    std::array<std::int32_t, 3> d{};
    JulianszambolDatum(julianszam, d[0], d[1], d[2]);
    return d;
}

TIdoszakDatum idoszakDatum(std::size_t sor) {
    const TNyariIdoszak& i = NyariIdoszakok[sor - 1];
    return {datum(i.kezdoNap), i.kezdoOra, datum(i.vegeNap), i.vegeOra};
}

TEST(NyariIdoszakok, ASzabalyosEvekElottiSorokNaptariNappal) {
    const TIdoszakDatum vart[]{{{1916, 4, 30}, 23, {1916, 10, 1}, 0}, {{1917, 4, 16}, 3, {1917, 6, 17}, 2},
                               {{1918, 4, 15}, 3, {1918, 9, 16}, 2},  {{1919, 4, 15}, 3, {1919, 11, 24}, 2},
                               {{1941, 4, 7}, 23, {1942, 11, 2}, 2},  {{1943, 3, 29}, 2, {1943, 10, 4}, 2},
                               {{1944, 4, 3}, 2, {1944, 10, 2}, 2},   {{1945, 5, 1}, 23, {1945, 11, 1}, 0},
                               {{1946, 3, 31}, 2, {1946, 10, 6}, 0},  {{1947, 4, 6}, 2, {1947, 10, 5}, 3},
                               {{1948, 4, 4}, 2, {1948, 10, 3}, 3},   {{1949, 4, 10}, 2, {1949, 10, 2}, 3},
                               {{1954, 5, 23}, 0, {1954, 10, 2}, 2},  {{1955, 5, 22}, 2, {1955, 10, 2}, 2},
                               {{1956, 6, 3}, 2, {1956, 9, 30}, 3},   {{1957, 6, 2}, 2, {1957, 9, 29}, 3},
                               {{1980, 4, 6}, 0, {1980, 9, 28}, 0},   {{1981, 3, 29}, 0, {1981, 9, 27}, 1},
                               {{1982, 3, 28}, 0, {1982, 9, 26}, 1},  {{1983, 3, 27}, 0, {1983, 9, 25}, 1}};
    static_assert(std::size(vart) == 20);
    for (std::size_t sor = 1; sor <= 20; ++sor) EXPECT_EQ(idoszakDatum(sor), vart[sor - 1]) << sor;
}

/// Day of the month of the last Sunday, counted from the Sunday 1900-01-07.
int utolsoVasarnap(int ev, int ho, int hoHossza) {
    int n = hoHossza;
    while ((nap(ev, ho, n) - nap(1900, 1, 7)) % 7 != 0) --n;
    return n;
}

TEST(NyariIdoszakok, AzUtolsoVasarnapokSzeptemberigMajdOktoberig) {
    for (int ev = 1984; ev <= 2078; ++ev) {
        const int vegeHo = ev <= 1995 ? 9 : 10;
        const TIdoszakDatum vart{{ev, 3, utolsoVasarnap(ev, 3, 31)},
                                 2,
                                 {ev, vegeHo, utolsoVasarnap(ev, vegeHo, vegeHo == 9 ? 30 : 31)},
                                 3};
        EXPECT_EQ(idoszakDatum(static_cast<std::size_t>(ev - 1984 + 21)), vart) << ev;
    }
    EXPECT_EQ(idoszakDatum(116), (TIdoszakDatum{{2079, 3, 26}, 2, {2079, 6, 6}, 23}));
}

TEST(NyariIdoszakok, AzEllenorzoOsszeg) {
    EllenorzoOsszeg osszeg;
    for (const TNyariIdoszak& i : NyariIdoszakok)
        for (const int x : {i.kezdoNap, i.vegeNap, i.kezdoOra, i.vegeOra}) osszeg.szam(x);
    EXPECT_EQ(osszeg.ertek(), 0xea931b74ed2640d8ULL) << std::hex << osszeg.ertek();
}

TEST(NyariIdo, EzerkilencszaztizenhatEleje_Vege) {
    EXPECT_EQ(nyari(1916, 4, 30, 22, 59, 59), 0);
    EXPECT_EQ(nyari(1916, 4, 30, 23), 1);
    EXPECT_EQ(nyari(1916, 9, 30, 23, 59, 59), 1);
    EXPECT_EQ(nyari(1916, 10, 1, 0), 0);
}

TEST(NyariIdo, ARendhagyoIdoszakokHatarai) {
    struct THatar {
        int ev, ho, nap, ora;
    };
    constexpr std::pair<THatar, THatar> idoszakok[]{
        {{1917, 4, 16, 3}, {1917, 6, 17, 2}},  {{1918, 4, 15, 3}, {1918, 9, 16, 2}},
        {{1919, 4, 15, 3}, {1919, 11, 24, 2}}, {{1941, 4, 7, 23}, {1942, 11, 2, 2}},
        {{1943, 3, 29, 2}, {1943, 10, 4, 2}},  {{1944, 4, 3, 2}, {1944, 10, 2, 2}},
        {{1946, 3, 31, 2}, {1946, 10, 6, 0}},  {{1947, 4, 6, 2}, {1947, 10, 5, 3}},
        {{1948, 4, 4, 2}, {1948, 10, 3, 3}},   {{1949, 4, 10, 2}, {1949, 10, 2, 3}},
        {{1954, 5, 23, 0}, {1954, 10, 2, 2}},  {{1955, 5, 22, 2}, {1955, 10, 2, 2}},
        {{1956, 6, 3, 2}, {1956, 9, 30, 3}},   {{1957, 6, 2, 2}, {1957, 9, 29, 3}},
        {{1980, 4, 6, 0}, {1980, 9, 28, 0}},   {{1981, 3, 29, 0}, {1981, 9, 27, 1}},
        {{1982, 3, 28, 0}, {1982, 9, 26, 1}},  {{1983, 3, 27, 0}, {1983, 9, 25, 1}}};
    for (const auto& [k, v] : idoszakok) {
        EXPECT_EQ(nyari(k.ev, k.ho, k.nap, k.ora), 1) << k.ev;
        EXPECT_EQ(NyariIdoE(nap(k.ev, k.ho, k.nap), k.ora, 0, -1), 0) << k.ev;
        EXPECT_EQ(nyari(v.ev, v.ho, v.nap, v.ora), 0) << v.ev;
        EXPECT_EQ(NyariIdoE(nap(v.ev, v.ho, v.nap), v.ora, 0, -1), 1) << v.ev;
    }
}

TEST(NyariIdo, EzerkilencszaznegyvenotHuszonharomkorKezdodik) {
    EXPECT_EQ(nyari(1945, 5, 1, 22, 59, 59), 0);
    EXPECT_EQ(nyari(1945, 5, 1, 23), 1);
    EXPECT_EQ(nyari(1945, 5, 2, 0), 1);
    EXPECT_EQ(nyari(1945, 10, 31, 23, 59, 59), 1);
    EXPECT_EQ(nyari(1945, 11, 1, 0), 0);
}

TEST(NyariIdo, EzerkilencszaznegyvenegyTelenAtTart) {
    EXPECT_EQ(nyari(1941, 12, 31, 12), 1);
    EXPECT_EQ(nyari(1942, 1, 15, 0), 1);
}

TEST(NyariIdo, EzerkilencszaznyolcvanUtolsoNapja) {
    for (int ora = 0; ora < 24; ++ora) EXPECT_EQ(nyari(1980, 9, 28, ora), 0);
    EXPECT_EQ(nyari(1980, 9, 27, 23, 59, 59), 1);
}

TEST(NyariIdo, AzOrakatallitasOraiKetezerben) {
    EXPECT_EQ(nyari(2000, 10, 29, 2, 59, 59), 1);
    EXPECT_EQ(nyari(2000, 10, 29, 3), 0);
    EXPECT_EQ(nyari(2000, 3, 26, 2, 30), 1);
    EXPECT_EQ(nyari(2000, 3, 26, 1, 59, 59), 0);
}

TEST(NyariIdo, IdoszakNelkuliEvekben_Nincs) {
    for (const int ev : {1900, 1915, 1920, 1940, 1950, 1953, 1958, 1979})
        EXPECT_EQ(nyari(ev, 7, 1, 12), 0) << ev;
    EXPECT_EQ(NyariIdoE(2480555, 22, 59, 59), 1);
    EXPECT_EQ(NyariIdoE(2480555, 23, 0, 0), 0);
    EXPECT_EQ(NyariIdoE(2480556, 0, 0, 0), 0);
}

// The public time-zone table is asked through POSIX.
#ifndef _WIN32

/// Summer time at noon of a day by the public time-zone table.
int kozismertNyariIdo(int julianszam) {
    TPillanat p;
    JulianszambolDatum(julianszam, p);
    std::tm ido{};
    ido.tm_year = p.ev - 1900;
    ido.tm_mon = p.ho - 1;
    ido.tm_mday = p.nap;
    ido.tm_hour = 12;
    ido.tm_isdst = -1;
    const std::time_t masodperc = std::mktime(&ido);
    std::tm helyi{};
    localtime_r(&masodperc, &helyi);
    return static_cast<int>(helyi.tm_gmtoff / 3600) - 1;
}

/// The public table and ours differ on the days of five stretches and on no others; the handbook lists them.
TEST(NyariIdo, AKozismertIdozonatablatolOtIdoszakbanTerEl) {
    ASSERT_EQ(setenv("TZ", "Europe/Budapest", 1), 0);
    tzset();
    ASSERT_EQ(kozismertNyariIdo(nap(2000, 7, 1)), 1) << "no time-zone table on this machine";

    struct TIdoszak {
        int elso, utolso;
        bool operator==(const TIdoszak&) const = default;
    };
    std::vector<TIdoszak> elteresek;
    for (int j = nap(1916, 1, 1); j <= nap(2025, 12, 31); ++j) {
        if (NyariIdoE(j, 12, 0, 0) == kozismertNyariIdo(j)) continue;
        if (elteresek.empty() || elteresek.back().utolso != j - 1) elteresek.push_back({j, j});
        elteresek.back().utolso = j;
    }
    const std::vector<TIdoszak> vart{{nap(1917, 6, 17), nap(1917, 9, 16)},
                                     {nap(1919, 9, 15), nap(1919, 11, 23)},
                                     {nap(1920, 4, 5), nap(1920, 9, 19)},
                                     {nap(1946, 10, 6), nap(1946, 10, 6)},
                                     {nap(1954, 10, 2), nap(1954, 10, 2)}};
    EXPECT_EQ(elteresek, vart);
    unsetenv("TZ");
    tzset();
}

#endif

}  // namespace
