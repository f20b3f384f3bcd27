// The toolkit's real dialogs, driven with keys.

#include <functional>

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPrinter>
#include <QTemporaryDir>

#include "aktivvalasz.h"
#include "windows/parbeszed.h"

namespace {

const QString kvhSzuro = "Kvh files (*.kvh)";

QLineEdit* nevMezo(const QWidget& d) {
    return vezerlo<QLineEdit>(d, "fileNameEdit");
}

/// Types a file name over the proposed one and accepts it.
void fajlnevBeirasa(QWidget& d, const QString& nev) {
    QLineEdit* mezo = nevMezo(d);
    mezo->setFocus();
    mezo->selectAll();
    QTest::keyClicks(mezo, nev);
    QTest::keyClick(mezo, Qt::Key_Return);
}

void ures(const QString& fajl) {
    QFile ki(fajl);
    QVERIFY(ki.open(QIODevice::WriteOnly));
}

/// Width that a title takes in a frame of the program's own font, with its icon and buttons.
int cimKell(const QWidget& d) {
    QFont betu = QApplication::font();
    betu.setBold(true);
    return QFontMetrics(betu).horizontalAdvance(d.windowTitle()) + 120;
}

}  // namespace

class ParbeszedTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        // The desktop's own file dialogs could not be driven from here.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        sajatBetukBetoltese();
    }
    void init() {
        mappa_.reset(new QTemporaryDir);
        QVERIFY(QDir(mappa_->path()).mkdir("alatta"));
        QVERIFY(QDir::setCurrent(mappa_->path()));
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void aMegnyitottFajlMappajaLeszAzAktualis() {
        ures(ut("alatta/a.kvh"));
        for (int kor = 0; kor < 2; ++kor) {
            QVERIFY(QDir::setCurrent(mappa_->path()));
            aktivValasz([this](QWidget& d) {
                QCOMPARE(d.windowTitle(), "Megnyitás");
                QCOMPARE(dynamic_cast<QFileDialog&>(d).directory().canonicalPath(), ut(""));
                QCOMPARE(dynamic_cast<QFileDialog&>(d).nameFilters(), QStringList({kvhSzuro}));
                QCOMPARE(dynamic_cast<QFileDialog&>(d).acceptMode(), QFileDialog::AcceptOpen);
                QCOMPARE(dynamic_cast<QFileDialog&>(d).fileMode(), QFileDialog::ExistingFile);
                fajlnevBeirasa(d, "alatta/a.kvh");
            });
            QCOMPARE(p_.megnyitando(nullptr, kvhSzuro), ut("alatta/a.kvh"));
            QCOMPARE(itt(), ut("alatta"));
        }
    }

    void aMegszakitottMegnyitasNemValtMappat() {
        for (const auto& zar : zarasok()) {
            aktivValasz([&](QWidget& d) {
                dynamic_cast<QFileDialog&>(d).setDirectory(ut("alatta"));
                zar(d);
            });
            QCOMPARE(p_.megnyitando(nullptr, kvhSzuro), "");
            QCOMPARE(itt(), ut(""));
        }
    }

    void aMentesJavaslataAzAktualisMappaban() {
        aktivValasz([this](QWidget& d) {
            QCOMPARE(d.windowTitle(), "Mentés");
            QCOMPARE(nevMezo(d)->text(), "Kiss-Nagy.kvh");
            QCOMPARE(dynamic_cast<QFileDialog&>(d).directory().canonicalPath(), ut(""));
            QTest::keyClick(nevMezo(d), Qt::Key_Return);
        });
        QCOMPARE(p_.mentendo(nullptr, kvhSzuro, "Kiss-Nagy.kvh"), ut("Kiss-Nagy.kvh"));
        for (const auto& zar : zarasok()) {
            aktivValasz([&](QWidget& d) { zar(d); });
            QCOMPARE(p_.mentendo(nullptr, kvhSzuro, ".kvh"), "");
            QCOMPARE(itt(), ut(""));
        }
    }

    void aMentesKiterjesztestAdEsMappatValt() {
        for (const auto& [gepelt, vart] :
             {std::pair("alatta/anna", "alatta/anna.kvh"), std::pair("bela.dat", "alatta/bela.dat")}) {
            aktivValasz([gepelt = gepelt](QWidget& d) { fajlnevBeirasa(d, gepelt); });
            QCOMPARE(p_.mentendo(nullptr, kvhSzuro, "x.kvh"), ut(vart));
            QCOMPARE(itt(), ut("alatta"));
        }
        aktivValasz([](QWidget& d) { fajlnevBeirasa(d, "lap"); });
        QCOMPARE(p_.mentendo(nullptr, "PDF (*.pdf)", "x.pdf"), ut("alatta/lap.pdf"));
    }

    void aFelulirasEgyKerdesEsANemVisszavisz() {
        ures(ut("anna.kvh"));
        int kerdesek = 0;
        aktivValasz([&](QWidget& d) {
            aktivValasz([&](QWidget& kerdes) {  // after the name has been accepted
                ++kerdesek;
                QVERIFY(dynamic_cast<QMessageBox&>(kerdes).text().contains(ut("anna.kvh")));
                aktivValasz([&](QWidget& ujra) {
                    QCOMPARE(nevMezo(ujra)->text(), "anna.kvh");
                    aktivValasz([&](QWidget& megint) {
                        ++kerdesek;
                        QTest::keyClick(&megint, Qt::Key_I, Qt::AltModifier);
                    });
                    QTest::keyClick(nevMezo(ujra), Qt::Key_Return);
                });
                QTest::keyClick(&kerdes, Qt::Key_Return);  // the careful answer
            });
            fajlnevBeirasa(d, "anna");
        });
        QCOMPARE(p_.mentendo(nullptr, kvhSzuro, "x.kvh"), ut("anna.kvh"));
        QCOMPARE(kerdesek, 2);
    }

    void azIgenNemKerdesBillentyukkel() {
        const auto kerdez = [this](std::function<void(QWidget&)> teendo) {
            aktivValasz(std::move(teendo));
            return p_.igen(nullptr, "Kilépés", "Valóban ki akar lépni?");
        };
        QVERIFY(kerdez([](QWidget& d) {
            const auto& doboz = dynamic_cast<QMessageBox&>(d);
            QCOMPARE(doboz.text(), "Valóban ki akar lépni?");
            QCOMPARE(doboz.icon(), QMessageBox::Question);
            QCOMPARE(doboz.button(QMessageBox::Yes)->text(), "&Igen");
            QCOMPARE(doboz.button(QMessageBox::No)->text(), "&Nem");
            QTest::keyClick(&d, Qt::Key_I, Qt::AltModifier);
        }));
        QVERIFY(!kerdez([](QWidget& d) { QTest::keyClick(&d, Qt::Key_N, Qt::AltModifier); }));
        QVERIFY(kerdez([](QWidget& d) { QTest::keyClick(&d, Qt::Key_Return); }));
        for (const auto& zar : zarasok()) QVERIFY(!kerdez(zar));
    }

    void aKerdesCimeEgeszbenLatszik() {
        for (const char* cim : {"Kilépés", "Kilépés és adatok mentése"}) {
            aktivValasz([](QWidget& d) {
                QVERIFY2(d.width() >= cimKell(d), qPrintable(QString::number(d.width())));
                d.close();
            });
            p_.igen(nullptr, cim, "Valóban ki akar lépni?");
        }
        aktivValasz([](QWidget& d) {
            QCOMPARE(d.windowTitle(), "Kérek egy nagyon hosszú megnevezést");
            QVERIFY(d.width() >= cimKell(d));
            d.close();
        });
        p_.bekeres(nullptr, "Kérek egy nagyon hosszú megnevezést", "x:");
    }

    void azUzenetSzovegeNemJelolonyelv() {
        for (const auto& zar : zarasok()) {
            aktivValasz([&](QWidget& d) {
                auto& doboz = dynamic_cast<QMessageBox&>(d);
                QCOMPARE(doboz.text(), "<b>a</b>.pdf");
                QCOMPARE(doboz.textFormat(), Qt::PlainText);
                QCOMPARE(doboz.windowTitle(), "Korvend");
                QCOMPARE(doboz.icon(), QMessageBox::Warning);
                QCOMPARE(doboz.button(QMessageBox::Ok)->text(), "Rendben");
                zar(doboz);
            });
            p_.uzenet(nullptr, "<b>a</b>.pdf");
        }
        aktivValasz([](QWidget& d) { QTest::keyClick(&d, Qt::Key_Return); });
        p_.uzenet(nullptr, "x");
    }

    void aBekeresEgySor() {
        for (int kor = 0; kor < 2; ++kor) {
            aktivValasz([](QWidget& d) {
                QCOMPARE(d.windowTitle(), "Nyomtatás");
                QVERIFY(!d.findChildren<QLabel*>().isEmpty());
                QCOMPARE(d.findChildren<QLabel*>().first()->text(), "Kérek egy megnevezést:");
                const auto* gombok = d.findChild<QDialogButtonBox*>();
                QCOMPARE(gombok->button(QDialogButtonBox::Ok)->text(), "Rendben");
                QCOMPARE(gombok->button(QDialogButtonBox::Cancel)->text(), "Mégsem");
                auto* mezo = d.findChild<QLineEdit*>();
                QCOMPARE(mezo->text(), "");
                QCOMPARE(mezo->echoMode(), QLineEdit::Normal);
                QTest::keyClicks(mezo, "Anna");
                QTest::keyClick(mezo, Qt::Key_Return);
            });
            QCOMPARE(p_.bekeres(nullptr, "Nyomtatás", "Kérek egy megnevezést:"), "Anna");
        }
        for (const auto& zar : zarasok()) {
            aktivValasz([&](QWidget& d) {
                QTest::keyClicks(d.findChild<QLineEdit*>(), "Anna");
                zar(d);
            });
            QCOMPARE(p_.bekeres(nullptr, "Nyomtatás", "x"), "");
        }
    }

    void aTitokRejtettEsAMegseNemUres() {
        aktivValasz([](QWidget& d) {
            auto* mezo = d.findChild<QLineEdit*>();
            QCOMPARE(mezo->echoMode(), QLineEdit::Password);
            QTest::keyClicks(mezo, "tizenhatkarakter");
            QTest::keyClick(mezo, Qt::Key_Return);
        });
        QCOMPARE(p_.titok(nullptr, "Korvend", "x", 15), std::optional<QString>("tizenhatkarakte"));
        aktivValasz([](QWidget& d) { QTest::keyClick(d.findChild<QLineEdit*>(), Qt::Key_Return); });
        QCOMPARE(p_.titok(nullptr, "Korvend", "x", 15), std::optional<QString>(""));
        for (const auto& zar : zarasok()) {
            aktivValasz(zar);
            QVERIFY(!p_.titok(nullptr, "Korvend", "x", 15));
        }
    }

    void aNyomtatobeallitasElfogadasaEsElvetese() {
        QPrinter nyomtato(QPrinter::HighResolution);
        nyomtato.setOutputFormat(QPrinter::PdfFormat);
        nyomtato.setOutputFileName(ut("x.pdf"));
        aktivValasz([](QWidget& d) {
            QCOMPARE(d.windowTitle(), "Nyomtatóbeállítás");
            QPushButton* rendben = d.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            QCOMPARE(rendben->text(), "Rendben");
            rendben->setFocus();
            QTest::keyClick(rendben, Qt::Key_Space);
        });
        QVERIFY(p_.nyomtatoBeallitas(nullptr, nyomtato));
        for (const auto& zar : zarasok()) {
            aktivValasz(zar);
            QVERIFY(!p_.nyomtatoBeallitas(nullptr, nyomtato));
        }
    }

private:
    using TZaras = std::function<void(QWidget&)>;
    /// The ways of leaving a dialog without an answer: Escape and the frame.
    static QList<TZaras> zarasok() {
        return {[](QWidget& d) { QTest::keyClick(&d, Qt::Key_Escape); }, [](QWidget& d) { d.close(); }};
    }
    QString ut(const QString& nev) const {
        const QString gyoker = QDir(mappa_->path()).canonicalPath();
        return nev.isEmpty() ? gyoker : gyoker + "/" + nev;
    }
    static QString itt() { return QDir::current().canonicalPath(); }

    TParbeszed p_;
    std::unique_ptr<QTemporaryDir> mappa_;
};

QTEST_MAIN(ParbeszedTeszt)
#include "parbeszed_teszt.moc"
