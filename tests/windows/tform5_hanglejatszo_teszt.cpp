// The sound of a chart, with a file that the test makes.

#include <cmath>
#include <functional>

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "commands/kvhfajl.h"
#include "probaparbeszed.h"

#ifdef Q_OS_WIN
#include <array>

// clang-format off
#include <windows.h>
#include <mmsystem.h>  // needs the types of the one above
// clang-format on
#else
#include <QMediaPlayer>
#endif

namespace {

/// A tone as a WAV file, of half a second by itself.
void hangFajl(const QString& fajl, int mintak = 4000) {
    constexpr int mintavetel = 8000;
    QByteArray adat;
    for (int i = 0; i < mintak; ++i)
        adat.append(static_cast<char>(std::lround(128 + 60 * std::sin(i * 0.3))));
    const auto szam = [](quint32 ertek, int bajtok) {
        QByteArray b;
        for (int i = 0; i < bajtok; ++i) b.append(static_cast<char>(ertek >> (8 * i) & 0xFFU));
        return b;
    };
    QFile ki(fajl);
    QVERIFY(ki.open(QIODevice::WriteOnly));
    ki.write("RIFF" + szam(static_cast<quint32>(36 + mintak), 4) + "WAVEfmt " + szam(16, 4) + szam(1, 2) +
             szam(1, 2) + szam(mintavetel, 4) + szam(mintavetel, 4) + szam(1, 2) + szam(8, 2) + "data" +
             szam(static_cast<quint32>(mintak), 4) + adat);
}

/// A chart with the sound mark under that name, its sound looked for.
void hangNyitasa(TFrissAblakok& a, const char* nev) {
    a.allapot().Szemely.nev = nev;
    a.allapot().Szemely.hangJel = "H";
    a.form5.HangLink();
}

enum class TJatek { all, megy, szunetel, nincs };

#ifdef Q_OS_WIN

/// What the system says of the process's sound.
QString hangrol(const char* mit) {
    std::array<wchar_t, 128> valasz{};
    const QString kerdes = QStringLiteral("status korvend_hang ") + mit;
    mciSendStringW(reinterpret_cast<const wchar_t*>(kerdes.utf16()), valasz.data(),
                   static_cast<UINT>(valasz.size()), nullptr);
    return QString::fromWCharArray(valasz.data());
}
TJatek jatek(TForm5&) {
    const QString mod = hangrol("mode");
    if (mod == "stopped") return TJatek::all;
    if (mod == "playing") return TJatek::megy;
    return mod == "paused" ? TJatek::szunetel : TJatek::nincs;
}
qint64 hossza(TForm5&) {
    return hangrol("length").toLongLong();
}
qint64 helye(TForm5&) {
    return hangrol("position").toLongLong();
}
/// There the player tells each fault once.
void megintHiba(TForm5&) {}

#else

QMediaPlayer& lejatszo(TForm5& ablak) {
    return *ablak.findChild<QObject*>("MediaPlayer1")->findChild<QMediaPlayer*>();
}
TJatek jatek(TForm5& ablak) {
    switch (lejatszo(ablak).playbackState()) {
        case QMediaPlayer::StoppedState:
            return TJatek::all;
        case QMediaPlayer::PlayingState:
            return TJatek::megy;
        case QMediaPlayer::PausedState:
            return TJatek::szunetel;
    }
    return TJatek::nincs;
}
qint64 hossza(TForm5& ablak) {
    return lejatszo(ablak).duration();
}
qint64 helye(TForm5& ablak) {
    return lejatszo(ablak).position();
}
/// The player may report the same fault more than once, and in other words.
void megintHiba(TForm5& ablak) {
    emit lejatszo(ablak).errorOccurred(QMediaPlayer::ResourceError, "megint");
    emit lejatszo(ablak).errorOccurred(QMediaPlayer::FormatError, "és megint");
}

#endif

}  // namespace

