// The windows of the predictive techniques.

#include <QGroupBox>
#include <QListWidget>
#include <QMenu>
#include <QRadioButton>

#include "ablakteszt.h"

namespace {

QString lista(const QWidget& d, int sor) {
    return vezerlo<QListWidget>(d, "ListBox1")->item(sor)->text();
}

}  // namespace

class PredikciokTeszt : public QObject {
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

    void aRendbenAFeluletreIrjaAzEredmenyt() {
        TFrissAblakok a;
        szuletes(a);
        const QImage elobb = a.form1.findChild<KepletFelulet*>("Felulet")->kep().toImage();
        valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
        menu(a.form1, "Szolaringresszio11");
        const QImage utana = a.form1.findChild<KepletFelulet*>("Felulet")->kep().toImage();
        QVERIFY(elobb.copy(55, 7, 300, 24) != utana.copy(55, 7, 300, 24));
        QCOMPARE(panel(a.form1, 0), "Radix");
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

    void aPrimerListaKovetiALeptetot() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        QVERIFY(a.form12.isVisible());
        QCOMPARE(ertek(a.form12, "SpinEditEv1"), QDate::currentDate().year() - 1);
        QCOMPARE(ertek(a.form12, "SpinEditHo1"), 1);
        QCOMPARE(vezerlo<QLabel>(a.form12, "Label8")->text(), "Solar-Nap:");
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        QCOMPARE(memo->toPlainText(), "");
        kattint(a.form12, "Button_Rendben1");
        const QString elso = memo->toPlainText();
        QVERIFY(!elso.isEmpty());
        QVERIFY(a.allapot().PrimerFut);
        kattint(a.form7, "Button7orap");
        a.orajelek(1);
        QVERIFY(memo->toPlainText() != elso);
        QVERIFY(!memo->toPlainText().isEmpty());
        kattint(a.form12, "Button_Megsem1");
        QVERIFY(!a.allapot().PrimerFut);
        QVERIFY(!a.form12.isVisible());
    }

    void aTForm4PercmezoiEggyelAllnak() {
        TFrissAblakok a;
        QCOMPARE(ertek(a.form4, "SpinEditHosszPerc1"), 1);
        QCOMPARE(ertek(a.form4, "SpinEditSzelPerc1"), 1);
        QVERIFY(!a.form4.isVisible());
    }
};

QTEST_MAIN(PredikciokTeszt)
#include "predikciok_teszt.moc"
