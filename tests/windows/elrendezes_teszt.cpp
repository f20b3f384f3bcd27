// How the controls of a window stand to each other: in rows, alike in size, as far from one edge as from the
// other.

#include <QGroupBox>
#include <QListWidget>

#include "ablakteszt.h"

namespace {

using TNevek = QList<const char*>;

QRect hely(const QWidget& ablak, const char* nev) {
    return hely(ablak, *vezerlo<QWidget>(ablak, nev));
}

/// A caption by its text; of equal ones the lowest, which stands at the fields and not over a list.
QRect felirat(const QWidget& ablak, const char* szoveg) {
    QRect also;
    for (const auto* cimke : ablak.findChildren<QLabel*>())
        if (cimke->text() == szoveg && hely(ablak, *cimke).bottom() > also.bottom())
            also = hely(ablak, *cimke);
    if (also.isNull()) qFatal("no caption %s", szoveg);
    return also;
}

/// Twice the height of the middle: whole for every place.
int kozep(const QRect& r) {
    return 2 * r.top() + r.height();
}

int jobbTav(const QWidget& ablak, const QRect& r) {
    return ablak.width() - 1 - r.right();
}

/// From left to right, with one middle line.
void egySor(const QWidget& ablak, const TNevek& nevek) {
    for (qsizetype i = 1; i < nevek.size(); ++i) {
        const QRect elozo = hely(ablak, nevek[i - 1]);
        const QRect ez = hely(ablak, nevek[i]);
        QVERIFY2(elozo.right() < ez.left(), nevek[i]);
        QVERIFY2(kozep(elozo) == kozep(ez), nevek[i]);
    }
}

void egyformak(const QWidget& ablak, const TNevek& nevek) {
    for (const char* nev : nevek) QVERIFY2(hely(ablak, nev).size() == hely(ablak, nevek[0]).size(), nev);
}

void egyenloKozok(const QWidget& ablak, const TNevek& nevek) {
    const auto koz = [&](qsizetype i) {
        return hely(ablak, nevek[i]).left() - hely(ablak, nevek[i - 1]).right();
    };
    for (qsizetype i = 2; i < nevek.size(); ++i) QVERIFY2(koz(i) == koz(1), nevek[i]);
}

/// Each wholly above the next.
void egymasAlatt(const QWidget& ablak, const TNevek& nevek) {
    for (qsizetype i = 1; i < nevek.size(); ++i)
        QVERIFY2(hely(ablak, nevek[i - 1]).bottom() < hely(ablak, nevek[i]).top(), nevek[i]);
}

void balraZarva(const QWidget& ablak, const TNevek& nevek) {
    for (const char* nev : nevek) QVERIFY2(hely(ablak, nev).left() == hely(ablak, nevek[0]).left(), nev);
}

void jobbraZarva(const QWidget& ablak, const TNevek& nevek) {
    for (const char* nev : nevek) QVERIFY2(hely(ablak, nev).right() == hely(ablak, nevek[0]).right(), nev);
}

/// A caption at the middle of its field's height, to a pixel.
void felirataMellette(const QWidget& ablak, const char* szoveg, const char* nev) {
    const QRect mezo = hely(ablak, nev);
    const QRect cimke = felirat(ablak, szoveg);
    QVERIFY2(qAbs(kozep(cimke) - kozep(mezo)) <= 2, nev);
    QVERIFY2(cimke.right() < mezo.left(), nev);
}

/// And so close that it can't be taken for another's.
void felirataSzorosanMellette(const QWidget& ablak, const char* szoveg, const char* nev) {
    felirataMellette(ablak, szoveg, nev);
    QVERIFY2(hely(ablak, nev).left() - felirat(ablak, szoveg).right() < hely(ablak, nev).height() / 2, nev);
}

void mutat(QWidget& ablak) {
    ablak.show();
    QApplication::processEvents();
}

}  // namespace

class ElrendezesTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aSzemelyiAdatokRacsa() {
        TFrissAblakok a;
        mutat(a.form2);
        const QWidget& d = a.form2;
        egySor(d, {"SpinEditEv1", "SpinEditHo1", "SpinEditNap1"});
        egySor(d, {"SpinEditOra1", "SpinEditPerc1", "SpinEditMperc1"});
        egySor(d, {"SpinEditHosszFok1", "SpinEditHosszPerc1"});
        egySor(d, {"SpinEditSzelFok1", "SpinEditSzelPerc1"});
        egySor(d, {"Button_Eletesemenyek1", "Button_Rendben1", "Button_Megsem1"});
        egymasAlatt(d, {"EditNev1", "SpinEditEv1", "SpinEditOra1", "ComboBoxHelyseg1", "SpinEditIdozona1",
                        "SpinEditNyariidosz1", "SpinEditHosszFok1", "SpinEditSzelFok1",
                        "RadioGroupIdovalaszto1", "Memo_Jegyzet1", "Button_Rendben1"});
        balraZarva(d, {"EditNev1", "SpinEditEv1", "SpinEditOra1", "ComboBoxHelyseg1", "Memo_Jegyzet1"});
        jobbraZarva(d,
                    {"EditNev1", "SpinEditNap1", "SpinEditMperc1", "ComboBoxHelyseg1", "SpinEditHosszPerc1",
                     "SpinEditSzelPerc1", "RadioGroupIdovalaszto1", "Memo_Jegyzet1", "Button_Megsem1"});
        jobbraZarva(d, {"SpinEditHo1", "SpinEditPerc1", "SpinEditIdozona1", "SpinEditNyariidosz1",
                        "SpinEditHosszFok1", "SpinEditSzelFok1"});
        balraZarva(d, {"SpinEditIdozona1", "SpinEditNyariidosz1"});
        balraZarva(d, {"SpinEditNap1", "SpinEditMperc1", "SpinEditHosszPerc1", "SpinEditSzelPerc1"});
        balraZarva(d, {"RadioGroupIdovalaszto1", "Button_Eletesemenyek1"});
        QCOMPARE(felirat(d, "Név:").left(), hely(d, "RadioGroupIdovalaszto1").left());
        QCOMPARE(hely(d, "RadioGroupIdovalaszto1").left(), jobbTav(d, hely(d, "Button_Megsem1")));
    }

    /// The captions of the personal data end at their fields.
    void aSzemelyiAdatokFeliratai() {
        TFrissAblakok a;
        mutat(a.form2);
        const QWidget& d = a.form2;
        for (const auto& [szoveg, nev] :
             QList<std::pair<const char*, const char*>>{{"Név:", "EditNev1"},
                                                        {"Év:", "SpinEditEv1"},
                                                        {"Óra:", "SpinEditOra1"},
                                                        {"Helység:", "ComboBoxHelyseg1"},
                                                        {"Időzóna (+/K, -/Ny):", "SpinEditIdozona1"},
                                                        {"Nyári idősz. (0/1):", "SpinEditNyariidosz1"}})
            felirataMellette(d, szoveg, nev);
        for (const char* szoveg : {"Év:", "Óra:", "Helység:", "Jegyzet:"})
            QCOMPARE(felirat(d, szoveg).right(), felirat(d, "Név:").right());
        for (const char* szoveg : {"Nyári idősz. (0/1):", "Hosszúság (+/K, -/Ny):", "Szélesség (+/É, -/D):"})
            QCOMPARE(felirat(d, szoveg).right(), felirat(d, "Időzóna (+/K, -/Ny):").right());
        for (const auto* cimke : d.findChildren<QLabel*>())
            QVERIFY2(cimke->alignment() & Qt::AlignRight && cimke->alignment() & Qt::AlignVCenter,
                     qPrintable(cimke->text()));
        QCOMPARE(kozep(felirat(d, "Hosszúság (+/K, -/Ny):")), kozep(hely(d, "SpinEditHosszFok1")));
        QCOMPARE(kozep(felirat(d, "Szélesség (+/É, -/D):")), kozep(hely(d, "SpinEditSzelFok1")));
    }

    void aVisszateresekRacsa() {
        TFrissAblakok a;
        mutat(a.form14);
        const QWidget& d = a.form14;
        egymasAlatt(d, {"Datum_bekero1", "SpinEditEv1", "Edit1", "RadioGroupIdovalaszto1", "ComboBoxHelyseg1",
                        "SpinEditHosszFok1", "SpinEditSzelFok1", "Button_Rendben1"});
        egySor(d, {"SpinEditEv1", "SpinEditHo1", "SpinEditNap1"});
        egySor(d, {"Edit1", "Edit2", "Edit3"});
        egySor(d, {"SpinEditHosszFok1", "SpinEditHosszPerc1"});
        egySor(d, {"SpinEditSzelFok1", "SpinEditSzelPerc1"});
        egySor(d, {"Button_Rendben1", "Button_Megsem1"});
        balraZarva(d, {"Datum_bekero1", "SpinEditEv1", "Edit1", "RadioGroupIdovalaszto1", "Button_Rendben1"});
        for (const char* szoveg : {"Helység:", "Hosszúság (+/K, -/Ny):", "Szélesség (+/É, -/D):"})
            QCOMPARE(felirat(d, szoveg).left(), hely(d, "Button_Rendben1").left());
        balraZarva(d, {"SpinEditHo1", "Edit2", "ComboBoxHelyseg1"});
        balraZarva(d, {"SpinEditNap1", "Edit3", "SpinEditHosszFok1", "SpinEditSzelFok1", "Button_Megsem1"});
        balraZarva(d, {"SpinEditHosszPerc1", "SpinEditSzelPerc1"});
        jobbraZarva(d, {"SpinEditHo1", "Button_Rendben1"});
        jobbraZarva(d, {"SpinEditNap1", "SpinEditHosszFok1", "SpinEditSzelFok1"});
        jobbraZarva(d, {"RadioGroupIdovalaszto1", "ComboBoxHelyseg1", "SpinEditHosszPerc1",
                        "SpinEditSzelPerc1", "Button_Megsem1"});
        felirataMellette(d, "Helység:", "ComboBoxHelyseg1");
        felirataMellette(d, "Hosszúság (+/K, -/Ny):", "SpinEditHosszFok1");
        felirataMellette(d, "Szélesség (+/É, -/D):", "SpinEditSzelFok1");
        // The list under its title, beside all of the fields.
        egymasAlatt(d, {"Label1", "ListBox1"});
        QCOMPARE(hely(d, "Label1").left(), hely(d, "ListBox1").left());
        QVERIFY(hely(d, "ListBox1").right() < hely(d, "Datum_bekero1").left());
        QCOMPARE(hely(d, "ListBox1").bottom(), hely(d, "Button_Megsem1").bottom());
    }

    /// What a higher window has over goes between the fields and the buttons.
    void aVisszateresekMagasAblakban() {
        TFrissAblakok a;
        mutat(a.form14);
        const QWidget& d = a.form14;
        const int mezokKoze = hely(d, "SpinEditSzelFok1").top() - hely(d, "SpinEditHosszFok1").top();
        const int lista = hely(d, "ListBox1").height();
        a.form14.resize(d.width(), d.height() + 200);
        QApplication::processEvents();
        QCOMPARE(hely(d, "SpinEditSzelFok1").top() - hely(d, "SpinEditHosszFok1").top(), mezokKoze);
        QVERIFY(hely(d, "Button_Rendben1").top() - hely(d, "SpinEditSzelFok1").bottom() >= 200);
        QCOMPARE(hely(d, "ListBox1").height(), lista + 200);
    }

    /// A row is seen in full width, and a dozen of them at once.
    void aVisszateresekSoraiElfernek() {
        TFrissAblakok a;
        szuletes(a);
        parbeszedben(a, "Lunar1", [](QWidget& d) {
            auto* lista = vezerlo<QListWidget>(d, "ListBox1");
            QVERIFY(lista->sizeHintForColumn(0) <= lista->viewport()->width());
            QVERIFY(12 * lista->sizeHintForRow(0) <= lista->viewport()->height());
        });
    }

    void aLejatszoGombjai() {
        TFrissAblakok a;
        mutat(a.form5);
        const QWidget& d = a.form5;
        const TNevek gombok{"Lejatszas1", "Szunet1", "Megallitas1"};
        egySor(d, gombok);
        egyenloKozok(d, gombok);
        QCOMPARE(hely(d, "Lejatszas1").left(), 0);
        QCOMPARE(jobbTav(d, hely(d, "Megallitas1")), 0);
        for (const char* gomb : gombok) QVERIFY2(d.rect().contains(hely(d, gomb)), gomb);
    }

    /// Made larger by the user, a dialog opens next time as it was laid out.
    void aParbeszedUjraATervezettMeretben() {
        TFrissAblakok a;
        szuletes(a);
        for (const char* pont : {"Szemely_adatok1", "Szolar1", "Szimbolumok1"}) {
            QSize elso;
            parbeszedben(a, pont, [&](QWidget& d) {
                elso = d.size();
                d.resize(elso + QSize(80, 60));
                QApplication::processEvents();
                QCOMPARE(d.size(), elso + QSize(80, 60));
            });
            parbeszedben(a, pont, [&](QWidget& d) { QCOMPARE(d.size(), elso); });
        }
    }

    void aSzimbolumokRacsa() {
        TFrissAblakok a;
        mutat(a.form9);
        const QWidget& d = a.form9;
        egySor(d, {"Button_Rendben1", "Button_Megsem1"});
        egymasAlatt(d, {"ComboBox1", "Button_Rendben1"});
        balraZarva(d, {"ComboBox1", "Button_Rendben1"});
        jobbraZarva(d, {"ComboBox1", "Button_Megsem1"});
    }

    void aTercierVezerloi() {
        TFrissAblakok a;
        parbeszedben(a, "Tercier1", [](QWidget& d) {
            const TNevek datum{"SpinEditEv1", "SpinEditHo1", "SpinEditNap1"};
            egySor(d, datum);
            egyformak(d, datum);
            for (const auto& [szoveg, nev] :
                 {std::pair("Év:", "SpinEditEv1"), std::pair("Hó:", "SpinEditHo1"),
                  std::pair("Nap:", "SpinEditNap1"), std::pair("Orbis napokban:", "SpinEditOrbis1")})
                felirataMellette(d, szoveg, nev);
            egymasAlatt(d, {"Datum_bekero1", "SpinEditEv1", "SpinEditOrbis1", "Tercier_Direkcio1",
                            "Tercier_Direkcio2", "Button_Rendben1"});
            balraZarva(d, {"Datum_bekero1", "Orbis_napokban1", "Tercier_Direkcio1", "Tercier_Direkcio2"});
            QCOMPARE(felirat(d, "Év:").left(), hely(d, "Datum_bekero1").left());
            jobbraZarva(d, {"Tercier_Direkcio1", "Tercier_Direkcio2"});
            const QRect szoveg = hely(d, "Tercier_Direkcio1");
            QCOMPARE(szoveg.left(), jobbTav(d, szoveg));
            egySor(d, {"Button_Rendben1", "Button_Megsem1"});
            egyformak(d, {"Button_Rendben1", "Button_Megsem1"});
            QCOMPARE(hely(d, "Button_Rendben1").left(), jobbTav(d, hely(d, "Button_Megsem1")));
        });
    }

    void azOrbisokGombjai() {
        TFrissAblakok a;
        parbeszedben(a, "Orbisok1", [](QWidget& d) {
            for (const TNevek& sor :
                 {TNevek{"Button_plusz1", "Button_minusz2"}, TNevek{"Button_vissza3", "Button_vissza4"},
                  TNevek{"Button_Rendben1", "Button_Megsem1"}}) {
                egySor(d, sor);
                egyformak(d, sor);
                balraZarva(d, {sor[0], "Button_Rendben1"});
            }
            egyformak(d, {"Button_vissza3", "Button_Rendben1"});
            balraZarva(d, {"Button_vissza4", "Button_Megsem1"});
            egymasAlatt(d,
                        {"Button_plusz1", "BOrbis_1_1", "BOrbis_12_1", "Button_vissza3", "Button_Rendben1"});
            QCOMPARE(hely(d, "Button_Rendben1").left(), jobbTav(d, hely(d, "Button_Megsem1")));
            QCOMPARE(felirat(d, "Asc").left(), hely(d, "Button_Rendben1").left());
            // The caption of the step that is taken is the larger one, and has room for it.
            const auto* plusz = vezerlo<QPushButton>(d, "Button_plusz1");
            QVERIFY(plusz->fontMetrics().horizontalAdvance("+0.5") < plusz->width());
        });
    }

    void aMundanHazakVezerloi() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Mundnhzaspontosts1");
        const QWidget& d = a.form8;
        const TNevek gombok{"Button1Keresesm", "Button2Keresesp", "Button3Vissza", "Button4Bezar"};
        egySor(d, gombok);
        egyformak(d, gombok);
        egyenloKozok(d, gombok);
        // Centred, to a pixel.
        QVERIFY(qAbs(hely(d, "Button1Keresesm").left() - jobbTav(d, hely(d, "Button4Bezar"))) <= 1);
        for (const char* gomb : gombok) {
            const auto* g = vezerlo<QPushButton>(d, gomb);
            QVERIFY2(g->fontMetrics().horizontalAdvance(g->text()) < g->width(), gomb);
        }
        egymasAlatt(d, {"Label3szoveg1", "Label4szoveg2", "Button1Keresesm", "BMundan1", "BMundan7",
                        "Label1Haz", "LMundan_1_1"});
        egymasAlatt(d, {"LMundan_15_1", "Label2Rendben"});
        QVERIFY(d.rect().contains(hely(d, "Label2Rendben")));
    }

    /// The verdict in two lines over the whole window, each in its middle; the longest of them fits.
    void aMundanHazakItelete() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Mundnhzaspontosts1");
        for (const char* nev : {"Label3szoveg1", "Label4szoveg2"}) {
            const auto* sor = vezerlo<QLabel>(a.form8, nev);
            QCOMPARE(sor->alignment(), Qt::Alignment(Qt::AlignCenter));
            QCOMPARE(sor->x(), 0);
            QCOMPARE(sor->width(), a.form8.width());
            QCOMPARE(sor->font(), vezerlo<QLabel>(a.form8, "Label3szoveg1")->font());
            QVERIFY(sor->fontMetrics().height() <= sor->height());
            QVERIFY(sor->fontMetrics().horizontalAdvance("Egyik tengely sem egyezik dekádban!") <
                    sor->width());
        }
    }

    void aMundanHazakCime() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Mundnhzaspontosts1");
        for (const char* nev : {"Label1Haz", "Label2Rendben"}) {
            const auto* sor = vezerlo<QLabel>(a.form8, nev);
            QCOMPARE(sor->font().family(), "Ariel");
            QCOMPARE(sor->font().pointSize(), 13);
            QVERIFY(sor->fontMetrics().horizontalAdvance("VII. Házak") <= sor->width());
            QVERIFY(sor->fontMetrics().horizontalAdvance("Rendben ") <= sor->width());
        }
        for (int haz = 1; haz <= 12; ++haz) {
            const auto* gomb =
                vezerlo<QPushButton>(a.form8, qPrintable(QStringLiteral("BMundan%1").arg(haz)));
            QCOMPARE(gomb->font().family(), "Ariel");
            QVERIFY(gomb->isVisible());
        }
        // Values longer than a label widen it: none is cut.
        for (int haz = 1; haz <= 12; ++haz) {
            kattint(a.form8, qPrintable(QStringLiteral("BMundan%1").arg(haz)));
            for (const auto* ertek : a.form8.findChildren<QLabel*>()) {
                QVERIFY(ertek->isVisible());
                QVERIFY2(ertek->text().trimmed().isEmpty() || ertek->sizeHint().width() <= ertek->width(),
                         qPrintable(ertek->objectName()));
            }
        }
    }

    void azEletesemenyekListaja() {
        TFrissAblakok a;
        mutat(a.form10);
        const QWidget& d = a.form10;
        const auto cella = [&](int sor, int oszlop) {
            return hely(d, qPrintable(QStringLiteral("LEletes_%1_%2").arg(sor).arg(oszlop)));
        };
        for (int sor = 1; sor <= 20; ++sor) {
            // The columns touch, the last one ends at the window's edge; the rows touch too.
            for (int oszlop = 2; oszlop <= 15; ++oszlop)
                QCOMPARE(cella(sor, oszlop).left(), cella(sor, oszlop - 1).right() + 1);
            QCOMPARE(jobbTav(d, cella(sor, 15)), 0);
            for (int oszlop = 1; oszlop <= 15; ++oszlop) {
                QCOMPARE(cella(sor, oszlop).height(), cella(1, 1).height());
                QCOMPARE(cella(sor, oszlop).top(), cella(1, 1).top() + (sor - 1) * cella(1, 1).height());
            }
        }
        QVERIFY(cella(1, 1).height() >= QFontMetrics(d.font()).height());
        QVERIFY(cella(20, 1).bottom() < hely(d, "Edit_Eletesemenyek1").top());
    }

    void azEletesemenyekFejei() {
        TFrissAblakok a;
        mutat(a.form10);
        int fejek = 0;
        for (const auto* cimke : a.form10.findChildren<QLabel*>()) {
            const QRect r = hely(a.form10, *cimke);
            if (cimke->text().isEmpty() || r.bottom() >= hely(a.form10, "Edit_Eletesemenyek1").top())
                continue;
            ++fejek;
            QCOMPARE(r.top(), hely(a.form10, *a.form10.findChild<QLabel*>()).top());
            QVERIFY(r.bottom() < hely(a.form10, "LEletes_1_1").top());
        }
        QCOMPARE(fejek, 5);
    }

    void azEletesemenyekMezoi() {
        TFrissAblakok a;
        mutat(a.form10);
        const QWidget& d = a.form10;
        const TNevek masodik{"SpinEditEv1",   "SpinEditHo1",    "SpinEditNap1",     "SpinEditOra1",
                             "SpinEditPerc1", "SpinEditMperc1", "SpinEditIdozona1", "SpinEditNyariidosz1"};
        egySor(d, {"Edit_Eletesemenyek1", "Edit_Hazanalogiak1"});
        egySor(d, masodik);
        egySor(d, {"ComboBoxHelyseg1", "SpinEditHosszFok1", "SpinEditHosszPerc1", "SpinEditSzelFok1",
                   "SpinEditSzelPerc1", "LabelSolarNap1"});
        egymasAlatt(d, {"Edit_Eletesemenyek1", "SpinEditEv1", "ComboBoxHelyseg1", "Button_Rendben1"});
        // Numbers of two figures have fields of one size.
        egyformak(d, {"SpinEditHo1", "SpinEditNap1", "SpinEditOra1", "SpinEditPerc1", "SpinEditMperc1",
                      "SpinEditIdozona1", "SpinEditNyariidosz1", "SpinEditHosszPerc1", "SpinEditSzelPerc1"});
        for (const char* nev :
             {"Edit_Eletesemenyek1", "Edit_Hazanalogiak1", "SpinEditEv1", "ComboBoxHelyseg1",
              "SpinEditHosszFok1", "SpinEditSzelFok1", "LabelSolarNap1"})
            QCOMPARE(hely(d, nev).height(), hely(d, "SpinEditHo1").height());
        // Three rows at one distance; the edges of the outer fields in one line.
        QCOMPARE(hely(d, "ComboBoxHelyseg1").top() - hely(d, "SpinEditEv1").top(),
                 hely(d, "SpinEditEv1").top() - hely(d, "Edit_Eletesemenyek1").top());
        jobbraZarva(d, {"Edit_Eletesemenyek1", "ComboBoxHelyseg1"});
        jobbraZarva(d, {"Edit_Hazanalogiak1", "SpinEditNyariidosz1", "LabelSolarNap1", "Button_Megsem2"});
        // Degrees and minutes are a pair each.
        QCOMPARE(hely(d, "SpinEditHosszPerc1").left() - hely(d, "SpinEditHosszFok1").right(),
                 hely(d, "SpinEditSzelPerc1").left() - hely(d, "SpinEditSzelFok1").right());
        QVERIFY(d.rect().contains(hely(d, "LabelSolarNap1")));
        // The fields do not move with the house that is shown.
        auto* solarNap = vezerlo<QLabel>(d, "LabelSolarNap1");
        const QRect szelPerc = hely(d, "SpinEditSzelPerc1");
        for (const char* haz : {"", "I", "VII", "12"}) {
            solarNap->setText(haz);
            QApplication::processEvents();
            QCOMPARE(hely(d, "SpinEditSzelPerc1"), szelPerc);
            QVERIFY(solarNap->sizeHint().width() <= solarNap->width());
        }
    }

    void azEletesemenyekFelirataiEsGombjai() {
        TFrissAblakok a;
        mutat(a.form10);
        const QWidget& d = a.form10;
        const QList<std::pair<const char*, const char*>> feliratok{
            {"Életesemény:", "Edit_Eletesemenyek1"},
            {"Házanalógiák:", "Edit_Hazanalogiak1"},
            {"Év:", "SpinEditEv1"},
            {"Hó:", "SpinEditHo1"},
            {"Nap:", "SpinEditNap1"},
            {"Óra:", "SpinEditOra1"},
            {"Perc:", "SpinEditPerc1"},
            {"Mp:", "SpinEditMperc1"},
            {"Időzóna:", "SpinEditIdozona1"},
            {"Nyári id.:", "SpinEditNyariidosz1"},
            {"Solar-évforduló helye:", "ComboBoxHelyseg1"},
            {"Hossz.:", "SpinEditHosszFok1"},
            {"Szél.:", "SpinEditSzelFok1"},
            {"Solar-Nap:", "LabelSolarNap1"}};
        for (const auto& [szoveg, nev] : feliratok) felirataSzorosanMellette(d, szoveg, nev);
        // The first of each row begins where the list does.
        balraZarva(d, {"LEletes_1_1", "Button_Rendben1"});
        for (const char* szoveg : {"Életesemény:", "Év:", "Solar-évforduló helye:"})
            QCOMPARE(felirat(d, szoveg).left(), hely(d, "LEletes_1_1").left());
        egySor(d, {"Button_Rendben1", "Button_Torol1", "Button_Rendben2", "Button_Megsem2"});
        egyformak(d, {"Button_Rendben1", "Button_Torol1", "Button_Megsem2"});
        const auto koz = [&](const char* bal, const char* jobb) {
            return hely(d, jobb).left() - hely(d, bal).right();
        };
        QCOMPARE(koz("Button_Rendben1", "Button_Torol1"), koz("Button_Rendben2", "Button_Megsem2"));
        QVERIFY(hely(d, "Button_Rendben1").bottom() < d.height());
        for (const char* nev : {"Button_Rendben1", "Button_Torol1", "Button_Rendben2", "Button_Megsem2"}) {
            const auto* gomb = vezerlo<QPushButton>(d, nev);
            QVERIFY2(gomb->fontMetrics().horizontalAdvance(gomb->text()) < gomb->width(), nev);
        }
    }

    /// The small letters are for the captions, the fields and the list alike.
    void azEletesemenyekBetui() {
        TFrissAblakok a;
        mutat(a.form10);
        for (const char* nev : {"LEletes_1_1", "LEletes_20_15", "Edit_Eletesemenyek1", "SpinEditEv1",
                                "ComboBoxHelyseg1", "Button_Torol1"}) {
            const QFont betu = vezerlo<QWidget>(a.form10, nev)->font();
            QCOMPARE(betu.family(), "Ariel");
            QCOMPARE(betu.pixelSize(), a.form10.font().pixelSize());
        }
        // A date's minutes fit in the column whose width is given: two figures and a colon.
        QVERIFY(QFontMetrics(a.form10.font()).horizontalAdvance("1999.") <= 318 - 290);
    }

    void aPrimerVezerloi() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        vezerlo<QLabel>(a.form12, "LabelVege1")->show();  // as a full list does
        QApplication::processEvents();
        const QWidget& d = a.form12;
        egySor(d, {"SpinEditEv1", "SpinEditHo1", "SpinEditNap1", "Button_Rendben1", "Button_Megsem1"});
        egyformak(d, {"SpinEditEv1", "SpinEditHo1", "SpinEditNap1"});
        egyformak(d, {"Button_Rendben1", "Button_Megsem1"});
        for (const auto& [szoveg, nev] : {std::pair("Kezdő év:", "SpinEditEv1"),
                                          std::pair("hó:", "SpinEditHo1"), std::pair("nap:", "SpinEditNap1")})
            felirataSzorosanMellette(d, szoveg, nev);
        egymasAlatt(d, {"SpinEditEv1", "Label8", "Memo1", "Button_Pontositas1"});
        egymasAlatt(d, {"Memo1", "LabelVege1"});
        QCOMPARE(felirat(d, "Kezdő év:").left(), jobbTav(d, hely(d, "Button_Megsem1")));
        jobbraZarva(d, {"Button_Megsem1", "Button_Pontositas1"});
        QCOMPARE(hely(d, "Button_Pontositas1").height(), hely(d, "Button_Megsem1").height());
        // It keeps its width also where nothing stands before it.
        const QRect pontositas = hely(d, "Button_Pontositas1");
        vezerlo<QLabel>(a.form12, "LabelVege1")->hide();
        QApplication::processEvents();
        QCOMPARE(hely(d, "Button_Pontositas1"), pontositas);
        vezerlo<QLabel>(a.form12, "LabelVege1")->show();
        QApplication::processEvents();
        balraZarva(d, {"Memo1", "LabelVege1"});
        QCOMPARE(hely(d, "Memo1").left(), jobbTav(d, hely(d, "Memo1")));
        for (const char* fej : {"dMC:", "cMC:", "dAsc:", "cAsc:"})
            QCOMPARE(felirat(d, fej).top(), hely(d, "Label8").top());
        QVERIFY(hely(d, "Button_Pontositas1").bottom() < d.height());
        // As many lines as there can be are seen at once.
        const auto* memo = vezerlo<QPlainTextEdit>(d, "Memo1");
        QVERIFY(memo->fontMetrics().height() * 22 <= memo->viewport()->height());
        QCOMPARE(memo->lineWrapMode(), QPlainTextEdit::NoWrap);
        QVERIFY(memo->isReadOnly());
        QVERIFY(d.minimumSize() == d.maximumSize());
    }

    void aPontositasVezerloi() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        QWidget& d = a.form13;
        QApplication::processEvents();
        jobbraZarva(d, {"Memo2", "Button_Eletesemenyek1"});  // in the first width
        for (const QSize& meret : {QSize(369, 430), QSize(722, 430), QSize(900, 600), QSize(1, 1)}) {
            d.resize(meret);
            QApplication::processEvents();
            const TNevek gombok{"Button_Rendben1", "Button_Megsem1", "Button_Eletesemenyek1"};
            egySor(d, gombok);
            egyformak(d, gombok);
            egyenloKozok(d, gombok);
            balraZarva(d, {"Memo1", "Label1", "Button_Rendben1"});
            QVERIFY(jobbTav(d, hely(d, "Button_Eletesemenyek1")) >= hely(d, "Button_Rendben1").left());
            egySor(d, {"Memo1", "Memo2", "Memo3"});
            QCOMPARE(hely(d, "Memo2").height(), hely(d, "Memo1").height());
            egymasAlatt(d, {"SpinEdit1", "Label2", "Memo1", "Button_Rendben1"});
            QVERIFY(d.rect().contains(hely(d, "Button_Eletesemenyek1")));
            QVERIFY(d.rect().contains(hely(d, "Memo2")));
            // The same room under the lists whatever the height, and lines to be seen in them.
            const int alul = d.height() - hely(d, "Memo1").bottom();
            QVERIFY(alul > hely(d, "Button_Rendben1").height());
            QVERIFY(alul < 2 * hely(d, "Button_Rendben1").height());
            QCOMPARE(hely(d, "Button_Rendben1").top() - hely(d, "Memo1").bottom(),
                     d.height() - hely(d, "Button_Rendben1").bottom());
            const auto* memo = vezerlo<QPlainTextEdit>(d, "Memo1");
            QVERIFY(memo->viewport()->height() > 3 * memo->fontMetrics().height());
        }
        QVERIFY(d.width() < 722);  // as narrow as it can be made
        felirataSzorosanMellette(d, "Direkciós hatótávolság:   0,", "SpinEdit1");
        d.resize(1200, 430);
        QApplication::processEvents();
        QCOMPARE(jobbTav(d, hely(d, "Memo3")), hely(d, "Memo1").left());
    }

    /// The four heads over the second list, at equal distances.
    void aPontositasFejei() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        QApplication::processEvents();
        const QWidget& d = a.form13;
        const int koz = hely(d, "Label3").left() - hely(d, "Label2").left();
        for (int n = 3; n <= 5; ++n) {
            const QRect elozo = hely(d, qPrintable(QStringLiteral("Label%1").arg(n - 1)));
            const QRect ez = hely(d, qPrintable(QStringLiteral("Label%1").arg(n)));
            QCOMPARE(ez.left() - elozo.left(), koz);
            QCOMPARE(ez.top(), elozo.top());
            QVERIFY(ez.left() > elozo.right());
        }
        QVERIFY(hely(d, "Label2").left() > hely(d, "Memo2").left());
        QVERIFY(hely(d, "Label5").right() < hely(d, "Memo2").right());
    }

    /// The controls of the analysis, if they were shown: in the row of the reach, beside it.
    void aPontositasRejtettSora() {
        TFrissAblakok a;
        const QWidget& d = a.form13;
        const TNevek gombok{"Button_Elemzes1", "Button_Elemzesp1", "Button_Elemzesm2"};
        for (const char* nev : gombok + TNevek{"Label6"}) vezerlo<QWidget>(d, nev)->show();
        mutat(a.form13);
        egySor(d, {"SpinEdit1", "Button_Elemzes1", "Button_Elemzesp1", "Button_Elemzesm2"});
        egySor(d, {"SpinEdit1", "Label6", "Button_Elemzes1"});
        egyformak(d, gombok);
        egyenloKozok(d, gombok);
        QVERIFY(d.rect().contains(hely(d, "Button_Elemzesm2")));
    }

    /// From one dialog to the next the buttons and the fields are of one height, whatever their widths.
    void aGombokEsAMezokMindenuttEgyMagasak() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        a.form8.megmutat();
        const int gomb = hely(a.form12, "Button_Rendben1").height();
        const int mezo = hely(a.form12, "SpinEditEv1").height();
        const auto egyMagas = [](const QWidget& ablak, const TNevek& nevek, int magassag) {
            for (const char* nev : nevek) QVERIFY2(hely(ablak, nev).height() == magassag, nev);
        };
        egyMagas(a.form12, {"Button_Rendben1", "Button_Megsem1", "Button_Pontositas1"}, gomb);
        egyMagas(a.form12, {"SpinEditEv1", "SpinEditHo1", "SpinEditNap1"}, mezo);
        egyMagas(a.form13, {"Button_Rendben1", "Button_Megsem1", "Button_Eletesemenyek1"}, gomb);
        egyMagas(a.form13, {"SpinEdit1"}, mezo);
        egyMagas(a.form8, {"Button1Keresesm", "Button2Keresesp", "Button3Vissza", "Button4Bezar"}, gomb);
        parbeszedben(a, "Tercier1", [&](QWidget& d) {
            egyMagas(d, {"Button_Rendben1", "Button_Megsem1"}, gomb);
            egyMagas(d, {"SpinEditEv1", "SpinEditHo1", "SpinEditNap1", "SpinEditOrbis1"}, mezo);
        });
        parbeszedben(a, "Orbisok1", [&](QWidget& d) {
            egyMagas(d, {"Button_vissza3", "Button_vissza4", "Button_Rendben1", "Button_Megsem1"}, gomb);
        });
    }

    void aPanelGombjaiEgymasAlatt() {
        TFrissAblakok a;
        const QWidget& panel = *vezerlo<QFrame>(a.form1, "Panel1");
        const TNevek gombok{"PanelButton2_Most", "PanelButton3_Valt", "PanelButton4Leptet",
                            "PanelButton5Orbis", "PanelButton6MHP",   "PanelButton7Tercier"};
        egyformak(panel, gombok);
        QCOMPARE(hely(panel, gombok[0]).topLeft(), QPoint(0, 0));
        for (qsizetype i = 0; i < gombok.size(); ++i) {
            const QRect r = hely(panel, gombok[i]);
            QCOMPARE(r.left(), 0);
            QCOMPARE(r.width(), panel.width());
            QCOMPARE(r.top(), i * r.height());
            const auto* gomb = vezerlo<QPushButton>(panel, gombok[i]);
            QVERIFY2(gomb->fontMetrics().horizontalAdvance(gomb->text()) < gomb->width(), gombok[i]);
            QCOMPARE(gomb->focusPolicy(), Qt::NoFocus);
        }
        QCOMPARE(panel.height(), vezerlo<QWidget>(a.form1, "Felulet")->height());
        QCOMPARE(panel.pos(), QPoint(0, 0));
    }

    /// Sixteen rows alike: two glyphs beside each other, the position beneath, nearer to them than the next
    /// row is.
    void aPanelSorai() {
        TFrissAblakok a;
        const QWidget& panel = *vezerlo<QFrame>(a.form1, "Panel1");
        const auto cimkeje = [&](int sor, int n) {
            return hely(panel, qPrintable(QStringLiteral("Label%1").arg(3 * sor + n)));
        };
        const int tav = cimkeje(1, 1).top() - cimkeje(0, 1).top();
        for (int sor = 0; sor < 16; ++sor) {
            const QRect bal = cimkeje(sor, 1);
            const QRect jobb = cimkeje(sor, 2);
            const QRect szoveg = cimkeje(sor, 3);
            QCOMPARE(bal.top(), cimkeje(0, 1).top() + sor * tav);
            QCOMPARE(jobb.top(), bal.top());
            QCOMPARE(jobb.height(), bal.height());
            QCOMPARE(bal.left(), 0);
            QCOMPARE(jobb.left(), bal.right() + 1);
            QCOMPARE(jobb.right(), panel.width() - 1);
            QVERIFY(qAbs(jobb.width() - bal.width()) <= 1);
            QCOMPARE(szoveg.left(), 0);
            QCOMPARE(szoveg.width(), panel.width());
            QCOMPARE(szoveg.top() - bal.top(), cimkeje(0, 3).top() - cimkeje(0, 1).top());
            QCOMPARE(szoveg.height(), cimkeje(0, 3).height());
            QVERIFY(szoveg.top() > bal.top() && szoveg.top() <= bal.bottom() + 1);
            QVERIFY(szoveg.bottom() < bal.top() + tav - 1);
        }
        QVERIFY(cimkeje(0, 1).top() > hely(panel, "PanelButton7Tercier").bottom());
        QVERIFY(cimkeje(15, 3).bottom() < hely(panel, "Memo1").top());
        QVERIFY(cimkeje(0, 1).top() >= 144);  // where the large note begins
        for (int n = 1; n <= 48; ++n)
            QCOMPARE(vezerlo<QLabel>(panel, qPrintable(QStringLiteral("Label%1").arg(n)))->alignment(),
                     Qt::Alignment(Qt::AlignCenter));
    }

    /// Wide enough, each panel has its own width and the last one what is left; narrower, they shrink alike.
    void aStatuszsorPaneljei() {
        constexpr std::array tervezett{48, 90, 150, 135, 150, 90};
        TFrissAblakok a;
        const auto szelesseg = [&](std::size_t i) {
            return vezerlo<QLabel>(a.form1, qPrintable(QStringLiteral("StatusBar1Panel%1").arg(i)))->width();
        };
        a.form1.resize(995, 717);
        QApplication::processEvents();
        for (std::size_t i = 0; i < tervezett.size(); ++i) QCOMPARE(szelesseg(i), tervezett[i]);
        QVERIFY(szelesseg(6) > 995 - 663 - 50 && szelesseg(6) < 995 - 663);
        a.form1.resize(450, 717);
        QApplication::processEvents();
        if (a.form1.width() != 450) QSKIP("the window system allows no window so narrow");
        for (std::size_t i = 0; i < tervezett.size(); ++i) {
            const double arany = szelesseg(i) * 150.0 / tervezett[i];
            QVERIFY2(qAbs(arany - szelesseg(2)) < 0.1 * szelesseg(2), qPrintable(QString::number(i)));
        }
        QVERIFY(szelesseg(2) < 150);
        QVERIFY(szelesseg(6) < 10);
    }
};

QTEST_MAIN(ElrendezesTeszt)
#include "elrendezes_teszt.moc"
