#include <array>

#include "ablakteszt.h"
#include "rectify/mundankereses.h"

namespace {

QColor szin(const QWidget& d, const char* nev) {
    return vezerlo<QLabel>(d, nev)->palette().color(QPalette::WindowText);
}

/// Counts what the house buttons' fonts and the verdict's colour are changed under.
class TKurzorFigyelo : public QObject {
public:
    explicit TKurzorFigyelo(QWidget& ablak) {
        for (QWidget* v : ablak.findChildren<QWidget*>()) v->installEventFilter(this);
    }
    int homokoraval = 0;
    int homokoraNelkul = 0;

private:
    bool eventFilter(QObject* targy, QEvent* esemeny) override {
        if (esemeny->type() == QEvent::FontChange || esemeny->type() == QEvent::PaletteChange) {
            const QCursor* kurzor = QGuiApplication::overrideCursor();
            ++(kurzor != nullptr && kurzor->shape() == Qt::WaitCursor ? homokoraval : homokoraNelkul);
        }
        return QObject::eventFilter(targy, esemeny);
    }
};

TMundanErtekeles ertekeles(TFrissAblakok& a) {
    return MundanErtekeles(a.allapot(), MundanHely(a.allapot().Keplet));
}

}  // namespace

class TForm8Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aMundanAblakMegnyitaskorEpul() {
        TFrissAblakok a;
        szuletes(a);
        QVERIFY(a.form8.findChild<QPushButton*>("BMundan1") == nullptr);
        menu(a.form1, "Mundnhzaspontosts1");
        QVERIFY(a.form8.isVisible());
        QVERIFY(!a.form8.isModal());
        QVERIFY(a.form8.windowFlags() & Qt::WindowStaysOnTopHint);
        QCOMPARE(a.form8.windowTitle(), "Mundánházas pontosítás");
        QVERIFY(a.allapot().MundanAblakNyitva);
        QCOMPARE(a.form7.windowTitle(), "1975.07.21. 06:04:09");
        // Right edges together, its bottom 20 pixels above the main window's.
        QCOMPARE(a.form8.x() + a.form8.width(), a.form1.x() + a.form1.width());
        QCOMPARE(a.form8.y() + a.form8.height(), a.form1.y() + a.form1.height() - 20);

        const std::array<const char*, 12> feliratok{" I",  " 2", " 3", "IV", " 5", " 6",
                                                    "VII", " 8", " 9", " X", "11", "12"};
        for (int n = 0; n < 12; ++n) {
            const auto* gomb =
                vezerlo<QPushButton>(a.form8, qPrintable(QStringLiteral("BMundan%1").arg(n + 1)));
            QCOMPARE(gomb->text(), feliratok[static_cast<std::size_t>(n)]);
            QCOMPARE(gomb->geometry(), QRect(65 + 32 * (n % 6), 93 + 26 * (n / 6), 30, 24));
        }
        for (int sor = 1; sor <= 15; ++sor) {
            for (int oszlop = 1; oszlop <= 3; ++oszlop) {
                const auto* l = vezerlo<QLabel>(
                    a.form8, qPrintable(QStringLiteral("LMundan_%1_%2").arg(sor).arg(oszlop)));
                QCOMPARE(l->x(), (std::array{12, 135, 220}[static_cast<std::size_t>(oszlop - 1)]));
                QCOMPARE(l->y(), 175 + 22 * (sor - 1));
                QVERIFY(l->width() >= 30 && l->height() == 20);
                QCOMPARE(l->font().pointSize(), 10);
                const bool ariel = oszlop == 1 || sor == 4 || sor == 12;
                QCOMPARE(l->font().family(), ariel ? "Ariel" : "Astro Symbols");
            }
        }
        QCOMPARE(vezerlo<QLabel>(a.form8, "Label1Haz")->pos(), QPoint(135, 154));
        QCOMPARE(vezerlo<QLabel>(a.form8, "Label2Rendben")->pos(), QPoint(145, 512));
        QCOMPARE(vezerlo<QLabel>(a.form8, "Label1Haz")->font().pointSize(), 13);
        QCOMPARE(cimke(a.form8, "Label1Haz"), " I. Házak");

