// The main window's commands: views, files, the close query, printing to a PDF in place of a printer.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "eletesemenyteszt.h"
#include "files/kvhrekord.h"
#include "ideiglenesmappa.h"
#include "probaparbeszed.h"
#include "rendszerhatar.h"

namespace {

/// The chart's record of a chart file.
TKvhRekord kepletRekord(const QString& fajl) {
    QFile be(fajl);
    if (!be.open(QIODevice::ReadOnly)) qFatal("no chart file %s", qPrintable(fajl));
    const QByteArray tartalom = be.read(kvhRekordHossz);
    TKvhBajtok bajtok{};
    std::copy(tartalom.begin(), tartalom.end(), bajtok.begin());
    return KvhDekodolas(bajtok);
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

/// The text of a PDF, each word with its box: lines of `<word xMin="…" yMin="…" xMax="…"
/// yMax="…">word</word>`, in points.
QString szavak(const QString& pdf) {
    return kimenet("pdftotext", {"-bbox", pdf, "-"});
}

/// Height of a word on the page in points; 0 if it is not there.
double szoMagassag(const QString& szavak, const QString& szo) {
    const QRegularExpression minta("yMin=\"([0-9.]+)\" xMax=\"[0-9.]+\" yMax=\"([0-9.]+)\">" +
                                   QRegularExpression::escape(szo) + "</word>");
    const auto talalat = minta.match(szavak);
    return talalat.captured(2).toDouble() - talalat.captured(1).toDouble();
}

/// A person's chart on screen, and a printer set up for PDF files.
struct TNyomtatas {
    TNyomtatas() {
        p.nyomtatas = [this](QPrinter& nyomtato) {
            nyomtato.setOutputFormat(QPrinter::PdfFormat);
            nyomtato.setPageSize(QPageSize(QPageSize::A4));
            nyomtato.setPageOrientation(irany);
        };
        p.beirt = "Születési képlet";
        a.form1.parbeszedBeallitasa(p);
        a.oraIndul();
        szuletes(a);
    }
    void nyomtat(const QString& fajl) {
        p.fajl = fajl;
        p.kerdesek.clear();
        menu(a.form1, "Nyomtat1");
    }
    QString ut(const char* nev) const { return mappa.filePath(nev); }
    QStringList fajlok() const {
        return QDir(mappa.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QPageLayout::Orientation irany = QPageLayout::Portrait;
    const QTemporaryDir mappa;
    TFrissAblakok a;
    TProbaParbeszed p;
};

}  // namespace

class TForm1ParancsokTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }  // saving has led into a folder that goes

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
        QVERIFY(!a.allapot().Modositott);
        const TKvhRekord mentett = kepletRekord(p.fajl);  // the stepped moment, not the typed one
        QCOMPARE(mentett.nev, std::string("Őrző Árpád"));
        QVERIFY(mentett.pillanat == lepett);
    }

    void aMostModbanMentettKepletAPillanatnyiASzemelyNeven() {
        const QTemporaryDir mappa;
        TFrissAblakok a;
        TProbaParbeszed p;
        p.fajl = mappa.filePath("most.kvh");
        a.form1.parbeszedBeallitasa(p);
        szuletes(a);
        QVERIFY(a.allapot().Keplet.pillanat.ev == 1975);
        kattint(a.form1, "PanelButton2_Most");
        a.oraIndul();
        QTRY_VERIFY(a.allapot().Keplet.pillanat.ev != 1975);
        const TPillanat kepernyon = a.allapot().Keplet.pillanat;
        menu(a.form1, "Mentes1");
        QCOMPARE(p.kerdesek, QStringList({"Kvh files (*.kvh)", "Minta Anna.kvh"}));
        const TKvhRekord mentett = kepletRekord(p.fajl);
        QCOMPARE(mentett.nev, std::string("Minta Anna"));
        QVERIFY(mentett.pillanat == kepernyon);
        QVERIFY(a.allapot().MostFut);
    }

