#include "ablakteszt.h"

class TForm9Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aSzimbolumokAFelsoroltBetukkel() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            auto* lista = vezerlo<QComboBox>(d, "ComboBox1");
            QVERIFY(lista->findText("Astro Symbols") >= 0);
            gepel(d, "ComboBox1", "Valami");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Szimbolumok1");
        QCOMPARE(a.allapot().Rajz.szimbolumFont, std::string("Valami"));
        QCOMPARE(vezerlo<QLabel>(a.form1, "Label1")->font().family(), "Valami");
    }

    void uresenVagyMegsemmelMarad() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            vezerlo<QComboBox>(d, "ComboBox1")->setEditText("");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Szimbolumok1");
        QCOMPARE(a.allapot().Rajz.szimbolumFont, std::string("Astro Symbols"));
        valasz([](QWidget& d) {
            gepel(d, "ComboBox1", "Valami");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Szimbolumok1");
        QCOMPARE(a.allapot().Rajz.szimbolumFont, std::string("Astro Symbols"));
    }
};

QTEST_MAIN(TForm9Teszt)
#include "tform9_szimbolumok_teszt.moc"
