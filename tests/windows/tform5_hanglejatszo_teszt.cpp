// The sound of a chart, with a file that the test makes.

#include <cmath>
#include <functional>

#include <QDir>
#include <QFile>
#include <QMediaPlayer>
#include <QMessageBox>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "commands/kvhfajl.h"
#include "probaparbeszed.h"

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
        QVERIFY(a.allapot().HangAktiv);
        QCOMPARE(a.allapot().HangCim, std::string("Szép hang   "));
        a.orajelek(1);
        QCOMPARE(a.form5.windowTitle(), "zép hang   S");
        auto* lejatszo = a.form5.findChild<QMediaPlayer*>("MediaPlayer1");
        QTRY_VERIFY(lejatszo->duration() >= 450 && lejatszo->duration() <= 550);
        kattint(a.form5, "Lejatszas1");
        QTRY_COMPARE(lejatszo->playbackState(), QMediaPlayer::PlayingState);
        kattint(a.form5, "Szunet1");
        QTRY_COMPARE(lejatszo->playbackState(), QMediaPlayer::PausedState);
        kattint(a.form5, "Megallitas1");
        QTRY_COMPARE(lejatszo->playbackState(), QMediaPlayer::StoppedState);
        QVERIFY(p.uzenetek.isEmpty());
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
            // The player may report the same fault more than once, and in other words.
            auto* lejatszo = a.form5.findChild<QMediaPlayer*>("MediaPlayer1");
            emit lejatszo->errorOccurred(QMediaPlayer::ResourceError, "megint");
            emit lejatszo->errorOccurred(QMediaPlayer::FormatError, "és megint");
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
        auto* lejatszo = a.form5.findChild<QMediaPlayer*>("MediaPlayer1");
        QTRY_COMPARE(lejatszo->playbackState(), QMediaPlayer::PlayingState);
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
            auto* lejatszo = a.form5.findChild<QMediaPlayer*>("MediaPlayer1");
            QTRY_COMPARE(lejatszo->playbackState(), QMediaPlayer::PlayingState);
            QTRY_VERIFY(lejatszo->position() > 0);
            zar(a.form5);
            QVERIFY(!a.form5.isVisible());
            QTRY_COMPARE(lejatszo->playbackState(), QMediaPlayer::StoppedState);
        }
        QVERIFY(p.uzenetek.isEmpty());
    }

private:
    QTemporaryDir mappa_;
    QString regiKonyvtar_;
};

QTEST_MAIN(TForm5Teszt)
#include "tform5_hanglejatszo_teszt.moc"
