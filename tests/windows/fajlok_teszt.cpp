// A client's way: chart typed, events added, saved, the program started anew, opened; steps and the close
// query.

#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "probaparbeszed.h"

namespace {

void esemenyGepelese(QWidget& d, const char* szoveg, const char* analogia, const char* ev) {
    gepel(d, "Edit_Eletesemenyek1", szoveg);
    gepel(d, "Edit_Hazanalogiak1", analogia);
    gepel(d, "SpinEditEv1", ev);
    gepel(d, "SpinEditHo1", "5");
    gepel(d, "SpinEditNap1", "6");
    gepel(d, "SpinEditOra1", "0");
    kattint(d, "Button_Rendben1");
}

QString lista(const QWidget& d, int sor, int oszlop) {
    return vezerlo<QLabel>(d, qPrintable(QStringLiteral("LEletes_%1_%2").arg(sor).arg(oszlop)))->text();
}

/// Types a chart with events through the two dialogs.
void ujKeplet(TFrissAblakok& a, std::function<void(QWidget&)> esemenyek) {
    valasz([esemenyek = std::move(esemenyek)](QWidget& d) {
        gepel(d, "EditNev1", "Őrző Árpád");
        gepel(d, "SpinEditEv1", "1975");
        gepel(d, "SpinEditHo1", "3");
        gepel(d, "SpinEditNap1", "21");
        gepel(d, "SpinEditOra1", "6");
        gepel(d, "ComboBoxHelyseg1", "Szeged");
        gepel(d, "Memo_Jegyzet1", "jegyzet");
        valasz(esemenyek);
        kattint(d, "Button_Eletesemenyek1");
        kattint(d, "Button_Rendben1");
    });
    menu(a.form1, "Uj1");
}

}  // namespace

class FajlokTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void amitMentVisszakapja() {
        const QTemporaryDir mappa;
        TProbaParbeszed p;
        p.fajl = mappa.filePath("a.kvh");
        Allapot mentett;
        {
            TFrissAblakok a;
            a.form1.parbeszedBeallitasa(p);
            ujKeplet(a, [](QWidget& d) {
                esemenyGepelese(d, "esküvő", "7,ix", "1999");
                esemenyGepelese(d, "költözés", "IV", "2001");
                QCOMPARE(lista(d, 1, 2), "esküvő");
                QCOMPARE(lista(d, 1, 3), "I,VII,X");
                QCOMPARE(lista(d, 1, 4), "1999.");
                QCOMPARE(lista(d, 1, 6), "05");  // 0 h of summer time is 22 h of the day before
                QCOMPARE(lista(d, 1, 7), "22:");
                QCOMPARE(lista(d, 2, 1), "2");
                QCOMPARE(lista(d, 3, 1), "");
                kattint(d, "Button_Rendben2");
            });
            menu(a.form1, "Mentes1");
            QCOMPARE(p.kerdesek, QStringList({"Kvh files (*.kvh)", "Őrző Árpád.kvh"}));
            QVERIFY(p.uzenetek.isEmpty());
            QCOMPARE(QFile(p.fajl).size(), 3 * 628);
            mentett = a.allapot();
        }
        TFrissAblakok b;
        b.form1.parbeszedBeallitasa(p);
        menu(b.form1, "Megnyitas1");
        QVERIFY(p.uzenetek.isEmpty());
        QVERIFY(b.allapot().Keplet.pillanat == mentett.Keplet.pillanat);
        QVERIFY(b.allapot().Keplet.bolygo == mentett.Keplet.bolygo);
        QVERIFY(b.allapot().Keplet.hazCsucs == mentett.Keplet.hazCsucs);
        QVERIFY(b.allapot().Esemenyek.esemenyek == mentett.Esemenyek.esemenyek);
        QCOMPARE(b.allapot().Esemenyek.EsemenyDb, 2);
        QCOMPARE(panel(b.form1, 2), "Őrző Árpád ");
        QCOMPARE(vezerlo<QPlainTextEdit>(b.form1, "Memo1")->toPlainText(), "jegyzet");
    }

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

    void aLeptetesUtanAKilepesMentestKer() {
        const QTemporaryDir mappa;
        TFrissAblakok a;
        TProbaParbeszed p;
        p.fajl = mappa.filePath("b.kvh");
        p.igenre = false;
        a.form1.parbeszedBeallitasa(p);
        ujKeplet(a, [](QWidget& d) { kattint(d, "Button_Megsem2"); });
        kattint(a.form1, "PanelButton4Leptet");
        QVERIFY(a.form7.isVisible());
        kattint(a.form7, "Button7orap");
        kattint(a.form7, "Button7orap");
        const TPillanat lepett = a.allapot().Keplet.pillanat;
        QCOMPARE(lepett.ora, a.allapot().RadixPillanat.ora + 2);
        a.orajelek(1);
        QCOMPARE(a.form7.windowTitle(), panel(a.form1, 3).left(20));
        QCOMPARE(panel(a.form1, 2), "Őrző Árpád");
        QCOMPARE(vezerlo<QPlainTextEdit>(a.form1, "Memo1")->toPlainText(), "");

        menu(a.form1, "Kilepes1");
        QCOMPARE(p.kerdesek, QStringList({"Kilépés és adatok mentése", "Valóban ki akar lépni?"}));
        QVERIFY(a.form1.isVisible());
        QVERIFY(a.allapot().Modositott);
        p.igenre = true;
        menu(a.form1, "Kilepes1");
        QVERIFY(!a.form1.isVisible());
        QVERIFY(QFile::exists(p.fajl));
        QVERIFY(!a.allapot().Modositott);
    }

    void aMegszakitottMentesIsTorliAJelzest() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        a.allapot().Modositott = true;
        menu(a.form1, "Mentes1");
        QVERIFY(!a.allapot().Modositott);
        QCOMPARE(p.kerdesek.last(), ".kvh");  // no name yet
    }

    void aHibakUzenetei() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        p.fajl = "/dev/full";
        menu(a.form1, "Mentes1");
        p.fajl = "/nincs/ilyen.kvh";
        menu(a.form1, "Megnyitas1");
        QCOMPARE(p.uzenetek, QStringList({"File írási hiba!", "File olvasási hiba!"}));
        QVERIFY(a.allapot().MostFut);
    }

    void lepesElindultOraMellett() {
        TFrissAblakok a;
        kattint(a.form1, "PanelButton4Leptet");
        kattint(a.form7, "Button1evp");
        QVERIFY(!a.allapot().MostFut);
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Állj");
        a.orajelek(1);
        QCOMPARE(a.allapot().Keplet.pillanat.ev, a.allapot().RadixPillanat.ev + 1);
    }
};

QTEST_MAIN(FajlokTeszt)
#include "fajlok_teszt.moc"
