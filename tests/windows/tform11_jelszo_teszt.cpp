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
            // All of its signs are seen.
            QVERIFY(vezerlo<QLineEdit>(d, "Edit1")->width() >
                    vezerlo<QLineEdit>(d, "Edit1")->fontMetrics().horizontalAdvance(QString(15, u'●')));
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

    void aPaneltLenyomvaMegNemKerdezAzElsoKattintasMarHelyetValt() {
        TJelszoTar(tarFajl()).ment("ab");
        TFrissAblakok a;
        a.oraIndul();
        auto* panel1 = vezerlo<QFrame>(a.form1, "Panel1");
        auto* memo = vezerlo<QPlainTextEdit>(a.form1, "Memo1");
        int kerdesek = 0;
        const auto jelszotAd = [&kerdesek] {
            auto* kerdes = QApplication::activeModalWidget();
            if (kerdes == nullptr) return;
            ++kerdesek;
            QTest::keyClicks(vezerlo<QLineEdit>(*kerdes, "Edit1"), "ab");
        };
        for (QWidget* hova :
             {static_cast<QWidget*>(panel1), static_cast<QWidget*>(vezerlo<QLabel>(a.form1, "Label3"))}) {
            a.allapot().JelszoRendben = false;
            kerdesek = 0;
            const int elobb = memo->geometry().top();
            QTimer::singleShot(0, &a.form1, jelszotAd);
            QTest::mousePress(hova, Qt::LeftButton);
            QApplication::processEvents();
            QCOMPARE(kerdesek, 0);  // a prompt at the press would swallow the release
            QTimer::singleShot(0, &a.form1, jelszotAd);
            QTest::mouseRelease(hova, Qt::LeftButton);
            QCOMPARE(kerdesek, 1);
            QVERIFY(a.allapot().JelszoRendben);
            QCOMPARE(memo->geometry().top(), elobb == 600 ? 144 : 600);
        }
        QTest::mouseClick(panel1, Qt::LeftButton, {}, QPoint(24, 590));  // given: not asked again
        QCOMPARE(memo->geometry().top(), 144);
        QCOMPARE(kerdesek, 1);
    }

    void aKerdesAlattUjKerdesNincsEsAProgramElMarad() {
        TJelszoTar(tarFajl()).ment("ab");
        for (int kor = 0; kor < 2; ++kor) {
            TFrissAblakok a;
            int vege = 0;
            a.form11.programVege = [&vege] { ++vege; };
            a.oraIndul();
            QVERIFY(a.allapot().MostFut);
            auto* memo = vezerlo<QPlainTextEdit>(a.form1, "Memo1");
            valasz([&](QWidget& d) {
                QCOMPARE(d.objectName(), "TForm11");
                // The running clock empties the note: a change that asks for the password again.
                QTRY_COMPARE(memo->toPlainText(), "");
                QCOMPARE(vege, 0);
                QVERIFY(d.isVisible());
                QVERIFY(!a.form11.JelszoKeres());
                QCOMPARE(vege, 0);
                if (kor == 0)
                    QTest::keyClicks(vezerlo<QLineEdit>(d, "Edit1"), "ab");
                else
                    QTest::keyClick(&d, Qt::Key_Escape);
            });
            QTest::keyClicks(memo, "j");
            QCOMPARE(vege, kor);
            QCOMPARE(a.allapot().JelszoRendben, kor == 0);
        }
    }

    void azElsoJelszoKetszerKerve() {
        TFrissAblakok a;
        TProbaParbeszed p;
        p.titkok = {"titok", "titkok", "titok", "titok"};
        QVERIFY(a.form11.ujJelszoKeres(p));
        const QString elso =
            "Jelszó megadása:\nKis betűket használjon.\nHa nem akar jelszót használni, hagyja üresen.";
        const QString masodik = "Jelszó megadása még egyszer:";
        QCOMPARE(p.kerdesek, QStringList({"Korvend", elso, "15", "Korvend", masodik, "15", "Korvend", elso,
                                          "15", "Korvend", masodik, "15"}));
        QCOMPARE(p.uzenetek, QStringList({"A két jelszó nem egyezik."}));
        QVERIFY(TJelszoTar(tarFajl()).egyezik("titok"));
    }

    void azEgySzokozOlyanMintAzUres() {
        for (const char* nincs : {"", " "}) {
            QFile::remove(tarFajl());
            TFrissAblakok a;
            QVERIFY(a.form11.ujJelszo(nincs));
            QCOMPARE(TJelszoTar(tarFajl()).allas(), TJelszoTar::Allas::nincsJelszo);
        }
        TFrissAblakok a;
        QVERIFY(a.form11.ujJelszo("  "));  // two blanks are a password
        QVERIFY(TJelszoTar(tarFajl()).egyezik("  "));
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
