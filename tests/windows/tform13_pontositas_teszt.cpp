#include <array>
#include <functional>

#include <QTextBlock>

#include "commands/lepteto.h"
#include "listateszt.h"

namespace {

QString szoveg(const QWidget& d, const char* memo) {
    return vezerlo<QPlainTextEdit>(d, memo)->toPlainText();
}

/// Whether a list shows its lines in full width.
bool vagatlan(const QWidget& d, const char* memo) {
    return vezerlo<QPlainTextEdit>(d, memo)->horizontalScrollBar()->maximum() == 0;
}

void esemenyek(TFrissAblakok& a, int db) {
    for (int n = 1; n <= db; ++n) {
        TEletesemeny& e = a.allapot().Esemenyek.esemenyek[n];
        e.esemeny = "Esemény " + std::to_string(n);
        e.pillanat.ev = 1990 + 2 * n;
        e.pillanat.ho = 5;
        e.pillanat.nap = 6;
        e.hosszFok = 20;
        e.szelFok = 46;
    }
    a.allapot().Esemenyek.EsemenyDb = db;
}

}  // namespace

class TForm13Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aPontositasAtvesziAListat() {
        TFrissAblakok a;
        szuletes(a);
        esemenyek(a, 3);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Rendben1");
        kattint(a.form12, "Button_Pontositas1");
        QVERIFY(a.allapot().PontositasFut);
        QVERIFY(!a.allapot().PrimerFut);
        QVERIFY(a.form13.isVisible());
        QVERIFY(!a.form13.isModal());
        QVERIFY(a.form13.windowFlags() & Qt::WindowStaysOnTopHint);
        QCOMPARE(a.form13.windowTitle(), "Pontosítás");
        QCOMPARE(a.form13.width(), 369);
        QCOMPARE(a.form13.x() + a.form13.width(), a.form1.x() + a.form1.width());
        QCOMPARE(a.form13.y(), a.form1.y() + a.form7.height() + 30);
        QCOMPARE(cimke(a.form13, "Label1"), "Direkciós hatótávolság:   0,");
        QCOMPARE(ertek(a.form13, "SpinEdit1"), 25);
        QCOMPARE(szoveg(a.form13, "Memo1"),
                 "1. 1992.05.06. Esemény 1\n2. 1994.05.06. Esemény 2\n3. 1996.05.06. Esemény 3");
        QCOMPARE(szoveg(a.form13, "Memo2").count('\n'), 2);
        QCOMPARE(szoveg(a.form13, "Memo3").count('\n'), 2);
        QVERIFY(vezerlo<QPlainTextEdit>(a.form13, "Memo1")->isReadOnly());
        QVERIFY(vezerlo<QPlainTextEdit>(a.form13, "Memo2")->isReadOnly());
        QVERIFY(!vezerlo<QPlainTextEdit>(a.form13, "Memo3")->isReadOnly());
        QCOMPARE(vezerlo<QPlainTextEdit>(a.form13, "Memo2")->font().family(), "Astro Symbols");
        QCOMPARE(vezerlo<QPlainTextEdit>(a.form13, "Memo3")->font().family(), "Astro Symbols");
        const std::array<const char*, 4> fejek{"dMc", "cMc", "dAsc", "cAsc"};
        for (int n = 0; n < 4; ++n)
            QCOMPARE(cimke(a.form13, qPrintable(QStringLiteral("Label%1").arg(n + 2))),
                     fejek[static_cast<std::size_t>(n)]);

