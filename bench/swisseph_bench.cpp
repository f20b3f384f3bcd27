// Ten bodies and twelve cusps of the same moments, here from tables and by the Swiss Ephemeris library (its
// built-in series, which need no files). The tables hold what the library computes; how near they come, the
// accuracy test of the engine tells.

#include <array>
#include <cstddef>
#include <swephexp.h>
#include <vector>

#include <benchmark/benchmark.h>

#include "engine/bolygohelyek.h"
#include "engine/csillagido.h"
#include "engine/hazak.h"

namespace {

constexpr std::int32_t szelesseg = 166497, hosszusag = 72586;  // Szeged, arcseconds

/// A moment in Universal Time.
struct TMoment {
    std::int32_t nap, masodperc;
    double julianNap() const { return nap + 0.5 + masodperc / 86400.0; }
};

/// Far apart, so that neither side finds its last answer again.
const std::vector<TMoment>& momentumok() {
    static const std::vector<TMoment> mind = [] {
        constexpr std::int32_t db = 1000;
        std::vector<TMoment> uj;
        uj.reserve(db);
        for (std::int32_t i = 0; i < db; ++i) uj.push_back({2415021 + i * 7919 % 65000, i * 7919 % 86400});
        return uj;
    }();
    return mind;
}

template <typename F>
void momentumonkent(benchmark::State& allas, F szamitas) {
    std::size_t i = 0;
    for (auto _ : allas) szamitas(momentumok()[i++ % momentumok().size()]);
}

void EgitestekTablabol(benchmark::State& allas) {
    momentumonkent(allas, [](const TMoment& m) {
        TBolygok Bolygok;
        TMozgasok Mozgasok;
        BolygoHelyek(m.nap, m.masodperc / 86400.0, Bolygok, Mozgasok);
        benchmark::DoNotOptimize(Bolygok);
        benchmark::DoNotOptimize(Mozgasok);
    });
}
BENCHMARK(EgitestekTablabol);

void EgitestekSwissEphemeris(benchmark::State& allas) {
    momentumonkent(allas, [](const TMoment& m) {
        std::array<double, 6> hely{};
        std::array<char, AS_MAXCH> hiba{};
        for (int test = SE_SUN; test <= SE_PLUTO; ++test) {
            swe_calc_ut(m.julianNap(), test, SEFLG_MOSEPH | SEFLG_SPEED, hely.data(), hiba.data());
            benchmark::DoNotOptimize(hely);
        }
    });
}
BENCHMARK(EgitestekSwissEphemeris);

void HazcsucsokTablabol(benchmark::State& allas) {
    momentumonkent(allas, [](const TMoment& m) {
        const TCsillagIdo ido =
            CsillagIdo(m.nap, m.masodperc / 3600, m.masodperc / 60 % 60, m.masodperc % 60, hosszusag, 0, 0);
        THazcsucsok csucsok;
        Hazak(ido.armcOra, ido.armcPerc, ido.armcMperc, csucsok, szelesseg);
        benchmark::DoNotOptimize(csucsok);
    });
}
BENCHMARK(HazcsucsokTablabol);

void HazcsucsokSwissEphemeris(benchmark::State& allas) {
    momentumonkent(allas, [](const TMoment& m) {
        std::array<double, 13> csucsok{};
        std::array<double, 10> tengelyek{};
        swe_houses(m.julianNap(), szelesseg / 3600.0, hosszusag / 3600.0, 'P', csucsok.data(),
                   tengelyek.data());
        benchmark::DoNotOptimize(csucsok);
    });
}
BENCHMARK(HazcsucsokSwissEphemeris);

}  // namespace

BENCHMARK_MAIN();
