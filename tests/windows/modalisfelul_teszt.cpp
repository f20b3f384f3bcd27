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
            valasz([&a](QWidget& d) {
                QCOMPARE(dynamic_cast<QMessageBox&>(d).text(), "Valóban ki akar lépni?");
                QVERIFY(felul(d));
                QVERIFY(kepernyon(d));
                // A click on the list would else raise it over the question.
                QVERIFY(!felul(a.form12));
                QTest::keyClick(&d, Qt::Key_Escape);
            });
            menu(a.form1, "Kilepes1");
            QVERIFY(a.form1.isVisible());
            QVERIFY(felul(a.form12));
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

    void aDialogusDialogusaAnnakFolott() {
        TFrissAblakok a;
        szuletes(a);
        for (const bool primer : {true, false}) {
            if (primer) menu(a.form1, "Primer1");
            valasz([&](QWidget& form2) {
                valasz([&](QWidget& form10) {
                    QCOMPARE(form10.objectName(), "TForm10");
                    QCOMPARE(form10.windowHandle()->transientParent(), form2.windowHandle());
                    QCOMPARE(felul(form10), primer);
                    QVERIFY(!felul(form2));
                    QTest::keyClick(&form10, Qt::Key_Escape);
                });
                kattint(form2, "Button_Eletesemenyek1");
                QCOMPARE(felul(form2), primer);
                kattint(form2, "Button_Megsem1");
            });
            menu(a.form1, "Szemely_adatok1");
            QVERIFY(felul(a.form12));
            if (!primer) continue;
            kattint(a.form12, "Button_Pontositas1");
            valasz([&](QWidget& form10) {
                QCOMPARE(form10.windowHandle()->transientParent(), a.form1.windowHandle());
                QTest::keyClick(&form10, Qt::Key_Escape);
            });
            kattint(a.form13, "Button_Eletesemenyek1");
            a.form13.close();
            a.form12.close();
        }
    }

    void aKepernyoSzelenAlloAblakDialogusaIsEgeszbenLatszik() {
        TFrissAblakok a;
        const QRect hely = a.form1.screen()->availableGeometry();
        for (const QPoint& sarok : {hely.topLeft() - QPoint(900, 600), hely.bottomRight() - QPoint(40, 40)}) {
            a.form1.move(sarok);
            const bool bal = sarok.x() < hely.left();
            for (const char* parancs : {"Kilepes1", "Orbisok1", "Szolar1"}) {
                valasz([&](QWidget& d) {
                    QVERIFY2(kepernyon(d), qPrintable(d.objectName()));
                    // No further in than it has to be; a message's first place is the toolkit's.
                    const QRect keret = d.frameGeometry();
                    if (qobject_cast<QMessageBox*>(&d) != nullptr)
                        QVERIFY(d.isVisible());
                    else if (bal)
                        QCOMPARE(keret.topLeft(), hely.topLeft());
                    else
                        QCOMPARE(keret.bottomRight(), hely.bottomRight());
                    QTest::keyClick(&d, Qt::Key_Escape);
                });
                menu(a.form1, parancs);
            }
        }
    }
};

QTEST_MAIN(ModalisFelulTeszt)
#include "modalisfelul_teszt.moc"
