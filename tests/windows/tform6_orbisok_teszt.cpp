#include "kezteszt.h"

namespace {

QPushButton* cella(const QWidget& d, int sor, int oszlop) {
    return vezerlo<QPushButton>(d, qPrintable(QStringLiteral("BOrbis_%1_%2").arg(sor).arg(oszlop)));
}

}  // namespace

class TForm6Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aRacsAzOrbisTablavalEpul() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            int gombok = 0;
            for (const auto* g : d.findChildren<QPushButton*>())
                gombok += g->objectName().startsWith("BOrbis_");
            QCOMPARE(gombok, 12 * 9 - 2 * 4);
            QVERIFY(d.findChild<QPushButton*>("BOrbis_1_2") == nullptr);
            QVERIFY(d.findChild<QPushButton*>("BOrbis_2_8") == nullptr);
            QCOMPARE(cella(d, 3, 1)->text(), "15");
            QCOMPARE(cella(d, 4, 9)->text(), "12");
            QCOMPARE(cella(d, 1, 1)->geometry(), QRect(295 - 32 * 8, 140 - 26 * 3, 30, 24));
            QCOMPARE(cella(d, 12, 9)->geometry(), QRect(295, 140 + 26 * 8, 30, 24));
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
        QCOMPARE(a.form6.findChildren<QPushButton*>().size() >= 6, true);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(a.form6.findChildren<QPushButton*>().size(), 6);
    }

    void aKattintasLepEsKiemel() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            kattint(d, "BOrbis_3_1");
            QCOMPARE(cella(d, 3, 1)->text(), "15.5");
            QCOMPARE(cella(d, 3, 1)->font().pointSize(), 16);
            QCOMPARE(cella(d, 3, 2)->font().pointSize(), 10);
            kattint(d, "Button_minusz2");
            QCOMPARE(vezerlo<QPushButton>(d, "Button_minusz2")->font().pointSize(), 16);
            QCOMPARE(vezerlo<QPushButton>(d, "Button_plusz1")->font().pointSize(), 8);
            kattint(d, "BOrbis_3_1");
            kattint(d, "BOrbis_3_1");
            QCOMPARE(cella(d, 3, 1)->text(), "14.5");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Orbisok1");
        QCOMPARE(a.allapot().OrbisTabla[3][1], 14.5);
        // The step stays when the dialog is opened again.
        valasz([](QWidget& d) {
            QCOMPARE(vezerlo<QPushButton>(d, "Button_minusz2")->font().pointSize(), 16);
            kattint(d, "BOrbis_3_1");
            QCOMPARE(cella(d, 3, 1)->text(), "14");
            kattint(d, "Button_plusz1");
            QCOMPARE(vezerlo<QPushButton>(d, "Button_plusz1")->font().pointSize(), 16);
            QCOMPARE(vezerlo<QPushButton>(d, "Button_minusz2")->font().pointSize(), 8);
            for (const char* ertek : {"14.5", "15"}) {
                kattint(d, "BOrbis_3_1");
                QCOMPARE(cella(d, 3, 1)->text(), ertek);
            }
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
        QCOMPARE(a.allapot().OrbisTabla[3][1], 14.5);
    }

    /// Symbols stand at the told places: the body 65 + 26 r and the aspect 45 + 32 c pixels, from the label's
    /// corner.
    void aJelekAMegmondottHelyenAllnak() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            int cimkek = 0;
            for (const QLabel* cimke : d.findChildren<QLabel*>()) {
                QCOMPARE(cimke->alignment(), Qt::AlignLeft | Qt::AlignTop);
                QCOMPARE(cimke->size(), QSize(30, 24));
                if (cimke->x() == 12)
                    QCOMPARE((cimke->y() - 65) % 26, 0);
                else
                    QVERIFY(cimke->y() == 42 && (cimke->x() - 45) % 32 == 0);
                ++cimkek;
            }
            QCOMPARE(cimkek, 12 + 9);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
    }

    void aHaromKarakteresErtekNemSzukul() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            auto* gomb = vezerlo<QPushButton>(d, "BOrbis_5_1");  // 8 degrees as delivered
            QTest::mouseClick(gomb, Qt::LeftButton);
            QCOMPARE(gomb->text(), "8.5");
            QCOMPARE(gomb->font().pointSize(), 16);
            QVERIFY(gomb->font().stretch() == 0 || gomb->font().stretch() == 100);
            QVERIFY(gomb->fontMetrics().horizontalAdvance("8.5") <= gomb->width());
            auto* negy = vezerlo<QPushButton>(d, "BOrbis_3_1");  // 15 degrees
            QTest::mouseClick(negy, Qt::LeftButton);
            QCOMPARE(negy->text(), "15.5");
            QVERIFY(negy->font().stretch() < 100);
            QVERIFY(negy->fontMetrics().horizontalAdvance("15.5") <= negy->width());
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
    }

    /// A cell narrowed for a long value is as wide as the others again with the next one.
    void aSzukitettBetuVisszaallitaskorRendes() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            for (const char* gomb : {"Button_vissza3", "Button_vissza4"}) {
                kattint(d, "BOrbis_3_1");
                QCOMPARE(cella(d, 3, 1)->text(), "15.5");
                QVERIFY(cella(d, 3, 1)->font().stretch() < 100);
                kattint(d, gomb);
                QCOMPARE(cella(d, 3, 1)->text(), "15");
                QCOMPARE(cella(d, 3, 1)->font().stretch(), cella(d, 4, 1)->font().stretch());
            }
            kattint(d, "BOrbis_3_1");
            kattint(d, "BOrbis_3_1");
            QCOMPARE(cella(d, 3, 1)->text(), "16");
            QCOMPARE(cella(d, 3, 1)->font().stretch(), cella(d, 4, 1)->font().stretch());
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
    }

    void aKattintottCellaElengediAFokuszt() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            fokuszig(d);
            cella(d, 4, 4)->setFocus();
            QVERIFY(cella(d, 4, 4)->hasFocus());
            kattint(d, "BOrbis_4_4");
            QVERIFY(!cella(d, 4, 4)->hasFocus());
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
    }

    void nullaAlaNemMegy() {
        TFrissAblakok a;
        a.allapot().OrbisTabla[5][2] = 0;
        a.allapot().OrbisTabla[5][3] = 0.3;
        valasz([](QWidget& d) {
            kattint(d, "Button_minusz2");
            kattint(d, "BOrbis_5_2");
            QCOMPARE(cella(d, 5, 2)->text(), "0");
            QCOMPARE(cella(d, 5, 2)->font().pointSize(), 16);
            QCOMPARE(cella(d, 5, 3)->text(), "0.3");
            kattint(d, "BOrbis_5_3");
            QCOMPARE(cella(d, 5, 3)->text(), "0");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
        QCOMPARE(a.allapot().OrbisTabla[5][3], 0.3);
    }

    void azElozoEsAzInduloBeallitas() {
        TFrissAblakok a;
        a.allapot().OrbisTabla[3][1] = 9;
        valasz([&a](QWidget& d) {
            kattint(d, "BOrbis_3_1");
            kattint(d, "Button_vissza3");
            QCOMPARE(cella(d, 3, 1)->text(), "9");
            QCOMPARE(cella(d, 3, 1)->font().pointSize(), 10);
            kattint(d, "Button_vissza4");
            QCOMPARE(cella(d, 3, 1)->text(), "15");
            QCOMPARE(a.allapot().OrbisTabla[3][1], 9.0);  // only "Rendben" writes the table
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Orbisok1");
        QVERIFY(a.allapot().OrbisTabla == OrbisAlap);
    }

    void azOrbisUtanAFenyszogekUjraszamolodnak() {
        TFrissAblakok a;
        valasz([&a](QWidget& d) {
            for (int i = 1; i <= 12; ++i) a.allapot().OrbisTabla[i].tolt(180);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
        QCOMPARE(a.allapot().FenyszogRadix[1][2], 'W');
    }
};

QTEST_MAIN(TForm6Teszt)
#include "tform6_orbisok_teszt.moc"
