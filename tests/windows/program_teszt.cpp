// The run of the whole program by its command line, its dialogs driven with keys.

#include <functional>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>

#include "aktivvalasz.h"
#include "commands/kvhfajl.h"
#include "windows/jelszotar.h"
#include "windows/legutobbitar.h"
#include "windows/program.h"

namespace {

const QStringList rendes{"korvend"};
const QStringList ujJelszo{"korvend", "--uj-jelszo"};

using TTeendo = std::function<void(QWidget&)>;

/// Deals with the program's dialogs one after the other.
void sorban(QList<TTeendo> teendok) {
    if (teendok.isEmpty()) return;
    const TTeendo elso = teendok.takeFirst();
    aktivValasz([elso, teendok](QWidget& d) {
        sorban(teendok);
        elso(d);
    });
}

/// Types into the dialog's field, after a look at its text.
TTeendo beir(const QString& felirat, const QString& szoveg) {
    return [felirat, szoveg](QWidget& d) {
        auto* mezo = d.findChild<QLineEdit*>();
        QVERIFY(mezo != nullptr);
        QCOMPARE(mezo->echoMode(), QLineEdit::Password);
        QCOMPARE(d.findChild<QLabel*>()->text(), felirat);
        QTest::keyClicks(mezo, szoveg);
        QTest::keyClick(mezo, Qt::Key_Return);
    };
}

TTeendo elsoBeiras(const QString& szoveg) {
    return beir("Jelszó megadása:\nKis betűket használjon.\nHa nem akar jelszót használni, hagyja üresen.",
                szoveg);
}

TTeendo masodikBeiras(const QString& szoveg) {
    return beir("Jelszó megadása még egyszer:", szoveg);
}

/// The prompt for the password: it closes by itself on the right one.
TTeendo regiJelszo(const QString& szoveg) {
    return [szoveg](QWidget& d) {
        QCOMPARE(d.objectName(), "TForm11");
        QTest::keyClicks(vezerlo<QLineEdit>(d, "Edit1"), szoveg);
        QVERIFY(!d.isVisible());
    };
}

void escape(QWidget& d) {
    QTest::keyClick(&d, Qt::Key_Escape);
}

void keret(QWidget& d) {
    d.close();
}

/// The message box; any key takes note of it.
TTeendo tudomasul(const QString& szoveg) {
    return [szoveg](QWidget& d) {
        QCOMPARE(dynamic_cast<QMessageBox&>(d).text(), szoveg);
        QTest::keyClick(&d, Qt::Key_Return);
    };
}

/// The main window as it was when it was closed.
struct TLatott {
    QSize meret, elerheto;
    bool ikon = false;
};
TLatott latott;

/// Closes the main window as soon as it is there.
void bezar() {
    for (QWidget* ablak : QApplication::topLevelWidgets()) {
        if (ablak->objectName() != "TForm1" || !ablak->isVisible()) continue;
        valasz([](QWidget& d) {
            QTest::mouseClick(dynamic_cast<QMessageBox&>(d).button(QMessageBox::Yes), Qt::LeftButton);
        });
        latott = {ablak->size(), ablak->screen()->availableSize(), !ablak->windowIcon().isNull()};
        ablak->close();
        return;
    }
    QTimer::singleShot(10, &bezar);
}

/// Name of the chart on screen when the window was closed.
QString latottNev;

/// Closes the main window once it shows a chart from a file.
void nevUtanBezar() {
    for (QWidget* ablak : QApplication::topLevelWidgets()) {
        const auto* foablak = qobject_cast<TForm1*>(ablak);
        if (foablak == nullptr || panel(*foablak, 2) == "Most" || panel(*foablak, 2).isEmpty()) continue;
        latottNev = panel(*foablak, 2).trimmed();
        bezar();
        return;
    }
    QTimer::singleShot(10, &nevUtanBezar);
}

}  // namespace

