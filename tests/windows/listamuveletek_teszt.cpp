// The lists as readable text: copied, saved, printed.

#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "listateszt.h"
#include "predictive/olvashato.h"
#include "probaparbeszed.h"
#include "rectify/analogiaszoveg.h"

namespace {

const QStringList menuPontok{"Másolás szövegként", "Mentés szövegként…", "Nyomtatás…"};

QString vagolap() {
    return QApplication::clipboard()->text();
}

QByteArray fajlTartalom(const QString& fajl) {
    QFile be(fajl);
    return be.open(QIODevice::ReadOnly) ? be.readAll() : QByteArray();
}

/// What a program writes to its output.
QString kimenet(const QString& program, const QStringList& argumentumok) {
    QProcess folyamat;
    folyamat.start(program, argumentumok);
    if (!folyamat.waitForFinished() || folyamat.exitCode() != 0) qFatal("cannot run %s", qPrintable(program));
    return QString::fromUtf8(folyamat.readAllStandardOutput());
}

/// The text of a PDF, its blanks and line ends as one blank each.
QString pdfSzoveg(const QString& fajl) {
    return kimenet("pdftotext", {"-layout", fajl, "-"}).simplified();
}

QStringList olvashatoPrimer(TFrissAblakok& a) {
    QStringList lista;
    for (const QString& sor : sorok(a.form12, "Memo1"))
        lista << QString::fromStdString(OlvashatoPrimer(sor.toStdString()));
    return lista;
}

QStringList hazSorai(TFrissAblakok& a, int haz) {
    const TMundanErtekeles e = MundanErtekeles(a.allapot(), MundanHely(a.allapot().Keplet));
    QStringList lista;
    for (const std::string& sor : haz == 0 ? MindenAnalogiaOlvashato(e) : AnalogiaOlvashato(e, haz))
        lista << QString::fromStdString(sor);
    return lista;
}

void primerLista(TFrissAblakok& a) {
    menu(a.form1, "Primer1");
    kattint(a.form12, "Button_Rendben1");
    QApplication::processEvents();
}

/// The dialogs answered, and a folder for what is written.
struct TKimenet {
    explicit TKimenet(TFrissAblakok& a) {
        a.form1.parbeszedBeallitasa(p);
        p.nyomtatas = [this](QPrinter& nyomtato) {
            nyomtato.setOutputFormat(QPrinter::PdfFormat);
            nyomtato.setOutputFileName(p.fajl);
        };
    }
    void ide(const char* nev) {
        p.fajl = mappa.filePath(nev);
        p.kerdesek.clear();
    }
    TProbaParbeszed p;
    QTemporaryDir mappa;
};

}  // namespace

class ListaMuveletekTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }
    void init() { QApplication::clipboard()->setText("semmi"); }

    void aCtrlCNevekkelMasolja() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        primerLista(a);
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        QVERIFY(sorok(a.form12, "Memo1").size() > 10);
        for (int kor = 0; kor < 2; ++kor) {
            QApplication::clipboard()->setText("semmi");
            memo->setFocus();
            QTest::keyClick(memo, Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(vagolap(), olvashatoPrimer(a).join('\n'));
            const QRegularExpression minta(
                "^\\d{4}\\.\\d\\d\\.\\d\\d\\.  Solar-Nap: [\\dIVX]+  (dMC|cMC|dAsc|cAsc): "
                "(Nap|Hold|Merkúr|Vénusz|Mars|Jupiter|Szaturnusz|Uránusz|Neptun|Plutó) "
                "(együttállás|szembenállás|\\d+°)");
            for (const QString& sor : vagolap().split('\n'))
                QVERIFY2(minta.match(sor).hasMatch(), qPrintable(sor));

            sorokKijelolese(*memo, 2, 4);
            QTest::keyClick(memo, Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(vagolap(), olvashatoPrimer(a).mid(2, 3).join('\n'));
            QTest::mouseClick(memo->viewport(), Qt::LeftButton);  // nothing is selected again
            kattint(a.form7, "Button7orap");
            QTest::qWait(tobbOrajel);
        }
    }

    void aKijelolesVegenAzErintettSorNemJonVele() {
        TFrissAblakok a;
        szuletes(a);
        primerLista(a);
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        QTextCursor kurzor(memo->document()->findBlockByNumber(1));
        kurzor.movePosition(QTextCursor::NextBlock,
                            QTextCursor::KeepAnchor);  // to the start of the next line
        memo->setTextCursor(kurzor);
        memo->setFocus();
        QTest::keyClick(memo, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(vagolap(), olvashatoPrimer(a).value(1));
    }

    void aPontositasHaromListaja() {
        TFrissAblakok a;
        a.oraIndul();
        esemenyesKeplet(a);
        for (int kor = 0; kor < 2; ++kor) {
            pontositas(a);
            for (const char* nev : {"Memo1", "Memo2", "Memo3"}) {
                auto* memo = vezerlo<QPlainTextEdit>(a.form13, nev);
                a.form13.resize(900, 430);
                QApplication::processEvents();
                helyiMenu(*memo->viewport(), {20, 10}, [](QMenu& menu) {
                    QCOMPARE(pontok(menu), menuPontok);
                    pontraKattint(menu, "Másolás szövegként");
                });
                const QStringList lista = sorok(a.form13, nev);
                QCOMPARE(lista.size(), 3);
                const QStringList masolt = vagolap().split('\n');
                QCOMPARE(masolt.size(), 3);
                for (int n = 0; n < 3; ++n) {
                    const std::string sor = lista[n].toStdString();
                    QCOMPARE(masolt[n].toStdString(), nev[4] == '1'   ? sor
                                                      : nev[4] == '2' ? OlvashatoTalalatok(n + 1, sor)
                                                                      : OlvashatoIdok(sor));
                }
            }
            QVERIFY(sorok(a.form13, "Memo1")[1].endsWith("Őrbottyánba, új lakásba"));
            kattint(a.form13, "Button_Megsem1");
            kattint(a.form12, "Button_Megsem1");
        }
    }

    void aVisszateresekListaja() {
        TFrissAblakok a;
        TKimenet ki(a);
        a.oraIndul();
        szuletes(a);
        for (int kor = 0; kor < 2; ++kor) {
            valasz([&ki](QWidget& d) {
                auto* lista = vezerlo<QListWidget>(d, "ListBox1");
                const auto kattintas = [&](int sor, Qt::KeyboardModifiers mod) {
                    QTest::mouseClick(lista->viewport(), Qt::LeftButton, mod,
                                      lista->visualItemRect(lista->item(sor)).center());
                };
                kattintas(1, {});
                kattintas(3, Qt::ShiftModifier);
                QTest::keyClick(lista, Qt::Key_C, Qt::ControlModifier);
                QStringList vart;
                for (int n = 1; n <= 3; ++n) vart << lista->item(n)->text();
                QCOMPARE(vagolap().split('\n'), vart);
                QTest::keyClick(lista, Qt::Key_A, Qt::ControlModifier);
                helyiMenu(*lista->viewport(), {20, 10}, [](QMenu& menu) {
                    for (const QString& pont : menuPontok) QVERIFY(pontok(menu).contains(pont));
                    pontraKattint(menu, "Másolás szövegként");
                });
                QCOMPARE(vagolap().split('\n').size(), lista->count());
                QVERIFY(vagolap().startsWith("1975.07.21. 05:04:09 GMT\n1976."));
                // Picked one by one, they come in the list's order.
                kattintas(6, {});
                kattintas(2, Qt::ControlModifier);
                kattintas(4, Qt::ControlModifier);
                QTest::keyClick(lista, Qt::Key_C, Qt::ControlModifier);
                QCOMPARE(vagolap().split('\n'), QStringList({lista->item(2)->text(), lista->item(4)->text(),
                                                             lista->item(6)->text()}));
                // The list is the birth's, also over a derived chart.
                ki.ide("szolar.txt");
                helyiMenuPont(*lista->viewport(), "Mentés szövegként…");
                QCOMPARE(ki.p.kerdesek.value(1), "Szolár – Minta Anna, 1975.07.21. 06-04-09.txt");
                // One row is taken, whatever is selected.
                kattintas(3, {});
                kattintas(5, Qt::ShiftModifier);
                kattint(d, "Button_Rendben1");
            });
            menu(a.form1, "Szolar1");
            QCOMPARE(a.allapot().Keplet.pillanat.ev, 1980);
        }
    }

    void aDatumosKeresesSzovege() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        for (int kor = 0; kor < 2; ++kor) {
            for (const bool tercier : {true, false}) {
                valasz([&](QWidget& d) {
                    auto* jelek = vezerlo<QLabel>(d, "Tercier_Direkcio2");
                    auto* ev = vezerlo<QSpinBox>(d, "SpinEditEv1");
                    for (int n = 1990; n < 2060 && (jelek->text().isEmpty() || n == 1990); ++n)
                        gepel(d, "SpinEditEv1", qPrintable(QString::number(n)));
                    QVERIFY(!jelek->text().isEmpty());
                    helyiMenu(*jelek, {20, 10}, [](QMenu& menu) {
                        QCOMPARE(pontok(menu), menuPontok);
                        pontraKattint(menu, "Másolás szövegként");
                    });
                    const TPillanat datum{
                        ev->value(), ertek(d, "SpinEditHo1"), ertek(d, "SpinEditNap1"), 0, 0, 0};
                    const QString vart =
                        QString::fromStdString(OlvashatoDatumos(datum, jelek->text().toStdString(), tercier));
                    QCOMPARE(vagolap(), vart);
                    QVERIFY(vart.contains("együttállás") || vart.contains("szembenállás"));
                    QApplication::clipboard()->setText("semmi");
                    QTest::mouseClick(jelek, Qt::LeftButton);
                    QTest::keyClick(jelek, Qt::Key_C, Qt::ControlModifier);
                    QCOMPARE(vagolap(), vart);
                    kattint(d, "Button_Rendben1");
                });
                menu(a.form1, tercier ? "Tercier1" : "Szolaringresszio11");
            }
        }
    }

    void aMundanHazEsMindenHaz() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        for (int kor = 0; kor < 2; ++kor) {
            menu(a.form1, "Mundnhzaspontosts1");
            QTest::qWait(tobbOrajel);
            kattint(a.form8, "BMundan8");
            auto* cimke = vezerlo<QLabel>(a.form8, "LMundan_2_2");
            helyiMenu(*cimke, {5, 5}, [](QMenu& menu) {
                QCOMPARE(pontok(menu), menuPontok + QStringList{"Minden ház"});
                pontraKattint(menu, "Másolás szövegként");
            });
            QCOMPARE(vagolap().split('\n'), hazSorai(a, 8));
            QVERIFY(vagolap().contains("\n8-es Mundánház: Skorpió\nHáz ura: Mars; Plutó\n"));
            helyiMenu(*cimke, {5, 5}, [](QMenu& menu) {
                pontraKattint(menu, "Minden ház");
                auto* almenu = menu.actions().last()->menu();
                QTRY_VERIFY(almenu->isVisible());
                QCOMPARE(pontok(*almenu), menuPontok);
                pontraKattint(*almenu, "Másolás szövegként");
            });
            QCOMPARE(vagolap().split('\n'), hazSorai(a, 0));
            QVERIFY(vagolap().contains("\n12-es Mundánház: Halak\n"));
            kattint(a.form8, "BMundan5");
            QTest::keyClick(&a.form8, Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(vagolap().split('\n'), hazSorai(a, 5));
            kattint(a.form8, "Button4Bezar");
        }
    }

    void azUresListanNincsMitMasolni() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        QApplication::processEvents();
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        const QStringList tiltott{"(Másolás szövegként)", "(Mentés szövegként…)", "(Nyomtatás…)"};
        helyiMenu(*memo->viewport(), {20, 10}, [&](QMenu& menu) { QCOMPARE(pontok(menu), tiltott); });
        memo->setFocus();
        QTest::keyClick(memo, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(vagolap(), "semmi");
        kattint(a.form12, "Button_Rendben1");
        helyiMenu(*memo->viewport(), {20, 10}, [&](QMenu& menu) { QCOMPARE(pontok(menu), menuPontok); });
    }

    void aMentesCimmelEsUtf8Szoveggel() {
        TFrissAblakok a;
        TKimenet ki(a);
        a.oraIndul();
        szuletes(a);
        primerLista(a);
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        for (const char* nev : {"elso.txt", "masodik.txt"}) {
            ki.ide(nev);
            sorokKijelolese(*memo, 2, 4);  // a file holds the whole list
            helyiMenuPont(*memo->viewport(), "Mentés szövegként…");
            QCOMPARE(ki.p.kerdesek, QStringList({"Szövegfájl (*.txt)",
                                                 "Primer direkció – Minta Anna, 1975.07.21. 06-04-09.txt"}));
            const QString vart = "Primer direkció – Minta Anna, 1975.07.21. 06:04:09\n\n" +
                                 olvashatoPrimer(a).join('\n') + '\n';
            QCOMPARE(QString::fromUtf8(fajlTartalom(ki.p.fajl)), vart);
            QVERIFY(fajlTartalom(ki.p.fajl).contains("direkci\xC3\xB3"));
        }
        // Cancelled, and where nothing can be written.
        ki.p.fajl.clear();
        helyiMenuPont(*memo->viewport(), "Mentés szövegként…");
        QCOMPARE(ki.p.uzenetek, QStringList());
        ki.ide("nincs/ilyen.txt");
        helyiMenuPont(*memo->viewport(), "Mentés szövegként…");
        QCOMPARE(ki.p.uzenetek, QStringList({"A fájl nem írható:\n" + ki.p.fajl}));
    }

    void aNevbolSosemLeszUt() {
        TFrissAblakok a;
        TKimenet ki(a);
        szuletes(a);
        a.allapot().Szemely.nev = "../Kiss/Nagy";
        primerLista(a);
        ki.ide("x.txt");
        helyiMenuPont(*vezerlo<QPlainTextEdit>(a.form12, "Memo1")->viewport(), "Mentés szövegként…");
        QCOMPARE(ki.p.kerdesek.last(), "Primer direkció – ..-Kiss-Nagy, 1975.07.21. 06-04-09.txt");
        QVERIFY(QFileInfo::exists(ki.p.fajl));
    }

    void aNyomtatasCimmelANevekkel() {
        TFrissAblakok a;
        TKimenet ki(a);
        a.oraIndul();
        esemenyesKeplet(a);
        pontositas(a);
        a.form13.resize(900, 430);
        for (const char* nev : {"elso.pdf", "masodik.pdf"}) {
            ki.ide(nev);
            helyiMenuPont(*vezerlo<QPlainTextEdit>(a.form13, "Memo1")->viewport(), "Nyomtatás…");
            const QString lap = pdfSzoveg(ki.p.fajl);
            QVERIFY2(lap.startsWith("Pontosítás 0,60°, események – Őrző Árpád, 1975.03.21. 06:"),
                     qPrintable(lap));
            QVERIFY(
                kimenet("pdfinfo", {ki.p.fajl}).contains("Title:           Pontosítás 0,60°, események –"));
            QVERIFY(lap.contains("1. 1996.05.06. Esküvő 2. 2004.05.06. Költözés Őrbottyánba"));
            ki.ide("talalatok.pdf");
            helyiMenuPont(*vezerlo<QPlainTextEdit>(a.form13, "Memo2")->viewport(), "Nyomtatás…");
            QVERIFY(pdfSzoveg(ki.p.fajl).contains(QRegularExpression("1\\. Solar-Nap: [IVX0-9]+; dMc: ")));
        }
        QCOMPARE(ki.p.beallitasok, 4);
        QCOMPARE(ki.p.uzenetek, QStringList());
        ki.ide("nincs/lap.pdf");
        helyiMenuPont(*vezerlo<QPlainTextEdit>(a.form13, "Memo1")->viewport(), "Nyomtatás…");
        QCOMPARE(ki.p.uzenetek, QStringList({"A nyomtatás nem sikerült."}));
        ki.ide("nem.pdf");
        ki.p.nyomtatas = nullptr;  // cancelled
        helyiMenuPont(*vezerlo<QPlainTextEdit>(a.form13, "Memo1")->viewport(), "Nyomtatás…");
        QVERIFY(!QFileInfo::exists(ki.p.fajl));
        QCOMPARE(ki.p.uzenetek.size(), 1);
    }

    void aNyomtatasAValasztottLapra() {
        TFrissAblakok a;
        TKimenet ki(a);
        szuletes(a);
        primerLista(a);
        ki.p.nyomtatas = [&ki](QPrinter& nyomtato) {
            nyomtato.setOutputFormat(QPrinter::PdfFormat);
            nyomtato.setPageSize(QPageSize(QPageSize::A5));
            nyomtato.setPageOrientation(QPageLayout::Landscape);
            nyomtato.setOutputFileName(ki.p.fajl);
        };
        ki.ide("a5.pdf");
        helyiMenuPont(*vezerlo<QPlainTextEdit>(a.form12, "Memo1")->viewport(), "Nyomtatás…");
        const QString adatok = kimenet("pdfinfo", {ki.p.fajl}).simplified();
        // 210 by 148 millimetres in points.
        QVERIFY2(adatok.contains("Page size: 595 x 420 "), qPrintable(adatok));
        QVERIFY2(adatok.contains("Creator: Korvend "), qPrintable(adatok));
    }

    void aHosszuListaTobbLapra() {
        TFrissAblakok a;
        TKimenet ki(a);
        szuletes(a);
        ki.ide("lunar.pdf");
        valasz([](QWidget& d) {
            auto* lista = vezerlo<QListWidget>(d, "ListBox1");
            QCOMPARE(lista->count(), 1000);
            helyiMenuPont(*lista->viewport(), "Nyomtatás…");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Lunar1");
        const QString lap = pdfSzoveg(ki.p.fajl);
        QVERIFY(lap.startsWith("Lunár – Minta Anna, 1975.07.21. 06:04:09 1975.07.21. "));
        QCOMPARE(lap.count("GMT"), 1000);
    }
};

QTEST_MAIN(ListaMuveletekTeszt)
#include "listamuveletek_teszt.moc"
