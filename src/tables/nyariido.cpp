#include "tables/nyariido.h"

#include <chrono>
#include <cstddef>

#include "tables/efemerida.h"
#include "tables/szamtan.h"

namespace {

using namespace std::chrono;

/// Day number of a calendar date.
constexpr std::int32_t napSzam(year_month_day datum) {
    constexpr sys_days elsoNap = year{1900} / January / 1;
    return static_cast<std::int32_t>((sys_days{datum} - elsoNap).count()) + julianszamAlap + 1;
}

constexpr std::int32_t napSzam(int ev, unsigned ho, unsigned nap) {
    return napSzam(year{ev} / month{ho} / day{nap});
}

constexpr std::int32_t utolsoVasarnap(int ev, month ho) {
    return napSzam(sys_days{year{ev} / ho / Sunday[last]});
}

struct TDatum {
    int ev;
    unsigned ho, nap;
};

struct TRendhagyo {
    TDatum kezdo;
    int kezdoOra;
    TDatum vege;
    int vegeOra;
};

/// The periods of the years without a rule. The one of 1941 runs through the winter.
constexpr TRendhagyo rendhagyoIdoszakok[]{
    {{1916, 4, 30}, 23, {1916, 10, 1}, 0}, {{1917, 4, 16}, 3, {1917, 6, 17}, 2},
    {{1918, 4, 15}, 3, {1918, 9, 16}, 2},  {{1919, 4, 15}, 3, {1919, 11, 24}, 2},
    {{1941, 4, 7}, 23, {1942, 11, 2}, 2},  {{1943, 3, 29}, 2, {1943, 10, 4}, 2},
    {{1944, 4, 3}, 2, {1944, 10, 2}, 2},   {{1945, 5, 1}, 23, {1945, 11, 1}, 0},
    {{1946, 3, 31}, 2, {1946, 10, 6}, 0},  {{1947, 4, 6}, 2, {1947, 10, 5}, 3},
    {{1948, 4, 4}, 2, {1948, 10, 3}, 3},   {{1949, 4, 10}, 2, {1949, 10, 2}, 3},
    {{1954, 5, 23}, 0, {1954, 10, 2}, 2},  {{1955, 5, 22}, 2, {1955, 10, 2}, 2},
    {{1956, 6, 3}, 2, {1956, 9, 30}, 3},   {{1957, 6, 2}, 2, {1957, 9, 29}, 3},
    {{1980, 4, 6}, 0, {1980, 9, 28}, 0},   {{1981, 3, 29}, 0, {1981, 9, 27}, 1},
    {{1982, 3, 28}, 0, {1982, 9, 26}, 1},  {{1983, 3, 27}, 0, {1983, 9, 25}, 1},
};

/// From the last Sunday of March at 2 to the last Sunday of September, later of October, at 3.
constexpr int elsoSzabalyosEv = 1984;
constexpr int elsoOktoberesEv = 1996;
constexpr int utolsoSzabalyosEv = 2078;

/// The last period ends with the ephemeris.
constexpr TRendhagyo utolsoIdoszak{{2079, 3, 26}, 2, {2079, 6, 6}, 23};

constexpr TNyariIdoszak idoszak(const TRendhagyo& r) {
    return {napSzam(r.kezdo.ev, r.kezdo.ho, r.kezdo.nap), napSzam(r.vege.ev, r.vege.ho, r.vege.nap),
            r.kezdoOra, r.vegeOra};
}

constexpr std::array<TNyariIdoszak, 116> osszesIdoszak() {
    std::array<TNyariIdoszak, 116> sorok{};
    std::size_t n = 0;
    for (const TRendhagyo& r : rendhagyoIdoszakok) sorok[n++] = idoszak(r);
    for (int ev = elsoSzabalyosEv; ev <= utolsoSzabalyosEv; ++ev)
        sorok[n++] = {utolsoVasarnap(ev, March),
                      utolsoVasarnap(ev, ev < elsoOktoberesEv ? September : October), 2, 3};
    sorok[n] = idoszak(utolsoIdoszak);
    return sorok;
}

}  // namespace

constinit const std::array<TNyariIdoszak, 116> NyariIdoszakok = osszesIdoszak();

int NyariIdoE(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc) {
    const std::int64_t masodperc = idoMasodperc(ora, perc, mperc);
    for (const TNyariIdoszak& i : NyariIdoszakok) {
        if (julianszam < i.kezdoNap) return 0;
        if (julianszam > i.kezdoNap && julianszam < i.vegeNap) return 1;
        if (julianszam == i.kezdoNap && masodperc >= std::int64_t{i.kezdoOra} * 3600) return 1;
        if (julianszam == i.vegeNap && masodperc < std::int64_t{i.vegeOra} * 3600) return 1;
    }
    return 0;
}
