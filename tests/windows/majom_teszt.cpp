// The program under somebody who knows nothing of it: thousands of random events over all its windows.
//
// By environment: KORVEND_MAJOM_MAG the first seed, KORVEND_MAJOM_ESEMENY how many events in all,
// KORVEND_MAJOM_NAPLO tells each event. A seed is one run of the program, the next run has the next seed; so
// the seed that a failure names, given as the first one, repeats that run alone.

#include <array>
#include <csignal>
#include <cstdio>
#include <execinfo.h>
#include <malloc.h>
#include <unistd.h>

#include "majom.h"

/// What the sanitizers call before they end the program; there is none without them. The name is theirs.
// NOLINTNEXTLINE(clang-diagnostic-reserved-identifier)
extern "C" void __sanitizer_set_death_callback(void (*mi)()) __attribute__((weak));

namespace {

constexpr int alapEsemenyek = 5000;
constexpr int egyFutas = 1000;     ///< events in a run of the program at most
constexpr int sajatja = 8;         ///< widgets that the toolkit makes once for itself and keeps
constexpr unsigned turelem = 300;  ///< seconds without a run's end: the program hangs

/// To stderr by nothing that a broken heap could hinder.
void helyKiirasa() {
    char sor[128];
    const int hossz = snprintf(sor, sizeof sor, "\nmonkey: KORVEND_MAJOM_MAG=%llu, event %d\n",
                               static_cast<unsigned long long>(TMajom::futoMag()), TMajom::futoEsemeny());
    if (write(STDERR_FILENO, sor, static_cast<std::size_t>(hossz)) < 0) _exit(1);
}

QtMessageHandler elozoKezelo = nullptr;

/// What the platform without a screen has to say of every window stays unsaid, and that a click went beside
/// one.
void uzenetSzures(QtMsgType fajta, const QMessageLogContext& hely, const QString& szoveg) {
    if (!szoveg.startsWith("This plugin does not support") && !szoveg.startsWith("Mouse event at"))
        elozoKezelo(fajta, hely, szoveg);
}

void jelzes(int szam) {
    helyKiirasa();
    std::array<void*, 60> hivasok{};
    backtrace_symbols_fd(hivasok.data(), backtrace(hivasok.data(), static_cast<int>(hivasok.size())),
                         STDERR_FILENO);
    std::signal(szam, SIG_DFL);
    std::raise(szam);
}

int beallitas(const char* nev, int alap) {
    bool szam = false;
    const int ertek = qEnvironmentVariableIntValue(nev, &szam);
    return szam ? ertek : alap;
}

struct TOsszes {
    int futasok = 0;
    int esemenyek = 0;
    std::set<QString> ablakok, fajtak, pontok;
    int objektumok = 0, felsoAblakok = 0;
};

void osszead(TOsszes& o, const TMajomEredmeny& e) {
    ++o.futasok;
    o.esemenyek += e.esemenyek;
    o.ablakok.insert(e.ablakok.begin(), e.ablakok.end());
    o.fajtak.insert(e.fajtak.begin(), e.fajtak.end());
    o.pontok.insert(e.pontok.begin(), e.pontok.end());
    o.objektumok = qMax(o.objektumok, e.objektumok);
    o.felsoAblakok = qMax(o.felsoAblakok, e.felsoAblakok);
}

}  // namespace

class MajomTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        sajatBetukBetoltese();
        elozoKezelo = qInstallMessageHandler(uzenetSzures);
        for (const int szam : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM, SIGTERM})
            if (__sanitizer_set_death_callback == nullptr || szam == SIGALRM || szam == SIGTERM)
                std::signal(szam, jelzes);
        if (__sanitizer_set_death_callback != nullptr) __sanitizer_set_death_callback(helyKiirasa);
    }

    void ugyanazAMagUgyanaztTeszi() {
        constexpr int nehany = 300;
        const TMajomEredmeny egy = TMajom(7).fut(nehany);
        QCOMPARE(egy.hibak, QStringList());
        QCOMPARE(TMajom(7).fut(nehany).lenyomat, egy.lenyomat);
        QVERIFY(TMajom(8).fut(nehany).lenyomat != egy.lenyomat);
    }

    void aProgramMindentKibir() {
        const int osszesen = beallitas("KORVEND_MAJOM_ESEMENY", alapEsemenyek);
        auto mag = static_cast<std::uint64_t>(beallitas("KORVEND_MAJOM_MAG", 1));
        TOsszes o;
        while (o.esemenyek < osszesen) {
            alarm(turelem);
            const TMajomEredmeny e = TMajom(mag).fut(qMin(egyFutas, osszesen - o.esemenyek));
            QVERIFY2(e.hibak.isEmpty(), qPrintable(QStringLiteral("KORVEND_MAJOM_MAG=%1, event %2: %3")
                                                       .arg(mag)
                                                       .arg(e.esemenyek)
                                                       .arg(e.hibak.join("; "))));
            osszead(o, e);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY2(QApplication::allWidgets().size() <= sajatja,
                     "a run of the program leaves windows behind");
            jelentes(o, mag, osszesen);
            ++mag;
        }
        alarm(0);
        if (!qEnvironmentVariableIsSet("KORVEND_MAJOM_MAG") && osszesen >= alapEsemenyek) bejaras(o);
    }

private:
    static void jelentes(const TOsszes& o, std::uint64_t mag, int osszesen) {
        if (o.futasok % 50 != 0 && o.esemenyek < osszesen) return;
        qInfo(
            "%d events in %d runs up to seed %llu: %d windows, %d derived kinds, %d menu items; at most %d "
            "objects "
            "and %d open windows; %zu kB in use",
            o.esemenyek, o.futasok, static_cast<unsigned long long>(mag), static_cast<int>(o.ablakok.size()),
            static_cast<int>(o.fajtak.size()), static_cast<int>(o.pontok.size()), o.objektumok,
            o.felsoAblakok, mallinfo2().uordblks / 1024);
    }

    /// The events reach nearly everything that there is; what they miss is another with each compiler, which
    /// may evaluate arguments in another order. Of other seeds' few events it is not sure.
    static void bejaras(const TOsszes& o) {
        QVERIFY(o.ablakok.size() >= 11);  // of the fourteen; nothing opens the fourth
        QVERIFY(o.pontok.size() >= 40);
        QVERIFY(o.fajtak.size() >= 9);
    }
};

int main(int argc, char** argv) {
    qputenv("TZ", "UTC");
    qputenv("QT_HASH_SEED", "0");
    qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000");  // milliseconds; a long run is no fault
    QApplication program(argc, argv);
    QApplication::setDoubleClickInterval(400);
    QApplication::setQuitOnLastWindowClosed(false);
    MajomTeszt teszt;
    return QTest::qExec(&teszt, argc, argv);
}

#include "majom_teszt.moc"
