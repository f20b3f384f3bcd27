// The main window's commands: views, files, the close query, printing to a PDF in place of a printer.

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "eletesemenyteszt.h"
#include "probaparbeszed.h"

class TForm1ParancsokTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aMenuNezeteiUgyanodaVisznek() {
        TFrissAblakok a;
        menu(a.form1, "Mundan1");
        QCOMPARE(panel(a.form1, 0), "Mundán");
        menu(a.form1, "Dekad1");
        QCOMPARE(panel(a.form1, 0), "Dekád");
        menu(a.form1, "Horizont1");
        QCOMPARE(panel(a.form1, 0), "Radix");
    }

    void aValtHaromszoriMegnyomasaVisszavisz() {
        TFrissAblakok a;
        const QStringList nezetek{"Mundán", "Dekád", "Radix"};
        const QStringList feliratok{"Dekád", "Radix", "Mundán"};
        for (int i = 0; i < 3; ++i) {
            kattint(a.form1, "PanelButton3_Valt");
            QCOMPARE(panel(a.form1, 0), nezetek[i]);
            QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton3_Valt")->text(), feliratok[i]);
            QVERIFY(a.allapot().TeljesTorles);
            QVERIFY(!a.allapot().MostFut);
        }
        QCOMPARE(a.allapot().KepletTipus, TKepletTipus::radix);
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Most");
    }

    void aMostGombMegallitjaEsElinditjaAzOrat() {
        TFrissAblakok a;
        const TPillanat indulo = a.allapot().RadixPillanat;
        kattint(a.form1, "PanelButton2_Most");
        QVERIFY(!a.allapot().MostFut);
        QVERIFY(a.allapot().Keplet.pillanat == indulo);
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Most");
        QCOMPARE(panel(a.form1, 2), "");
        kattint(a.form1, "PanelButton2_Most");
        QVERIFY(a.allapot().MostFut);
        QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton2_Most")->text(), "Vissza");
        QCOMPARE(panel(a.form1, 2), "Most");
    }

    void amitMentVisszakapja() {
        const QTemporaryDir mappa;
        TProbaParbeszed p;
        p.fajl = mappa.filePath("a.kvh");
        Allapot mentett;
        {
            TFrissAblakok a;
            a.form1.parbeszedBeallitasa(p);
            ujKeplet(a, [](QWidget& d) {
                esemenyGepelese(d, "esküvő", "7,ix", "1999");
                esemenyGepelese(d, "költözés", "IV", "2001");
                QCOMPARE(lista(d, 1, 2), "esküvő");
                QCOMPARE(lista(d, 1, 3), "I,VII,X");
                QCOMPARE(lista(d, 1, 4), "1999.");
                QCOMPARE(lista(d, 1, 6), "05");  // 0 h of summer time is 22 h of the day before
                QCOMPARE(lista(d, 1, 7), "22:");
                QCOMPARE(lista(d, 2, 1), "2");
                QCOMPARE(lista(d, 3, 1), "");
                kattint(d, "Button_Rendben2");
            });
            menu(a.form1, "Mentes1");
            QCOMPARE(p.kerdesek, QStringList({"Kvh files (*.kvh)", "Őrző Árpád.kvh"}));
            QVERIFY(p.uzenetek.isEmpty());
            QCOMPARE(QFile(p.fajl).size(), 3 * 628);
            mentett = a.allapot();
        }
        TFrissAblakok b;
        b.form1.parbeszedBeallitasa(p);
        menu(b.form1, "Megnyitas1");
        QVERIFY(p.uzenetek.isEmpty());
        QVERIFY(b.allapot().Keplet.pillanat == mentett.Keplet.pillanat);
        QVERIFY(b.allapot().Keplet.bolygo == mentett.Keplet.bolygo);
        QVERIFY(b.allapot().Keplet.hazCsucs == mentett.Keplet.hazCsucs);
        QVERIFY(b.allapot().Esemenyek.esemenyek == mentett.Esemenyek.esemenyek);
        QCOMPARE(b.allapot().Esemenyek.EsemenyDb, 2);
        QCOMPARE(panel(b.form1, 2), "Őrző Árpád ");
        QCOMPARE(vezerlo<QPlainTextEdit>(b.form1, "Memo1")->toPlainText(), "jegyzet");
    }

    void aLeptetesUtanAKilepesMentestKer() {
        const QTemporaryDir mappa;
        TFrissAblakok a;
        TProbaParbeszed p;
        p.fajl = mappa.filePath("b.kvh");
        p.igenre = false;
        a.form1.parbeszedBeallitasa(p);
        ujKeplet(a, [](QWidget& d) { kattint(d, "Button_Megsem2"); });
        kattint(a.form1, "PanelButton4Leptet");
        QVERIFY(a.form7.isVisible());
        kattint(a.form7, "Button7orap");
        kattint(a.form7, "Button7orap");
        const TPillanat lepett = a.allapot().Keplet.pillanat;
        QCOMPARE(lepett.ora, a.allapot().RadixPillanat.ora + 2);
        a.orajelek(1);
        QCOMPARE(a.form7.windowTitle(), panel(a.form1, 3).left(20));
        QCOMPARE(panel(a.form1, 2), "Őrző Árpád");
        QCOMPARE(vezerlo<QPlainTextEdit>(a.form1, "Memo1")->toPlainText(), "");

        menu(a.form1, "Kilepes1");
        QCOMPARE(p.kerdesek, QStringList({"Kilépés és adatok mentése", "Valóban ki akar lépni?"}));
        QVERIFY(a.form1.isVisible());
        QVERIFY(a.allapot().Modositott);
        p.igenre = true;
        menu(a.form1, "Kilepes1");
        QVERIFY(!a.form1.isVisible());
        QVERIFY(QFile::exists(p.fajl));
        QVERIFY(!a.allapot().Modositott);
    }

    void aMegszakitottMentesIsTorliAJelzest() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        a.allapot().Modositott = true;
        menu(a.form1, "Mentes1");
        QVERIFY(!a.allapot().Modositott);
        QCOMPARE(p.kerdesek.last(), ".kvh");  // no name yet
    }

    void aHibakUzenetei() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        p.fajl = "/dev/full";
        menu(a.form1, "Mentes1");
        p.fajl = "/nincs/ilyen.kvh";
        menu(a.form1, "Megnyitas1");
        QCOMPARE(p.uzenetek, QStringList({"File írási hiba!", "File olvasási hiba!"}));
        QVERIFY(a.allapot().MostFut);
    }

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
};

QTEST_MAIN(TForm1ParancsokTeszt)
#include "tform1_parancsok_teszt.moc"
