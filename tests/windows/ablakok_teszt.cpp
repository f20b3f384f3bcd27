#include "ablakteszt.h"

class AblakokTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void mindenAblakAMaganakRendeltCimmelVan() {
        TFrissAblakok a;
        QCOMPARE(a.form2.windowTitle(), "Személyi adatok");
        QCOMPARE(a.form3.windowTitle(), "Tercier direkció");
        QCOMPARE(a.form4.windowTitle(), "Szolárrev");
        QCOMPARE(a.form5.windowTitle(), "Hanglejátszás");
        QCOMPARE(a.form6.windowTitle(), "Orbis beállítása");
        QCOMPARE(a.form7.windowTitle(), "Léptet");
        QCOMPARE(a.form8.windowTitle(), "Mundánházas pontosítás");
        QCOMPARE(a.form9.windowTitle(), "Szimbólumok");
        QCOMPARE(a.form10.windowTitle(), "Életesemények");
        QCOMPARE(a.form11.windowTitle(), "Kérem a jelszót!");
        QCOMPARE(a.form12.windowTitle(), "Primer direkció");
        QCOMPARE(a.form13.windowTitle(), "Pontosítás");
        QCOMPARE(a.form14.windowTitle(), "Nap-áthaladások");
    }

    void aTobbiAblakTartalmaAzElsoMutatasigVar() {
        TFrissAblakok a;
        a.orajelek(3);
        QDialog* const ablakok[]{&a.form2, &a.form3,  &a.form4,  &a.form5,  &a.form6,  &a.form7, &a.form8,
                                 &a.form9, &a.form10, &a.form11, &a.form12, &a.form13, &a.form14};
        for (QDialog* ablak : ablakok) {
            QVERIFY2(ablak->findChildren<QWidget*>().isEmpty(), qPrintable(ablak->objectName()));
            ablak->show();
            const auto elso = ablak->findChildren<QWidget*>();
            QVERIFY2(!elso.isEmpty(), qPrintable(ablak->objectName()));
            ablak->hide();
            ablak->show();
            QCOMPARE(ablak->findChildren<QWidget*>(), elso);
            ablak->hide();
        }
    }

    void aPontositasALeptetoAlaKerulAkkorIsHaAzNemVoltNyitva() {
        TFrissAblakok a;
        menu(a.form1, "Primer1");
        QTest::mouseClick(a.form12.findChild<QPushButton*>("Button_Pontositas1"), Qt::LeftButton);
        QCOMPARE(a.form7.findChildren<QPushButton*>().size(), 16);
        QCOMPARE(a.form13.y(), a.form1.y() + a.form7.height() + 30);
    }
};

QTEST_MAIN(AblakokTeszt)
#include "ablakok_teszt.moc"
