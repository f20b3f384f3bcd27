// The chart handed on from the main window: keys, the wheel's menu, files. The clock ticks.

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "kepteszt.h"
#include "probaparbeszed.h"
#include "rendszerhatar.h"
#include "windows/kepkimentes.h"

namespace {

struct TAtadas {
    TAtadas() {
        a.form1.parbeszedBeallitasa(p);
        szuletes(a);
        a.oraIndul();
        if (!QTest::qWaitForWindowActive(&a.form1)) qFatal("the window has not got the keyboard");
        QGuiApplication::clipboard()->clear();
    }
    KepletFelulet& felulet() { return *a.form1.findChild<KepletFelulet*>("Felulet"); }
    /// A right click on a widget, at its middle.
    void jobbKattintas(QWidget& hova) {
        const QPoint hely = hova.rect().center();
        QContextMenuEvent kerdes(QContextMenuEvent::Mouse, hely, hova.mapToGlobal(hely));
        QApplication::sendEvent(&hova, &kerdes);
    }
    static QImage vagolapKep() { return QGuiApplication::clipboard()->image(); }
    static QString vagolap() { return QGuiApplication::clipboard()->text(); }
    TKepletKep kepernyon() { return {felulet().width(), felulet().height(), {}}; }

    TFrissAblakok a;
    TProbaParbeszed p;
};

/// Deals with the popup menu that the next command opens.
void menuben(std::function<void(QMenu&)> teendo) {
    QTimer::singleShot(tobbOrajel, [teendo = std::move(teendo)] {
        auto* nyitott = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (nyitott == nullptr) qFatal("no menu is open");
        teendo(*nyitott);
        nyitott->close();
    });
}

}  // namespace

