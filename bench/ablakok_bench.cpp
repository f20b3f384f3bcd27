// One drawing of each view at 1600 x 1000, and the tick of a chart at rest.

#include <QApplication>
#include <QPixmap>
#include <benchmark/benchmark.h>

#include "commands/nezet.h"
#include "drawing/geometria.h"
#include "drawing/kepletrajz.h"
#include "windows/ablakok.h"
#include "windows/betumappak.h"
#include "windows/qtvaszon.h"

namespace {

void NezetRajzolasa(benchmark::State& allas) {
    TForm1 ablak;
    Allapot& allapot = ablak.allapot();
    allapot.KepletTipus = static_cast<TKepletTipus>(allas.range(0));
    QPixmap felulet(1600, 1000);
    for (auto _ : allas) {
        felulet.fill(Qt::white);
        AblakGeometria(allapot.Rajz, allapot.Keplet.hazCsucs[1], felulet.width(), felulet.height());
        QPainter festo(&felulet);
        QtVaszon vaszon(festo, TLap::feher);
        KepletRajz(vaszon, allapot);
    }
}
BENCHMARK(NezetRajzolasa)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

void NyugalmiOrajel(benchmark::State& allas) {
    TAblakok ablakok;
    ablakok.form1.show();
    ablakok.form1.allapot().MostFut = false;
    for (auto _ : allas) ablakok.form1.Timer1Timer();
}
BENCHMARK(NyugalmiOrajel)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication program(argc, argv);
    sajatBetukBetoltese();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
