#include <QGroupBox>
#include <QListWidget>
#include <QRadioButton>

#include "ablakteszt.h"

namespace {

QString lista(const QWidget& d, int sor) {
    return vezerlo<QListWidget>(d, "ListBox1")->item(sor)->text();
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
};

QTEST_MAIN(TForm14Teszt)
#include "tform14_visszateresek_teszt.moc"
