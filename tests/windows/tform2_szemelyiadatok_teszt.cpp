// A chart typed in, through the dialog, with keys and mouse.

#include <QButtonGroup>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>

#include "eletesemenyteszt.h"
#include "kezteszt.h"
#include "windows/qszoveg.h"

namespace {

void szuletesGepelese(QWidget& d) {
    gepel(d, "EditNev1", "Minta Anna");
    gepel(d, "SpinEditEv1", "1975");
    gepel(d, "SpinEditHo1", "3");
    gepel(d, "SpinEditNap1", "21");
    gepel(d, "SpinEditOra1", "6");
    gepel(d, "SpinEditPerc1", "4");
    gepel(d, "SpinEditMperc1", "9");
    gepel(d, "ComboBoxHelyseg1", "Szeged");
}

void idoTipus(QWidget& d, int index) {
    const auto radiok = vezerlo<QGroupBox>(d, "RadioGroupIdovalaszto1")->findChildren<QRadioButton*>();
    QTest::mouseClick(radiok[index], Qt::LeftButton, {}, QPoint(8, radiok[index]->height() / 2));
    QVERIFY(radiok[index]->isChecked());
}

struct TTartomany {
    const char* nev;
    int also, felso;
};
QString sugo(const QWidget& d, const char* nev) {
    return vezerlo<QWidget>(d, nev)->toolTip();
}

bool nyariIdoJelolt(const QWidget& d) {
    const auto* mezo = vezerlo<QSpinBox>(d, "SpinEditNyariidosz1");
    const bool szines = mezo->findChild<QLineEdit*>()->palette().color(QPalette::Text) !=
                        vezerlo<QSpinBox>(d, "SpinEditMperc1")->palette().color(QPalette::Text);
    const bool sajat = mezo->toolTip() == "Nyári időszámítás: 0 vagy 1 óra";
    if (szines == sajat) qFatal("colour and tooltip disagree");
    return szines;
}

constexpr TTartomany tartomanyok[]{
    {"SpinEditEv1", 1900, 2068},   {"SpinEditHo1", 1, 12},          {"SpinEditNap1", 1, 31},
    {"SpinEditOra1", 0, 23},       {"SpinEditPerc1", 0, 59},        {"SpinEditMperc1", 0, 59},
    {"SpinEditIdozona1", -12, 12}, {"SpinEditNyariidosz1", 0, 1},   {"SpinEditHosszFok1", -180, 180},
    {"SpinEditHosszPerc1", 0, 59}, {"SpinEditSzelFok1", -180, 180}, {"SpinEditSzelPerc1", 0, 59}};

}  // namespace

