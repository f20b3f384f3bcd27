// A chart file whose place lies outside every table: it is read as it stands, told of, and no command hangs
// on it.

#include <cstdint>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPrinter>
#include <QTemporaryDir>

#include "commands/kvhfajl.h"
#include "kezteszt.h"
#include "probaparbeszed.h"
#include "windows/qszoveg.h"

namespace {

struct TSzelsoHely {
    const char* nev;
    std::int32_t idozona, nyariIdo, hosszusag, szelesseg;
};
constexpr TSzelsoHely helyek[]{
    {"a legnagyobb", INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX},
    {"a legkisebb", INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN},
    {"vegyes", INT32_MAX, INT32_MIN, INT32_MAX, INT32_MIN},
    {"csak az idozona", INT32_MIN, 0, 68640, 171000},
    {"csak a nyari ido", 1, INT32_MAX, 68640, 171000},
    {"csak a hosszusag", 1, 0, INT32_MIN, 171000},
    {"csak a szelesseg", 1, 0, 68640, -171000},
};

/// Writes a chart with two events at such a place.
QString fajl(const QTemporaryDir& mappa, const TSzelsoHely& hely) {
    Allapot a;
    a.Szemely.nev = "Szélső";
    a.Keplet.helyseg = "Sehol";
    a.Keplet.pillanat = {1975, 7, 21, 6, 4, 9};
    a.Keplet.idozona = hely.idozona;
    a.Keplet.nyariIdo = hely.nyariIdo;
    a.Keplet.hosszusag = hely.hosszusag;
    a.Keplet.szelesseg = hely.szelesseg;
    for (int i = 1; i <= 2; ++i) {
        TEletesemeny& e = a.Esemenyek.esemenyek[i];
        e.esemeny = "esemény";
        e.analogia = "I,2";
        e.pillanat = {1990 + i, 5, 6, 7, 8, 9};
        e.idozona = hely.idozona;
        e.nyariIdo = hely.nyariIdo;
        e.hosszFok = hely.hosszusag / 3600;
        e.szelFok = hely.szelesseg / 3600;
    }
    a.Esemenyek.EsemenyDb = 2;
    const QString nev = mappa.filePath("szelso.kvh");
    if (KepletMentes(a, szoveg(nev))) qFatal("the file can't be written");
    return nev;
}

/// The program with such a chart open, its clock running.
struct TSzelsoProgram : TFrissAblakok {
    explicit TSzelsoProgram(const TSzelsoHely& hely) : hely_(hely) {
        form1.parbeszedBeallitasa(parbeszed);
        form10.parbeszedBeallitasa(parbeszed);
        vezerloOra()->start();
        megnyit();
    }
    /// The chart as it was read, again: many commands look the place up anew.
    void megnyit() {
        parbeszed.fajl = fajl(mappa, hely_);
        menu(form1, "Megnyitas1");
    }

    QTemporaryDir mappa;
    TProbaParbeszed parbeszed;
    TSzelsoHely hely_;
};

/// Presses "Rendben" on whatever dialog opens, or closes it where there is none.
struct TRendbenNyomo : QTimer {
    TRendbenNyomo() {
        connect(this, &QTimer::timeout, this, [this] {
            QWidget* d = QApplication::activeModalWidget();
            if (d == nullptr) return;
            ++dialogusok;
            if (auto* gomb = d->findChild<QPushButton*>("Button_Rendben1"))
                QTest::mouseClick(gomb, Qt::LeftButton);
            else
                d->close();
        });
        start(0);
    }
    int dialogusok = 0;
};

QString koordinataSugo(const TFrissAblakok& a) {
    return vezerlo<QLabel>(a.form1, "StatusBar1Panel5")->toolTip();
}

void csuk(TSzelsoProgram& a) {
    for (QDialog* ablak : {static_cast<QDialog*>(&a.form7), static_cast<QDialog*>(&a.form8),
                           static_cast<QDialog*>(&a.form12), static_cast<QDialog*>(&a.form13)})
        ablak->close();
}

}  // namespace

class SzelsoKepletTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void azErtekekMegmaradnakEsASugoMondja() {
        for (const TSzelsoHely& hely : helyek) {
            TSzelsoProgram a(hely);
            const TKeplet& k = a.allapot().Keplet;
            QCOMPARE(k.idozona, hely.idozona);
            QCOMPARE(k.nyariIdo, hely.nyariIdo);
            QCOMPARE(k.hosszusag, hely.hosszusag);
            QCOMPARE(k.szelesseg, hely.szelesseg);
            QVERIFY2(koordinataSugo(a).startsWith("A táblák határain kívül esik: "), hely.nev);
            QCOMPARE(koordinataSugo(a).contains("időzóna"), hely.idozona != 1);
            QCOMPARE(koordinataSugo(a).contains("nyári"), hely.nyariIdo != 0);
            QCOMPARE(koordinataSugo(a).contains("hosszúság"), hely.hosszusag != 68640);
            QCOMPARE(koordinataSugo(a).contains("szélesség"), hely.szelesseg != 171000);
            menu(a.form1, "Horizont1");  // looks the place up: an unknown name is Budapest
            QCOMPARE(koordinataSugo(a), "");
            QVERIFY(a.parbeszed.uzenetek.isEmpty());
        }
    }

    void aRendesKepletnekNincsSugoja() {
        TFrissAblakok a;
        szuletes(a);
        QCOMPARE(koordinataSugo(a), "");
    }

    void aMenuMindenParancsaVegigmegy() {
        for (const TSzelsoHely& hely : helyek) {
            TSzelsoProgram a(hely);
            a.parbeszed.beirt = "próba";
            a.parbeszed.nyomtatas = [&a](QPrinter& nyomtato) {
                nyomtato.setOutputFileName(a.mappa.filePath("lap.pdf"));
            };
            TRendbenNyomo nyomo;
            int parancsok = 0;
            for (const QAction* pont : a.form1.findChildren<QAction*>()) {
                const QByteArray nev = pont->objectName().toUtf8();
                const bool menupont = qobject_cast<QMenu*>(pont->parent()) != nullptr && !nev.isEmpty();
                if (!menupont || nev == "Kilepes1" || nev == "Megnyitas1") continue;
                a.megnyit();
                menu(a.form1, nev);
                a.orajelek(25);
                csuk(a);
                ++parancsok;
            }
            QVERIFY(parancsok >= 33);
            QVERIFY(nyomo.dialogusok >= 24);
        }
    }

    void aPanelEsALeptetoMindenGombjaVegigmegy() {
        for (const TSzelsoHely& hely : helyek) {
            TSzelsoProgram a(hely);
            TRendbenNyomo nyomo;
            for (const char* gomb : {"PanelButton2_Most", "PanelButton3_Valt", "PanelButton4Leptet",
                                     "PanelButton5Orbis", "PanelButton6MHP", "PanelButton7Tercier"}) {
                a.megnyit();
                kattint(a.form1, gomb);
                a.orajelek(25);
                kattint(a.form1, gomb);
                a.orajelek(25);
                csuk(a);
            }
            menu(a.form1, "Radixlepteto1");
            for (QPushButton* gomb : a.form7.findChildren<QPushButton*>()) {
                a.megnyit();
                QTest::mouseClick(gomb, Qt::LeftButton);
                a.orajelek(2);
            }
            QCOMPARE(a.form7.findChildren<QPushButton*>().size(), 16);
        }
    }

    void aKeresesekVegigmennek() {
        for (const TSzelsoHely& hely : helyek) {
            TSzelsoProgram a(hely);
            menu(a.form1, "Mundnhzaspontosts1");
            for (const char* gomb :
                 {"Button1Keresesm", "Button2Keresesp", "Button1Keresesm", "Button2Keresesp"}) {
                a.megnyit();
                kattint(a.form8, gomb);
                a.orajelek(1);
                kattint(a.form8, "Button3Vissza");
            }
            a.megnyit();
            menu(a.form1, "Primer1");
            kattint(a.form12, "Button_Rendben1");
            kattint(a.form12, "Button_Pontositas1");
            a.orajelek(1);
            QVERIFY(a.form13.isVisible());
        }
    }

    void azEletesemenyekIs() {
        for (const TSzelsoHely& hely : helyek) {
            TSzelsoProgram a(hely);
            valasz([](QWidget& d) {
                QTest::mouseClick(vezerlo<QLabel>(d, "LEletes_2_1"), Qt::LeftButton);
                kattint(d, "Button_Rendben1");
                gepel(d, "Edit_Eletesemenyek1", "új");
                kattint(d, "Button_Rendben1");
                kattint(d, "Button_Rendben2");
            });
            a.form2.eletesemenyek();
            QCOMPARE(a.allapot().Esemenyek.EsemenyDb, 3);
        }
    }
};

QTEST_MAIN(SzelsoKepletTeszt)
#include "szelsokeplet_teszt.moc"
