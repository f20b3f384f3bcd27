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
};

QTEST_MAIN(AblakokTeszt)
#include "ablakok_teszt.moc"
