// Places of the small windows beside the main one, which stands at 100, 80 with a size of 995 by 717.

#include "ablakteszt.h"
#include "windows/ablakelhelyezes.h"

namespace {

constexpr QRect foHely{100, 80, 995, 717};

struct TKetAblak {
    QWidget fo;
    QWidget kicsi;
    explicit TKetAblak(QSize meret) {
        fo.setGeometry(foHely);
        kicsi.resize(meret);
    }
};

/// Puts the main window where no dialog has to be moved to stay on the tests' screen of 800 by 800.
void kepernyore(TForm1& fo) {
    fo.resize(760, 600);
    fo.move(20, 12);
    QApplication::processEvents();
}

}  // namespace

class AblakElhelyezesTeszt : public QObject {
    Q_OBJECT

private slots:
    void kozepre_ABalFelFelevel() {
        TKetAblak a({301, 200});
        kozepre(a.kicsi, a.fo);
        // 100 + 497 - 150 and 80 + 358 - 100: halves are whole.
        QCOMPARE(a.kicsi.pos(), QPoint(447, 338));
    }

    void kozepre_ANagyobbAblakFeleCsakAFoablakeig() {
        TKetAblak a({1400, 900});
        kozepre(a.kicsi, a.fo);
        QCOMPARE(a.kicsi.pos(), QPoint(100, 80));
    }

    void felul_HarmincPixellelAFoablakTetejeAlatt() {
        TKetAblak a({300, 200});
        felulKozepre(a.kicsi, a.fo);
        QCOMPARE(a.kicsi.pos(), QPoint(447, 110));
    }

    void jobbraFent_AzElesAFoablakSzelen() {
        TKetAblak a({300, 200});
        jobbraFent(a.kicsi, a.fo, 30);
        QCOMPARE(a.kicsi.pos(), QPoint(795, 110));
        a.kicsi.resize(1400, 200);
        jobbraFent(a.kicsi, a.fo, 30);
        QCOMPARE(a.kicsi.x(), 100);
    }

    void jobbraLent_AzAljaAFoablakAljaFolott() {
        TKetAblak a({300, 200});
        jobbraLent(a.kicsi, a.fo, 18);
        QCOMPARE(a.kicsi.pos(), QPoint(795, 80 + 717 - 18 - 200));
        a.kicsi.resize(300, 900);
        jobbraLent(a.kicsi, a.fo, 18);
        QCOMPARE(a.kicsi.y(), 80 - 18);
    }

    void aDialogusokAFoablakKozepen() {
        TFrissAblakok a;
        szuletes(a);
        kepernyore(a.form1);
        const auto kozepen = [&](QWidget& d) {
            const QRect fo(a.form1.pos(), a.form1.size());
            QCOMPARE(d.pos(), QPoint(fo.x() + fo.width() / 2 - std::min(d.width(), fo.width()) / 2,
                                     fo.y() + fo.height() / 2 - std::min(d.height(), fo.height()) / 2));
            d.move(0, 0);  // the next time it is there again
            d.hide();
        };
        for (const char* pont : {"Szemely_adatok1", "Uj1", "Tercier1", "Tercier1", "Szolaringresszio11",
                                 "Orbisok1", "Orbisok1", "Lunar1", "AscPers1"}) {
            bool volt = false;
            valasz([&](QWidget& d) {
                kozepen(d);
                volt = true;
            });
            menu(a.form1, pont);
            QVERIFY2(volt, pont);
        }
        for (int nyitas = 0; nyitas < 2; ++nyitas) {
            valasz(kozepen);
            a.form2.eletesemenyek();
        }
    }

    void aTobbiAblakAFoablakSzelehez() {
        TFrissAblakok a;
        szuletes(a);
        kepernyore(a.form1);
        const QRect fo(a.form1.pos(), a.form1.size());
        const auto jobbra = [&](const QWidget& ablak, int y) {
            QCOMPARE(ablak.pos(), QPoint(fo.x() + fo.width() - ablak.width(), y));
        };
        valasz([&](QWidget& d) {
            jobbra(d, fo.y() + 30);
            d.hide();
        });
        menu(a.form1, "Szimbolumok1");
        menu(a.form1, "Mundnhzaspontosts1");
        jobbra(a.form8, fo.y() + fo.height() - 20 - a.form8.height());
        menu(a.form1, "Primer1");
        jobbra(a.form12, fo.y() + fo.height() - 18 - a.form12.height());
        kattint(a.form12, "Button_Pontositas1");
        QCOMPARE(a.form13.width(), 369);
        jobbra(a.form13, fo.y() + a.form7.height() + 30);
    }

    /// The windows use them as told.
    void aLeptetoEsAzOrbisokHelye() {
        TFrissAblakok a;
        a.form1.move(40, 20);
        kattint(a.form1, "PanelButton4Leptet");
        QVERIFY(!a.form7.isModal());
        QCOMPARE(a.form7.pos(), QPoint(40 + a.form1.width() / 2 - a.form7.width() / 2, 20 + 30));
        valasz([&](QWidget& d) {
            QCOMPARE(d.pos(), QPoint(40 + a.form1.width() / 2 - d.width() / 2,
                                     20 + a.form1.height() / 2 - d.height() / 2));
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
    }
};

QTEST_MAIN(AblakElhelyezesTeszt)
#include "ablakelhelyezes_teszt.moc"
