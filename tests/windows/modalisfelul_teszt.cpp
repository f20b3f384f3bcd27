// Modal dialogs over the program's own stay-on-top windows.

#include <QMessageBox>
#include <QScreen>
#include <QWindow>

#include "ablakteszt.h"

namespace {

bool felul(const QWidget& d) {
    return d.windowHandle()->flags() & Qt::WindowStaysOnTopHint;
}

bool kepernyon(const QWidget& d) {
    return d.screen()->availableGeometry().contains(d.frameGeometry());
}

}  // namespace

class ModalisFelulTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aKilepesKerdeseAPrimerListaFolott() {
        TFrissAblakok a;
        a.oraIndul();
        for (int kor = 0; kor < 2; ++kor) {
            menu(a.form1, "Primer1");
            QVERIFY(a.form12.isVisible());
            valasz([](QWidget& d) {
                QCOMPARE(dynamic_cast<QMessageBox&>(d).text(), "Valóban ki akar lépni?");
                QVERIFY(felul(d));
                QVERIFY(kepernyon(d));
                QTest::keyClick(&d, Qt::Key_Escape);
            });
            menu(a.form1, "Kilepes1");
            QVERIFY(a.form1.isVisible());
            a.form12.close();
        }
    }

    void mindigFelsoAblakNelkulMasProgramFolottNemAll() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            QVERIFY(!felul(d));
            d.close();
        });
        menu(a.form1, "Kilepes1");
    }

    void alloAblakIsCsakAddigAllFelulAmigKell() {
        TFrissAblakok a;
        for (const bool primer : {false, true, false}) {
            if (primer) menu(a.form1, "Primer1");
            valasz([primer](QWidget& d) {
                QCOMPARE(d.objectName(), "TForm14");
                QCOMPARE(felul(d), primer);
                QVERIFY(kepernyon(d));
                QTest::keyClick(&d, Qt::Key_Escape);
            });
            menu(a.form1, "Szolar1");
            a.form12.close();
        }
    }

    void azEsemenyekAPontositasFolott() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        QVERIFY(a.form13.isVisible());
        valasz([](QWidget& d) {
            QCOMPARE(d.objectName(), "TForm10");
            QVERIFY(felul(d));
            QVERIFY(kepernyon(d));
            kattint(d, "Button_Megsem2");
        });
        kattint(a.form13, "Button_Eletesemenyek1");
    }

    void aKepernyoSzelenAlloAblakDialogusaIsEgeszbenLatszik() {
        TFrissAblakok a;
        const QRect hely = a.form1.screen()->availableGeometry();
        for (const QPoint& sarok : {hely.topLeft() - QPoint(900, 600), hely.bottomRight() - QPoint(40, 40)}) {
            a.form1.move(sarok);
            for (const char* parancs : {"Kilepes1", "Orbisok1", "Szolar1"}) {
                valasz([](QWidget& d) {
                    QVERIFY2(kepernyon(d), qPrintable(d.objectName()));
                    QTest::keyClick(&d, Qt::Key_Escape);
                });
                menu(a.form1, parancs);
            }
        }
    }
};

QTEST_MAIN(ModalisFelulTeszt)
#include "modalisfelul_teszt.moc"
