#include <QMenu>
#include <QMenuBar>

#include "ablakteszt.h"

class TForm1MenuTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aMenuPontjaiASorrendjukben() {
        TFrissAblakok a;
        QStringList pontok;
        for (const QAction* fo : a.form1.menuBar()->actions()) {
            pontok << fo->text();
            for (const QAction* pont : fo->menu()->actions()) {
                pontok << pont->text();
                if (pont->menu() != nullptr)
                    for (const QAction* also : pont->menu()->actions()) pontok << also->text();
            }
        }
        const QStringList vart{"Horoszkóp",
                               "Személyi adatok",
                               "Új",
                               "Megnyitás",
                               "Mentés",
                               "Nyomtat",
                               "Nyomtatóbeállítás",
                               "Kilépés",
                               "Nézet",
                               "Horizont",
                               "Mundán",
                               "Dekád",
                               "Progressziók",
                               "Revolúció",
                               "Szolár",
                               "Lunár",
                               "Merkúr Rev",
                               "Vénusz Rev",
                               "Mars Rev",
                               "Jupiter Rev",
                               "Szaturnusz Rev",
                               "Personar",
                               "Asc Pers",
                               "Mc Pers",
                               "Hold Pers",
                               "Merkúr Pers",
                               "Vénusz Pers",
                               "Mars Pers",
                               "Jupiter Pers",
                               "Szaturnusz Pers",
                               "Uranusz Pers",
                               "Neptun Pers",
                               "Plutó Pers",
                               "Primer direkció",
                               "Tercier direkció",
                               "Szolár ingresszió",
                               "Beállítások",
                               "Léptet",
                               "Orbisok",
                               "Mundánházas pontosítás",
                               "Szimbólumok"};
        QCOMPARE(pontok, vart);
    }

    void semmiSincsLetiltva() {
        TFrissAblakok a;
        const auto pontok = a.form1.findChildren<QAction*>();
        for (const QAction* pont : pontok) QVERIFY2(pont->isEnabled(), qPrintable(pont->text()));
        const auto gombok = a.form1.findChildren<QPushButton*>();
        for (const QPushButton* gomb : gombok) QVERIFY2(gomb->isEnabled(), qPrintable(gomb->text()));
    }
};

QTEST_MAIN(TForm1MenuTeszt)
#include "tform1_menu_teszt.moc"
