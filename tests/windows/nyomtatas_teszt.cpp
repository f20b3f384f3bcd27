// Printing, to a PDF in place of a printer.

#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "commands/nyomtatas.h"
#include "drawing/rogzitovaszon.h"
#include "probaparbeszed.h"
#include "tables/szotar.h"

class NyomtatasTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void egyLapKerulAFajlbaEsAzAblakRadixNezetbe() {
        const QTemporaryDir mappa;
        for (const auto irany : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            for (const int dpi : {600, 1200}) {
                const QString pdf = mappa.filePath(QStringLiteral("lap%1%2.pdf").arg(irany).arg(dpi));
                TFrissAblakok a;
                TProbaParbeszed p;
                p.nyomtatas = [&](QPrinter& nyomtato) {
                    nyomtato.setOutputFormat(QPrinter::PdfFormat);
                    nyomtato.setOutputFileName(pdf);
                    nyomtato.setResolution(dpi);
                    nyomtato.setPageSize(QPageSize(QPageSize::A4));
                    nyomtato.setPageOrientation(irany);
                };
                p.beirt = "Minta Anna";
                a.form1.parbeszedBeallitasa(p);
                menu(a.form1, "Dekad1");
                menu(a.form1, "Nyomtat1");
                QCOMPARE(p.kerdesek, QStringList({"Nyomtatás", "Kérek egy megnevezést:"}));
                QVERIFY(QFileInfo(pdf).size() > 5000);
                QCOMPARE(panel(a.form1, 0), "Radix");
                QCOMPARE(panel(a.form1, 2), "Minta Anna");
                QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton3_Valt")->text(), "Mundán");
                QVERIFY(!a.allapot().MostFut);
                QVERIFY(!a.allapot().Rajz.nyomtatasMod);
                QVERIFY(!a.allapot().TeljesTorles);
                QFile be(pdf);
                QVERIFY(be.open(QIODevice::ReadOnly));
                QCOMPARE(be.readAll().count("/Type /Page\n"), 1);
            }
        }
    }

    void uresMegnevezesNemNyomtatDeAzOraAll() {
        TFrissAblakok a;
        TProbaParbeszed p;
        p.nyomtatas = [](QPrinter& nyomtato) { nyomtato.setOutputFileName("/nincs/ilyen.pdf"); };
        a.form1.parbeszedBeallitasa(p);
        menu(a.form1, "Mundan1");
        a.allapot().MostFut = true;
        menu(a.form1, "Nyomtat1");
        QCOMPARE(p.kerdesek.size(), 2);
        QVERIFY(!a.allapot().MostFut);
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Most");
        QCOMPARE(panel(a.form1, 0), "Mundán");
        QVERIFY(!a.allapot().TeljesTorles);
        QVERIFY(fekete(a.kep()) > 100);
    }

    void nyomtatoNelkulElobbABeallitas() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        menu(a.form1, "Nyomtat1");
        QCOMPARE(p.beallitasok, 1);
        QVERIFY(p.kerdesek.isEmpty());
    }

    void aBeallitasMegallitjaAzOrat() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        menu(a.form1, "Nyomtato_beallitas1");
        QCOMPARE(p.beallitasok, 1);
        QVERIFY(!a.allapot().MostFut);
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Most");
    }

    void aFejlecSzovege() {
        TKeplet k;
        k.pillanat = {1975, 3, 21, 6, 4, 9};
        k.helyseg = "Szeged";
        k.armcOra = 18;
        k.armcPerc = 7;
        k.armcMperc = 8.9;
        QCOMPARE(FejlecSzoveg(k, "Minta Anna"),
                 std::string("Minta Anna,  1975.03.21.  6:04:09  Szeged,  ARMC: 18:07:8"));
    }

    void aFejlecEsAKapcsolatSorHelye() {
        Allapot a;
        a.Rajz.nyomtatasMod = true;
        RogzitoVaszon vaszon;
        LapRajz(vaszon, a, "fejlec", 4961, 7016);
        // The upright page: the wheel at the top with the page's width as its room, 0.75 of its half.
        QCOMPARE(a.Rajz.kozpontX, 2480);
        QCOMPARE(a.Rajz.kozpontY, 2480);
        QCOMPARE(a.Rajz.kerekSugar, 1860);
        const auto& m = vaszon.muveletek();
        const auto& fejlec = std::get<TSzovegMuvelet>(m[m.size() - 2]);
        QCOMPARE(fejlec.szoveg, std::string("fejlec"));
        QCOMPARE(fejlec.magassag, 60);
        QCOMPARE(fejlec.y, 210);  // int(7016 x 0.03)
        QCOMPARE(fejlec.x, (4961 - 6 * 60 / 2) / 2);
        const auto& lab = std::get<TSzovegMuvelet>(m.back());
        QCOMPARE(lab.szoveg, std::string(kapcsolatSor));
        QCOMPARE(lab.magassag, 36);
        QCOMPARE(lab.y, 6665);  // int(7016 - 350.8)
    }

    void aFekvoLapKozepe() {
        Allapot a;
        a.Rajz.nyomtatasMod = true;
        RogzitoVaszon vaszon;
        LapRajz(vaszon, a, "fejlec", 7016, 4961);
        QCOMPARE(a.Rajz.kozpontX, 3508);
        QCOMPARE(a.Rajz.kozpontY, 2480);
        QCOMPARE(a.Rajz.kerekSugar, 1860);
    }
};

QTEST_MAIN(NyomtatasTeszt)
#include "nyomtatas_teszt.moc"
