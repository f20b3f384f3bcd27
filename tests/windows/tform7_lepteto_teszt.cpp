#include "ablakteszt.h"

class TForm7Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void lepesElindultOraMellett() {
        TFrissAblakok a;
        kattint(a.form1, "PanelButton4Leptet");
        kattint(a.form7, "Button1evp");
        QVERIFY(!a.allapot().MostFut);
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Állj");
        a.orajelek(1);
        QCOMPARE(a.allapot().Keplet.pillanat.ev, a.allapot().RadixPillanat.ev + 1);
    }

    void aLenyomvaTartottGombIsmetel() {
        TFrissAblakok a;
        a.oraIndul();
        kattint(a.form1, "PanelButton4Leptet");
        auto* gomb = vezerlo<QPushButton>(a.form7, "Button5napp");
        const int elobb = napSzama(a.allapot().Keplet.pillanat);
        QTest::mousePress(gomb, Qt::LeftButton);
        QTest::qWait(1000);
        QTest::mouseRelease(gomb, Qt::LeftButton);
        QVERIFY(napSzama(a.allapot().Keplet.pillanat) >= elobb + 3);
    }

    void aGombokRendjeSoronkentBalrolJobbra() {
        TFrissAblakok a;
        kattint(a.form1, "PanelButton4Leptet");
        const QList<QStringList> sorok{
            {"Button1evp", "Button2evm"},
            {"Button3hop", "Button4hom"},
            {"Button5napp", "Button6napm"},
            {"Button7orap", "Button8oram"},
            {"Button9percp", "Button10percm", "Button11percpp", "Button12percmm"},
            {"Button13mpercp", "Button14mpercm", "Button15mpercpp", "Button16mpercmm"}};
        int felette = -1;
        for (const QStringList& sor : sorok) {
            const int y = vezerlo<QPushButton>(a.form7, qPrintable(sor[0]))->y();
            QVERIFY2(y > felette, qPrintable(sor[0]));
            felette = y;
            int balra = -1;
            for (const QString& nev : sor) {
                const auto* gomb = vezerlo<QPushButton>(a.form7, qPrintable(nev));
                QCOMPARE(gomb->y(), y);
                QVERIFY2(gomb->x() > balra, qPrintable(nev));
                balra = gomb->x();
            }
        }
    }

    void aHelyeFelulKozepen() {
        TFrissAblakok a;
        a.oraIndul();
        a.form1.move(130, 110);
        QApplication::processEvents();
        for (int kor = 0; kor < 2; ++kor) {
            kattint(a.form1, "PanelButton4Leptet");
            QVERIFY(a.form7.isVisible());
            QCOMPARE(a.form7.x(), 130 + a.form1.width() / 2 - a.form7.width() / 2);
            QCOMPARE(a.form7.y(), 110 + 30);
            a.form7.move(0, 0);
            a.form7.close();
        }
    }
};

QTEST_MAIN(TForm7Teszt)
#include "tform7_lepteto_teszt.moc"
