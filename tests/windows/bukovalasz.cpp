// A check that fails in a dialog's answer. The program must end with a failure at once: were the dialog left
// open, its loop would wait to the test's limit.

#include "ablakteszt.h"

class BukoValasz : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aDialogusbanBukik() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            QCOMPARE(d.objectName(), "TForm6");
            QCOMPARE(d.windowTitle(), "this is not its title");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
    }

    /// A dialog over a dialog.
    void aDialogusDialogusabanBukik() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            valasz([](QWidget& belso) {
                QCOMPARE(belso.windowTitle(), "this is not its title");
                kattint(belso, "Button_Megsem2");
            });
            kattint(d, "Button_Eletesemenyek1");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Szemely_adatok1");
    }
};

QTEST_MAIN(BukoValasz)
#include "bukovalasz.moc"
