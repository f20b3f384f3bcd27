// The password: the prompt before every command.

#include <QFile>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStandardPaths>

#include "ablakteszt.h"
#include "probaparbeszed.h"

namespace {

QString tarFajl() {
    return TJelszoTar::alapFajl();
}

void tarIras(const QByteArray& tartalom) {
    TJelszoTar(tarFajl()).ment("x");
    QFile ki(tarFajl());
    QVERIFY(ki.open(QIODevice::WriteOnly));
    ki.write(tartalom);
}

}  // namespace

class TForm11Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        sajatBetukBetoltese();
    }
    void init() { QFile::remove(tarFajl()); }
    void cleanupTestCase() { QFile::remove(tarFajl()); }

    void jelszoNelkulSosincsKerdes() {
        for (const bool vanTar : {false, true}) {
            if (vanTar) QVERIFY(TJelszoTar(tarFajl()).ment(""));
            TFrissAblakok a;
            QCOMPARE(a.form11.elsoFutas(), !vanTar);
            menu(a.form1, "Mundan1");
            QCOMPARE(panel(a.form1, 0), "Mundán");
        }
    }

    void aMenthetetlenJelszoKiderul() {
        TFrissAblakok a;
        QVERIFY(QDir().mkpath(tarFajl()));  // a folder stands where the store would
        QVERIFY(!a.form11.ujJelszo("titok"));
        QVERIFY(QDir().rmdir(tarFajl()));
        QVERIFY(a.form11.ujJelszo("titok"));
    }

    void aJoJelszoAzUtolsoBetureMagatolZar() {
        TJelszoTar(tarFajl()).ment("tizenotbetusjel");  // fifteen characters
        TFrissAblakok a;
        valasz([&a](QWidget& d) {
            QCOMPARE(d.windowTitle(), "Kérem a jelszót!");
            QCOMPARE(vezerlo<QLineEdit>(d, "Edit1")->echoMode(), QLineEdit::Password);
            QCOMPARE(vezerlo<QLineEdit>(d, "Edit1")->maxLength(), 15);
            gepel(d, "Edit1", "tizenotbetusje");
            QVERIFY(d.isVisible());
            gepel(d, "Edit1", "");
            QTest::keyClick(vezerlo<QLineEdit>(d, "Edit1"), Qt::Key_End);
            QTest::keyClicks(vezerlo<QLineEdit>(d, "Edit1"), "l");
            QVERIFY(!d.isVisible());
            QCOMPARE(a.allapot().JelszoProba, 15);
        });
        menu(a.form1, "Mundan1");
        QCOMPARE(panel(a.form1, 0), "Mundán");
        menu(a.form1, "Dekad1");  // not asked again
        QCOMPARE(panel(a.form1, 0), "Dekád");
    }

    void aHarmincadikValtozasVegetVet() {
        TJelszoTar(tarFajl()).ment("ab");
        TFrissAblakok a;
        int vege = 0;
        a.form11.programVege = [&vege] { ++vege; };
        valasz([](QWidget& d) {
            auto* mezo = vezerlo<QLineEdit>(d, "Edit1");
            // Fourteen times a wrong letter and its removal, then the password: its last letter is the
            // thirtieth.
            for (int i = 0; i < 14; ++i) {
                QTest::keyClicks(mezo, "x");
                QTest::keyClick(mezo, Qt::Key_Backspace);
            }
            QVERIFY(d.isVisible());
            QTest::keyClicks(mezo, "ab");
            QVERIFY(!d.isVisible());
        });
        menu(a.form1, "Mundan1");
        QCOMPARE(vege, 1);
        QVERIFY(!a.allapot().JelszoRendben);
        QCOMPARE(panel(a.form1, 0), "Radix");
    }

    void aBezartKerdesVegetVet() {
        TJelszoTar(tarFajl()).ment("ab");
        TFrissAblakok a;
        int vege = 0;
        a.form11.programVege = [&vege] { ++vege; };
        valasz([](QWidget& d) { QTest::keyClick(&d, Qt::Key_Escape); });
        QTest::mouseClick(a.form1.findChild<KepletFelulet*>("Felulet"), Qt::LeftButton, {}, QPoint(300, 300));
        QCOMPARE(vege, 1);
    }

    void azOlvashatatlanTarZarvaTart() {
        for (const QByteArray& tartalom : {QByteArray("valami"), QByteArray("aa bb"), QByteArray()}) {
            tarIras(tartalom);
            TFrissAblakok a;
            QVERIFY(!a.allapot().JelszoRendben);
            QVERIFY(!a.form11.elsoFutas());
        }
    }

    void aKilepesNemKerdez() {
        TJelszoTar(tarFajl()).ment("ab");
        TFrissAblakok a;
        TProbaParbeszed p;
        p.igenre = false;
        a.form1.parbeszedBeallitasa(p);
        menu(a.form1, "Kilepes1");  // a prompt would wait for an answer here
        QCOMPARE(p.kerdesek, QStringList({"Kilépés", "Valóban ki akar lépni?"}));
        QVERIFY(a.form1.isVisible());
        QVERIFY(!a.allapot().JelszoRendben);
    }
};

QTEST_MAIN(TForm11Teszt)
#include "tform11_jelszo_teszt.moc"
