#include "ablakteszt.h"

class TForm12Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aPrimerListaKovetiALeptetot() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        QVERIFY(a.form12.isVisible());
        QCOMPARE(ertek(a.form12, "SpinEditEv1"), QDate::currentDate().year() - 1);
        QCOMPARE(ertek(a.form12, "SpinEditHo1"), 1);
        QCOMPARE(vezerlo<QLabel>(a.form12, "Label8")->text(), "Solar-Nap:");
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        QCOMPARE(memo->toPlainText(), "");
        kattint(a.form12, "Button_Rendben1");
        const QString elso = memo->toPlainText();
        QVERIFY(!elso.isEmpty());
        QVERIFY(a.allapot().PrimerFut);
        kattint(a.form7, "Button7orap");
        a.orajelek(1);
        QVERIFY(memo->toPlainText() != elso);
        QVERIFY(!memo->toPlainText().isEmpty());
        kattint(a.form12, "Button_Megsem1");
        QVERIFY(!a.allapot().PrimerFut);
        QVERIFY(!a.form12.isVisible());
    }
};

QTEST_MAIN(TForm12Teszt)
#include "tform12_primer_teszt.moc"
