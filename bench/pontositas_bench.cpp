// Both rectifications.

#include <benchmark/benchmark.h>

#include "minta.h"
#include "rectify/mundankereses.h"
#include "rectify/mundankoveto.h"
#include "rectify/pontositas.h"

namespace {

const TMundanHely szeged{1, 166500, 72540};

/// One verdict: the pipeline of a trial chart and its analogies.
void Verdikt(benchmark::State& allas) {
    const Allapot allapot = mintaKeplet();
    TMundanLanc lanc;
    int perc = 0;
    for (auto _ : allas) {
        MundanLanc(2442492, perc / 60 % 24, perc % 60, 0, szeged, allapot.OrbisTabla, lanc);
        benchmark::DoNotOptimize(Analogiak(lanc).AnalogiaAllapot);
        ++perc;
    }
}
BENCHMARK(Verdikt)->Unit(benchmark::kMicrosecond);

/// One day of 30-second steps, each chart worked out by itself.
void EgyNapKeresese(benchmark::State& allas) {
    const Allapot allapot = mintaKeplet();
    TMundanLanc lanc;
    for (auto _ : allas) {
        int egyezo = 0;
        for (int t = 0; t < 86400; t += 30) {
            MundanLanc(2442492, t / 3600, t / 60 % 60, t % 60, szeged, allapot.OrbisTabla, lanc);
            egyezo += Analogiak(lanc).AnalogiaAllapot == '1';
        }
        benchmark::DoNotOptimize(egyezo);
    }
}
BENCHMARK(EgyNapKeresese)->Unit(benchmark::kMillisecond);

/// The same day as the search walks it.
void EgyNapKovetese(benchmark::State& allas) {
    const Allapot allapot = mintaKeplet();
    TMundanKoveto koveto(szeged, allapot.OrbisTabla);
    for (auto _ : allas) {
        int egyezo = 0;
        for (int t = 0; t < 86400; t += 30)
            egyezo += koveto.allapot(2442492, t / 3600, t / 60 % 60, t % 60) == '1';
        benchmark::DoNotOptimize(egyezo);
    }
}
BENCHMARK(EgyNapKovetese)->Unit(benchmark::kMillisecond);

/// A press of "Keresés +" to the next change, with its first and second phase.
void Kereses(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    allapot.KeresesVolt = true;
    for (auto _ : allas) {
        allapot.Keplet.pillanat = allapot.SzuletesiPillanat;
        benchmark::DoNotOptimize(MundanKereses(allapot, szeged, 1).analogiak.AnalogiaAllapot);
    }
}
BENCHMARK(Kereses)->Unit(benchmark::kMillisecond);

void PontositasHuszEsemennyel(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    allapot.PontositasHatotav = 99;
    for (int e = 1; e <= esemenyHelyek; ++e) {
        TEletesemeny& esemeny = allapot.Esemenyek.esemenyek[e];
        esemeny.esemeny = "Esemény";
        esemeny.pillanat.ev = 1980 + 2 * e;
        esemeny.pillanat.ho = 1 + e % 12;
        esemeny.hosszFok = 20;
        esemeny.szelFok = 46;
    }
    allapot.Esemenyek.EsemenyDb = esemenyHelyek;
    for (auto _ : allas) benchmark::DoNotOptimize(PontositasFutas(allapot));
}
BENCHMARK(PontositasHuszEsemennyel)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
