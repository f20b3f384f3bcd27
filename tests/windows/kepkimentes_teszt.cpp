// The picture on screen as files of other programs: what they hold, and that they look alike.

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "ablakteszt.h"
#include "kepteszt.h"
#include "windows/kepkimentes.h"

namespace {

constexpr TKepletKep mekkora{946, 650, {}};

QImage kepernyo(const Allapot& allapot) {
    QImage kep(mekkora.szelesseg, mekkora.magassag, QImage::Format_RGB32);
    kep.fill(Qt::white);
    QPainter festo(&kep);
    QtVaszon vaszon(festo);
    KepRajz(vaszon, allapot, mekkora);
    return kep;
}

/// A picture at a third of its size: what is left of edges that each program smooths in its own way is
/// little.
QImage kicsinyitve(const QImage& kep) {
    return kep.convertToFormat(QImage::Format_RGB32)
        .scaled(kep.size() / 3, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Greatest difference of a picture of another program from the screen's in a place of a letter's size.
/// White in the place of black is 255.
double eltero(const QImage& kep, const QImage& kepernyo) {
    constexpr int oldal = 6;
    return legnagyobbFolt(kicsinyitve(kep), kicsinyitve(kepernyo), oldal);
}

/// A file of the contents given. @return its path, empty where it can't be written
QString fajlba(const QTemporaryDir& mappa, const char* nev, const QByteArray& tartalom) {
    QFile fajl(mappa.filePath(nev));
    return fajl.open(QIODevice::WriteOnly) && fajl.write(tartalom) == tartalom.size() ? fajl.fileName() : "";
}

/// A picture file of another program, made of one of ours; null without that program.
QImage masProgrammal(const QByteArray& tartalom, const char* nev, const QString& program,
                     const QStringList& elotte) {
    const QTemporaryDir mappa;
    const QString be = fajlba(mappa, nev, tartalom);
    const QString ki = mappa.filePath("ki.png");
    QStringList argumentumok = elotte;
    argumentumok << be;
    if (program == "rsvg-convert")
        argumentumok << "-o" << ki;
    else
        argumentumok << ki.chopped(4);
    if (QProcess::execute(program, argumentumok) != 0) return {};
    return QImage(ki).convertToFormat(QImage::Format_RGB32);
}

}  // namespace

class KepKimentesTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        sajatBetukBetoltese();
        a_ = std::make_unique<TFrissAblakok>();
        szuletes(*a_);
        a_->oraIndul();
    }
    void cleanupTestCase() { a_.reset(); }

    void aPngHaromszorosEsACimeBenneVan() {
        const QByteArray png = kepletPng(allapot(), mekkora);
        QImage kep = QImage::fromData(png, "PNG");
        QCOMPARE(kep.size(), QSize(3 * 946, 3 * 650));
        QCOMPARE(kep.text("Title"), "Minta Anna, 1975.07.21. 06:04:09 ZN, Szeged");
        QCOMPARE(kep.text("Software"), "Korvend");
        QCOMPARE(kep.dotsPerMeterY(), kep.dotsPerMeterX());
        // In its natural size it is as large as on a screen of 96 dots an inch.
        QVERIFY(qAbs(kep.dotsPerMeterX() * 0.0254 - 3 * 96) < 1);
        const QImage kicsi = kep.scaled(946, 650, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 .convertToFormat(QImage::Format_RGB32);
        QVERIFY(eltero(kicsi, kepernyo(allapot())) < 20);
        QVERIFY(fekete(kep) > 100);
    }

    void azSvgErvenyesEsNincsBenneBetu() {
        for (const char* nezet : {"Horizont1", "Mundan1", "Dekad1"}) {
            menu(a_->form1, nezet);
            QXmlStreamReader xml(kepletSvg(allapot(), mekkora));
            QHash<QString, int> elemek;
            while (!xml.atEnd())
                if (xml.readNext() == QXmlStreamReader::StartElement) ++elemek[xml.name().toString()];
            QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
            QCOMPARE(elemek["svg"], 1);
            QCOMPARE(elemek["text"], 0);
            QCOMPARE(elemek["image"], 0);
            QVERIFY(elemek["path"] >= 12 + 10);  // signs and bodies
            QVERIFY(elemek["line"] >= 12 && elemek["ellipse"] >= 2);
        }
        menu(a_->form1, "Horizont1");
    }

    void azSvgMasProgrammalIsAKepernyoKepe() {
        if (QStandardPaths::findExecutable("rsvg-convert").isEmpty()) QSKIP("no rsvg-convert");
        for (const char* nezet : {"Horizont1", "Mundan1", "Dekad1"}) {
            menu(a_->form1, nezet);
            a_->form1.RajzolKeplet();
            const QImage kep = masProgrammal(kepletSvg(allapot(), mekkora), "k.svg", "rsvg-convert", {});
            QCOMPARE(kep.size(), QSize(946, 650));
            QVERIFY2(eltero(kep, kepernyo(allapot())) < 20, nezet);
            menu(a_->form1, nezet == QString("Dekad1") ? "Mundan1" : "Dekad1");
            QVERIFY(eltero(kep, kepernyo(allapot())) > 60);
        }
        menu(a_->form1, "Horizont1");
    }

    void aPdfEgyLapAkkoraMintAKep() {
        if (QStandardPaths::findExecutable("pdftoppm").isEmpty()) QSKIP("no pdftoppm");
        const QImage kep = masProgrammal(kepletPdf(allapot(), mekkora), "k.pdf", "pdftoppm",
                                         {"-png", "-singlefile", "-r", "96"});
        QVERIFY(qAbs(kep.width() - 946) <= 1 && qAbs(kep.height() - 650) <= 1);
        QVERIFY(eltero(kep.copy(0, 0, 946, 650), kepernyo(allapot())) < 30);
    }

    void aPdfAdataiKozottACimEsAKeszito() {
        if (QStandardPaths::findExecutable("pdfinfo").isEmpty()) QSKIP("no pdfinfo");
        const QTemporaryDir mappa;
        QProcess pdfinfo;
        pdfinfo.start("pdfinfo", {fajlba(mappa, "k.pdf", kepletPdf(allapot(), mekkora))});
        QVERIFY(pdfinfo.waitForFinished());
        const QString adatok = QString::fromUtf8(pdfinfo.readAllStandardOutput()).simplified();
        QVERIFY2(adatok.contains("Title: Minta Anna, 1975.07.21. 06:04:09 ZN, Szeged"), qPrintable(adatok));
        QVERIFY2(adatok.contains("Creator: Korvend "), qPrintable(adatok));
    }

    void azAblakotNelkuliMeretNemOmlikOssze() {
        QVERIFY(kepletPng(allapot(), {0, 0, {}}).isEmpty());
        QVERIFY(!kepletSvg(allapot(), {40, 30, {}}).isEmpty());
    }

private:
    const Allapot& allapot() const { return a_->form1.allapot(); }
    std::unique_ptr<TFrissAblakok> a_;
};

QTEST_MAIN(KepKimentesTeszt)
#include "kepkimentes_teszt.moc"