class TForm5Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        sajatBetukBetoltese();
        regiKonyvtar_ = QDir::currentPath();
        QVERIFY(QDir::setCurrent(mappa_.path()));
        hangFajl(mappa_.filePath("Szép hang.mpe"));
        hangFajl(mappa_.filePath("Hosszú hang.mpe"), 8000 * 60);
        QFile szemet(mappa_.filePath("Rossz.mpe"));
        QVERIFY(szemet.open(QIODevice::WriteOnly));
        szemet.write("ez nem hang");
    }
    void cleanupTestCase() { QDir::setCurrent(regiKonyvtar_); }

    void jelEsFajlEgyuttNyitjaALejatszot() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        a.form5.parbeszedBeallitasa(p);
        a.allapot().Szemely.nev = "Szép hang";
        a.allapot().Szemely.hangJel = "H";
        QVERIFY(!KepletMentes(a.allapot(), mappa_.filePath("a.kvh").toStdString()));
        p.fajl = mappa_.filePath("a.kvh");
        menu(a.form1, "Megnyitas1");
        QVERIFY(a.form5.isVisible());
        QCOMPARE(a.form5.size(), QSize(208, 30));
        // Halfway across the main window, 30 pixels under its top.
        QCOMPARE(a.form5.pos(), QPoint(a.form1.x() + a.form1.width() / 2 - 208 / 2, a.form1.y() + 30));
        QVERIFY(a.allapot().HangAktiv);
        QCOMPARE(a.allapot().HangCim, std::string("Szép hang   "));
        a.orajelek(1);
        QCOMPARE(a.form5.windowTitle(), "zép hang   S");
        QTRY_VERIFY(hossza(a.form5) >= 450 && hossza(a.form5) <= 550);
        kattint(a.form5, "Lejatszas1");
        QTRY_COMPARE(jatek(a.form5), TJatek::megy);
        kattint(a.form5, "Szunet1");
        QTRY_COMPARE(jatek(a.form5), TJatek::szunetel);
        kattint(a.form5, "Megallitas1");
        QTRY_COMPARE(jatek(a.form5), TJatek::all);
        QVERIFY(p.uzenetek.isEmpty());
    }

    void aSzunetUtanOnnanFolytatja() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form5.parbeszedBeallitasa(p);
        hangNyitasa(a, "Hosszú hang");
        QTRY_VERIFY(helye(a.form5) > 500);
        kattint(a.form5, "Szunet1");
        QTRY_COMPARE(jatek(a.form5), TJatek::szunetel);
        const qint64 itt = helye(a.form5);
        QVERIFY(itt > 500);
        kattint(a.form5, "Lejatszas1");
        QTRY_COMPARE(jatek(a.form5), TJatek::megy);
        QTRY_VERIFY(helye(a.form5) > 0);
        QVERIFY(helye(a.form5) >= itt);
        kattint(a.form5, "Megallitas1");
        QTRY_COMPARE(helye(a.form5), 0);
        QVERIFY(p.uzenetek.isEmpty());
    }

    /// A file plays as soon as it is read, but not any more when a button has been quicker.
    void azIndulasElottMegallitottHangNemSzolalMeg() {
        for (const char* gomb : {"Szunet1", "Megallitas1"}) {
            TFrissAblakok a;
            hangNyitasa(a, "Hosszú hang");
            kattint(a.form5, gomb);
            QTRY_VERIFY(hossza(a.form5) > 0);
            QTest::qWait(300);
            QVERIFY2(jatek(a.form5) != TJatek::megy, gomb);
            QCOMPARE(helye(a.form5), 0);
        }
    }

    void jelVagyFajlNelkulSemmi() {
        TFrissAblakok a;
        a.allapot().Szemely.nev = "Szép hang";
        a.form5.HangLink();
        QVERIFY(!a.form5.isVisible());
        a.allapot().Szemely.hangJel = "H";
        a.allapot().Szemely.nev = "Nincs ilyen";
        a.form5.HangLink();
        QVERIFY(!a.form5.isVisible());
        QVERIFY(!a.allapot().HangAktiv);
    }

    void aRosszFajlEgyUzenetetAdDeAzAblakLatszik() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form5.parbeszedBeallitasa(p);
        a.oraIndul();
        for (int kor = 1; kor <= 2; ++kor) {  // each opening has its own message
            hangNyitasa(a, "Rossz");
            QVERIFY(a.form5.isVisible());
            QTRY_COMPARE(p.uzenetek.size(), kor);
            megintHiba(a.form5);
            QTest::qWait(tobbOrajel);
            QCOMPARE(p.uzenetek.size(), kor);
            QVERIFY(p.uzenetek.last().startsWith("Hibakód: "));
            QVERIFY(p.uzenetek.last().contains("\r\n"));
            a.form5.close();
        }
    }

    void aRosszFajlUzeneteAFelhasznaloEleKerul() {
        TFrissAblakok a;
        a.oraIndul();
        QStringList szovegek;
        QTimer figyelo;
        connect(&figyelo, &QTimer::timeout, this, [&szovegek] {
            auto* doboz = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (doboz == nullptr) return;
            szovegek << doboz->text();
            QTest::keyClick(doboz, Qt::Key_Return);
        });
        figyelo.start(10);
        for (int kor = 1; kor <= 2; ++kor) {
            hangNyitasa(a, "Rossz");
            QTRY_COMPARE(szovegek.size(), kor);
            QVERIFY2(szovegek.last().startsWith("Hibakód: "), qPrintable(szovegek.last()));
            QTest::keyClick(&a.form5, Qt::Key_Escape);
        }
    }

    void hangkonyvtarNelkulEgyMondatEsAzAblakLatszik() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form5.parbeszedBeallitasa(p);
        a.form5.modul = [] { return nullptr; };
        const QString mondat = "A hang lejátszásához hiányzik a Qt Multimedia hangkönyvtár.";
        hangNyitasa(a, "Szép hang");
        QCOMPARE(p.uzenetek, QStringList(mondat));
        QVERIFY(a.form5.isVisible());
        QVERIFY(a.allapot().HangAktiv);
        kattint(a.form5, "Lejatszas1");
        QCOMPARE(p.uzenetek, QStringList({mondat, mondat}));
        QTest::keyClick(&a.form5, Qt::Key_Escape);
        QVERIFY(!a.form5.isVisible());
        a.form5.modul = hangModul;  // the library has been installed meanwhile
        hangNyitasa(a, "Szép hang");
        QTRY_COMPARE(jatek(a.form5), TJatek::megy);
        QCOMPARE(p.uzenetek.size(), 2);
    }

    void aBezartLejatszoElhallgat() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form5.parbeszedBeallitasa(p);
        a.oraIndul();
        const QList<std::function<void(QWidget&)>> zarasok{
            [](QWidget& d) { d.close(); }, [](QWidget& d) { QTest::keyClick(&d, Qt::Key_Escape); },
            [](QWidget& d) { d.hide(); }};
        for (const auto& zar : zarasok) {
            hangNyitasa(a, "Hosszú hang");
            QTRY_COMPARE(jatek(a.form5), TJatek::megy);
            QTRY_VERIFY(helye(a.form5) > 0);
            zar(a.form5);
            QVERIFY(!a.form5.isVisible());
            QTRY_COMPARE(jatek(a.form5), TJatek::all);
        }
        QVERIFY(p.uzenetek.isEmpty());
    }

    /// Whatever the player is doing then, reading the file or playing it.
    void egyMasikHangBarmikorJohet() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form5.parbeszedBeallitasa(p);
        a.oraIndul();
        for (const bool megvarja : {false, true, false}) {
            hangNyitasa(a, "Hosszú hang");
            if (megvarja) QTRY_COMPARE(jatek(a.form5), TJatek::megy);
            hangNyitasa(a, "Szép hang");
            QTRY_VERIFY(hossza(a.form5) >= 450 && hossza(a.form5) <= 550);
            QTRY_COMPARE(jatek(a.form5), TJatek::megy);
            QTRY_COMPARE(jatek(a.form5), TJatek::all);  // half a second later it is over
        }
        QVERIFY(p.uzenetek.isEmpty());
    }

    void aProgramHangKozbenIsVegetErhet() {
        TProbaParbeszed p;
        for (const bool megvarja : {false, true}) {
            TFrissAblakok a;
            a.form5.parbeszedBeallitasa(p);
            hangNyitasa(a, "Hosszú hang");
            if (megvarja) QTRY_COMPARE(jatek(a.form5), TJatek::megy);
        }
        QTest::qWait(tobbOrajel);
        QVERIFY(p.uzenetek.isEmpty());
    }

private:
    QTemporaryDir mappa_;
    QString regiKonyvtar_;
};

QTEST_MAIN(TForm5Teszt)
#include "tform5_hanglejatszo_teszt.moc"
