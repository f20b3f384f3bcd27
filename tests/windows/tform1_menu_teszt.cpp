#include <QFile>
#include <QMenu>
#include <QMenuBar>

#include "ablakteszt.h"
#include "probaparbeszed.h"

namespace {

/// The text as the user reads it.
QString felirat(const QAction& pont) {
    return pont.text().remove('&');
}

/// The key letters of a menu and of those below it, each once.
void kulonbozoBetuk(const QList<QAction*>& pontok) {
    QStringList betuk;
    for (const QAction* pont : pontok) {
        const auto hely = pont->text().indexOf('&');
        QVERIFY2(hely >= 0, qPrintable(pont->text()));
        betuk << pont->text().mid(hely + 1, 1).toUpper();
        if (pont->menu() != nullptr) kulonbozoBetuk(pont->menu()->actions());
    }
    QCOMPARE(betuk.removeDuplicates(), 0);
}

}  // namespace

class TForm1MenuTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aMenuPontjaiASorrendjukben() {
        TFrissAblakok a;
        QStringList pontok;
        for (const QAction* fo : a.form1.menuBar()->actions()) {
            pontok << felirat(*fo);
            for (const QAction* pont : fo->menu()->actions()) {
                pontok << felirat(*pont);
                if (pont->menu() != nullptr)
                    for (const QAction* also : pont->menu()->actions()) pontok << felirat(*also);
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

    void mindenPontnakSajatBetujeVan() {
        TFrissAblakok a;
        kulonbozoBetuk(a.form1.menuBar()->actions());
    }

    void aRevoluciokEsAPersonarokMenujeNevenSzolithato() {
        TFrissAblakok a;
        QCOMPARE(vezerlo<QMenu>(a.form1, "Revolucio1")->actions().size(), 7);
        QCOMPARE(vezerlo<QMenu>(a.form1, "Personar1")->actions().size(), 11);
    }

    void aNezetekEsAMostBillentyuvel() {
        TFrissAblakok a;
        QTest::keyClick(&a.form1, Qt::Key_F3);
        QCOMPARE(panel(a.form1, 0), "Mundán");
        QTest::keyClick(&a.form1, Qt::Key_F4);
        QCOMPARE(panel(a.form1, 0), "Dekád");
        QTest::keyClick(&a.form1, Qt::Key_F2);
        QCOMPARE(panel(a.form1, 0), "Radix");
        QVERIFY(!a.allapot().MostFut);
        QTest::keyClick(&a.form1, Qt::Key_F5);
        QVERIFY(a.allapot().MostFut);
        QTest::keyClick(&a.form1, Qt::Key_F5);
        QVERIFY(!a.allapot().MostFut);
    }

    void aHoroszkopMenuBillentyuvel() {
        TFrissAblakok a;
        TProbaParbeszed parbeszed;
        a.form1.parbeszedBeallitasa(parbeszed);
        QTest::keyClick(&a.form1, Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(parbeszed.kerdesek.size(), 1);
        QTest::keyClick(&a.form1, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(parbeszed.kerdesek.contains(".kvh"));
        QTest::keyClick(&a.form1, Qt::Key_P, Qt::ControlModifier);
        QVERIFY(!a.allapot().MostFut);  // printing stops the clock
        parbeszed.igenre = false;
        QTest::keyClick(&a.form1, Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(parbeszed.kerdesek.contains("Valóban ki akar lépni?"));
        QVERIFY(a.form1.isVisible());
    }

    void azUjKepletBillentyuvel() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            QCOMPARE(vezerlo<QLineEdit>(d, "EditNev1")->text(), "Új képlet");
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        QTest::keyClick(&a.form1, Qt::Key_N, Qt::ControlModifier);
        QVERIFY(a.allapot().Megsem2);
    }

    void aPanelGombjaiOdaVisznek() {
        TFrissAblakok a;
        kattint(a.form1, "PanelButton2_Most");
        QVERIFY(!a.allapot().MostFut);
        kattint(a.form1, "PanelButton3_Valt");
        QCOMPARE(panel(a.form1, 0), "Mundán");
        kattint(a.form1, "PanelButton4Leptet");
        QVERIFY(a.form7.isVisible());
        valasz([](QWidget& d) {
            QCOMPARE(d.objectName(), "TForm6");
            kattint(d, "Button_Megsem1");
        });
        kattint(a.form1, "PanelButton5Orbis");
        kattint(a.form1, "PanelButton6MHP");
        QVERIFY(a.form8.isVisible());
        valasz([](QWidget& d) {
            QCOMPARE(d.objectName(), "TForm3");
            QCOMPARE(d.windowTitle(), "Tercier direkció");
            kattint(d, "Button_Megsem1");
        });
        kattint(a.form1, "PanelButton7Tercier");
    }

    void aPanelGombjaiElobbAJelszotKerik() {
        TFrissAblakok a;
        a.form11.programVege = [] {};
        const bool ora = a.allapot().MostFut;
        for (const char* gomb : {"PanelButton2_Most", "PanelButton3_Valt", "PanelButton4Leptet",
                                 "PanelButton5Orbis", "PanelButton6MHP", "PanelButton7Tercier"}) {
            a.allapot().JelszoRendben = false;
            bool kert = false;
            valasz([&](QWidget& d) {
                kert = d.objectName() == "TForm11";
                d.close();
            });
            kattint(a.form1, gomb);
            QVERIFY2(kert, gomb);
            QCOMPARE(a.allapot().MostFut, ora);
            QCOMPARE(panel(a.form1, 0), "Radix");
            QVERIFY(!a.form7.isVisible() && !a.form8.isVisible());
        }
    }

    /// Also on a desktop whose context menus show no keys.
    void aKerekMenujeMutatjaABillentyuit() {
        QCoreApplication::setAttribute(Qt::AA_DontShowShortcutsInContextMenus);
        TFrissAblakok a;
        for (const auto& [nev, billentyu] :
             {std::pair("KepMasolas1", "Ctrl+C"), std::pair("AdatMasolas1", "Ctrl+Shift+C")}) {
            const auto* pont = vezerlo<QAction>(a.form1, nev);
            QCOMPARE(pont->shortcut(), QKeySequence(billentyu));
            QVERIFY2(pont->isShortcutVisibleInContextMenu(), nev);
        }
        QCoreApplication::setAttribute(Qt::AA_DontShowShortcutsInContextMenus, false);
    }

    void aKezikonyvAProgramMellol() {
        TFrissAblakok a;
        TProbaParbeszed parbeszed;
        a.form1.parbeszedBeallitasa(parbeszed);
        QTest::keyClick(&a.form1, Qt::Key_F1);
        QCOMPARE(parbeszed.dokumentumok.size(), 1);
        QFile oldal(parbeszed.dokumentumok[0].toLocalFile());
        QVERIFY(oldal.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(oldal.readAll()).contains("<h1>Korvend – kézikönyv</h1>"));
        QVERIFY(parbeszed.uzenetek.isEmpty());
        parbeszed.vanBongeszo = false;
        QTest::keyClick(&a.form1, Qt::Key_F1);
        QCOMPARE(parbeszed.uzenetek, QStringList{"A kézikönyv nem nyitható meg."});
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