class TForm1AtadasTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void aCtrlCANezetKepetMasolja() {
        TAtadas t;
        QList<QImage> kepek;
        for (const auto nezet : {Qt::Key_F2, Qt::Key_F3, Qt::Key_F4}) {
            QTest::keyClick(&t.a.form1, nezet);
            QTest::keyClick(&t.a.form1, Qt::Key_C, Qt::ControlModifier);
            kepek << TAtadas::vagolapKep();
            QVERIFY(azonos(kepek.last(), kepletKep(t.a.allapot(), t.kepernyon())));
        }
        QVERIFY(!azonos(kepek[0], kepek[1]) && !azonos(kepek[1], kepek[2]));
        QCOMPARE(kepek[0].size(), 3 * t.felulet().size());
    }

    void aCtrlShiftCAPanelAdatait() {
        TAtadas t;
        for (int kor = 0; kor < 2; ++kor) {
            QGuiApplication::clipboard()->clear();
            QTest::keyClick(&t.a.form1, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
            const QStringList sorok = TAtadas::vagolap().split('\n');
            QCOMPARE(sorok[0], "Minta Anna, 1975.07.21. 06:04:09 ZN, Szeged");
            for (int i = 0; i < 16; ++i) {
                const QString felirat =
                    cimke(t.a.form1, qPrintable(QStringLiteral("Label%1").arg(3 * i + 3)));
                QVERIFY(!felirat.isEmpty());
                QCOMPARE(sorok[2 + i].section('\t', 2), felirat);
            }
            QCOMPARE(sorok[2].section('\t', 0, 1), "Nap\tRák");
        }
    }

    void aJegyzetKijelolesNelkulNemFogjaElAMasolast() {
        TAtadas t;
        auto* memo = vezerlo<QPlainTextEdit>(t.a.form1, "Memo1");
        memo->setPlainText("jegyzet szövege");
        QTest::mouseClick(memo->viewport(), Qt::LeftButton);
        QVERIFY(memo->hasFocus());
        QTest::keyClick(memo, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(!TAtadas::vagolapKep().isNull());
        memo->selectAll();
        QTest::keyClick(memo, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(TAtadas::vagolap(), "jegyzet szövege");
    }

    void aMasolasElobbJelszotKer() {
        for (const auto modosito :
             {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
            TAtadas t;
            t.a.form11.programVege = [] {};
            t.a.allapot().JelszoRendben = false;
            bool kert = false;
            valasz([&](QWidget& d) {
                kert = d.objectName() == "TForm11";
                d.close();
            });
            QTest::keyClick(&t.a.form1, Qt::Key_C, modosito);
            QVERIFY(kert);
            QVERIFY(TAtadas::vagolapKep().isNull() && TAtadas::vagolap().isEmpty());
        }
    }

    void aKerekMenuje() {
        TAtadas t;
        menuben([](QMenu& m) {
            QStringList pontok;
            for (const QAction* pont : m.actions()) pontok << pont->text().remove('&');
            QCOMPARE(pontok, QStringList({"Kép másolása", "Adatok másolása szövegként", "",
                                          "Mentés PDF-ként…", "Mentés SVG-ként…", "Mentés PNG-ként…"}));
            QTest::keyClick(&m, Qt::Key_K);
        });
        t.jobbKattintas(t.felulet());
        QVERIFY(azonos(TAtadas::vagolapKep(), kepletKep(t.a.allapot(), t.kepernyon())));
        QGuiApplication::clipboard()->clear();
        menuben([](QMenu& m) { QTest::keyClick(&m, Qt::Key_A); });
        QContextMenuEvent billentyu(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&t.a.form1, &billentyu);
        QVERIFY(TAtadas::vagolap().startsWith("Minta Anna"));
        menuben([](QMenu& m) { QTest::keyClick(&m, Qt::Key_Escape); });
        t.jobbKattintas(t.felulet());
    }

    void aPanelenNincsAKerekMenuje() {
        TAtadas t;
        bool nyilt = false;
        QTimer ismet;
        connect(&ismet, &QTimer::timeout, this, [&nyilt] {
            if (QApplication::activePopupWidget() == nullptr) return;
            nyilt = true;
            QApplication::activePopupWidget()->close();
        });
        ismet.start(20);
        t.jobbKattintas(*vezerlo<QFrame>(t.a.form1, "Panel1"));
        t.jobbKattintas(*vezerlo<QWidget>(t.a.form1, "StatusBar1"));
        QVERIFY(!nyilt);
        t.jobbKattintas(t.felulet());
        QVERIFY(nyilt);
    }

    void aKepekFajlba() {
        TAtadas t;
        const QTemporaryDir mappa;
        for (const auto& [pont, kiterjesztes, eleje] :
             {std::tuple("KepPdf1", ".pdf", "%PDF-"), std::tuple("KepSvg1", ".svg", "<?xml"),
              std::tuple("KepPng1", ".png", "\x89PNG")}) {
            t.p.kerdesek.clear();
            t.p.fajl = mappa.filePath("kép");
            menu(t.a.form1, pont);
            const QString szuro = QString(kiterjesztes + 1).toUpper() + " (*" + kiterjesztes + ")";
            QCOMPARE(t.p.kerdesek, QStringList({szuro, QString("Minta Anna 1975-07-21") + kiterjesztes}));
            QFile fajl(mappa.filePath(QString("kép") + kiterjesztes));
            QVERIFY(fajl.open(QIODevice::ReadOnly));
            QVERIFY(fajl.readAll().startsWith(eleje));
        }
        QCOMPARE(t.a.allapot().Rajz.nyomtatasMod, false);
        t.p.fajl.clear();  // cancelled
        menu(t.a.form1, "KepPng1");
        QCOMPARE(QDir(mappa.path()).entryList(QDir::Files).size(), 3);
        QVERIFY(t.p.uzenetek.isEmpty());
    }

    void azIrhatatlanKepKiderul() {
        TAtadas t;
        t.p.fajl = "/nincs/x.svg";
        menu(t.a.form1, "KepSvg1");
        QCOMPARE(t.p.uzenetek, QStringList{"A fájl nem írható:\n/nincs/x.svg"});
    }

#ifndef Q_OS_WIN
    void aTeliLemezenNemMaradKeptoredek() {
        TAtadas t;
        const QTemporaryDir mappa;
        t.p.fajl = mappa.filePath("x.png");
        {
            const TTeliLemez teli(1000);
            menu(t.a.form1, "KepPng1");
        }
        QCOMPARE(t.p.uzenetek.size(), 1);
        QVERIFY(QDir(mappa.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
    }
#endif

    void aKiirtTalalatokIsAVagolapra() {
        TAtadas t;
        t.a.vezerloOra()->stop();
        valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
        menu(t.a.form1, "Tercier1");
        const QImage latott = felszin(t.felulet()).convertToFormat(QImage::Format_RGB32);
        menu(t.a.form1, "KepMasolas1");
        const QImage vele = TAtadas::vagolapKep();
        const QImage nelkule = kepletKep(t.a.allapot(), t.kepernyon());
        QCOMPARE(vele.size(), nelkule.size());
        QVERIFY(!azonos(vele, nelkule));
        t.a.form1.RajzolKeplet();
        QVERIFY(latott != felszin(t.felulet()).convertToFormat(QImage::Format_RGB32));
        menu(t.a.form1, "KepMasolas1");
        QVERIFY(azonos(TAtadas::vagolapKep(), nelkule));
    }
};

QTEST_MAIN(TForm1AtadasTeszt)
#include "tform1_atadas_teszt.moc"
