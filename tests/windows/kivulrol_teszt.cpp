// Charts that the desktop hands over: dropped on the window or given at the start. The clock ticks.

#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "probaparbeszed.h"
#include "windows/fajlejtes.h"
#include "windows/legutobbitar.h"

namespace {

/// Two charts in files, a window with the clock running.
struct TKivulrol {
    TKivulrol() {
        a.form1.parbeszedBeallitasa(p);
        a.oraIndul();
        szuletes(a);
        keszit("anna.kvh", "Anna", 1975);
        keszit("béla ő.kvh", "Béla", 1931);
    }
    void keszit(const char* fajl, const char* nev, int ev) {
        SzemelyiRendben(a.allapot(), mintaSzemely({ev, 7, 21, 6, 4, 9}));
        a.allapot().Szemely.nev = nev;
        BevittKepletMutatasa(a.allapot(), a.form1);
        p.fajl = ut(fajl);
        menu(a.form1, "Mentes1");
        p.kerdesek.clear();
        szuletes(a);
    }
    QString ut(const QString& nev) const { return QDir(mappa.path()).filePath(nev); }

    /// What a widget answers to a drag with these addresses over it, and to the drop if it took the drag.
    bool ejt(QWidget& hova, const QList<QUrl>& cimek) {
        QMimeData mit;
        mit.setUrls(cimek);
        QDragEnterEvent be({20, 20}, Qt::CopyAction | Qt::MoveAction, &mit, Qt::LeftButton, {});
        QApplication::sendEvent(&hova, &be);
        QDragMoveEvent felett({40, 40}, Qt::CopyAction | Qt::MoveAction, &mit, Qt::LeftButton, {});
        QApplication::sendEvent(&hova, &felett);
        if (be.isAccepted() != felett.isAccepted()) qFatal("the drag is taken at its entry or nowhere");
        if (!be.isAccepted() || elhagyja) return false;
        QDropEvent le({20, 20}, Qt::CopyAction | Qt::MoveAction, &mit, Qt::LeftButton, {});
        QApplication::sendEvent(&hova, &le);
        ejtesMuvelet = le.dropAction();
        return le.isAccepted();
    }
    bool ejt(const QString& fajl) { return ejt(a.form1, {QUrl::fromLocalFile(fajl)}); }
    QString nev() { return panel(a.form1, 2).trimmed(); }

    const QTemporaryDir mappa;
    TFrissAblakok a;
    TProbaParbeszed p;
    Qt::DropAction ejtesMuvelet = Qt::IgnoreAction;
    bool elhagyja = false;  ///< the drag goes on without a drop
};

}  // namespace

class KivulrolTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void azEjtettFajlMegnyilikEsAMappajaLeszAzAktualis() {
        TKivulrol k;
        for (const auto& [fajl, nev, ev] :
             {std::tuple("béla ő.kvh", "Béla", 1931), std::tuple("anna.kvh", "Anna", 1975)}) {
            QDir::setCurrent(QDir::rootPath());
            QVERIFY(k.ejt(k.ut(fajl)));
            QVERIFY(k.nev() != nev);  // the drop is over before the file is opened
            QTRY_COMPARE(k.nev(), nev);
            QCOMPARE(k.a.allapot().Keplet.pillanat.ev, ev);
            QVERIFY(!k.a.allapot().MostFut);
            QCOMPARE(QDir::current().canonicalPath(), QDir(k.mappa.path()).canonicalPath());
            QCOMPARE(k.ejtesMuvelet, Qt::CopyAction);
        }
        QVERIFY(k.p.uzenetek.isEmpty());
        QVERIFY(k.p.kerdesek.isEmpty());
    }

    void azAblakFelettElhuzottFajlNemNyilikMeg() {
        TKivulrol k;
        k.elhagyja = true;
        QVERIFY(!k.ejt(k.ut("anna.kvh")));
        QTest::qWait(tobbOrajel);
        QCOMPARE(k.nev(), "Minta Anna");
    }

    void aJegyzetreEjtettFajlIsMegnyilik() {
        TKivulrol k;
        auto* memo = vezerlo<QPlainTextEdit>(k.a.form1, "Memo1");
        QVERIFY(k.ejt(*memo->viewport(), {QUrl::fromLocalFile(k.ut("anna.kvh"))}));
        QTRY_COMPARE(k.nev(), "Anna");
        QVERIFY(!memo->toPlainText().contains("anna.kvh"));
    }

    void tobbFajlMappaEsMasGepNemEjtheto() {
        TKivulrol k;
        const QUrl anna = QUrl::fromLocalFile(k.ut("anna.kvh"));
        QVERIFY(!k.ejt(k.a.form1, {anna, QUrl::fromLocalFile(k.ut("béla ő.kvh"))}));
        QVERIFY(!k.ejt(k.mappa.path()));
        QVERIFY(!k.ejt(k.ut("nincs.kvh")));
        QVERIFY(!k.ejt(k.a.form1, {QUrl("https://example.org/anna.kvh")}));
        QVERIFY(!k.ejt(k.a.form1, {}));
        QTest::qWait(tobbOrajel);
        QCOMPARE(k.nev(), "Minta Anna");
    }

    void nyitottParbeszedAlattNincsEjtes() {
        TKivulrol k;
        bool vette = true;
        valasz([&](QWidget& d) {
            vette = k.ejt(k.ut("anna.kvh"));
            QTest::qWait(tobbOrajel);
            kattint(d, "Button_Megsem1");
        });
        menu(k.a.form1, "Orbisok1");
        QVERIFY(!vette);
        QCOMPARE(k.nev(), "Minta Anna");
        QVERIFY(k.ejt(k.ut("anna.kvh")));
        QTRY_COMPARE(k.nev(), "Anna");
    }

    void aJelszoElobbJon() {
        TKivulrol k;
        int vege = 0;
        k.a.form11.programVege = [&vege] { ++vege; };
        k.a.allapot().JelszoRendben = false;
        k.a.allapot().Modositott = true;
        valasz([](QWidget& d) {
            QCOMPARE(d.objectName(), "TForm11");
            QTest::qWait(tobbOrajel);
            d.close();
        });
        k.a.form1.KivulrolMegnyitas(k.ut("anna.kvh"));
        QCOMPARE(vege, 1);
        QCOMPARE(k.nev(), "Minta Anna");
        QVERIFY(k.a.allapot().Modositott);
    }

    void aLeptetettKepletFolottUgyMintAMegnyitas() {
        TKivulrol k;
        kattint(k.a.form1, "PanelButton4Leptet");
        kattint(k.a.form7, "Button7orap");
        QTRY_VERIFY(!k.a.allapot().LeptetesVolt);
        QVERIFY(k.a.allapot().Modositott);
        menu(k.a.form1, "Dekad1");
        k.a.form1.KivulrolMegnyitas(k.ut("anna.kvh"));
        QVERIFY(!k.a.allapot().Modositott);
        QCOMPARE(k.a.allapot().KepletTipus, TKepletTipus::radix);
        QCOMPARE(k.nev(), "Anna");
    }

    void azOlvashatatlanFajlUzenetetAd() {
        TKivulrol k;
        QFile rossz(k.ut("rossz.kvh"));
        QVERIFY(rossz.open(QIODevice::WriteOnly));
        rossz.write("nem képlet");
        rossz.close();
        k.a.allapot().Modositott = true;
        QVERIFY(k.ejt(k.ut("rossz.kvh")));
        QTRY_COMPARE(k.p.uzenetek, QStringList{"File olvasási hiba!"});
        QVERIFY(!k.a.allapot().Modositott);  // as the menu's opening does
    }

    void aMegnyitottEsAMentettALegutobbiakKoze() {
        TKivulrol k;
        const QString tarFajl = k.ut("beállítás/legutobbi");
        TLegutobbiTar tar(tarFajl);
        k.a.form1.legutobbiBeallitasa(tar);
        k.a.form1.KivulrolMegnyitas(k.ut("anna.kvh"));
        k.p.fajl = k.ut("béla ő.kvh");
        menu(k.a.form1, "Megnyitas1");
        QCOMPARE(tar.fajlok(), QStringList({k.ut("béla ő.kvh"), k.ut("anna.kvh")}));
        k.p.fajl = k.ut("új.kvh");
        menu(k.a.form1, "Mentes1");
        k.p.fajl = "/nincs/x.kvh";
        menu(k.a.form1, "Mentes1");
        menu(k.a.form1, "Megnyitas1");
        const QStringList vart{k.ut("új.kvh"), k.ut("béla ő.kvh"), k.ut("anna.kvh")};
        QCOMPARE(tar.fajlok(), vart);
        QCOMPARE(TLegutobbiTar(tarFajl).fajlok(), vart);
    }
};

QTEST_MAIN(KivulrolTeszt)
#include "kivulrol_teszt.moc"
