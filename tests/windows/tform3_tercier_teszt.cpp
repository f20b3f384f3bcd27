// The date dialog of tertiary directions and of the solar ingress.

#include <QListWidget>

#include "commands/lepteto.h"
#include "kezteszt.h"

class TForm3Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aTercierDatumaForog() {
        TFrissAblakok a;
        szuletes(a);
        valasz([](QWidget& d) {
            QCOMPARE(d.windowTitle(), "Tercier direkció");
            auto* ev = vezerlo<QSpinBox>(d, "SpinEditEv1");
            auto* ho = vezerlo<QSpinBox>(d, "SpinEditHo1");
            auto* nap = vezerlo<QSpinBox>(d, "SpinEditNap1");
            ev->setValue(2000);
            ho->setValue(12);
            ho->setValue(13);
            QCOMPARE(ho->value(), 1);
            QCOMPARE(ev->value(), 2001);
            ho->setValue(0);
            QCOMPARE(ho->value(), 12);
            QCOMPARE(ev->value(), 2000);
            nap->setValue(32);
            QCOMPARE(nap->value(), 1);
            QCOMPARE(ho->value(), 1);
            QCOMPARE(ev->value(), 2001);
            nap->setValue(0);
            QCOMPARE(nap->value(), 31);
            QCOMPARE(ho->value(), 12);
            ev->setValue(2068);
            ho->setValue(13);
            QCOMPARE(ev->value(), 2068);
            QCOMPARE(ho->value(), 1);
            QCOMPARE(vezerlo<QSpinBox>(d, "SpinEditOrbis1")->pos(), QPoint(152, 88));
            QCOMPARE(vezerlo<QLabel>(d, "Orbis_napokban1")->pos(), QPoint(24, 88));
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Tercier1");
        QVERIFY(a.allapot().Megsem3);
    }

    void azOrbisValtozasaASzovegetNemFrissiti() {
        TFrissAblakok a;
        szuletes(a);
        valasz([](QWidget& d) {
            auto* orbis = vezerlo<QSpinBox>(d, "SpinEditOrbis1");
            auto* nap = vezerlo<QSpinBox>(d, "SpinEditNap1");
            auto* verdikt = vezerlo<QLabel>(d, "Tercier_Direkcio1");
            auto* szoveg = vezerlo<QLabel>(d, "Tercier_Direkcio2");
            QCOMPARE(orbis->value(), 45);
            // A date with a hit at the widest orb and none at the narrowest.
            for (int ev = 1990; ev < 2030; ++ev) {
                vezerlo<QSpinBox>(d, "SpinEditEv1")->setValue(ev);
                orbis->setValue(1);
                nap->setValue(nap->value() == 5 ? 6 : 5);
                if (verdikt->text() == "Nincs direkció!") break;
            }
            QCOMPARE(verdikt->text(), "Nincs direkció!");
            QCOMPARE(szoveg->text(), "");
            orbis->setValue(99);
            QCOMPARE(verdikt->text(), "Van direkció!");
            QCOMPARE(szoveg->text(), "");
            nap->setValue(nap->value() + 1);
            QVERIFY(!szoveg->text().isEmpty());
            kattint(d, "Button_Rendben1");
        });
        kattint(a.form1, "PanelButton7Tercier");
        QVERIFY(!a.allapot().Megsem3);
        QCOMPARE(a.allapot().TercierOrbisNap, 99.0);
        // The next opening starts at the confirmed date with the orb of 45 days.
        const int ev = a.allapot().TercierDatum.ev;
        valasz([ev](QWidget& d) {
            QCOMPARE(ertek(d, "SpinEditEv1"), ev);
            QCOMPARE(ertek(d, "SpinEditOrbis1"), 45);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Tercier1");
    }

    /// Also over a stepped and over a derived chart, confirmed or not, the chart on screen keeps its moment.
    void aKepletAMagaPillanatanMarad() {
        for (const char* parancs : {"Tercier1", "Szolaringresszio11"}) {
            for (const char* gombja : {"Button_Rendben1", "Button_Megsem1"}) {
                for (const bool kepzett : {false, true}) {
                    TFrissAblakok a;
                    szuletes(a);
                    if (kepzett) {
                        valasz([](QWidget& d) {
                            vezerlo<QListWidget>(d, "ListBox1")->setCurrentRow(9);
                            gepel(d, "ComboBoxHelyseg1", "Sopron");
                            kattint(d, "Button_Rendben1");
                        });
                        menu(a.form1, "Lunar1");
                    } else {
                        Leptetes(a.allapot(), lepesek[4]);
                        a.orajelek(1);
                    }
                    const TKeplet elobb = a.allapot().Keplet;
                    const QString cim = panel(a.form1, 3);
                    valasz([gombja](QWidget& d) {
                        vezerlo<QSpinBox>(d, "SpinEditNap1")->setValue(11);
                        kattint(d, gombja);
                    });
                    menu(a.form1, parancs);
                    const TKeplet& k = a.allapot().Keplet;
                    QVERIFY(k.pillanat == elobb.pillanat);
                    QCOMPARE(k.julianszam, elobb.julianszam);
                    QCOMPARE(k.napresz, elobb.napresz);
                    QCOMPARE(k.helyseg, elobb.helyseg);
                    QCOMPARE(k.hosszusag, elobb.hosszusag);
                    QCOMPARE(k.nyariIdo, elobb.nyariIdo);
                    QCOMPARE(panel(a.form1, 3), cim);
                }
            }
        }
    }

    void azUresOrbisEgynekSzamit() {
        TFrissAblakok a;
        szuletes(a);
        valasz([&](QWidget& d) {
            auto* orbis = vezerlo<QSpinBox>(d, "SpinEditOrbis1");
            auto* nap = vezerlo<QSpinBox>(d, "SpinEditNap1");
            auto* verdikt = vezerlo<QLabel>(d, "Tercier_Direkcio1");
            // A date with a hit at 2 days and none at 1.
            const auto ezAz = [&] {
                orbis->setValue(1);
                const QString egy = verdikt->text();
                orbis->setValue(2);
                return egy == "Nincs direkció!" && verdikt->text() == "Van direkció!";
            };
            for (int ev = 1990; ev < 2060 && !ezAz(); ++ev) {
                vezerlo<QSpinBox>(d, "SpinEditEv1")->setValue(ev);
                for (int n = 1; n <= 28 && !ezAz(); ++n) nap->setValue(n);
            }
            QVERIFY(ezAz());
            orbis->setFocus();
            orbis->selectAll();
            QTest::keyClick(orbis, Qt::Key_Delete);
            QCOMPARE(verdikt->text(), "Nincs direkció!");
            QTest::keyClick(orbis, Qt::Key_Return);
        });
        menu(a.form1, "Tercier1");
        QVERIFY(!a.allapot().Megsem3);
    }

    void aNemLetezoDatumRendesenTarolva() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        for (const char* parancs : {"Tercier1", "Szolaringresszio11"}) {
            valasz([](QWidget& d) {
                gepel(d, "SpinEditEv1", "1999");
                gepel(d, "SpinEditHo1", "4");
                gepel(d, "SpinEditNap1", "31");
                kattint(d, "Button_Rendben1");
            });
            menu(a.form1, parancs);
            QVERIFY((a.allapot().TercierDatum == TPillanat{1999, 5, 1, 0, 0, 0}));
            valasz([](QWidget& d) {
                QCOMPARE(ertek(d, "SpinEditHo1"), 5);
                QCOMPARE(ertek(d, "SpinEditNap1"), 1);
                kattint(d, "Button_Megsem1");
            });
            menu(a.form1, parancs);
        }
    }

    /// The day of the solar return pairs each body with itself: ten pairs and more.
    void aHosszuEredmenyEgeszenLatszik() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        for (int kor = 0; kor < 2; ++kor) {
            valasz([](QWidget& d) {
                gepel(d, "SpinEditEv1", "1999");
                gepel(d, "SpinEditHo1", "7");
                gepel(d, "SpinEditNap1", "1");
                auto* jelek = vezerlo<QLabel>(d, "Tercier_Direkcio2");
                auto* rendben = vezerlo<QPushButton>(d, "Button_Rendben1");
                QVERIFY(jelek->text().size() < 20);
                QCOMPARE(d.size(), QSize(400, 230));
                for (const char* nap : {"20", "21", "22"}) {
                    gepel(d, "SpinEditNap1", nap);
                    if (jelek->text().size() >= 40) break;
                }
                QVERIFY(jelek->text().startsWith(" AMA"));
                const QFontMetrics meretek(jelek->font());
                QVERIFY(meretek.horizontalAdvance(jelek->text()) > jelek->width());
                const int sorai =
                    (jelek->heightForWidth(jelek->width()) + meretek.height() - 1) / meretek.height();
                QVERIFY(sorai > 1);
                QVERIFY(jelek->height() >= sorai * meretek.height());
                // Nothing is written over the edge: the picture has ink in each of its lines and none at the
                // right rim.
                jelek->clearFocus();
                const QImage kep = jelek->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
                const double arany = kep.devicePixelRatio();
                const auto tinta = [&](const QRect& resz) {
                    const QRect r(resz.topLeft() * arany, resz.size() * arany);
                    for (int y = r.top(); y <= r.bottom(); ++y)
                        for (int x = r.left(); x <= r.right(); ++x)
                            if (qGray(kep.pixel(x, y)) < 128) return true;
                    return false;
                };
                for (int n = 0; n < sorai; ++n)
                    QVERIFY(tinta({0, n * meretek.height(), jelek->width(), meretek.height() - 1}));
                QVERIFY(!tinta({jelek->width() - 1, 0, 1, jelek->height()}));
                QVERIFY(rendben->y() > jelek->geometry().bottom());
                QVERIFY(rendben->geometry().bottom() < d.height());
                // The buttons stay where they are while the window is open.
                const int y = rendben->y();
                gepel(d, "SpinEditNap1", "1");
                QVERIFY(jelek->text().size() < 20);
                QCOMPARE(rendben->y(), y);
                kattint(d, "Button_Rendben1");
            });
            menu(a.form1, "Szolaringresszio11");
        }
    }

    void aRendbenAFeluletreIrjaAzEredmenyt() {
        TFrissAblakok a;
        szuletes(a);
        const QImage elobb = felszin(*a.form1.findChild<KepletFelulet*>("Felulet"));
        valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
        menu(a.form1, "Szolaringresszio11");
        const QImage utana = felszin(*a.form1.findChild<KepletFelulet*>("Felulet"));
        QVERIFY(elobb.copy(55, 7, 300, 24) != utana.copy(55, 7, 300, 24));
        QCOMPARE(panel(a.form1, 0), "Radix");
    }

    /// The dialog opens over the wheel, also from a view whose window was to be left empty.
    void aParbeszedMogottAKerekAll() {
        TFrissAblakok a;
        szuletes(a);
        for (const char* parancs : {"Tercier1", "Szolaringresszio11"}) {
            menu(a.form1, "Mundan1");
            QVERIFY(a.allapot().TeljesTorles);
            valasz([&a](QWidget& d) {
                const auto* felulet = a.form1.findChild<KepletFelulet*>("Felulet");
                QVERIFY(fekete(felszin(*felulet)) > 100);
                kattint(d, "Button_Megsem1");
            });
            menu(a.form1, parancs);
        }
    }

    void aMegsemNemIrAFeluletre() {
        TFrissAblakok a;
        szuletes(a);
        const QImage elobb = felszin(*a.form1.findChild<KepletFelulet*>("Felulet"));
        for (const char* parancs : {"Tercier1", "Szolaringresszio11"}) {
            valasz([](QWidget& d) { kattint(d, "Button_Megsem1"); });
            menu(a.form1, parancs);
            QCOMPARE(felszin(*a.form1.findChild<KepletFelulet*>("Felulet")), elobb);
        }
    }

    void aMegsemUtanAzElfogadottDatumJonVissza() {
        TFrissAblakok a;
        szuletes(a);
        valasz([](QWidget& d) {
            gepel(d, "SpinEditEv1", "2001");
            gepel(d, "SpinEditHo1", "4");
            gepel(d, "SpinEditNap1", "5");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Tercier1");
        valasz([](QWidget& d) {
            gepel(d, "SpinEditEv1", "1995");
            gepel(d, "SpinEditHo1", "11");
            gepel(d, "SpinEditNap1", "23");
            gepel(d, "SpinEditOrbis1", "7");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Tercier1");
        valasz([](QWidget& d) {
            QCOMPARE(ertek(d, "SpinEditEv1"), 2001);
            QCOMPARE(ertek(d, "SpinEditHo1"), 4);
            QCOMPARE(ertek(d, "SpinEditNap1"), 5);
            QCOMPARE(ertek(d, "SpinEditOrbis1"), 45);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Tercier1");
    }

    /// Its text is copied from there, so that it shows where the keys go.
    void aTalalatokAFokusztMegmutatjak() {
        TFrissAblakok a;
        szuletes(a);
        valasz([](QWidget& d) {
            fokuszig(d);
            auto* jelek = vezerlo<QLabel>(d, "Tercier_Direkcio2");
            QVERIFY(!jelek->hasFocus());
            const QImage nelkule = jelek->grab().toImage();
            for (int n = 0; n < 10 && !jelek->hasFocus(); ++n) leut(Qt::Key_Tab);
            QVERIFY(jelek->hasFocus());
            QVERIFY(jelek->grab().toImage() != nelkule);
            leut(Qt::Key_Tab);
            QCOMPARE(jelek->grab().toImage(), nelkule);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Tercier1");
    }

    void azIngresszioOrbisaAzAblakonKivul() {
        TFrissAblakok a;
        szuletes(a);
        valasz([](QWidget& d) {
            QCOMPARE(d.windowTitle(), "Szolár-ingresszió");
            QCOMPARE(vezerlo<QLabel>(d, "Orbis_napokban1")->pos(), QPoint(424, 88));
            QCOMPARE(vezerlo<QSpinBox>(d, "SpinEditOrbis1")->pos(), QPoint(552, 88));
            QVERIFY(d.width() <= 424);
            const QString verdikt = vezerlo<QLabel>(d, "Tercier_Direkcio1")->text();
            QVERIFY(verdikt == "Van inresszió!" || verdikt == "Nincs ingresszió!");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Szolaringresszio11");
        QVERIFY(!a.allapot().TercierAblak);
    }
};

QTEST_MAIN(TForm3Teszt)
#include "tform3_tercier_teszt.moc"