class ProgramTeszt : public QObject {
    Q_OBJECT

private slots:
    void init() {
        mappa_.reset(new QTemporaryDir);
        qputenv("XDG_CONFIG_HOME", mappa_->path().toUtf8());
    }

    void azElsoFutasKetszerKeriAJelszot() {
        sorban({elsoBeiras("titok"), masodikBeiras("titok")});
        QCOMPARE(futas(rendes), 0);
        QVERIFY(tar().egyezik("titok"));
        QCOMPARE(futas(rendes), 0);  // the second run does not ask
    }

    void aKetKulonbozoJelszoUjraKerdez() {
        sorban({elsoBeiras("titok"), masodikBeiras("titk"), tudomasul("A két jelszó nem egyezik."),
                elsoBeiras("titok"), masodikBeiras("titok")});
        QCOMPARE(futas(rendes), 0);
        QVERIFY(tar().egyezik("titok"));
    }

    void azUresEsASzokozNemJelszo() {
        for (const char* nincs : {"", " "}) {
            QFile::remove(TJelszoTar::alapFajl());
            sorban({elsoBeiras(nincs), masodikBeiras(nincs)});
            QCOMPARE(futas(rendes), 0);
            QCOMPARE(tar().allas(), TJelszoTar::Allas::nincsJelszo);
        }
    }

    void aMegsemUtanAKovetkezoInditasKerdez() {
        for (const TTeendo& megsem : {TTeendo(escape), TTeendo(keret)}) {
            sorban({megsem});
            QCOMPARE(futas(rendes), 0);
            sorban({elsoBeiras("titok"), megsem});
            QCOMPARE(futas(rendes), 0);
            QVERIFY(!QFile::exists(TJelszoTar::alapFajl()));
        }
    }

    void azUjJelszoElobbARegitKeri() {
        taroltJelszo("regi");
        sorban({regiJelszo("regi"), elsoBeiras("uj"), masodikBeiras("uj")});
        QCOMPARE(futas(ujJelszo), 0);
        QVERIFY(tar().egyezik("uj"));
        QVERIFY(!tar().egyezik("regi"));
        sorban({regiJelszo("uj"), elsoBeiras(" "), masodikBeiras(" ")});
        QCOMPARE(futas(ujJelszo), 0);
        QCOMPARE(tar().allas(), TJelszoTar::Allas::nincsJelszo);
        sorban({elsoBeiras("uj"), masodikBeiras("uj")});  // without an old one there is nothing to ask
        QCOMPARE(futas(ujJelszo), 0);
        QVERIFY(tar().egyezik("uj"));
    }

    void aRegiJelszoNelkulNincsUj() {
        taroltJelszo("regi");
        for (const TTeendo& megsem : {TTeendo(escape), TTeendo(keret)}) {
            sorban({megsem});
            QCOMPARE(futas(ujJelszo), 1);
            sorban({regiJelszo("regi"), megsem});
            QCOMPARE(futas(ujJelszo), 1);
            sorban({regiJelszo("regi"), elsoBeiras("uj"), megsem});
            QCOMPARE(futas(ujJelszo), 1);
            QVERIFY(tar().egyezik("regi"));
        }
    }

    void aHarmincadikValtozasUtanNincsUj() {
        taroltJelszo("ab");
        sorban({[](QWidget& d) {
            auto* mezo = vezerlo<QLineEdit>(d, "Edit1");
            for (int i = 0; i < 14; ++i) {
                QTest::keyClicks(mezo, "x");
                QTest::keyClick(mezo, Qt::Key_Backspace);
            }
            QTest::keyClicks(mezo, "ab");  // its last letter is the thirtieth change
            QVERIFY(!d.isVisible());
        }});
        QCOMPARE(futas(ujJelszo), 1);
        QVERIFY(tar().egyezik("ab"));
    }

    void aMenthetetlenUjJelszoKiderul() {
        // A folder stands where the store's folder would be made.
        QFile akadaly(mappa_->filePath("Korvend"));
        QVERIFY(akadaly.open(QIODevice::WriteOnly));
        sorban({elsoBeiras("uj"), masodikBeiras("uj"), tudomasul("A jelszó nem menthető.")});
        QCOMPARE(futas(ujJelszo), 1);
    }

