#include <QFile>
#include <QGroupBox>
#include <QListWidget>
#include <QRadioButton>
#include <QStandardPaths>

#include "ablakteszt.h"

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
