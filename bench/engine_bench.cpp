// The engine's figures for one chart.

#include <benchmark/benchmark.h>

#include "chart/statuszsor.h"
#include "engine/bolygohelyek.h"
#include "engine/fenyszogek.h"
#include "engine/hazak.h"
#include "minta.h"

namespace {

void TeljesKeplet(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    const int julianszam = allapot.Keplet.julianszam;
    for (auto _ : allas) {
        allapot.Keplet.julianszam = julianszam;
        allapot.Keplet.pillanat.mperc = (allapot.Keplet.pillanat.mperc + 1) % 60;
        CsillagIdoLepes(allapot.Keplet);
        IrStatuszSor(allapot, allapot.Keplet.pillanat, TIdoTipus::ZN);
        KepletCiklus(allapot);
        benchmark::DoNotOptimize(allapot.Uralkodok.UralkodoSzoveg.data());
    }
}
BENCHMARK(TeljesKeplet);

void HelyzetekMaguk(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    for (auto _ : allas) {
        BolygoHelyek(allapot.Keplet.julianszam, allapot.Keplet.napresz, allapot.Keplet.Bolygok,
                     allapot.Keplet.Mozgasok);
        benchmark::DoNotOptimize(allapot.Keplet.Bolygok);
    }
}
BENCHMARK(HelyzetekMaguk);

void HazcsucsokMaguk(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    const TKeplet& k = allapot.Keplet;
    THazcsucsok csucsok;
    for (auto _ : allas) {
        Hazak(k.armcOra, k.armcPerc, k.armcMperc, csucsok, k.szelesseg);
        benchmark::DoNotOptimize(csucsok);
    }
}
BENCHMARK(HazcsucsokMaguk);

void FenyszogMatrixok(benchmark::State& allas) {
    Allapot allapot = mintaKeplet();
    for (auto _ : allas) {
        ElteresSzamitas(allapot.Keplet.Bolygok, allapot.Munka);
        Fenyszogek(allapot.OrbisTabla, allapot.Munka);
        TJelMatrix radix = allapot.Munka.FenyszogMatrix;
        EgyuttallasLanc(allapot.Munka.FenyszogMatrix);
        AlsoFelso(allapot.Keplet.Bolygok, radix);
        benchmark::DoNotOptimize(radix);
        benchmark::DoNotOptimize(allapot.Munka.FenyszogMatrix);
    }
}
BENCHMARK(FenyszogMatrixok);

}  // namespace

BENCHMARK_MAIN();
