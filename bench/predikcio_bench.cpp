// The searches of the predictive techniques.

#include <benchmark/benchmark.h>

#include "minta.h"
#include "predictive/ingresszio.h"
#include "predictive/primer.h"
#include "predictive/tercier.h"
#include "predictive/visszateresek.h"

namespace {

void RevolucioLista(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    const TVisszateresFajta fajta = RevolucioFajta(static_cast<int>(allas.range(0)));
    const double cel = VisszateresCel(allapot, fajta);
    for (auto _ : allas) {
        VisszateresKereses(allapot, fajta, cel);
        benchmark::DoNotOptimize(allapot.Visszateresek.szamlalo);
    }
}
BENCHMARK(RevolucioLista)->DenseRange(1, revolucioFajtak)->Unit(benchmark::kMicrosecond);

void PersonarLista(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    const TVisszateresFajta fajta = PersonarFajta(static_cast<int>(allas.range(0)));
    const double cel = VisszateresCel(allapot, fajta);
    for (auto _ : allas) {
        VisszateresKereses(allapot, fajta, cel);
        benchmark::DoNotOptimize(allapot.Visszateresek.szamlalo);
    }
}
BENCHMARK(PersonarLista)->DenseRange(1, personarFajtak)->Unit(benchmark::kMicrosecond);

void PrimerLista(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    // Few points, so that all 3661 days are examined.
    for (int i = 2; i <= 10; ++i) allapot.Rajz.FenyszogPontok[i].tolt(-100);
    for (auto _ : allas) benchmark::DoNotOptimize(PrimerFutas(allapot, {2000, 1, 1, 0, 0, 0}));
}
BENCHMARK(PrimerLista)->Unit(benchmark::kMillisecond);

void Tercier(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    for (auto _ : allas)
        benchmark::DoNotOptimize(
            TercierKeres(allapot, allapot.SzuletesiPillanat, {2001, 5, 6, 0, 0, 0}, "Szeged", 45));
}
BENCHMARK(Tercier)->Unit(benchmark::kMicrosecond);

void Ingresszio(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    for (auto _ : allas)
        benchmark::DoNotOptimize(
            IngresszioKeres(allapot, allapot.SzuletesiPillanat, {2001, 5, 6, 0, 0, 0}, "Szeged"));
}
BENCHMARK(Ingresszio)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
