#include "ablakteszt.h"

class TForm4Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aTForm4PercmezoiEggyelAllnak() {
        TFrissAblakok a;
        QCOMPARE(ertek(a.form4, "SpinEditHosszPerc1"), 1);
        QCOMPARE(ertek(a.form4, "SpinEditSzelPerc1"), 1);
        QVERIFY(!a.form4.isVisible());
    }
};

QTEST_MAIN(TForm4Teszt)
#include "tform4_szolarrev_teszt.moc"
