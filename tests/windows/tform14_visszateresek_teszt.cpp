#include <QDate>
#include <QFile>
#include <QGroupBox>
#include <QListWidget>
#include <QRadioButton>
#include <QStandardPaths>

#include "kezteszt.h"
#include "probaablak.h"
#include "tables/pillanat.h"

namespace {

/// Brings the main window to the front; keys go where its focus is.
void foablakElore(TFrissAblakok& a) {
    a.form1.activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), a.form1.windowHandle());
}

void leut(TFrissAblakok& a, Qt::Key billentyu) {
    QTest::keyClick(a.form1.windowHandle(), billentyu);
}

QString lista(const QWidget& d, int sor) {
    return vezerlo<QListWidget>(d, "ListBox1")->item(sor)->text();
}

QListWidget& sorok(const QWidget& d) {
    return *vezerlo<QListWidget>(d, "ListBox1");
}

QComboBox& helyseg(const QWidget& d) {
    return *vezerlo<QComboBox>(d, "ComboBoxHelyseg1");
}

/// Opens a list and gives it to the test; the clock runs.
void megnyit(TFrissAblakok& a, const char* pont, const std::function<void(QWidget&)>& teendo) {
    bool lefutott = false;
    valasz([&](QWidget& d) {
        fokuszig(d);
        teendo(d);
        lefutott = true;
        d.hide();  // a test that failed goes on
    });
    menu(a.form1, pont);
    QVERIFY(lefutott);
}

/// A birth on screen, the clock running.
struct TSzuletettKeplet : TFrissAblakok {
    TSzuletettKeplet() {
        szuletes(*this);
        vezerloOra()->start();
    }
};

/// Row of the list nearest to today by its text's date, in days; the first of those as near.
int maiSor(const QWidget& d) {
    int legjobb = 0;
    qint64 tav = INT64_MAX;
    for (int i = 0; i < sorok(d).count(); ++i) {
        const QDate nap = QDate::fromString(sorok(d).item(i)->text().left(11), "yyyy.MM.dd.");
        const qint64 t = qAbs(QDate::currentDate().daysTo(nap));
        if (t >= tav) continue;
        tav = t;
        legjobb = i;
    }
    return legjobb;
}

}  // namespace

