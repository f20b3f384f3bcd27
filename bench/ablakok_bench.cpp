// One drawing of each view at 1600 x 1000, and the tick of a chart at rest.

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <benchmark/benchmark.h>

#include "commands/nezet.h"
#include "drawing/geometria.h"
#include "drawing/kepletrajz.h"
#include "windows/ablakok.h"
#include "windows/betumappak.h"
#include "windows/kepletfelulet.h"

namespace {

/// From the chart to the pixels, as the main window's surface keeps and paints it.
void NezetRajzolasa(benchmark::State& allas) {
    TForm1 ablak;
    Allapot& allapot = ablak.allapot();
    allapot.KepletTipus = static_cast<TKepletTipus>(allas.range(0));
    KepletFelulet felulet;
    felulet.resize(1600, 1000);
    QPixmap kep(felulet.size());
    for (auto _ : allas) {
        AblakGeometria(allapot.Rajz, allapot.Keplet.hazCsucs[1], felulet.width(), felulet.height());
        felulet.ujrarajzol(felulet.rect(), [&](Vaszon& vaszon) { KepletRajz(vaszon, allapot); });
        QPainter festo(&kep);
        felulet.fest(festo);
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
