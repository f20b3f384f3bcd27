#include "ablakteszt.h"
#include "eletesemenyteszt.h"

class TForm10Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aListaKijelolesTorlesEsMegsem() {
        TFrissAblakok a;
        ujKeplet(a, [&a](QWidget& d) {
            esemenyGepelese(d, "első", "1,2", "1999");
            esemenyGepelese(d, "második", "3", "2000");
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_1_2"), Qt::LeftButton);
            QCOMPARE(vezerlo<QLineEdit>(d, "Edit_Eletesemenyek1")->text(), "első");
            QCOMPARE(vezerlo<QLineEdit>(d, "Edit_Hazanalogiak1")->text(), "I,2");
            QCOMPARE(ertek(d, "SpinEditEv1"), 1999);
            gepel(d, "Edit_Eletesemenyek1", "javított");
            kattint(d, "Button_Rendben1");
            QCOMPARE(lista(d, 1, 2), "javított");
            QCOMPARE(a.allapot().Esemenyek.EsemenyDb, 2);
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_1_1"), Qt::LeftButton);
            kattint(d, "Button_Torol1");
            QCOMPARE(lista(d, 1, 2), "második");
            QCOMPARE(lista(d, 2, 2), "");
            kattint(d, "Button_Megsem2");
        });
        QCOMPARE(a.allapot().Esemenyek.EsemenyDb, 0);
        QCOMPARE(lista(a.form10, 1, 2), "");
    }

    /// Only a change of the place looks at the kind of the clock; date and time always ask the table.
    void aNyariIdoADatumbolMindigAHelybolCsakZonaIdoben() {
        TFrissAblakok a;
        ujKeplet(a, [&a](QWidget& d) {
            vezerlo<QSpinBox>(d, "SpinEditEv1")->setValue(1985);
            vezerlo<QSpinBox>(d, "SpinEditHo1")->setValue(7);
            QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 1);
            a.allapot().Szemely.idoTipus = TIdoTipus::LMT;
            gepel(d, "ComboBoxHelyseg1", "Szeged");
            QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 0);
            vezerlo<QSpinBox>(d, "SpinEditNap1")->setValue(9);
            QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 1);
            a.allapot().Szemely.idoTipus = TIdoTipus::ZN;
            vezerlo<QSpinBox>(d, "SpinEditNyariidosz1")->setValue(0);
            gepel(d, "ComboBoxHelyseg1", "Szeged");
            QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 1);
            kattint(d, "Button_Megsem2");
        });
    }
};

QTEST_MAIN(TForm10Teszt)
#include "tform10_eletesemenyek_teszt.moc"