class TForm2Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aMezokTartomanyai() {
        TFrissAblakok a;
        for (const auto& [nev, also, felso] : tartomanyok) {
            const auto* mezo = vezerlo<QSpinBox>(a.form2, nev);
            QCOMPARE(mezo->minimum(), also);
            QCOMPARE(mezo->maximum(), felso);
        }
    }

    void azUjKepletAlapertekei() {
        TFrissAblakok a;
        a.allapot().Szemely.idoTipus = TIdoTipus::GMT;
        valasz([&](QWidget& d) {
            QCOMPARE(vezerlo<QLineEdit>(d, "EditNev1")->text(), "Új képlet");
            QCOMPARE(vezerlo<QPlainTextEdit>(d, "Memo_Jegyzet1")->toPlainText(), "");
            QCOMPARE(vezerlo<QComboBox>(d, "ComboBoxHelyseg1")->currentText(), "Budapest");
            QCOMPARE(ertek(d, "SpinEditIdozona1"), 1);
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), 19);
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), 4);
            QCOMPARE(ertek(d, "SpinEditSzelFok1"), 47);
            QCOMPARE(ertek(d, "SpinEditSzelPerc1"), 30);
            QCOMPARE(ertek(d, "SpinEditEv1"), a.allapot().Szemely.beirt.ev);
            for (const auto* radio : d.findChildren<QRadioButton*>()) QVERIFY(!radio->isChecked());
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Uj1");
        QCOMPARE(a.allapot().Szemely.idoTipus, TIdoTipus::ZN);
        QCOMPARE(a.allapot().Szemely.idoTipusIndex, 0);
        QVERIFY(a.allapot().Megsem2);
        QVERIFY(a.allapot().MostFut);
    }

    void zonaIdosSzuletesKepleteAKepernyon() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            szuletesGepelese(d);
            gepel(d, "Memo_Jegyzet1", "Elso");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Uj1");
        const TKeplet& k = a.allapot().Keplet;
        QVERIFY((k.pillanat == TPillanat{1975, 3, 21, 6, 4, 9}));
        QCOMPARE(k.szelesseg, 46 * 3600 + 14 * 60);  // the fields hold no seconds of arc
        QCOMPARE(k.hosszusag, 20 * 3600 + 9 * 60);
        QCOMPARE(panel(a.form1, 0), "Radix");
        QCOMPARE(panel(a.form1, 2), "Minta Anna ");
        QCOMPARE(panel(a.form1, 3), "1975.03.21. 06:04:09 ZN");
        QCOMPARE(panel(a.form1, 4), "Szeged ");
        QCOMPARE(panel(a.form1, 5), "20°9'K  46°14'É");
        QCOMPARE(vezerlo<QPlainTextEdit>(a.form1, "Memo1")->toPlainText(), "Elso");
        QVERIFY(!a.allapot().MostFut);
        QVERIFY((a.allapot().RadixPillanat == TPillanat{1975, 3, 21, 6, 4, 9}));
        QVERIFY((a.allapot().SzuletesiPillanat == TPillanat{1975, 3, 21, 6, 4, 9}));
        // The Sun an hour before the equinox of 21 March 1975, 5:57 in Greenwich.
        QVERIFY(k.bolygo[1] > 359.9 && k.bolygo[1] < 360.0);
    }

    /// 20°9' is 4836 s of local time: 6:04:09 - 1:20:36 + 1:00:00 = 5:43:33.
    void aFutoOraAlattValasztottIdoTipusMegmarad() {
        constexpr TPillanat vart[]{{1975, 3, 21, 6, 4, 9}, {1975, 3, 21, 5, 43, 33}, {1975, 3, 21, 7, 4, 9}};
        for (const char* parancs : {"Uj1", "Szemely_adatok1"}) {
            for (int tipus = 0; tipus < 3; ++tipus) {
                TFrissAblakok a;
                a.oraIndul();
                valasz([&](QWidget& d) {
                    szuletesGepelese(d);
                    idoTipus(d, tipus);
                    QTest::qWait(tobbOrajel);
                    QVERIFY(a.allapot().MostFut);
                    kattint(d, "Button_Rendben1");
                });
                menu(a.form1, parancs);
                QCOMPARE(a.allapot().Szemely.idoTipus, static_cast<TIdoTipus>(tipus));
                QVERIFY((a.allapot().Keplet.pillanat == vart[tipus]));
                QCOMPARE(panel(a.form1, 3),
                         "1975.03.21. 06:04:09 " + qszoveg(idoTipusok[static_cast<std::size_t>(tipus)]));
            }
        }
    }

    void aFutoOraAlattValasztasNelkulZonaIdo() {
        TFrissAblakok a;
        a.oraIndul();
        valasz([&](QWidget& d) {
            szuletesGepelese(d);
            idoTipus(d, 1);
            QTest::qWait(tobbOrajel);
            // The status bar behind the dialog goes on showing the clock's own kind.
            QVERIFY(panel(a.form1, 3).endsWith(" ZN"));
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Uj1");
        QTest::qWait(tobbOrajel);
        QCOMPARE(a.allapot().Szemely.idoTipus, TIdoTipus::ZN);
        valasz([&](QWidget& d) {
            szuletesGepelese(d);
            QTest::qWait(tobbOrajel);
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Szemely_adatok1");
        QVERIFY((a.allapot().Keplet.pillanat == TPillanat{1975, 3, 21, 6, 4, 9}));
    }

    void helyiKozepidoAtszamitva() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            szuletesGepelese(d);
            idoTipus(d, 1);
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Uj1");
        // 20°9' east is 4836 s; 6:04:09 less that and an hour more is 5:43:33.
        QVERIFY((a.allapot().Keplet.pillanat == TPillanat{1975, 3, 21, 5, 43, 33}));
        QCOMPARE(panel(a.form1, 3), "1975.03.21. 06:04:09 LMT");
    }

    void greenwichiIdoAtszamitva() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            szuletesGepelese(d);
            idoTipus(d, 2);
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Uj1");
        QVERIFY((a.allapot().Keplet.pillanat == TPillanat{1975, 3, 21, 7, 4, 9}));
        QCOMPARE(panel(a.form1, 3), "1975.03.21. 06:04:09 GMT");
        QCOMPARE(a.allapot().Szemely.idoTipusIndex, 2);
    }

    void valasztasNelkulZonaIdo() {
        TFrissAblakok a;
        valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
        menu(a.form1, "Uj1");
        QCOMPARE(a.allapot().Szemely.idoTipus, TIdoTipus::ZN);
        QVERIFY(panel(a.form1, 3).endsWith(" ZN"));
    }

    void aHelysegValtozasaKiigazitjaADatumotEsAHelyet() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            gepel(d, "SpinEditEv1", "2000");
            gepel(d, "SpinEditHo1", "4");
            gepel(d, "SpinEditNap1", "31");
            gepel(d, "ComboBoxHelyseg1", "Pécs");
            QCOMPARE(ertek(d, "SpinEditHo1"), 5);
            QCOMPARE(ertek(d, "SpinEditNap1"), 1);
            QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 1);
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), 18);  // 65691" is 18°14'
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), 14);
            QCOMPARE(ertek(d, "SpinEditSzelFok1"), 46);  // 165888" is 46°4'
            QCOMPARE(ertek(d, "SpinEditSzelPerc1"), 4);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Uj1");
        // "Mégsem" leaves what the change of the place has written.
        QCOMPARE(a.allapot().Keplet.helyseg, std::string("Pécs"));
        QCOMPARE(a.allapot().Szemely.beirt.ho, 5);
    }

    void ismeretlenHelyAzAlapertekeketAdjaDeAMezoFelulirhato() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            gepel(d, "ComboBoxHelyseg1", "Xanadu");
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), 19);
            gepel(d, "SpinEditHosszFok1", "-19");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Uj1");
        QCOMPARE(a.allapot().Keplet.hosszusag, -68160);
        QCOMPARE(panel(a.form1, 5), "18°56'Ny  47°30'É");
        // Shown again, the minutes are cut towards zero and held at 0 by the field.
        valasz([](QWidget& d) {
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), -18);
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), 0);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Szemely_adatok1");
    }

    void aHelysegekListajaMindenNyitaskorHosszabb() {
        TFrissAblakok a;
        for (const int szam : {3138, 6276}) {
            valasz([szam](QWidget& d) {
                QCOMPARE(vezerlo<QComboBox>(d, "ComboBoxHelyseg1")->count(), szam);
                kattint(d, "Button_Megsem1");
            });
            menu(a.form1, "Szemely_adatok1");
        }
    }

    void aSzemelyiAdatokAMarBeirtakatMutatja() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            szuletesGepelese(d);
            idoTipus(d, 1);
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Uj1");
        valasz([](QWidget& d) {
            QCOMPARE(vezerlo<QLineEdit>(d, "EditNev1")->text(), "Minta Anna");
            QCOMPARE(ertek(d, "SpinEditOra1"), 6);  // as typed, not as converted
            QCOMPARE(ertek(d, "SpinEditPerc1"), 4);
            QVERIFY(vezerlo<QGroupBox>(d, "RadioGroupIdovalaszto1")
                        ->findChildren<QRadioButton*>()[1]
                        ->isChecked());
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Szemely_adatok1");
    }

    void mindenMezoVisszajonAhogyBeirtak() {
        const std::pair<const char*, int> szamok[]{
            {"SpinEditEv1", 1963},     {"SpinEditHo1", 11},        {"SpinEditNap1", 27},
            {"SpinEditOra1", 17},      {"SpinEditPerc1", 43},      {"SpinEditMperc1", 58},
            {"SpinEditIdozona1", 3},   {"SpinEditNyariidosz1", 1}, {"SpinEditHosszFok1", 25},
            {"SpinEditHosszPerc1", 7}, {"SpinEditSzelFok1", 44},   {"SpinEditSzelPerc1", 36}};
        TFrissAblakok a;
        valasz([&szamok](QWidget& d) {
            gepel(d, "EditNev1", "Kiss Ödön");
            gepel(d, "ComboBoxHelyseg1", "Kolozsvár mellett");
            for (const auto& [nev, ertek] : szamok) gepel(d, nev, qPrintable(QString::number(ertek)));
            gepel(d, "Memo_Jegyzet1", "két szó");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Uj1");
        for (const bool maskent : {false, true}) {
            valasz([&](QWidget& d) {
                QCOMPARE(vezerlo<QLineEdit>(d, "EditNev1")->text(), "Kiss Ödön");
                QCOMPARE(vezerlo<QComboBox>(d, "ComboBoxHelyseg1")->currentText(), "Kolozsvár mellett");
                QCOMPARE(vezerlo<QPlainTextEdit>(d, "Memo_Jegyzet1")->toPlainText(), "két szó");
                for (const auto& [nev, vart] : szamok) {
                    QVERIFY2(ertek(d, nev) == vart, nev);
                    // What is left in the fields by "Mégsem" does not come back.
                    if (!maskent) vezerlo<QSpinBox>(d, nev)->setValue(vart == 1 ? 0 : vart - 1);
                }
                vezerlo<QLineEdit>(d, "EditNev1")->setText("Más");
                vezerlo<QPlainTextEdit>(d, "Memo_Jegyzet1")->setPlainText("más");
                kattint(d, "Button_Megsem1");
            });
            menu(a.form1, "Szemely_adatok1");
        }
    }

    void aHelysegAzIdozonajatIsHozza() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            gepel(d, "SpinEditIdozona1", "5");
            gepel(d, "ComboBoxHelyseg1", "Pécs");
            QCOMPARE(ertek(d, "SpinEditIdozona1"), 1);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Uj1");
    }

    void aKilepoBillentyuMegsem() {
        TFrissAblakok a;
        a.allapot().Megsem2 = false;
        valasz([](QWidget& d) { QTest::keyClick(&d, Qt::Key_Escape); });
        menu(a.form1, "Uj1");
        QVERIFY(a.allapot().Megsem2);
        QVERIFY(a.allapot().MostFut);
    }

    void aHelysegKiegeszulAzEnterNemCsuk() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        dialogusban([](QWidget& d) {
            belelep(d, "ComboBoxHelyseg1");
            beut("gyor");
            leut(Qt::Key_Return);
            QVERIFY(d.isVisible());
            QCOMPARE(vezerlo<QComboBox>(d, "ComboBoxHelyseg1")->currentText(), "Győr");
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), 17);  // 63478" is 17°37'
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), 37);
            QCOMPARE(ertek(d, "SpinEditSzelFok1"), 47);  // 171676" is 47°41'
            QCOMPARE(ertek(d, "SpinEditSzelPerc1"), 41);
            leut(Qt::Key_Return);
            QVERIFY(!d.isVisible());
        });
        menu(a.form1, "Uj1");
        QCOMPARE(panel(a.form1, 4).trimmed(), "Győr");
        QCOMPARE(a.allapot().Keplet.helyseg, std::string("Győr"));
    }

    void azIsmeretlenHelyJelolve() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        for (int nyitas = 0; nyitas < 2; ++nyitas) {
            dialogusban([](QWidget& d) {
                belelep(d, "ComboBoxHelyseg1");
                beut("Szeged");
                QCOMPARE(sugo(d, "ComboBoxHelyseg1"), "Legfeljebb 32 karakter");
                beut("x");
                QCOMPARE(sugo(d, "ComboBoxHelyseg1"),
                         "Ez a helység nincs a táblában: a program Budapest adataival számol.");
                keretenCsuk(d);
            });
            menu(a.form1, nyitas == 0 ? "Uj1" : "Szemely_adatok1");
        }
        // The place as it was left is marked from the opening on.
        dialogusban([](QWidget& d) {
            QCOMPARE(vezerlo<QComboBox>(d, "ComboBoxHelyseg1")->currentText(), "Szegedx");
            QVERIFY(sugo(d, "ComboBoxHelyseg1").contains("Budapest"));
            leut(Qt::Key_Escape);
        });
        menu(a.form1, "Szemely_adatok1");
    }

    void aNyariIdoEltereseAMezokkelEgyuttJelolodik() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        dialogusban([](QWidget& d) {
            gepel(d, "SpinEditEv1", "2000");
            gepel(d, "SpinEditHo1", "1");
            gepel(d, "SpinEditNap1", "15");
            gepel(d, "SpinEditOra1", "2");
            gepel(d, "SpinEditNyariidosz1", "0");
            QVERIFY(!nyariIdoJelolt(d));
            gepel(d, "SpinEditNyariidosz1", "1");
            QVERIFY(nyariIdoJelolt(d));
            QCOMPARE(sugo(d, "SpinEditNyariidosz1"),
                     "Eltér a nyári időszámítás táblájától: ekkor ott 0 áll.");
            gepel(d, "SpinEditHo1", "10");  // in summer time to 29 October 2000, 3 o'clock
            QVERIFY(!nyariIdoJelolt(d));
            gepel(d, "SpinEditNap1", "29");
            QVERIFY(!nyariIdoJelolt(d));
            gepel(d, "SpinEditOra1", "3");
            QVERIFY(nyariIdoJelolt(d));
            gepel(d, "SpinEditOra1", "2");
            QVERIFY(!nyariIdoJelolt(d));
            gepel(d, "SpinEditEv1", "1975");
            QVERIFY(nyariIdoJelolt(d));
            QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 1);  // nothing changes by itself
            gepel(d, "ComboBoxHelyseg1", "Szeged");        // but the place asks the table, as ever
            QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 0);
            QVERIFY(!nyariIdoJelolt(d));
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Uj1");
    }

    void aNyariIdoJeloleseAzIdoFajtajavalIsValtozik() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        dialogusban([](QWidget& d) {
            gepel(d, "SpinEditEv1", "2000");
            gepel(d, "SpinEditHo1", "7");
            gepel(d, "SpinEditNap1", "15");
            gepel(d, "SpinEditNyariidosz1", "1");
            QVERIFY(!nyariIdoJelolt(d));  // no kind chosen counts as zone time
            for (const int index : {1, 2}) {
                idoTipus(d, index);
                QVERIFY(nyariIdoJelolt(d));
                gepel(d, "SpinEditNyariidosz1", "0");
                QVERIFY(!nyariIdoJelolt(d));
                idoTipus(d, 0);
                QVERIFY(nyariIdoJelolt(d));
                gepel(d, "SpinEditNyariidosz1", "1");
                QVERIFY(!nyariIdoJelolt(d));
            }
            gepel(d, "SpinEditNyariidosz1", "0");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Uj1");
        QCOMPARE(a.allapot().Keplet.nyariIdo, 0);
        // The chart in hand keeps its own summer time; it is marked when the dialog opens.
        dialogusban([](QWidget& d) {
            QVERIFY(nyariIdoJelolt(d));
            QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 0);
            leut(Qt::Key_Escape);
        });
        menu(a.form1, "Szemely_adatok1");
        // The kind of the clock counts from the opening on.
        a.allapot().Szemely.idoTipusIndex = 1;
        dialogusban([](QWidget& d) {
            QVERIFY(!nyariIdoJelolt(d));
            leut(Qt::Key_Escape);
        });
        menu(a.form1, "Szemely_adatok1");
        // A new chart asks the table.
        dialogusban([](QWidget& d) {
            QCOMPARE(ertek(d, "SpinEditNyariidosz1"), 1);
            QVERIFY(!nyariIdoJelolt(d));
            keretenCsuk(d);
        });
        menu(a.form1, "Uj1");
    }

    void azEletesemenyekGombjaMegmondjaASzamukat() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        const auto szam = [](const QWidget& d) {
            return sugo(d, "Button_Eletesemenyek1").section(QRegularExpression("\\D+"), 1, 1);
        };
        dialogusban([&](QWidget& d) {
            QCOMPARE(szam(d), "0");
            dialogusban([](QWidget& esemenyek) {
                esemenyGepelese(esemenyek, "első", "1,2", "1999");
                esemenyGepelese(esemenyek, "második", "3", "2000");
                kattint(esemenyek, "Button_Rendben2");
            });
            kattint(d, "Button_Eletesemenyek1");
            QCOMPARE(szam(d), "2");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Uj1");
        dialogusban([&](QWidget& d) {
            QCOMPARE(szam(d), "2");  // a new chart keeps them
            keretenCsuk(d);
        });
        menu(a.form1, "Uj1");
        a.allapot().Esemenyek.EsemenyDb = 0;
        dialogusban([&](QWidget& d) {
            QCOMPARE(szam(d), "0");
            leut(Qt::Key_Escape);
        });
        menu(a.form1, "Szemely_adatok1");
    }

    void aHosszuSzovegekAMezojukbenElfernek() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        dialogusban([](QWidget& d) {
            belelep(d, "EditNev1");
            beut(qPrintable(QString(40, u'n')));
            belelep(d, "ComboBoxHelyseg1");
            beut(qPrintable(QString(40, u'h')));
            vezerlo<QPlainTextEdit>(d, "Memo_Jegyzet1")->setFocus();
            beut(qPrintable(QString(300, u'j')));
            QCOMPARE(sugo(d, "EditNev1"), "Legfeljebb 32 karakter");
            QCOMPARE(sugo(d, "Memo_Jegyzet1"), "Legfeljebb 255 karakter");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Uj1");
        QCOMPARE(a.allapot().Szemely.nev, std::string(32, 'n'));
        QCOMPARE(a.allapot().Keplet.helyseg, std::string(32, 'h'));
        QCOMPARE(a.allapot().Szemely.jegyzet, std::string(255, 'j'));
    }

    void aHibasEvszamEnterreNemCsukja() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        dialogusban([](QWidget& d) {
            belelep(d, "SpinEditEv1");
            beut("86");
            leut(Qt::Key_Return);
            QVERIFY(d.isVisible());
            QCOMPARE(ertek(d, "SpinEditEv1"), 1900);
            beut("1986");
            leut(Qt::Key_Tab);
            beut("13");
            leut(Qt::Key_Tab);
            QCOMPARE(ertek(d, "SpinEditHo1"), 12);
            beut("32");
            leut(Qt::Key_Tab);
            QCOMPARE(ertek(d, "SpinEditNap1"), 31);
            leut(Qt::Key_Return);
            QVERIFY(!d.isVisible());
        });
        menu(a.form1, "Uj1");
        QVERIFY(panel(a.form1, 3).startsWith("1986.12.31."));
    }

    void csakBillentyuvel() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        dialogusban([](QWidget& d) {
            const auto mezo = [](const char* szoveg) {
                beut(szoveg);
                leut(Qt::Key_Tab);
            };
            for (const char* szoveg : {"Minta Anna", "1975", "3", "21", "6", "4", "9"}) mezo(szoveg);
            beut("szeged");
            leut(Qt::Key_Return);
            leut(Qt::Key_Return);
            QVERIFY(!d.isVisible());
        });
        menu(a.form1, "Uj1");
        QCOMPARE(panel(a.form1, 2), "Minta Anna ");
        QCOMPARE(panel(a.form1, 3), "1975.03.21. 06:04:09 ZN");
        QCOMPARE(panel(a.form1, 4), "Szeged ");
    }

    void aTabulatorAJegyzetbolIsTovabbvisz() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            auto* jegyzet = vezerlo<QPlainTextEdit>(d, "Memo_Jegyzet1");
            jegyzet->setFocus();
            beut("egy");
            leut(Qt::Key_Tab);
            QVERIFY(!jegyzet->hasFocus());
            QCOMPARE(jegyzet->toPlainText(), "egy");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Uj1");
    }

    void azOraADialogusAlattIsJar() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        valasz([&a](QWidget& d) {
            const int elobb = a.allapot().MostSzamlalo;
            QTRY_VERIFY(a.allapot().MostSzamlalo > elobb);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Uj1");
    }
};

QTEST_MAIN(TForm2Teszt)
#include "tform2_szemelyiadatok_teszt.moc"