        kattint(a.form13, "Button_Megsem1");
        QVERIFY(!a.form13.isVisible());
        QVERIFY(!a.allapot().PontositasFut);
        QVERIFY(a.allapot().PrimerFut);
    }

    void aMegsemAPrimerListatAkkorIsElinditjaHaMegNemFutott() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        QVERIFY(a.form13.isVisible());
        QCOMPARE(szoveg(a.form13, "Memo1"), "");  // opens without events too
        kattint(a.form13, "Button_Megsem1");
        QVERIFY(a.allapot().PrimerFut);
        QCOMPARE(szoveg(a.form12, "Memo1"), "");
        kattint(a.form7, "Button9percp");
        a.orajelek(1);
        QVERIFY(!szoveg(a.form12, "Memo1").isEmpty());
    }

    void mindenBezarasAGombkentTesz() {
        const std::function<void(QWidget&)> bezarasok[]{
            [](QWidget& d) { kattint(d, "Button_Megsem1"); }, [](QWidget& d) { d.close(); },
            [](QWidget& d) { QTest::keyClick(&d, Qt::Key_Escape); }};
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        esemenyek(a, 1);
        menu(a.form1, "Primer1");
        for (const auto& bezaras : bezarasok) {
            kattint(a.form12, "Button_Pontositas1");
            QVERIFY(a.allapot().PontositasFut && !a.allapot().PrimerFut);
            bezaras(a.form13);
            QVERIFY(!a.form13.isVisible());
            QVERIFY(!a.allapot().PontositasFut);
            QVERIFY(a.allapot().PrimerFut);
            // The primary list beside it follows the chart again.
            const QString elobb = szoveg(a.form12, "Memo1");
            Leptetes(a.allapot(), lepesek[0]);
            QTest::qWait(tobbOrajel);
            QVERIFY(szoveg(a.form12, "Memo1") != elobb);
        }
    }

    void aHatotavValtozasaUjraFuttatEsMegmarad() {
        TFrissAblakok a;
        szuletes(a);
        esemenyek(a, 12);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        auto* mezo = vezerlo<QSpinBox>(a.form13, "SpinEdit1");
        QCOMPARE(mezo->minimum(), 1);
        QCOMPARE(mezo->maximum(), 99);
        mezo->setValue(1);
        const auto talalatok = [&] { return szoveg(a.form13, "Memo3").count('('); };
        const auto keves = talalatok();
        mezo->setValue(99);
        QVERIFY(talalatok() > keves);
        QCOMPARE(a.allapot().PontositasHatotav, 99);
        kattint(a.form13, "Button_Megsem1");
        kattint(a.form12, "Button_Pontositas1");
        QCOMPARE(ertek(a.form13, "SpinEdit1"), 99);
        // The default button takes a value set elsewhere back from the field.
        a.allapot().PontositasHatotav = 5;
        kattint(a.form13, "Button_Rendben1");
        QCOMPARE(a.allapot().PontositasHatotav, 99);
        // So does the Enter key, in the field and from the list of events.
        for (QWidget* honnan : {static_cast<QWidget*>(mezo), vezerlo<QWidget>(a.form13, "Memo1")}) {
            a.allapot().PontositasHatotav = 5;
            honnan->setFocus();
            QTest::keyClick(honnan, Qt::Key_Return);
            QCOMPARE(a.allapot().PontositasHatotav, 99);
        }
    }

    void aLeptetesEsMindenUjraszamitasMozgatjaATalalatokat() {
        TFrissAblakok a;
        szuletes(a);
        esemenyek(a, 12);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        vezerlo<QSpinBox>(a.form13, "SpinEdit1")->setValue(60);
        const QString elobb = szoveg(a.form13, "Memo2");
        for (int n = 0; n < 3; ++n) kattint(a.form7, "Button11percpp");
        QCOMPARE(szoveg(a.form13, "Memo2"), elobb);
        a.orajelek(1);
        const QString leptetve = szoveg(a.form13, "Memo2");
        QVERIFY(leptetve != elobb);
        // Back to the birth: the command itself repeats the run.
        kattint(a.form1, "PanelButton2_Most");
        kattint(a.form1, "PanelButton2_Most");
        QCOMPARE(szoveg(a.form13, "Memo2"), elobb);
        // The reach set elsewhere comes into the field with the recompute.
        a.allapot().PontositasHatotav = 33;
        menu(a.form1, "Horizont1");
        QCOMPARE(ertek(a.form13, "SpinEdit1"), 33);
    }

    void azEletesemenyekInnenIs() {
        TFrissAblakok a;
        szuletes(a);
        esemenyek(a, 2);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        valasz([](QWidget& d) {
            QCOMPARE(d.objectName(), "TForm10");
            QCOMPARE(vezerlo<QLabel>(d, "LEletes_2_2")->text(), "Esemény 2");
            QCOMPARE(vezerlo<QComboBox>(d, "ComboBoxHelyseg1")->currentText(), "Szeged");
            gepel(d, "Edit_Eletesemenyek1", "Harmadik");
            kattint(d, "Button_Rendben1");
            kattint(d, "Button_Rendben2");
        });
        kattint(a.form13, "Button_Eletesemenyek1");
        QCOMPARE(a.allapot().Esemenyek.EsemenyDb, 3);
        kattint(a.form13, "Button_Rendben1");
        QVERIFY(szoveg(a.form13, "Memo1").contains("Harmadik"));
    }

    void amiRejtveVanRejtveMarad() {
        TFrissAblakok a;
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        a.form13.resize(722, 430);
        for (const char* nev : {"Label6", "Button_Elemzes1", "Button_Elemzesp1", "Button_Elemzesm2"})
            QVERIFY(!vezerlo<QWidget>(a.form13, nev)->isVisible());
        QCOMPARE(cimke(a.form13, "Label6"), "Direkció-elemzés:");
        // The third list lies outside until the window is widened.
        QVERIFY(vezerlo<QWidget>(a.form13, "Memo3")->x() >= 369);
        QVERIFY(vezerlo<QWidget>(a.form13, "Memo3")->geometry().right() < 722);
    }

    void aHaromListaSoraiEgyMagassagbanAllnak() {
        TFrissAblakok a;
        esemenyek(a, 20);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        const auto sorTeteje = [&](const char* nev) {
            const auto* memo = vezerlo<QPlainTextEdit>(a.form13, nev);
            return memo->cursorRect(QTextCursor(memo->document()->findBlockByNumber(15))).top();
        };
        QCOMPARE(sorTeteje("Memo1"), sorTeteje("Memo2"));
        QCOMPARE(sorTeteje("Memo2"), sorTeteje("Memo3"));
    }

    void azElsoListaKapjaASzelesseget() {
        TFrissAblakok a;
        a.oraIndul();
        esemenyesKeplet(a);
        for (int kor = 0; kor < 2; ++kor) {
            pontositas(a);
            auto* memo1 = vezerlo<QPlainTextEdit>(a.form13, "Memo1");
            auto* memo3 = vezerlo<QPlainTextEdit>(a.form13, "Memo3");
            QCOMPARE(a.form13.width(), 369);
            QVERIFY(!vagatlan(a.form13, "Memo1"));
            QCOMPARE(memo3->x(), 369);  // the designed places, until the window is widened
            QCOMPARE(memo1->width(), 132);
            a.form13.resize(722, 430);
            QApplication::processEvents();
            QVERIFY(memo1->width() > 132);
            QVERIFY(memo3->geometry().right() < 722);
            QVERIFY(memo3->width() >= 170);
            a.form13.resize(1100, 430);
            QApplication::processEvents();
            QVERIFY(vagatlan(a.form13, "Memo1"));
            QCOMPARE(memo3->geometry().right(), 1100 - 8 - 1);
            // The lists stand beside each other, the heads over the hits.
            const auto* memo2 = vezerlo<QPlainTextEdit>(a.form13, "Memo2");
            QVERIFY(memo1->geometry().right() < memo2->x());
            QVERIFY(memo2->geometry().right() < memo3->x());
            for (const char* nev : {"Label2", "Label5"}) {
                const QRect fej = hely(a.form13, *vezerlo<QLabel>(a.form13, nev));
                QVERIFY2(fej.left() > memo2->x() && fej.right() <= memo2->geometry().right(), nev);
            }
            kattint(a.form13, "Button_Megsem1");
        }
    }

    void esemenyNelkulATervezettElrendezes() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        a.form13.resize(722, 430);
        QApplication::processEvents();
        QCOMPARE(vezerlo<QPlainTextEdit>(a.form13, "Memo1")->width(), 132);
        QCOMPARE(vezerlo<QPlainTextEdit>(a.form13, "Memo3")->x(), 369);
        QCOMPARE(vezerlo<QPlainTextEdit>(a.form13, "Memo3")->width(), 345);
    }

    void aLeptetesMeghagyjaAGorgetestEsAKijelolest() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        esemenyek(a, 20);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        a.form13.resize(722, 260);
        gepel(a.form13, "SpinEdit1", "90");
        QApplication::processEvents();
        const auto sav = [&](const char* memo, bool fuggoleges) {
            auto* m = vezerlo<QPlainTextEdit>(a.form13, memo);
            return fuggoleges ? m->verticalScrollBar() : m->horizontalScrollBar();
        };
        for (int kor = 0; kor < 2; ++kor) {
            auto* memo1 = vezerlo<QPlainTextEdit>(a.form13, "Memo1");
            sav("Memo1", true)->setValue(4);
            sorokKijelolese(*memo1, 6 + 2 * kor, 7 + 2 * kor);
            const QString kijelolt = memo1->textCursor().selectedText();
            QVERIFY(!kijelolt.isEmpty());
            sav("Memo2", false)->setValue(30);
            sav("Memo3", false)->setValue(50);
            const auto allas = [&] {
                return QList<int>{sav("Memo1", true)->value(), sav("Memo2", true)->value(),
                                  sav("Memo3", true)->value(), sav("Memo2", false)->value(),
                                  sav("Memo3", false)->value()};
            };
            QCOMPARE(allas(), (QList<int>{4, 4, 4, 30, 50}));
            const QString elobb = szoveg(a.form13, "Memo3");
            kattint(a.form7, "Button9percp");
            QTest::qWait(tobbOrajel);
            QVERIFY(szoveg(a.form13, "Memo3") != elobb);
            QCOMPARE(allas(), (QList<int>{4, 4, 4, 30, 50}));
            // The events are the same lines as before.
            QCOMPARE(memo1->textCursor().selectedText(), kijelolt);
        }
    }

    void azEletesemenyekUtanAListakIsUjak() {
        TFrissAblakok a;
        a.oraIndul();
        esemenyesKeplet(a);
        pontositas(a);
        QCOMPARE(szoveg(a.form13, "Memo1").count('\n'), 2);
        a.form13.resize(1400, 430);
        for (int kor = 0; kor < 2; ++kor) {
            valasz([kor](QWidget& d) {
                esemenyGepelese(d, kor == 0 ? "Innen" : "Innen egy még hosszabb szöveggel, mint a többi", "3",
                                "2001");
                kattint(d, "Button_Rendben2");
            });
            kattint(a.form13, "Button_Eletesemenyek1");
            QApplication::processEvents();
            QVERIFY(vagatlan(a.form13, "Memo1"));
            QCOMPARE(szoveg(a.form13, "Memo1").count("Innen"), 2 * kor + 1);
            QCOMPARE(szoveg(a.form13, "Memo3").count('\n'), 3 + 2 * kor);
            valasz([&](QWidget& d) {
                valasz([](QWidget& form10) {
                    esemenyGepelese(form10, "Innen is", "3", "2002");
                    kattint(form10, "Button_Rendben2");
                });
                kattint(d, "Button_Eletesemenyek1");
                QVERIFY(szoveg(a.form13, "Memo1").endsWith("2002.05.06. Innen is"));
                kattint(d, "Button_Megsem1");
            });
            menu(a.form1, "Szemely_adatok1");
            QCOMPARE(szoveg(a.form13, "Memo1").count("Innen is"), kor + 1);
        }
    }

    void azEletesemenyekNemNyitjakMegAPontositast() {
        TFrissAblakok a;
        esemenyesKeplet(a);
        QVERIFY(!a.form13.isVisible());
        QCOMPARE(szoveg(a.form13, "Memo1"), "");
    }

    void azOtosHatotavNullaOt() {
        TFrissAblakok a;
        a.oraIndul();
        esemenyesKeplet(a);
        for (int kor = 0; kor < 2; ++kor) {
            menu(a.form1, "Primer1");
            kattint(a.form12, "Button_Pontositas1");
            auto* mezo = vezerlo<QSpinBox>(a.form13, "SpinEdit1");
            QCOMPARE(mezo->text(), kor == 0 ? "25" : "05");
            // Typed figure by figure, also while the clock ticks.
            gepel(a.form13, "SpinEdit1", "6");
            QTest::qWait(tobbOrajel);
            QTest::keyClicks(mezo, "0");
            QCOMPARE(mezo->text(), "60");
            QCOMPARE(a.allapot().PontositasHatotav, 60);
            gepel(a.form13, "SpinEdit1", "5");
            QTest::keyClick(mezo, Qt::Key_Return);
            QCOMPARE(mezo->text(), "05");
            QCOMPARE(a.allapot().PontositasHatotav, 5);
            QTest::keyClick(mezo, Qt::Key_Up);
            QCOMPARE(mezo->text(), "06");
            for (int n = 0; n < 4; ++n) QTest::keyClick(mezo, Qt::Key_Up);
            QCOMPARE(mezo->text(), "10");
            for (int n = 0; n < 5; ++n) QTest::keyClick(mezo, Qt::Key_Down);
            QCOMPARE(mezo->text(), "05");
            kattint(a.form13, "Button_Megsem1");
        }
    }
};

QTEST_MAIN(TForm13Teszt)
#include "tform13_pontositas_teszt.moc"
