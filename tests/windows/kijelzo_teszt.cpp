// The program where no display can be reached.

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QProcess>
#include <QTest>

#include "windows/kijelzo.h"

namespace {

struct TFutas {
    int kod = -1;
    QProcess::ExitStatus vege = QProcess::CrashExit;
    QString hibak;
};

/// The program's run without an X display.
TFutas futas(const QList<std::pair<QString, QString>>& valtozok) {
    QProcessEnvironment kornyezet = QProcessEnvironment::systemEnvironment();
    for (const char* nev : {"DISPLAY", "QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE"})
        kornyezet.remove(nev);
    kornyezet.insert("XDG_RUNTIME_DIR", QDir::tempPath());
    for (const auto& [nev, ertek] : valtozok) kornyezet.insert(nev, ertek);
    QProcess program;
    program.setProcessEnvironment(kornyezet);
    program.start(QCoreApplication::applicationDirPath() + "/korvend", {});
    const bool kesz = program.waitForFinished(20000);
    if (!kesz) program.kill();
    return {program.exitCode(), program.exitStatus(), QString::fromUtf8(program.readAllStandardError())};
}

bool vanWaylandBovitmeny() {
    const QDir mappa(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
    return !mappa.entryList({"libqwayland*.so"}).isEmpty();
}

}  // namespace

class KijelzoTeszt : public QObject {
    Q_OBJECT

private slots:
    void kijelzoNelkulEgyMondatAVege() {
        const TFutas f = futas({});
        QCOMPARE(f.hibak, kijelzoHiba(false) + "\n");
        QCOMPARE(f.vege, QProcess::NormalExit);
        QCOMPARE(f.kod, 1);
    }

    void waylandAlattABovitmenyHianyaEgyMondat() {
        const TFutas f = futas({{"XDG_SESSION_TYPE", "wayland"}, {"WAYLAND_DISPLAY", "nincs-ilyen"}});
        QVERIFY2(f.hibak.endsWith(kijelzoHiba(!vanWaylandBovitmeny()) + "\n"), qPrintable(f.hibak));
        if (!vanWaylandBovitmeny()) QCOMPARE(f.hibak.count('\n'), 1);
        QCOMPARE(f.vege, QProcess::NormalExit);
        QCOMPARE(f.kod, 1);
    }

    /// Only what the toolkit says of the display is kept back.
    void aTobbiUzenetTovabbmegy() {
        static QStringList jottek;
        const QtMessageHandler eredeti = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& szoveg) { jottek << szoveg; });
        {
            const QLoggingCategory kijelzo("qt.qpa.plugin"), hang("qt.multimedia");
            const TKijelzoOr jelzoOr;
            qWarning("a mappa nem olvasható");
            qCWarning(kijelzo) << "no plugin";
            qCWarning(hang) << "no sound";
        }
        qWarning("utána");
        qInstallMessageHandler(eredeti);
        QCOMPARE(jottek, QStringList({"a mappa nem olvasható", "no sound", "utána"}));
    }

    void aMondatokMegnevezikAHianyzot() {
        QVERIFY(kijelzoHiba(true).contains("qt6-wayland"));
        QVERIFY(kijelzoHiba(false).contains("kijelző"));
    }
};

QTEST_GUILESS_MAIN(KijelzoTeszt)
#include "kijelzo_teszt.moc"