    void aMegnyitasRadixNezetbenEsModositatlanulMutat() {
        const QTemporaryDir mappa;
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        a.oraIndul();
        szuletes(a);
        p.fajl = mappa.filePath("a.kvh");
        menu(a.form1, "Mentes1");
        for (int kor = 0; kor < 2; ++kor) {
            kattint(a.form1, "PanelButton4Leptet");
            kattint(a.form7, "Button7orap");
            QTRY_VERIFY(!a.allapot().LeptetesVolt);
            menu(a.form1, kor == 0 ? "Dekad1" : "Mundan1");
            QVERIFY(a.allapot().Modositott);
            menu(a.form1, "Megnyitas1");
            QVERIFY(!a.allapot().Modositott);
            QCOMPARE(a.allapot().KepletTipus, TKepletTipus::radix);
            QCOMPARE(panel(a.form1, 0), "Radix");
            QCOMPARE(vezerlo<QPushButton>(a.form1, "PanelButton3_Valt")->text(), "Mundán");
            p.kerdesek.clear();
            p.igenre = false;
            menu(a.form1, "Kilepes1");
            QCOMPARE(p.kerdesek, QStringList({"Kilépés", "Valóban ki akar lépni?"}));
        }
    }

    void aMegszakitottMegnyitasIsTorliAJelzest() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        a.allapot().Modositott = true;
        menu(a.form1, "Megnyitas1");
        QVERIFY(!a.allapot().Modositott);
        QVERIFY(p.uzenetek.isEmpty());
    }

    void aMentesSimaFajlnevetJavasol() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        const QList<std::pair<const char*, const char*>> nevek{
            {"Kiss/Nagy", "Kiss-Nagy.kvh"}, {"../../x", "---..-x.kvh"}, {"a:b?", "a-b-.kvh"}};
        for (const auto& [nev, javaslat] : nevek) {
            valasz([nev = nev](QWidget& d) {
                gepel(d, "EditNev1", nev);
                kattint(d, "Button_Rendben1");
            });
            menu(a.form1, "Uj1");
            menu(a.form1, "Mentes1");
            QCOMPARE(p.kerdesek.last(), javaslat);
        }
    }

    void aMentesKiterjesztestAdEsAFelulirastMegkerdezi() {
        const QTemporaryDir mappa;
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        a.oraIndul();
        szuletes(a);
        p.fajlok = {mappa.filePath("anna")};
        menu(a.form1, "Mentes1");
        QCOMPARE(QDir(mappa.path()).entryList(QDir::Files), QStringList({"anna.kvh"}));
        QCOMPARE(p.kerdesek.size(), 2);

        const QByteArray elso = fajlTartalom(mappa.filePath("anna.kvh"));
        a.allapot().Szemely.nev = "Más";
        p.kerdesek.clear();
        p.fajlok = {mappa.filePath("anna"), mappa.filePath("más")};
        p.igenek = {false};
        menu(a.form1, "Mentes1");
        const QString anna = mappa.filePath("anna.kvh");
        const QString szuro = "Kvh files (*.kvh)";  // after the question the dialog again, as it was left
        QCOMPARE(p.kerdesek, QStringList({szuro, "Más.kvh", anna, szuro, anna}));
        QCOMPARE(fajlTartalom(mappa.filePath("anna.kvh")), elso);
        QCOMPARE(kepletRekord(mappa.filePath("más.kvh")).nev, std::string("Más"));

        p.fajlok = {mappa.filePath("anna")};
        p.igenek = {true};
        menu(a.form1, "Mentes1");
        QCOMPARE(kepletRekord(mappa.filePath("anna.kvh")).nev, std::string("Más"));
        QVERIFY(p.uzenetek.isEmpty());
    }

    void aCimFajlAzAktualisMappabolGordul() {
        const TIdeiglenesMappa mappa;
        const TMunkaMappa munka(mappa.ut());
        mappa.irj("Korvend.txt", "Saj\xE1t c\xEDm\n");  // as an older editor writes it
        TFrissAblakok a;
        a.oraIndul();
        QTRY_VERIFY(a.form1.windowTitle().contains("Saját cím Saját cím"));
    }

    void aMenuFajtaablakainakNeveVan() {
        TFrissAblakok a;
        const QList<std::pair<const char*, QStringList>> ablakok{
            {"Revolucio1", {"Szolar1", "SzaturnuszRev1"}}, {"Personar1", {"AscPers1", "PlutoPers1"}}};
        for (const auto& [nev, pontok] : ablakok) {
            const QStringList pontNevek = [ablak = vezerlo<QMenu>(a.form1, nev)] {
                QStringList nevek;
                for (const QAction* pont : ablak->actions()) nevek << pont->objectName();
                return nevek;
            }();
            QCOMPARE(pontNevek.first(), pontok[0]);
            QCOMPARE(pontNevek.last(), pontok[1]);
        }
    }

    void aMegszakitottMentesIsTorliAJelzest() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        a.allapot().Modositott = true;
        menu(a.form1, "Mentes1");
        QVERIFY(!a.allapot().Modositott);
        QCOMPARE(p.kerdesek.last(), ".kvh");  // no name yet
        QCOMPARE(p.uzenetek, QStringList());
    }

    void aHibakUzenetei() {
        TFrissAblakok a;
        TProbaParbeszed p;
        a.form1.parbeszedBeallitasa(p);
        p.fajl = "/nincs/uj.kvh";
        menu(a.form1, "Mentes1");
        p.fajl = "/nincs/ilyen.kvh";
        menu(a.form1, "Megnyitas1");
        QCOMPARE(p.uzenetek, QStringList({"File írási hiba!", "File olvasási hiba!"}));
        QVERIFY(a.allapot().MostFut);
    }

    void egyLapKerulAFajlbaEsAzAblakRadixNezetbe() {
        for (const auto irany : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            TNyomtatas ny;
            ny.irany = irany;
            menu(ny.a.form1, "Dekad1");
            ny.a.allapot().MostFut = true;
            ny.nyomtat(ny.ut("lap.pdf"));
            QCOMPARE(ny.p.kerdesek, QStringList({"Nyomtatás", "Kérek egy megnevezést:", "PDF (*.pdf)",
                                                 "Minta Anna 1975-07-21.pdf"}));
            QVERIFY(ny.p.uzenetek.isEmpty());
            QCOMPARE(panel(ny.a.form1, 0), "Radix");
            QCOMPARE(panel(ny.a.form1, 2), "Születési képlet");
            QCOMPARE(vezerlo<QPushButton>(ny.a.form1, "PanelButton3_Valt")->text(), "Mundán");
            QVERIFY(!ny.a.allapot().MostFut);
            QVERIFY(!ny.a.allapot().Rajz.nyomtatasMod);
            QVERIFY(!ny.a.allapot().TeljesTorles);
            const QString adatok = kimenet("pdfinfo", {ny.ut("lap.pdf")}).simplified();
            QVERIFY2(adatok.contains("Pages: 1 "), qPrintable(adatok));
            QVERIFY2(adatok.contains("Title: Születési képlet "), qPrintable(adatok));
            QVERIFY2(adatok.contains("Creator: Korvend "), qPrintable(adatok));
            const bool allo = irany == QPageLayout::Portrait;
            QVERIFY2(adatok.contains(allo ? "Page size: 595 x 842" : "Page size: 842 x 595"),
                     qPrintable(adatok));
        }
    }

    void aFejlecEsAKapcsolatSorOlvashatoMagas() {
        TNyomtatas ny;
        ny.nyomtat(ny.ut("lap.pdf"));
        const QString lap = szavak(ny.ut("lap.pdf"));
        // 60 and 36 dots of 1/300 inch are 14.4 and 8.64 points.
        const double fejlec = szoMagassag(lap, "képlet,");
        const double lab = szoMagassag(lap, "képletrajzoló");
        QVERIFY2(fejlec > 13 && fejlec < 16, qPrintable(QString::number(fejlec)));
        QVERIFY2(lab > 7.8 && lab < 9.6, qPrintable(QString::number(lab)));
    }

    void aMagyarBetukKiolvashatokAPdfbol() {
        TNyomtatas ny;
        ny.a.allapot().Szemely.nev = "Őrző Űrhajós";
        ny.p.beirt = "Őrző ŰRHAJÓS fűtő ŐZ";
        ny.nyomtat(ny.ut("lap.pdf"));
        QCOMPARE(ny.p.kerdesek.last(), "Őrző Űrhajós 1975-07-21.pdf");
        const QString szoveg = kimenet("pdftotext", {"-layout", ny.ut("lap.pdf"), "-"}).simplified();
        QVERIFY2(szoveg.contains("Őrző ŰRHAJÓS fűtő ŐZ, 1975.07.21. 6:04:09 Szeged, ARMC: "),
                 qPrintable(szoveg));
        QVERIFY(szoveg.contains("Korvend – asztrológiai képletrajzoló"));
        QVERIFY(kimenet("pdfinfo", {ny.ut("lap.pdf")}).contains("Őrző ŰRHAJÓS fűtő ŐZ"));
    }

    void mindenNyomtatasMegkerdeziAFajltEsAFelulirast() {
        TNyomtatas ny;
        ny.nyomtat(ny.ut("egy"));
        QCOMPARE(ny.fajlok(), QStringList({"egy.pdf"}));
        const QByteArray elso = fajlTartalom(ny.ut("egy.pdf"));

        ny.p.beirt = "Második";
        ny.p.fajlok = {ny.ut("egy.pdf")};
        ny.p.igenek = {false};
        ny.nyomtat(ny.ut("ketto.pdf"));
        QCOMPARE(ny.p.beallitasok, 1);
        QVERIFY(ny.p.kerdesek.contains("Minta Anna 1975-07-21.pdf"));
        QCOMPARE(ny.p.kerdesek[4], ny.ut("egy.pdf"));
        QCOMPARE(ny.fajlok(), QStringList({"egy.pdf", "ketto.pdf"}));
        QCOMPARE(fajlTartalom(ny.ut("egy.pdf")), elso);
        QVERIFY(kimenet("pdfinfo", {ny.ut("ketto.pdf")}).contains("Második"));

        ny.p.igenek = {true};
        ny.nyomtat(ny.ut("egy.pdf"));
        QVERIFY(kimenet("pdfinfo", {ny.ut("egy.pdf")}).contains("Második"));
        QVERIFY(ny.p.uzenetek.isEmpty());
    }

    void aFajlnevNelkulNincsNyomtatas() {
        TNyomtatas ny;
        menu(ny.a.form1, "Mundan1");
        ny.nyomtat("");
        QCOMPARE(ny.p.kerdesek.size(), 4);
        QVERIFY(ny.p.uzenetek.isEmpty());
        QCOMPARE(panel(ny.a.form1, 0), "Mundán");
        QVERIFY(!ny.a.allapot().Rajz.nyomtatasMod);
        QVERIFY(!ny.a.allapot().TeljesTorles);
    }

    void aRosszUtKiderulEsElfelejtodik() {
        TNyomtatas ny;
        QVERIFY(QDir(ny.mappa.path()).mkdir("mappa.pdf"));
        int uzenetek = 0;
        for (const char* rossz : {"nincs/lap.pdf", "mappa.pdf"}) {
            ny.p.igenek = {true};
            ny.nyomtat(ny.ut(rossz));
            QCOMPARE(ny.p.uzenetek.size(), ++uzenetek);
            QVERIFY(ny.p.uzenetek.last().contains(ny.ut(rossz)));
            QCOMPARE(ny.fajlok(), QStringList());
        }
        ny.nyomtat(ny.ut("jo.pdf"));
        QCOMPARE(ny.p.kerdesek.last(), "Minta Anna 1975-07-21.pdf");
        QCOMPARE(ny.p.uzenetek.size(), uzenetek);
        QCOMPARE(ny.p.beallitasok, 1);
        QCOMPARE(ny.fajlok(), QStringList({"jo.pdf"}));
    }