    void azOlvashatatlanTarNemUjithatoMeg() {
        taroltJelszo("regi");
        QFile ki(TJelszoTar::alapFajl());
        QVERIFY(ki.open(QIODevice::WriteOnly));
        ki.write("valami");
        ki.close();
        sorban({escape});
        QCOMPARE(futas(ujJelszo), 1);
    }

    void aHibasParancssorKettovelTerVissza() {
        taroltJelszo("");
        for (const QStringList& rossz : {QStringList{"--rossz"}, QStringList{"a.kvh", "b.kvh"},
                                         QStringList{"/nincs/ilyen.kvh"}, QStringList{mappa_->path()}})
            QCOMPARE(ProgramFutas(QStringList{"korvend"} + rossz), 2);
        for (const char* jo : {"--help", "--version"}) QCOMPARE(ProgramFutas({"korvend", jo}), 0);
    }

    /// The desktop finds the program's own file by its name.
    void azAblakElferAKepernyonEsIkonjaVan() {
        taroltJelszo("");
        QCOMPARE(futas(rendes), 0);
        QVERIFY(latott.ikon);
        QVERIFY(latott.meret.width() < latott.elerheto.width());
        QVERIFY(latott.meret.height() < latott.elerheto.height());
        QCOMPARE(QGuiApplication::desktopFileName(), "korvend");
    }

    void aParancssorFajljaMegnyilik() {
        taroltJelszo("");
        const QString elozo = QDir::currentPath();
        QVERIFY(QDir::setCurrent(mappa_->path()));
        kepletfajl("Örs.kvh");
        QTimer::singleShot(10, &nevUtanBezar);
        QCOMPARE(ProgramFutas({"korvend", "Örs.kvh"}), 0);
        QCOMPARE(latottNev, "Minta Anna");
        QCOMPARE(TLegutobbiTar(TLegutobbiTar::alapFajl()).fajlok(),
                 QStringList{QDir::current().filePath("Örs.kvh")});
        QDir::setCurrent(elozo);
    }

    void aParancssorFajljaElottJelszo() {
        taroltJelszo("titok");
        kepletfajl(mappa_->filePath("a.kvh"));
        QTimer::singleShot(10, [] { sorban({regiJelszo("titok")}); });
        QTimer::singleShot(20, &nevUtanBezar);
        QCOMPARE(ProgramFutas({"korvend", mappa_->filePath("a.kvh")}), 0);
        QCOMPARE(latottNev, "Minta Anna");
    }

    void aJelszoNelkulMaradtFajlNemNyilikMeg() {
        taroltJelszo("titok");
        kepletfajl(mappa_->filePath("a.kvh"));
        QTimer::singleShot(10, [] { sorban({escape}); });
        QCOMPARE(ProgramFutas({"korvend", mappa_->filePath("a.kvh")}), 0);
        QVERIFY(TLegutobbiTar(TLegutobbiTar::alapFajl()).fajlok().isEmpty());
    }

private:
    static void kepletfajl(const QString& fajl) {
        Allapot a;
        a.Szemely.nev = "Minta Anna";
        a.Keplet.pillanat = {1975, 7, 21, 6, 4, 9};
        QVERIFY(!KepletMentes(a, fajl.toStdString()));
    }

    static int futas(const QStringList& argumentumok) {
        if (argumentumok == rendes) QTimer::singleShot(10, &bezar);
        return ProgramFutas(argumentumok);
    }
    static TJelszoTar tar() { return TJelszoTar(TJelszoTar::alapFajl()); }
    static void taroltJelszo(const QString& jelszo) {
        QCoreApplication::setApplicationName("Korvend");
        QVERIFY(tar().ment(jelszo));
    }

    std::unique_ptr<QTemporaryDir> mappa_;
};

QTEST_MAIN(ProgramTeszt)
#include "program_teszt.moc"
