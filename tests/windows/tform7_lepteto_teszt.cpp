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
};

QTEST_MAIN(TForm7Teszt)
#include "tform7_lepteto_teszt.moc"
