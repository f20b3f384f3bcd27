// The main window from start-up through clock and surface, driven with mouse and menu.

#include <QStatusBar>

#include "ablakteszt.h"
#include "tables/szotar.h"
#include "windows/datumformatum.h"

class TForm1Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void indulaskorAJelenPillanatAllBudapesten() {
        TFrissAblakok a;
        QCOMPARE(panel(a.form1, 0), "Radix");
        QVERIFY(panel(a.form1, 1).startsWith("ARMC:  "));
        QCOMPARE(panel(a.form1, 2), "Most");
        QVERIFY(panel(a.form1, 3).endsWith(" ZN"));
        QCOMPARE(panel(a.form1, 4), "Budapest");
        QCOMPARE(panel(a.form1, 5), "19°4'K  47°30'É");
        QCOMPARE(panel(a.form1, 6), "");
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Állj");
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton3_Valt")->text(), "Mundán");
        QCOMPARE(vezerlo<QPlainTextEdit>(a.form1, "Memo1")->toPlainText(), "");
        QCOMPARE(a.form1.windowTitle(), "");
        QVERIFY(!a.allapot().TeljesTorles);
        QVERIFY(fekete(a.kep()) > 100);
    }

    void aTerviMeretekEsNevek() {
        TFrissAblakok a;
        QCOMPARE(a.form1.size(), QSize(995, 717));
        QCOMPARE(vezerlo<QFrame>(a.form1, "Panel1")->width(), 49);
        QCOMPARE(vezerlo<QTimer>(a.form1, "Timer1")->interval(), 250);
        for (int n = 1; n <= 48; ++n)
            QVERIFY(a.form1.findChild<QLabel*>(QStringLiteral("Label%1").arg(n)) != nullptr);
        const QList<int> szelessegek{48, 90, 150, 135, 150, 90, 750};
        for (int i = 0; i < 7; ++i)
            QCOMPARE(vezerlo<QLabel>(a.form1, qPrintable(QStringLiteral("StatusBar1Panel%1").arg(i)))
                         ->maximumWidth(),
                     szelessegek[i]);
    }

    /// Three numbers in the order of the country, the year in four digits.
    void aRovidDatumANyelvSorrendjeben() {
        const std::pair<const char*, const char*> formak[]{{"C", "yyyy.MM.dd"},     {"hu_HU", "yyyy.MM.dd"},
                                                           {"de_DE", "dd.MM.yyyy"}, {"en_US", "MM.dd.yyyy"},
                                                           {"en_GB", "dd.MM.yyyy"}, {"sv_SE", "yyyy.MM.dd"}};
        for (const auto& [nyelv, forma] : formak)
            QCOMPARE(nyelv + (": " + rovidDatumFormatum(QLocale(nyelv))), nyelv + QString(": ") + forma);
    }

    void azElsoOrajelFeliratotAdEsGorget() {
        TFrissAblakok a;
        a.orajelek(2);
        const QString elso = a.form1.windowTitle();
        QVERIFY(elso.contains("ház"));
        QVERIFY(elso.contains(panel(a.form1, 3).left(11)));
        a.orajelek(1);
        QCOMPARE(a.form1.windowTitle().left(40), elso.mid(1, 40));
    }

    void teljesTorlesAlattAFestesKeresUresenHagyjaAzAblakot() {
        TFrissAblakok a;
        menu(a.form1, "Mundan1");
        auto* felulet = a.form1.findChild<KepletFelulet*>("Felulet");
        QVERIFY(fekete(felszin(*felulet)) > 100);
        felulet->update();
        QApplication::processEvents();
        QCOMPARE(fekete(felszin(*felulet)), 0);
        QVERIFY(a.allapot().TeljesTorles);
        a.form1.resize(a.form1.width() + 10, a.form1.height());
        QApplication::processEvents();
        QVERIFY(fekete(felszin(*felulet)) > 100);
        QVERIFY(!a.allapot().TeljesTorles);
    }

    void aPanelreKattintvaAJegyzetHelyetValtoztat() {
        TFrissAblakok a;
        auto* memo = vezerlo<QPlainTextEdit>(a.form1, "Memo1");
        QCOMPARE(memo->geometry(), QRect(0, 600, 49, 281));
        QTest::mouseClick(vezerlo<QFrame>(a.form1, "Panel1"), Qt::LeftButton, {}, QPoint(24, 590));
        QCOMPARE(memo->geometry(), QRect(0, 144, 49, 737));
        QTest::mouseClick(memo->viewport(), Qt::LeftButton);
        QCOMPARE(memo->geometry(), QRect(0, 600, 49, 281));
    }

    /// The keys are the window's own until the note is clicked.
    void aJegyzetbeCsakKattintasVisz() {
        TFrissAblakok a;
        QVERIFY(QTest::qWaitForWindowActive(&a.form1));
        auto* memo = vezerlo<QPlainTextEdit>(a.form1, "Memo1");
        QVERIFY(!memo->hasFocus());
        for (const Qt::Key k : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Tab}) {
            QTest::keyClick(a.form1.windowHandle(), k);
            QVERIFY(!memo->hasFocus());
        }
        QTest::mouseClick(memo->viewport(), Qt::LeftButton);
        QVERIFY(memo->hasFocus());
    }

    /// The wheel's white does not come through between the panel's rows.
    void aPanelnekSajatHattereVan() {
        TFrissAblakok a;
        const auto* panel1 = vezerlo<QFrame>(a.form1, "Panel1");
        const QImage kep = a.form1.grab().toImage();
        const auto szin = [&](const QPoint& hely) {
            const QPoint itt = panel1->mapTo(&a.form1, hely) * kep.devicePixelRatio();
            return kep.pixelColor(itt);
        };
        QCOMPARE(szin({2, 145}), panel1->palette().color(QPalette::Window));  // between buttons and rows
        QCOMPARE(szin({panel1->width() + 3, 3}), QColor(Qt::white));
    }

    void azAllapotsorPaneljeiSullyesztettek() {
        TFrissAblakok a;
        const auto* sav = vezerlo<QStatusBar>(a.form1, "StatusBar1");
        QVERIFY(!sav->isSizeGripEnabled());  // it would lie on the last panel
        for (int i = 0; i < 7; ++i) {
            const auto* mezo =
                vezerlo<QLabel>(a.form1, qPrintable(QStringLiteral("StatusBar1Panel%1").arg(i)));
            QCOMPARE(mezo->frameShape(), QFrame::Panel);
            QCOMPARE(mezo->frameShadow(), QFrame::Sunken);
            QCOMPARE(mezo->font().family(), "Ariel");
            QCOMPARE(mezo->font(), sav->font());
        }
        // The letters of a full moment fit in the panel of its width.
        const auto* mikor = vezerlo<QLabel>(a.form1, "StatusBar1Panel3");
        QVERIFY(mikor->fontMetrics().horizontalAdvance("1975.07.21. 06:04:09 GMT") < 135);
    }

    /// Each further face and size would be loaded at the start.
    void aKisSzovegekEgyBetuvel() {
        TFrissAblakok a;
        const QFont kicsi = vezerlo<QStatusBar>(a.form1, "StatusBar1")->font();
        for (const char* nev : {"PanelButton2_Most", "PanelButton7Tercier", "Label3", "Label31", "Label48",
                                "Memo1", "StatusBar1Panel0", "StatusBar1Panel6"})
            QVERIFY2(vezerlo<QWidget>(a.form1, nev)->font() == kicsi, nev);
    }

    void aNevNemJelolonyelvAzAllapotsorban() {
        TFrissAblakok a;
        a.allapot().MostFut = false;
        a.allapot().Feliratok.statusz[2] = "<b>x</b>";
        a.form1.Mutat();
        const auto* nev = vezerlo<QLabel>(a.form1, "StatusBar1Panel2");
        QCOMPARE(nev->text(), "<b>x</b>");
        QVERIFY(nev->sizeHint().width() >= nev->fontMetrics().horizontalAdvance("<b>x</b>"));
    }

    void aJegyzetProgrambolValoValtozasaIsHelyetValt() {
        TFrissAblakok a;
        auto* memo = vezerlo<QPlainTextEdit>(a.form1, "Memo1");
        a.allapot().MostFut = false;
        a.allapot().Feliratok.memo = "jegyzet";
        a.form1.Mutat();
        QCOMPARE(memo->geometry().top(), 144);
        a.allapot().MostFut = true;
        a.orajelek(1);  // the running clock empties it
        QCOMPARE(memo->toPlainText(), "");
        QCOMPARE(memo->geometry().top(), 600);
        a.orajelek(5);  // and leaves an empty one alone
        QCOMPARE(memo->geometry().top(), 600);
    }

    void aKerekreKattintvaSemmiSemTortenik() {
        TFrissAblakok a;
        const QImage elobb = a.kep();
        QTest::mouseClick(a.form1.findChild<KepletFelulet*>("Felulet"), Qt::LeftButton, {}, QPoint(360, 350));
        QVERIFY(a.kep() == elobb);
        QVERIFY(a.allapot().MemoKicsi);
    }

    void azOldalPanelABolygokatEsCsucsokatMutatja() {
        TFrissAblakok a;
        const TKeplet& k = a.allapot().Keplet;
        const QChar napJegye(u'a' + static_cast<int>(k.bolygo[1] / 30));
        QCOMPARE(vezerlo<QLabel>(a.form1, "Label1")->text(), "A");
        QCOMPARE(vezerlo<QLabel>(a.form1, "Label2")->text(), QString(napJegye));
        QVERIFY(vezerlo<QLabel>(a.form1, "Label3")->text().endsWith("''"));
        QCOMPARE(vezerlo<QLabel>(a.form1, "Label31")->text(), "I");
        const QChar ascJegye(u'a' + static_cast<int>(k.hazCsucs[1] / 30));
        QCOMPARE(vezerlo<QLabel>(a.form1, "Label32")->text(), QString(ascJegye));
        QCOMPARE(vezerlo<QLabel>(a.form1, "Label46")->text(), "12");
    }

    void aCimkekBetutipusai() {
        TFrissAblakok a;
        for (int n = 1; n <= 48; ++n) {
            const bool bolygoSor = n <= 30;
            const int hely = (n - 1) % 3;
            const bool szimbolum = bolygoSor ? hely < 2 : hely == 1;
            const auto* felirat = vezerlo<QLabel>(a.form1, qPrintable(QStringLiteral("Label%1").arg(n)));
            QCOMPARE(felirat->font().family(), szimbolum ? "Astro Symbols" : "Ariel");
        }
    }

    void aDekadNezetCimeAKapcsolatSor() {
        TFrissAblakok a;
        menu(a.form1, "Dekad1");
        a.orajelek(2);
        QVERIFY(a.form1.windowTitle().startsWith(QString::fromUtf8(kapcsolatSor)));
    }
};

QTEST_MAIN(TForm1Teszt)
#include "tform1_foablak_teszt.moc"