#ifndef Q_OS_WIN
    void aTeliLemezKiderulEsToredeketNemHagy() {
        TNyomtatas ny;
        ny.nyomtat(ny.ut("regi.pdf"));
        const QByteArray regi = fajlTartalom(ny.ut("regi.pdf"));
        {
            const TTeliLemez teli(2000);
            ny.nyomtat(ny.ut("uj.pdf"));
            QCOMPARE(ny.p.uzenetek.size(), 1);
            ny.p.igenek = {true};
            ny.nyomtat(ny.ut("regi.pdf"));
            QCOMPARE(ny.p.uzenetek.size(), 2);
        }
        QVERIFY(ny.p.uzenetek[0].startsWith("A nyomtatás nem sikerült"));
        QCOMPARE(ny.fajlok(), QStringList({"regi.pdf"}));
        QCOMPARE(fajlTartalom(ny.ut("regi.pdf")), regi);
        QVERIFY(!ny.a.allapot().Rajz.nyomtatasMod);
    }
#endif

    void uresMegnevezesNemNyomtatDeAzOraAll() {
        TFrissAblakok a;
        TProbaParbeszed p;
        p.nyomtatas = [](QPrinter& nyomtato) { nyomtato.setOutputFormat(QPrinter::PdfFormat); };
        a.form1.parbeszedBeallitasa(p);
        a.oraIndul();
        menu(a.form1, "Mundan1");
        a.allapot().MostFut = true;
        menu(a.form1, "Nyomtat1");
        QCOMPARE(p.kerdesek, QStringList({"Nyomtatás", "Kérek egy megnevezést:"}));
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

    void aMeglevoNyomtatohozNemKellBeallitas() {
        struct TVanNyomtato : TProbaParbeszed {
            bool vanNyomtato() override { return true; }
        };
        TFrissAblakok a;
        TVanNyomtato p;
        a.form1.parbeszedBeallitasa(p);
        menu(a.form1, "Nyomtat1");
        QCOMPARE(p.beallitasok, 0);
        QCOMPARE(p.kerdesek, QStringList({"Nyomtatás", "Kérek egy megnevezést:"}));
    }

    /// The mode lasts as long as the command, its questions too.
    void aNyomtatasModbanKerdez() {
        TNyomtatas ny;
        bool modban = false;
        ny.p.nyomtatas = [&](QPrinter&) { modban = ny.a.allapot().Rajz.nyomtatasMod; };
        ny.p.beirt.clear();
        QVERIFY(!ny.a.allapot().Rajz.nyomtatasMod);
        menu(ny.a.form1, "Nyomtat1");
        QVERIFY(modban);
        QVERIFY(!ny.a.allapot().Rajz.nyomtatasMod);
    }

    void azEgyszerElfogadottBeallitasNemVeszEl() {
        TNyomtatas ny;
        menu(ny.a.form1, "Nyomtato_beallitas1");
        ny.p.nyomtatas = nullptr;  // looked at again, and left
        menu(ny.a.form1, "Nyomtato_beallitas1");
        QCOMPARE(ny.p.beallitasok, 2);
        ny.nyomtat(ny.ut("lap.pdf"));
        QCOMPARE(ny.p.beallitasok, 2);
        QCOMPARE(ny.fajlok(), QStringList({"lap.pdf"}));
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
