#include "ablakteszt.h"
#include "eletesemenyteszt.h"
#include "kezteszt.h"
#include "probaparbeszed.h"

namespace {

TPillanat idoMezok(const QWidget& d) {
    return {ertek(d, "SpinEditEv1"),  ertek(d, "SpinEditHo1"),   ertek(d, "SpinEditNap1"),
            ertek(d, "SpinEditOra1"), ertek(d, "SpinEditPerc1"), ertek(d, "SpinEditMperc1")};
}

QString sor(const QWidget& d, const char* nev) {
    return vezerlo<QLineEdit>(d, nev)->text();
}

QString helyseg(const QWidget& d) {
    return vezerlo<QComboBox>(d, "ComboBoxHelyseg1")->currentText();
}

/// Rows of the list whose whole width has the colour of a selection.
QList<int> kijeloltSorok(QWidget& d) {
    const QImage kep = d.grab().toImage();
    const QRgb kijeloles = d.palette().color(QPalette::Highlight).rgb();
    QList<int> sorok;
    for (int n = 1; n <= esemenyHelyek; ++n) {
        const QRect elso = vezerlo<QLabel>(d, qPrintable(QStringLiteral("LEletes_%1_1").arg(n)))->geometry();
        const QRect utolso =
            vezerlo<QLabel>(d, qPrintable(QStringLiteral("LEletes_%1_15").arg(n)))->geometry();
        bool egesz = true;  // along the lower edge, under the letters
        for (int x = elso.left(); x < utolso.right(); ++x)
            egesz = egesz && kep.pixel(x, elso.bottom()) == kijeloles;
        if (egesz) sorok << n;
    }
    return sorok;
}

/// A birth on screen with two events, the program's clock running.
struct TKetEsemeny : TFrissAblakok {
    TKetEsemeny() {
        form1.parbeszedBeallitasa(parbeszed);
        form10.parbeszedBeallitasa(parbeszed);
        vezerloOra()->start();
        ujKeplet(*this, [](QWidget& d) {
            gepel(d, "SpinEditPerc1", "12");
            gepel(d, "SpinEditMperc1", "34");
            esemenyGepelese(d, "első", "1,2", "1999");
            esemenyGepelese(d, "második", "3", "2000");
            kattint(d, "Button_Rendben2");
        });
        QCOMPARE(allapot().Esemenyek.EsemenyDb, 2);
    }
    int esemenyek() { return allapot().Esemenyek.EsemenyDb; }
    /// Opens the editor over the open personal data.
    void szerkeszt(const std::function<void(QWidget&)>& teendo) {
        bool lefutott = false;
        valasz([&](QWidget& d) {
            valasz([&](QWidget& szerkeszto) {
                QCOMPARE(szerkeszto.objectName(), "TForm10");
                teendo(szerkeszto);
                lefutott = true;
                szerkeszto.hide();  // a test that failed goes on
            });
            kattint(d, "Button_Eletesemenyek1");
            kattint(d, "Button_Megsem1");
        });
        menu(form1, "Szemely_adatok1");
        QVERIFY(lefutott);
    }
    TProbaParbeszed parbeszed;
};

}  // namespace

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

    void aNyilakASzovegbolVegigjarjakAListat() {
        TKetEsemeny a;
        a.szerkeszt([&a](QWidget& d) {
            const auto itt = [&d](int kijelolt, const char* szoveg, const char* analogia, int ev) {
                QCOMPARE(kijeloltSorok(d), QList<int>{kijelolt});
                QCOMPARE(sor(d, "Edit_Eletesemenyek1"), szoveg);
                QCOMPARE(sor(d, "Edit_Hazanalogiak1"), analogia);
                QCOMPARE(ertek(d, "SpinEditEv1"), ev);
            };
            leut(Qt::Key_Down);
            itt(1, "első", "I,2", 1999);
            for (int n = 0; n < 2; ++n) {  // at the end it stays
                leut(Qt::Key_Down);
                itt(2, "második", "3", 2000);
            }
            for (int n = 0; n < 2; ++n) {
                leut(Qt::Key_Up);
                itt(1, "első", "I,2", 1999);
            }
            gepel(d, "Edit_Eletesemenyek1", "javított");
            leut(Qt::Key_Return);
            QCOMPARE(lista(d, 1, 2), "javított");
            QCOMPARE(a.esemenyek(), 2);
            QVERIFY(kijeloltSorok(d).isEmpty());
            leut(Qt::Key_Up);  // with none selected it begins at the end
            itt(2, "második", "3", 2000);
            kattint(d, "Button_Megsem2");
        });
    }

    void aNyilABeirtatNemVesztiEl() {
        TKetEsemeny a;
        struct TBeirt {
            const char *mezo, *szoveg;
        };
        for (const TBeirt& b : {TBeirt{"Edit_Eletesemenyek1", "beírt"}, TBeirt{"Edit_Hazanalogiak1", "4"},
                                TBeirt{"Edit_Hazanalogiak1", "ez nem ház"}, TBeirt{"SpinEditNap1", "17"},
                                TBeirt{"SpinEditSzelPerc1", "59"}})
            for (const Qt::Key gomb : {Qt::Key_Down, Qt::Key_Up})
                a.szerkeszt([&b, gomb](QWidget& d) {
                    gepel(d, b.mezo, b.szoveg);
                    vezerlo<QLineEdit>(d, "Edit_Eletesemenyek1")->setFocus();
                    leut(gomb);
                    QVERIFY2(kijeloltSorok(d).isEmpty(), b.mezo);
                    const auto* szam = d.findChild<QSpinBox*>(b.mezo);
                    QCOMPARE(szam != nullptr ? szam->text() : sor(d, b.mezo), b.szoveg);
                    kattint(d, "Button_Megsem2");
                });
    }

    /// Once the changed event is in the list the keys go on.
    void aJavitottEsemenyUtanANyilTovabbmegy() {
        TKetEsemeny a;
        a.szerkeszt([](QWidget& d) {
            leut(Qt::Key_Down);
            gepel(d, "SpinEditEv1", "1998");
            vezerlo<QLineEdit>(d, "Edit_Eletesemenyek1")->setFocus();
            leut(Qt::Key_Down);
            QCOMPARE(kijeloltSorok(d), QList<int>{1});
            QCOMPARE(ertek(d, "SpinEditEv1"), 1998);
            leut(Qt::Key_Return);
            QCOMPARE(lista(d, 1, 4), "1998.");
            leut(Qt::Key_Down);
            QCOMPARE(kijeloltSorok(d), QList<int>{1});
            kattint(d, "Button_Megsem2");
        });
    }

    void aNyilASzamMezobenSzamotLeptet() {
        TKetEsemeny a;
        a.szerkeszt([](QWidget& d) {
            vezerlo<QSpinBox>(d, "SpinEditEv1")->setFocus();
            leut(Qt::Key_Down);
            QCOMPARE(ertek(d, "SpinEditEv1"), 1999);
            QVERIFY(kijeloltSorok(d).isEmpty());
            kattint(d, "Button_Megsem2");
        });
    }

    void aNyilUresListanSemmitSemTesz() {
        TFrissAblakok a;
        ujKeplet(a, [](QWidget& d) {
            const int ev = ertek(d, "SpinEditEv1");
            for (const Qt::Key gomb : {Qt::Key_Down, Qt::Key_Up}) leut(gomb);
            QVERIFY(kijeloltSorok(d).isEmpty());
            QCOMPARE(ertek(d, "SpinEditEv1"), ev);
            kattint(d, "Button_Megsem2");
        });
    }

    void nyitaskorSemmiNincsKijelolveEsASzovegekUresek() {
        TKetEsemeny a;
        for (int nyitas = 0; nyitas < 2; ++nyitas) {
            a.szerkeszt([&a](QWidget& d) {
                QCOMPARE(sor(d, "Edit_Eletesemenyek1"), "");
                QCOMPARE(sor(d, "Edit_Hazanalogiak1"), "");
                QCOMPARE(cimke(d, "LabelSolarNap1"), "");
                QVERIFY(kijeloltSorok(d).isEmpty());
                QVERIFY((idoMezok(d) == TPillanat{2000, 5, 6, 0, 12, 34}));  // the last listed event's
                QCOMPARE(helyseg(d), "Szeged");
                QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 1);
                leut(Qt::Key_Return);  // a stray Enter
                QCOMPARE(a.esemenyek(), 2);
                // Leave a selection, texts and another date behind.
                QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_1_2"), Qt::LeftButton);
                QCOMPARE(kijeloltSorok(d), QList<int>{1});
                gepel(d, "SpinEditEv1", "1955");
                gepel(d, "ComboBoxHelyseg1", "Pécs");
                kattint(d, "Button_Megsem2");
            });
        }
        a.szerkeszt([](QWidget& d) {
            leut(Qt::Key_Return);
            leut(Qt::Key_Return);
            kattint(d, "Button_Rendben2");
        });
        QCOMPARE(a.esemenyek(), 2);
        QCOMPARE(a.allapot().Esemenyek.esemenyek[1].esemeny, std::string("első"));
        QCOMPARE(a.allapot().Esemenyek.esemenyek[1].pillanat.ev, 1999);
    }

    void esemenyNelkulAFeltuntetettSzuletesIdejeEsHelye() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        dialogusban([](QWidget& d) {
            gepel(d, "SpinEditEv1", "1985");
            gepel(d, "SpinEditHo1", "7");
            gepel(d, "SpinEditNap1", "21");
            gepel(d, "SpinEditOra1", "6");
            gepel(d, "SpinEditPerc1", "4");
            gepel(d, "SpinEditMperc1", "9");
            gepel(d, "ComboBoxHelyseg1", "Szeged");
            gepel(d, "SpinEditHosszPerc1", "30");
            gepel(d, "SpinEditNyariidosz1", "0");
            dialogusban([](QWidget& szerkeszto) {
                QVERIFY((idoMezok(szerkeszto) == TPillanat{1985, 7, 21, 6, 4, 9}));
                QCOMPARE(helyseg(szerkeszto), "Szeged");
                QCOMPARE(ertek(szerkeszto, "SpinEditHosszFok1"), 20);
                QCOMPARE(ertek(szerkeszto, "SpinEditHosszPerc1"), 30);
                QCOMPARE(ertek(szerkeszto, "SpinEditSzelFok1"), 46);
                QCOMPARE(ertek(szerkeszto, "SpinEditNyariidosz1"), 1);  // the table's, not the field's
                kattint(szerkeszto, "Button_Megsem2");
            });
            kattint(d, "Button_Eletesemenyek1");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Uj1");
    }

    void apontositasbolAKepletBeirtSzuletese() {
        TFrissAblakok a;
        szuletes(a);  // 1975-07-21 06:04:09 Szeged, typed as zone time
        a.vezerloOra()->start();
        vezerlo<QSpinBox>(a.form2, "SpinEditEv1")->setValue(2001);  // what the other dialog's fields hold
        dialogusban([](QWidget& d) {
            QVERIFY((idoMezok(d) == TPillanat{1975, 7, 21, 6, 4, 9}));
            QCOMPARE(helyseg(d), "Szeged");
            kattint(d, "Button_Megsem2");
        });
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        kattint(a.form13, "Button_Eletesemenyek1");
    }

    void aRendbenUtanUjEsemenyJohet() {
        TKetEsemeny a;
        a.szerkeszt([&a](QWidget& d) {
            // By keys alone, from the event's text on.
            QCOMPARE(QApplication::focusWidget()->objectName(), "Edit_Eletesemenyek1");
            for (const char* nev : {"harmadik", "negyedik"}) {
                beut(nev);
                leut(Qt::Key_Tab);
                beut("4,5");
                leut(Qt::Key_Return);
                QCOMPARE(sor(d, "Edit_Eletesemenyek1"), "");
                QCOMPARE(sor(d, "Edit_Hazanalogiak1"), "");
                QCOMPARE(QApplication::focusWidget()->objectName(), "Edit_Eletesemenyek1");
                QVERIFY((idoMezok(d) == TPillanat{2000, 5, 6, 0, 12, 34}));
                QCOMPARE(helyseg(d), "Szeged");
            }
            QCOMPARE(lista(d, 4, 2), "negyedik");
            QCOMPARE(lista(d, 4, 3), "IV,5");
            leut(Qt::Key_Return);
            QCOMPARE(a.esemenyek(), 4);
            kattint(d, "Button_Rendben2");
        });
        QCOMPARE(a.esemenyek(), 4);
        QVERIFY(a.parbeszed.kerdesek.isEmpty());
    }

    void aKijeloltEsemenyMindenMezojeVisszajon() {
        const std::pair<const char*, int> szamok[]{
            {"SpinEditEv1", 1993},     {"SpinEditHo1", 11},        {"SpinEditNap1", 27},
            {"SpinEditOra1", 17},      {"SpinEditPerc1", 43},      {"SpinEditMperc1", 58},
            {"SpinEditIdozona1", 3},   {"SpinEditNyariidosz1", 1}, {"SpinEditHosszFok1", 25},
            {"SpinEditHosszPerc1", 7}, {"SpinEditSzelFok1", 44},   {"SpinEditSzelPerc1", 36}};
        TKetEsemeny a;
        a.szerkeszt([&szamok](QWidget& d) {
            gepel(d, "Edit_Eletesemenyek1", "harmadik");
            gepel(d, "Edit_Hazanalogiak1", "5,7");
            gepel(d, "ComboBoxHelyseg1", "Messze");
            for (const auto& [nev, szam] : szamok) gepel(d, nev, qPrintable(QString::number(szam)));
            kattint(d, "Button_Rendben1");
            const QString solarNap = cimke(d, "LabelSolarNap1");
            QVERIFY(!solarNap.isEmpty());
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_1_1"), Qt::LeftButton);
            for (const auto& [nev, szam] : szamok) {
                if (nev != QStringLiteral("SpinEditNyariidosz1")) QVERIFY2(ertek(d, nev) != szam, nev);
            }
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_3_1"), Qt::LeftButton);
            QCOMPARE(sor(d, "Edit_Eletesemenyek1"), "harmadik");
            QCOMPARE(sor(d, "Edit_Hazanalogiak1"), "5,VII");
            QCOMPARE(helyseg(d), "Messze");
            for (const auto& [nev, szam] : szamok) QVERIFY2(ertek(d, nev) == szam, nev);
            QCOMPARE(cimke(d, "LabelSolarNap1"), solarNap);
            kattint(d, "Button_Megsem2");
        });
    }

    void aHelyAzIdozonajatEsAKoordinataitIsHozza() {
        TKetEsemeny a;
        a.szerkeszt([](QWidget& d) {
            for (const char* nev : {"SpinEditIdozona1", "SpinEditHosszFok1", "SpinEditHosszPerc1",
                                    "SpinEditSzelFok1", "SpinEditSzelPerc1"})
                gepel(d, nev, "5");
            gepel(d, "ComboBoxHelyseg1", "Győr");
            QCOMPARE(ertek(d, "SpinEditIdozona1"), 1);
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), 17);  // 63478" is 17°37'
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), 37);
            QCOMPARE(ertek(d, "SpinEditSzelFok1"), 47);  // 171676" is 47°41'
            QCOMPARE(ertek(d, "SpinEditSzelPerc1"), 41);
            kattint(d, "Button_Megsem2");
        });
    }

    /// What is not taken stays in the fields.
    void aSzovegNelkuliEsATeliListaraJovoEsemenyMegmarad() {
        TKetEsemeny a;
        a.szerkeszt([&a](QWidget& d) {
            gepel(d, "Edit_Hazanalogiak1", "4,5");
            kattint(d, "Button_Rendben1");
            QCOMPARE(a.esemenyek(), 2);
            QCOMPARE(sor(d, "Edit_Hazanalogiak1"), "4,5");
            QCOMPARE(cimke(d, "LabelSolarNap1"), "");
            for (int n = 3; n <= esemenyHelyek; ++n) esemenyGepelese(d, "sok", "1", "2001");
            QCOMPARE(a.esemenyek(), esemenyHelyek);
            gepel(d, "Edit_Eletesemenyek1", "még egy");
            gepel(d, "Edit_Hazanalogiak1", "6");
            kattint(d, "Button_Rendben1");
            QCOMPARE(a.esemenyek(), esemenyHelyek);
            QCOMPARE(sor(d, "Edit_Eletesemenyek1"), "még egy");
            QCOMPARE(sor(d, "Edit_Hazanalogiak1"), "6");
            kattint(d, "Button_Megsem2");
        });
    }

    /// Names are shown as they were typed, whatever signs are in them.
    void azEsemenySzovegeNemJelolonyelv() {
        TKetEsemeny a;
        a.szerkeszt([](QWidget& d) {
            esemenyGepelese(d, "<b>x</b>", "1", "2001");
            const auto* felirat = vezerlo<QLabel>(d, "LEletes_3_2");
            QCOMPARE(felirat->text(), "<b>x</b>");
            QVERIFY(felirat->sizeHint().width() >= felirat->fontMetrics().horizontalAdvance("<b>x</b>"));
            kattint(d, "Button_Megsem2");
        });
    }

    void aKijeloltSorLatszik() {
        TKetEsemeny a;
        a.szerkeszt([](QWidget& d) {
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_1_2"), Qt::LeftButton);
            QCOMPARE(kijeloltSorok(d), QList<int>{1});
            QCOMPARE(vezerlo<QLabel>(d, "LEletes_1_15")->foregroundRole(), QPalette::HighlightedText);
            QCOMPARE(vezerlo<QLabel>(d, "LEletes_2_15")->foregroundRole(), QPalette::WindowText);
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_2_3"), Qt::LeftButton);
            QCOMPARE(kijeloltSorok(d), QList<int>{2});
            kattint(d, "Button_Rendben1");  // replaces it and ends the selection
            QVERIFY(kijeloltSorok(d).isEmpty());
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_2_1"), Qt::LeftButton);
            kattint(d, "Button_Torol1");
            QVERIFY(kijeloltSorok(d).isEmpty());
            kattint(d, "Button_Megsem2");
        });
    }

    void aValtozottListatKerdesNelkulNemHagyjaEl() {
        TKetEsemeny a;
        const QStringList kerdes{"Életesemények", "A változtatások elvesznek. Valóban bezárja az ablakot?"};
        a.szerkeszt([&](QWidget& d) {
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_1_1"), Qt::LeftButton);
            kattint(d, "Button_Torol1");
            a.parbeszed.igenre = false;
            leut(Qt::Key_Escape);
            QVERIFY(d.isVisible());
            QCOMPARE(a.parbeszed.kerdesek, kerdes);
            keretenCsuk(d);
            QVERIFY(d.isVisible());
            QCOMPARE(a.parbeszed.kerdesek, kerdes + kerdes);
            QCOMPARE(a.esemenyek(), 1);
            QCOMPARE(lista(d, 1, 2), "második");
            a.parbeszed.igenre = true;
            keretenCsuk(d);
            QVERIFY(!d.isVisible());
            QCOMPARE(a.parbeszed.kerdesek.size(), 6);
        });
        QCOMPARE(a.esemenyek(), 2);
        QCOMPARE(a.allapot().Esemenyek.esemenyek[1].esemeny, std::string("első"));
    }

    void aBegepeltSzovegreIsKerdez() {
        TKetEsemeny a;
        a.parbeszed.igenre = true;
        for (const char* mezo : {"Edit_Eletesemenyek1", "Edit_Hazanalogiak1"}) {
            a.parbeszed.kerdesek.clear();
            a.szerkeszt([&](QWidget& d) {
                belelep(d, mezo);
                beut("1");
                leut(Qt::Key_Escape);
                QVERIFY(!d.isVisible());
            });
            QCOMPARE(a.parbeszed.kerdesek.size(), 2);
        }
    }

    void valtozasNelkulEsAMegsemGombraNemKerdez() {
        TKetEsemeny a;
        a.parbeszed.igenre = false;
        a.szerkeszt([](QWidget& d) {
            leut(Qt::Key_Escape);
            QVERIFY(!d.isVisible());
        });
        a.szerkeszt([](QWidget& d) {
            // A row that was only looked at is no change.
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_1_1"), Qt::LeftButton);
            keretenCsuk(d);
            QVERIFY(!d.isVisible());
        });
        a.szerkeszt([](QWidget& d) {
            // Nor is one that was typed anew as it had been.
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_1_1"), Qt::LeftButton);
            gepel(d, "Edit_Eletesemenyek1", "első");
            gepel(d, "Edit_Hazanalogiak1", "1,2");
            kattint(d, "Button_Rendben1");
            leut(Qt::Key_Escape);
            QVERIFY(!d.isVisible());
        });
        a.szerkeszt([](QWidget& d) {
            esemenyGepelese(d, "harmadik", "4", "2001");
            QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_1_1"), Qt::LeftButton);
            kattint(d, "Button_Torol1");
            belelep(d, "Edit_Eletesemenyek1");
            beut("x");
            kattint(d, "Button_Megsem2");
            QVERIFY(!d.isVisible());
        });
        a.szerkeszt([](QWidget& d) {
            esemenyGepelese(d, "harmadik", "4", "2001");
            kattint(d, "Button_Rendben2");
            QVERIFY(!d.isVisible());
        });
        QCOMPARE(a.esemenyek(), 3);
        QVERIFY(a.parbeszed.kerdesek.isEmpty());
    }

    void aHelysegKiegeszulEsJelolodik() {
        TKetEsemeny a;
        a.szerkeszt([&a](QWidget& d) {
            belelep(d, "ComboBoxHelyseg1");
            beut("hodmezo");
            QVERIFY(vezerlo<QWidget>(d, "ComboBoxHelyseg1")->toolTip().contains("Budapest"));
            leut(Qt::Key_Return);
            QCOMPARE(helyseg(d), "Hódmezővásárhely");
            QVERIFY(!vezerlo<QWidget>(d, "ComboBoxHelyseg1")->toolTip().contains("Budapest"));
            QVERIFY(d.isVisible());
            QCOMPARE(a.esemenyek(), 2);
            kattint(d, "Button_Megsem2");
        });
    }

    void aHelysegListaAzEgeszTabla() {
        TKetEsemeny a;
        a.szerkeszt([](QWidget& d) {
            const auto* lista = vezerlo<QComboBox>(d, "ComboBoxHelyseg1");
            QCOMPARE(lista->count(), 3138);
            for (const char* nev : {"Budapest", "Szeged", "Pécs", "Róma", "Wadowice"})
                QVERIFY2(lista->findText(nev) >= 0, nev);
            QVERIFY(lista->completer() != nullptr);
            kattint(d, "Button_Megsem2");
        });
    }

    void aHosszuSzovegekElfernek() {
        TKetEsemeny a;
        a.szerkeszt([](QWidget& d) {
            gepel(d, "Edit_Eletesemenyek1", qPrintable(QString(40, u'e')));
            gepel(d, "Edit_Hazanalogiak1", qPrintable(QString(300, u'2')));
            QCOMPARE(sor(d, "Edit_Eletesemenyek1").size(), 32);
            QCOMPARE(sor(d, "Edit_Hazanalogiak1").size(), 255);
            QCOMPARE(vezerlo<QWidget>(d, "Edit_Eletesemenyek1")->toolTip(), "Legfeljebb 32 karakter");
            QCOMPARE(vezerlo<QWidget>(d, "Edit_Hazanalogiak1")->toolTip(), "Legfeljebb 255 karakter");
            kattint(d, "Button_Megsem2");
        });
    }

    void aHibasNapEnterreMegmutatjaMiLettBelole() {
        TKetEsemeny a;
        a.szerkeszt([&a](QWidget& d) {
            belelep(d, "Edit_Eletesemenyek1");
            beut("harmadik");
            belelep(d, "SpinEditNap1");
            beut("32");
            leut(Qt::Key_Return);
            QCOMPARE(a.esemenyek(), 2);
            QCOMPARE(ertek(d, "SpinEditNap1"), 31);
            leut(Qt::Key_Return);
            QCOMPARE(a.esemenyek(), 3);
            QCOMPARE(a.allapot().Esemenyek.esemenyek[3].pillanat.nap, 31);
            kattint(d, "Button_Megsem2");
        });
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
