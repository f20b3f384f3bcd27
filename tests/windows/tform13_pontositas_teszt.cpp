#include <array>
#include <functional>

#include <QTextBlock>

#include "ablakteszt.h"
#include "commands/lepteto.h"

namespace {

QString sorok(const QWidget& d, const char* memo) {
    return vezerlo<QPlainTextEdit>(d, memo)->toPlainText();
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
        QCOMPARE(sorok(a.form13, "Memo1"),
                 "1. 1992.05.06. Esemény 1\n2. 1994.05.06. Esemény 2\n3. 1996.05.06. Esemény 3");
        QCOMPARE(sorok(a.form13, "Memo2").count('\n'), 2);
        QCOMPARE(sorok(a.form13, "Memo3").count('\n'), 2);
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
        QCOMPARE(sorok(a.form13, "Memo1"), "");  // opens without events too
        kattint(a.form13, "Button_Megsem1");
        QVERIFY(a.allapot().PrimerFut);
        QCOMPARE(sorok(a.form12, "Memo1"), "");
        kattint(a.form7, "Button9percp");
        a.orajelek(1);
        QVERIFY(!sorok(a.form12, "Memo1").isEmpty());
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
            const QString elobb = sorok(a.form12, "Memo1");
            Leptetes(a.allapot(), lepesek[0]);
            QTest::qWait(tobbOrajel);
            QVERIFY(sorok(a.form12, "Memo1") != elobb);
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
        const auto talalatok = [&] { return sorok(a.form13, "Memo3").count('('); };
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
    }

    void aLeptetesEsMindenUjraszamitasMozgatjaATalalatokat() {
        TFrissAblakok a;
        szuletes(a);
        esemenyek(a, 12);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        vezerlo<QSpinBox>(a.form13, "SpinEdit1")->setValue(60);
        const QString elobb = sorok(a.form13, "Memo2");
        for (int n = 0; n < 3; ++n) kattint(a.form7, "Button11percpp");
        QCOMPARE(sorok(a.form13, "Memo2"), elobb);
        a.orajelek(1);
        const QString leptetve = sorok(a.form13, "Memo2");
        QVERIFY(leptetve != elobb);
        // Back to the birth: the command itself repeats the run.
        kattint(a.form1, "PanelButton2_Most");
        kattint(a.form1, "PanelButton2_Most");
        QCOMPARE(sorok(a.form13, "Memo2"), elobb);
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
        QVERIFY(sorok(a.form13, "Memo1").contains("Harmadik"));
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
};

QTEST_MAIN(TForm13Teszt)
#include "tform13_pontositas_teszt.moc"