        kattint(a.form8, "Button4Bezar");
        QVERIFY(!a.form8.isVisible());
        QVERIFY(!a.allapot().MundanAblakNyitva);
        QVERIFY(a.form8.findChild<QPushButton*>("BMundan1") == nullptr);
        QVERIFY(a.form8.findChild<QLabel*>("LMundan_1_1") == nullptr);
    }

    void azMhpGombUgyanezt() {
        TFrissAblakok a;
        kattint(a.form1, "PanelButton6MHP");
        QVERIFY(a.form8.isVisible());
    }

    void aHazGombokAHazatMutatjakEsElengedikAFokuszt() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Mundnhzaspontosts1");
        for (int haz = 12; haz >= 1; --haz) {
            kattint(a.form8, qPrintable(QStringLiteral("BMundan%1").arg(haz)));
            QCOMPARE(a.allapot().AktivHaz, haz);
            QVERIFY(qobject_cast<QPushButton*>(a.form8.focusWidget()) == nullptr);
            const TMundanErtekeles e = ertekeles(a);
            const auto vart = AnalogiaSorok(e.lanc, haz);
            for (std::size_t sor = 0; sor < 15; ++sor) {
                const auto nev = [sor](int oszlop) {
                    return QStringLiteral("LMundan_%1_%2").arg(sor + 1).arg(oszlop);
                };
                QCOMPARE(cimke(a.form8, qPrintable(nev(1))), QString::fromStdString(vart[sor].oszlop1));
                QCOMPARE(cimke(a.form8, qPrintable(nev(2))), QString::fromStdString(vart[sor].oszlop2));
                QCOMPARE(cimke(a.form8, qPrintable(nev(3))), QString::fromStdString(vart[sor].oszlop3));
            }
            const bool jo = e.analogiak.HazEgyezes[static_cast<std::size_t>(haz - 1)] == '1';
            QCOMPARE(cimke(a.form8, "Label2Rendben"), jo ? "Rendben " : "        ");
        }
        // A new opening starts at the first house.
        kattint(a.form8, "BMundan5");
        kattint(a.form8, "Button4Bezar");
        menu(a.form1, "Mundnhzaspontosts1");
        QCOMPARE(a.allapot().AktivHaz, 1);
    }

    void aVerdiktSzineEsAHibasHazakNagyBetui() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Mundnhzaspontosts1");
        kattint(a.form8, "Button2Keresesp");  // the first press stays
        QString latott;
        for (int n = 0; n < 60 && latott.size() < 3; ++n) {
            const TMundanErtekeles e = ertekeles(a);
            const char allapot = e.analogiak.AnalogiaAllapot;
            if (!latott.contains(QLatin1Char(allapot))) latott += QLatin1Char(allapot);
            QCOMPARE(szin(a.form8, "Label3szoveg1"), QColor(allapot == '1' ? Qt::blue : Qt::red));
            QCOMPARE(cimke(a.form8, "Label3szoveg1"),
                     allapot == '2' ? "Egyik tengely sem egyezik dekádban!" : "Mundánházak és horizontházak");
            QCOMPARE(cimke(a.form8, "Label4szoveg2"), allapot == '2'   ? ""
                                                      : allapot == '1' ? "analógiái egyeznek."
                                                                       : "analógiái NEM egyeznek!");
            for (int haz = 1; haz <= 12; ++haz) {
                const auto* gomb =
                    vezerlo<QPushButton>(a.form8, qPrintable(QStringLiteral("BMundan%1").arg(haz)));
                const bool hibas = e.analogiak.HazEgyezes[static_cast<std::size_t>(haz - 1)] == '0';
                QCOMPARE(gomb->font().pointSize(), hibas ? 16 : 10);
            }
            kattint(a.form8, "Button2Keresesp");
        }
        QCOMPARE(latott.size(), 3);
    }

    void aKeresesEsAVisszaAKeppelEgyutt() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Mundnhzaspontosts1");
        kattint(a.form8, "Button1Keresesm");
        QCOMPARE(a.allapot().Keplet.pillanat, (TPillanat{1975, 7, 21, 6, 4, 9}));
        QVERIFY(a.allapot().MundanFrissites);
        a.orajelek(1);
        QVERIFY(!a.allapot().MundanFrissites);
        const THazcsucsok csucsok = a.allapot().Keplet.hazCsucs;

        const char elobb = ertekeles(a).analogiak.AnalogiaAllapot;
        a.allapot().Feliratok.leptetoCim = "1975.07.21.";
        a.form1.Mutat();
        QCOMPARE(a.form7.windowTitle(), "1975.07.21.");
        kattint(a.form8, "Button1Keresesm");
        QVERIFY(a.allapot().Keplet.pillanat != (TPillanat{1975, 7, 21, 6, 4, 9}));
        QVERIFY(ertekeles(a).analogiak.AnalogiaAllapot != elobb);
        QCOMPARE(a.form7.windowTitle(), " ");
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
        a.orajelek(1);  // the wheel follows with the next tick
        QVERIFY(a.allapot().Keplet.hazCsucs != csucsok);
        QVERIFY(ertekeles(a).analogiak.AnalogiaAllapot != elobb);

        kattint(a.form8, "Button3Vissza");
        QCOMPARE(a.allapot().Keplet.pillanat, (TPillanat{1975, 7, 21, 6, 4, 9}));
        a.orajelek(1);
        QCOMPARE(a.allapot().Keplet.hazCsucs, csucsok);
        // Nothing of this counts as a change to be saved.
        QVERIFY(!a.allapot().Modositott);
    }

    /// The labels are still written under the hourglass.
    void aKeresesAlattHomokora() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        menu(a.form1, "Mundnhzaspontosts1");
        kattint(a.form8, "Button2Keresesp");  // the first press stays
        for (const char* gomb : {"Button2Keresesp", "Button1Keresesm"}) {
            TKurzorFigyelo figyelo(a.form8);
            kattint(a.form8, gomb);
            QVERIFY(figyelo.homokoraval > 0);
            QCOMPARE(figyelo.homokoraNelkul, 0);
            QVERIFY(QGuiApplication::overrideCursor() == nullptr);
            QTest::qWait(tobbOrajel);
        }
    }

    void azOrajelKovetiAKepletet() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Mundnhzaspontosts1");
        const QString elobb = cimke(a.form8, "LMundan_9_2");
        for (int n = 0; n < 5; ++n) kattint(a.form7, "Button7orap");
        QCOMPARE(cimke(a.form8, "LMundan_9_2"), elobb);
        a.orajelek(1);
        QVERIFY(cimke(a.form8, "LMundan_9_2") != elobb);
    }

    void azEscapeIsLezarjaAFrissitest() {
        TFrissAblakok a;
        menu(a.form1, "Mundnhzaspontosts1");
        QTest::keyClick(&a.form8, Qt::Key_Escape);
        QVERIFY(!a.form8.isVisible());
        QVERIFY(!a.allapot().MundanAblakNyitva);
        a.allapot().MundanAblakNyitva = true;  // a refresh without controls does no harm
        a.orajelek(2);
    }
};

QTEST_MAIN(TForm8Teszt)
#include "tform8_mundanhazak_teszt.moc"