class TForm14Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void mindenFajtaMegnyilikACimevel() {
        const std::pair<const char*, const char*> fajtak[]{{"Szolar1", "Szolár"},
                                                           {"Lunar1", "Lunár"},
                                                           {"MerkurRev1", "Merkúr revolució"},
                                                           {"VenuszRev1", "Vénusz revolució"},
                                                           {"MarsRev1", "Mars revolució"},
                                                           {"JupiterRev1", "Jupiter revolució"},
                                                           {"SzaturnuszRev1", "Szaturnusz revolució"},
                                                           {"AscPers1", "Asc personar"},
                                                           {"McPers1", "Mc personar"},
                                                           {"HoldPers1", "Hold personar"},
                                                           {"MerkurPers1", "Merkúr personar"},
                                                           {"VenuszPers1", "Vénusz personar"},
                                                           {"MarsPers1", "Mars personar"},
                                                           {"JupiterPers1", "Jupiter personar"},
                                                           {"SzaturnuszPers1", "Szaturnusz personar"},
                                                           {"UranuszPers1", "Uránusz personar"},
                                                           {"NeptunPers1", "Neptun personar"},
                                                           {"PlutoPers1", "Plutó personar"}};
        TFrissAblakok a;
        szuletes(a);
        const QImage elobb = a.kep();
        for (const auto& [pont, cim] : fajtak) {
            valasz([cim = cim](QWidget& d) {
                QCOMPARE(d.windowTitle(), cim);
                QVERIFY(vezerlo<QListWidget>(d, "ListBox1")->count() > 0);
                kattint(d, "Button_Megsem1");
            });
            menu(a.form1, pont);
        }
        QVERIFY(!a.allapot().VisszaMod);
        QVERIFY(a.kep() == elobb);
    }

    void aSzolarMasHelyreEsVissza() {
        TFrissAblakok a;
        szuletes(a);
        valasz([](QWidget& d) {
            QCOMPARE(vezerlo<QLabel>(d, "Label1")->text(), "Visszatérések:");
            QCOMPARE(vezerlo<QLabel>(d, "Datum_bekero1")->text(), "Kezdő dátum:");
            QCOMPARE(ertek(d, "SpinEditNap1"), 20);
            QCOMPARE(vezerlo<QLineEdit>(d, "Edit1")->text(), "1975");
            QCOMPARE(lista(d, 0), "1975.07.21. 05:04:09 GMT");
            QVERIFY(vezerlo<QGroupBox>(d, "RadioGroupIdovalaszto1")
                        ->findChildren<QRadioButton*>()[2]
                        ->isChecked());
            auto* sorok = vezerlo<QListWidget>(d, "ListBox1");
            QTest::mouseClick(sorok->viewport(), Qt::LeftButton, {},
                              sorok->visualItemRect(sorok->item(3)).center());
            gepel(d, "ComboBoxHelyseg1", "Pécs");
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), 18);
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Szolar1");
        QCOMPARE(a.allapot().Keplet.pillanat.ev, 1978);
        QCOMPARE(panel(a.form1, 0), "Szolár");
        QCOMPARE(panel(a.form1, 4), "Pécs");
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Vissza");
        QVERIFY(a.allapot().VisszaMod);
        kattint(a.form1, "PanelButton2_Most");
        QVERIFY((a.allapot().Keplet.pillanat == TPillanat{1975, 7, 21, 6, 4, 9}));
        QCOMPARE(panel(a.form1, 0), "Radix");
        QCOMPARE(panel(a.form1, 4), "Szeged");
    }

    void aFokuszAListanAzElsoSorKijelolve() {
        TSzuletettKeplet a;
        for (const char* pont : {"Szolar1", "Lunar1"}) {
            megnyit(a, pont, [](QWidget& d) {
                QCOMPARE(QApplication::focusWidget()->objectName(), "ListBox1");
                QCOMPARE(sorok(d).currentRow(), 0);
                QVERIFY(sorok(d).item(0)->isSelected());
                QCOMPARE(helyseg(d).currentText(), "Szeged");
                QCOMPARE(helyseg(d).itemText(helyseg(d).currentIndex()), "Szeged");
                // What is left behind does not come back.
                leut(Qt::Key_Down);
                leut(Qt::Key_Down);
                belelep(d, "ComboBoxHelyseg1");
                leut(Qt::Key_Escape);
                QVERIFY(!d.isVisible());
            });
        }
    }

    void anyilAListanLepAHelyMarad() {
        TSzuletettKeplet a;
        megnyit(a, "Szolar1", [](QWidget& d) {
            leut(Qt::Key_Down);
            leut(Qt::Key_Down);
            gorget(helyseg(d), -1);
            QCOMPARE(helyseg(d).currentText(), "Szeged");
            QCOMPARE(sorok(d).currentRow(), 2);
            leut(Qt::Key_Return);
            QVERIFY(!d.isVisible());
        });
        QCOMPARE(a.allapot().Keplet.pillanat.ev, 1977);
        QCOMPARE(panel(a.form1, 4), "Szeged");
        QVERIFY(a.allapot().VisszaMod);
    }

    void akijelolesAzAmitARendbenVesz() {
        TSzuletettKeplet a;
        megnyit(a, "Szolar1", [](QWidget& d) {
            const QPoint hely = sorok(d).visualItemRect(sorok(d).item(1)).center();
            QTest::mouseClick(sorok(d).viewport(), Qt::LeftButton, {}, hely);
            QTest::mouseClick(sorok(d).viewport(), Qt::LeftButton, Qt::ControlModifier, hely);
            QCOMPARE(sorok(d).selectedItems().size(), 1);
            QVERIFY(sorok(d).item(1)->isSelected());
            kattint(d, "Button_Rendben1");
        });
        QCOMPARE(a.allapot().Keplet.pillanat.ev, 1976);
    }

    void aKettosKattintasRendben() {
        TSzuletettKeplet a;
        megnyit(a, "Szolar1", [](QWidget& d) {
            const QPoint hely = sorok(d).visualItemRect(sorok(d).item(3)).center();
            QTest::mouseClick(sorok(d).viewport(), Qt::LeftButton, {}, hely);
            QVERIFY(d.isVisible());
            QTest::mouseDClick(sorok(d).viewport(), Qt::LeftButton, {}, hely);
            QVERIFY(!d.isVisible());
        });
        QCOMPARE(a.allapot().Keplet.pillanat.ev, 1978);
        QVERIFY(!a.allapot().Megsem14);
    }

    void aMaiNaphozBillentyuvelEsMenubol() {
        TSzuletettKeplet a;
        int ma = 0;
        for (const bool billentyu : {true, false}) {
            megnyit(a, "Lunar1", [&](QWidget& d) {
                ma = maiSor(d);
                QVERIFY(ma > 600);  // more than 46 years of 13 rows
                QCOMPARE(sorok(d).currentRow(), 0);
                if (billentyu) {
                    leut(Qt::Key_M);
                } else {
                    QCOMPARE(sorok(d).contextMenuPolicy(), Qt::ActionsContextMenu);
                    QCOMPARE(sorok(d).actions().value(0)->text(), "Mai naphoz");
                    sorok(d).actions()[0]->trigger();
                }
                QVERIFY2(qAbs(sorok(d).currentRow() - ma) <= 1, qPrintable(QString::number(ma)));
                const QRect latszik = sorok(d).viewport()->rect();
                const QRect sora = sorok(d).visualItemRect(sorok(d).currentItem());
                QVERIFY(latszik.contains(sora));
                // In the middle: what was before and what comes is seen alike.
                QVERIFY(qAbs(sora.center().y() - latszik.center().y()) <= sora.height());
                ma = sorok(d).currentRow();
                leut(Qt::Key_Return);
                QVERIFY(!d.isVisible());
            });
            QCOMPARE(a.allapot().Keplet.pillanat.ev, a.allapot().Visszateresek.sorok[ma + 1].pillanat.ev);
            kattint(a.form1, "PanelButton2_Most");
        }
    }

    /// Of two rows of one day the hour tells which one is nearer.
    void aMaiNaphozAzOratIsNezi() {
        Allapot allapot;
        TProbaAblak orak;
        QWidget fo;
        TForm14 d(allapot, orak, &fo);
        allapot.Visszateresek.szamlalo = 2;
        allapot.Visszateresek.sorok[1].pillanat = {2024, 3, 5, 2, 0, 0};
        allapot.Visszateresek.sorok[2].pillanat = {2024, 3, 5, 20, 0, 0};
        orak.datum = "2024.03.05";
        for (const auto& [ido, sor] : {std::pair("22:00:00", 1), std::pair("1:00:00", 0)}) {
            orak.ido = ido;
            d.kitoltes(RevolucioFajta(1), {2024, 3, 1, 0, 0, 0});
            valasz([sor = sor](QWidget& ablak) {
                sorok(ablak).setCurrentRow(1 - sor);
                sorok(ablak).actions()[0]->trigger();
                QCOMPARE(sorok(ablak).currentRow(), sor);
                QTest::keyClick(&ablak, Qt::Key_Escape);
            });
            d.megmutat({"egy", "kettő"});
        }
    }

    void azMASzovegbeIrhato() {
        TSzuletettKeplet a;
        megnyit(a, "Lunar1", [](QWidget& d) {
            belelep(d, "ComboBoxHelyseg1");
            beut("M");
            QCOMPARE(helyseg(d).currentText(), "M");
            QCOMPARE(sorok(d).currentRow(), 0);
            kattint(d, "Button_Megsem1");
        });
    }

    void amiCsakKijelzesNemValtoztathato() {
        TSzuletettKeplet a;
        megnyit(a, "Szolar1", [](QWidget& d) {
            for (const auto* mezo : d.findChildren<QSpinBox*>()) {
                QVERIFY2(mezo->isReadOnly() && mezo->isEnabled(), qPrintable(mezo->objectName()));
                const QString elobb = mezo->text();
                QTest::mouseClick(mezo->findChild<QLineEdit*>(), Qt::LeftButton);
                for (const Qt::Key k : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp}) leut(k);
                beut("1");
                gorget(*const_cast<QSpinBox*>(mezo), 1);
                QCOMPARE(mezo->text(), elobb);
                QTest::mouseClick(const_cast<QSpinBox*>(mezo), Qt::LeftButton, {},
                                  QPoint(mezo->width() - 4, 4));
                QCOMPARE(mezo->text(), elobb);
            }
            QCOMPARE(d.findChildren<QSpinBox*>().size(), 7);
            const auto radiok =
                vezerlo<QGroupBox>(d, "RadioGroupIdovalaszto1")->findChildren<QRadioButton*>();
            for (auto* radio : radiok) {
                QVERIFY(radio->isEnabled());
                // Where the pointer stands over it, the click goes to what lies beneath.
                const QPoint hely = radio->mapTo(&d, QPoint(8, radio->height() / 2));
                QVERIFY(d.childAt(hely) == nullptr);
                QCOMPARE(radio->focusPolicy(), Qt::NoFocus);
            }
            QVERIFY(radiok[2]->isChecked());
            kattint(d, "Button_Megsem1");
        });
    }

    void aTabulatorAListaAHelyEsAGombokKozottJar() {
        TSzuletettKeplet a;
        megnyit(a, "Szolar1", [](QWidget& d) {
            QStringList rend;
            for (int i = 0; i < 5; ++i) {
                rend << QApplication::focusWidget()->objectName();
                leut(Qt::Key_Tab);
            }
            QCOMPARE(rend, (QStringList{"ListBox1", "ComboBoxHelyseg1", "Button_Rendben1", "Button_Megsem1",
                                        "ListBox1"}));
            kattint(d, "Button_Megsem1");
        });
    }

    void aKijelzoMezokMindentMegmutatnak() {
        // What a chart file may hold: any 32 bits as coordinates, and days from the table's first on.
        TSzuletettKeplet a;
        a.allapot().Keplet.hosszusag = INT32_MIN;
        a.allapot().Keplet.szelesseg = INT32_MAX;
        a.allapot().RadixPillanat = {1900, 1, 2, 12, 0, 0};
        megnyit(a, "Szolar1", [](QWidget& d) {
            // 2147483648 = 596523 x 3600 + 14 x 60 + 8
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), -596523);
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), -14);
            QCOMPARE(ertek(d, "SpinEditSzelFok1"), 596523);
            QCOMPARE(ertek(d, "SpinEditSzelPerc1"), 14);
            QCOMPARE(ertek(d, "SpinEditEv1"), 1900);
            QCOMPARE(ertek(d, "SpinEditHo1"), 1);
            QCOMPARE(ertek(d, "SpinEditNap1"), 1);
            QCOMPARE(vezerlo<QLineEdit>(d, "Edit2")->text(), "1");
            QCOMPARE(vezerlo<QLineEdit>(d, "Edit3")->text(), "1");
            kattint(d, "Button_Megsem1");
        });
        a.allapot().Keplet.hosszusag = -(180 * 3600 + 59 * 60);
        a.allapot().Keplet.szelesseg = -59 * 60;
        a.allapot().RadixPillanat = {2078, 1, 1, 12, 0, 0};
        megnyit(a, "Szolar1", [](QWidget& d) {
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), -180);
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), -59);
            QCOMPARE(ertek(d, "SpinEditSzelFok1"), 0);
            QCOMPARE(ertek(d, "SpinEditSzelPerc1"), -59);
            QCOMPARE(ertek(d, "SpinEditEv1"), 2077);
            QCOMPARE(ertek(d, "SpinEditHo1"), 12);
            QCOMPARE(ertek(d, "SpinEditNap1"), 31);
            kattint(d, "Button_Megsem1");
        });
    }

    void aNyugatiEsADeliHelyPerceElojeles() {
        TSzuletettKeplet a;
        a.allapot().Keplet.hosszusag = -68160;
        a.allapot().Keplet.szelesseg = -(33 * 3600 + 7 * 60 + 59);
        megnyit(a, "Szolar1", [](QWidget& d) {
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), -18);
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), -56);
            QCOMPARE(ertek(d, "SpinEditSzelFok1"), -33);
            QCOMPARE(ertek(d, "SpinEditSzelPerc1"), -7);
            gepel(d, "ComboBoxHelyseg1", "Pécs");
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), 18);
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), 14);
            kattint(d, "Button_Megsem1");
        });
        a.allapot().Keplet.hosszusag = INT32_MIN;
        megnyit(a, "Szolar1", [](QWidget& d) {
            QCOMPARE(ertek(d, "SpinEditHosszFok1"), -596523);
            QCOMPARE(ertek(d, "SpinEditHosszPerc1"), -14);  // 2147483648 = 596523 * 3600 + 14 * 60 + 8
            kattint(d, "Button_Megsem1");
        });
    }

    void aHelysegKiegeszulEsJelolodik() {
        TSzuletettKeplet a;
        megnyit(a, "Szolar1", [](QWidget& d) {
            belelep(d, "ComboBoxHelyseg1");
            beut("gyor");
            QVERIFY(helyseg(d).toolTip().contains("Budapest"));
            leut(Qt::Key_Return);
            QCOMPARE(helyseg(d).currentText(), "Győr");
            QVERIFY(!helyseg(d).toolTip().contains("Budapest"));
            QVERIFY(d.isVisible());
            leut(Qt::Key_Return);
            QVERIFY(!d.isVisible());
        });
        QCOMPARE(panel(a.form1, 4), "Győr");
    }

    void aKeretesAzEscapeMegsem() {
        TSzuletettKeplet a;
        for (const bool keret : {true, false}) {
            a.allapot().Megsem14 = false;
            megnyit(a, "Szolar1", [keret](QWidget& d) {
                if (keret)
                    keretenCsuk(d);
                else
                    leut(Qt::Key_Escape);
            });
            QVERIFY(a.allapot().Megsem14);
            QVERIFY(!a.allapot().VisszaMod);
        }
    }

    void azUresListabanNincsMiKijelolni() {
        TSzuletettKeplet a;
        a.allapot().RadixPillanat = {2078, 6, 1, 12, 0, 0};  // behind the last day that a search begins on
        megnyit(a, "SzaturnuszRev1", [](QWidget& d) {
            QCOMPARE(sorok(d).count(), 0);
            leut(Qt::Key_M);
            QCOMPARE(sorok(d).currentRow(), -1);
            leut(Qt::Key_Escape);
        });
    }

    void aFutoOraVisszaveszi() {
        TFrissAblakok a;
        valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
        menu(a.form1, "Lunar1");
        QVERIFY(a.allapot().MostFut);
        a.orajelek(1);
        QCOMPARE(panel(a.form1, 2), "Most");
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Vissza");
    }

    void azAszcendensPersonarARevolucioKepernyojerol() {
        TFrissAblakok a;
        szuletes(a);
        valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
        menu(a.form1, "Lunar1");
        const double asc = a.allapot().Keplet.hazCsucs[1];
        valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
        menu(a.form1, "AscPers1");
        QVERIFY(qAbs(a.allapot().Keplet.bolygo[1] - asc) < 1.0 / 3600);
        QCOMPARE(panel(a.form1, 0), "Asc pers");
    }

    void aLapozobillentyukAListabanLepnek() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        for (int kor = 0; kor < 2; ++kor) {
            const auto lapoz = [&](Qt::Key billentyu) {
                foablakElore(a);
                leut(a, billentyu);
                QTest::qWait(tobbOrajel);
            };
            const QImage radix = a.kep();
            lapoz(Qt::Key_PageDown);  // no derived chart yet
            QVERIFY((a.allapot().Keplet.pillanat == TPillanat{1975, 7, 21, 6, 4, 9}));
            QVERIFY(a.kep() == radix);

            valasz([](QWidget& d) {
                auto* lista = vezerlo<QListWidget>(d, "ListBox1");
                lista->setCurrentRow(1);
                vezerlo<QComboBox>(d, "ComboBoxHelyseg1")->setEditText("Pécs");
                kattint(d, "Button_Rendben1");
            });
            menu(a.form1, "Szolar1");
            QCOMPARE(a.allapot().Keplet.pillanat.ev, 1976);
            const QImage elso = a.kep();
            lapoz(Qt::Key_PageDown);
            QCOMPARE(a.allapot().Keplet.pillanat.ev, 1977);
            QVERIFY(a.kep() != elso);
            QCOMPARE(panel(a.form1, 0), "Szolár");
            QVERIFY(panel(a.form1, 3).startsWith("1977.07.2"));
            QCOMPARE(panel(a.form1, 4), "Pécs");
            for (int n = 0; n < 4; ++n) lapoz(Qt::Key_PageUp);  // the first row is the birth's own
            QCOMPARE(a.allapot().Keplet.pillanat.ev, 1975);
            QCOMPARE(panel(a.form1, 4), "Pécs");
            kattint(a.form1, "PanelButton2_Most");
            QTest::qWait(tobbOrajel);
            QCOMPARE(panel(a.form1, 4), "Szeged");
            QCOMPARE(panel(a.form1, 0), "Radix");
            QVERIFY((a.allapot().Keplet.pillanat == TPillanat{1975, 7, 21, 6, 4, 9}));
        }
    }

    void aLapozasAJegyzetbolIs() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
        menu(a.form1, "Szolar1");
        auto* jegyzet = vezerlo<QPlainTextEdit>(a.form1, "Memo1");
        QTest::mouseClick(jegyzet->viewport(), Qt::LeftButton);
        foablakElore(a);
        leut(a, Qt::Key_PageDown);
        QVERIFY(jegyzet->hasFocus());
        QCOMPARE(a.allapot().Keplet.pillanat.ev, 1976);
    }

    void aLapozasElottIsJelszo() {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(TJelszoTar(TJelszoTar::alapFajl()).ment("ab"));
        {
            TFrissAblakok a;
            a.oraIndul();
            a.allapot().JelszoRendben = true;
            szuletes(a);
            valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
            menu(a.form1, "Szolar1");
            a.allapot().JelszoRendben = false;
            foablakElore(a);
            valasz([&a](QWidget& d) {
                QCOMPARE(d.windowTitle(), "Kérem a jelszót!");
                QCOMPARE(a.allapot().Keplet.pillanat.ev, 1975);
                QTest::keyClicks(vezerlo<QLineEdit>(d, "Edit1"), "ab");
            });
            leut(a, Qt::Key_PageDown);
            QVERIFY(a.allapot().JelszoRendben);
            QCOMPARE(a.allapot().Keplet.pillanat.ev, 1976);
        }
        QFile::remove(TJelszoTar::alapFajl());
        QStandardPaths::setTestModeEnabled(false);
    }
};

QTEST_MAIN(TForm14Teszt)
#include "tform14_visszateresek_teszt.moc"
