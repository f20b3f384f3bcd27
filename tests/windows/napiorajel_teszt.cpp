// The program left running for a day: the clock ticks, the titles scroll, and it needs no more memory than
// before.
//
// KORVEND_ORAJELEK by environment: how many ticks in place of the usual number.

#include <cstdio>
#include <malloc.h>

#include "ablakteszt.h"
#include "commands/orajel.h"
#include "probaora.h"

/// Bytes in use as the sanitizer counts them, which has an allocator of its own; there is none without it.
/// The name is the sanitizer's.
// NOLINTNEXTLINE(clang-diagnostic-reserved-identifier)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

namespace {

constexpr int egyOra = 3'600'000 / orajelEzredmasodperc;
constexpr int egyNap = 24 * egyOra;
static_assert(egyNap == 345'600);

#ifdef NDEBUG
constexpr int alapOrajelek = 6 * egyOra;
#else
constexpr int alapOrajelek = egyOra;  // unoptimized and checked it takes much longer
#endif

constexpr std::int64_t induloIdo = 1'709'596'800;  // 2024-03-05 0:00:00

/// What one moment may need more than another: the length of a text, pictures of letters that were not drawn
/// before; it was 14 kB in a day, half of it in its first nine hours. A single byte left behind by each tick
/// makes 84 kB in six hours, the 32 bytes of the smallest text left behind by each full recompute 44 kB in a
/// day.
constexpr qint64 ingadozas = 32 * 1024;

qint64 foglalt() {
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes != nullptr
                                   ? __sanitizer_get_current_allocated_bytes()
                                   : mallinfo2().uordblks + mallinfo2().hblkhd);
}

/// Memory of the process that is in the machine, bytes.
qint64 bentLevo() {
    long lapok = 0;
    if (FILE* be = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(be, "%*d %ld", &lapok) != 1) lapok = 0;
        std::fclose(be);
    }
    return qint64{lapok} * 4096;
}

void elesztes(TFrissAblakok& a, TProbaOra& ora, int orajelek) {
    for (int i = 0; i < orajelek; ++i) {
        ora.telik(orajelEzredmasodperc);
        a.form1.Timer1Timer();
        QApplication::processEvents();
    }
}

}  // namespace

class NapiOrajelTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    /// The computer's clock sets the chart, the stepper and the rectification are open beside it.
    void orakAlattNemNoAFoglaltMemoria() {
        bool megadva = false;
        const int kert = qEnvironmentVariableIntValue("KORVEND_ORAJELEK", &megadva);
        const int orajelek = megadva ? kert : alapOrajelek;
        TProbaOra ora(induloIdo);
        TFrissAblakok a;
        a.allapot().JelszoRendben = true;
        menu(a.form1, "Radixlepteto1");
        elesztes(a, ora, egyOra);
        const qint64 elotte = foglalt();
        const qint64 bentElotte = bentLevo();
        elesztes(a, ora, orajelek);
        const qint64 tobblet = foglalt() - elotte;
        qInfo("%d ticks: %lld bytes more in use, %lld more in the machine", orajelek, tobblet,
              bentLevo() - bentElotte);
        QVERIFY(elotte > 0);
        QVERIFY2(tobblet < ingadozas, qPrintable(QString::number(tobblet)));
        // The clock has gone all the way, and the chart with it.
        const TPillanat& most = a.allapot().Keplet.pillanat;
        QVERIFY((most.nap - 5) * 24 + most.ora >= (egyOra + orajelek) / egyOra);
        QVERIFY(a.allapot().MostFut);
    }
};

int main(int argc, char** argv) {
    qputenv("TZ", "UTC");
    QApplication program(argc, argv);
    NapiOrajelTeszt teszt;
    return QTest::qExec(&teszt, argc, argv);
}

#include "napiorajel_teszt.moc"
