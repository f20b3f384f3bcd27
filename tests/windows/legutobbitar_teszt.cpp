// The last folder and the latest charts: their store, and the file dialogs that begin with them.

#include <functional>

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QTemporaryDir>

#include "aktivvalasz.h"
#include "windows/legutobbitar.h"
#include "windows/parbeszed.h"

namespace {

QListWidget* lista(const QWidget& d) {
    return d.findChild<QListWidget*>("Legutobbiak1");
}

QString dialogusMappa(const QWidget& d) {
    return dynamic_cast<const QFileDialog&>(d).directory().canonicalPath();
}

}  // namespace

class LegutobbiTarTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }
    void init() {
        mappa_.reset(new QTemporaryDir);
        for (const char* alatta : {"a", "b"}) QVERIFY(QDir(mappa_->path()).mkdir(alatta));
        for (const char* fajl : {"a/anna.kvh", "b/béla.kvh", "b/cili.kvh"}) {
            QFile ki(ut(fajl));
            QVERIFY(ki.open(QIODevice::WriteOnly));
        }
        QVERIFY(QDir::setCurrent(ut("")));
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void amitEgyikFutasMegjegyezAKovetkezoTudja() {
        {
            TLegutobbiTar tar(tarFajl());
            QCOMPARE(tar.mappa(), QDir::currentPath());
            QVERIFY(tar.fajlok().isEmpty());
            tar.felvesz(ut("a/anna.kvh"));
            tar.felvesz(ut("b/béla.kvh"));
            tar.mappaba(ut("a"));
        }
        const TLegutobbiTar tar(tarFajl());
        QCOMPARE(tar.mappa(), ut("a"));
        QCOMPARE(tar.fajlok(), QStringList({ut("b/béla.kvh"), ut("a/anna.kvh")}));
        QCOMPARE(QFile::permissions(tarFajl()) & ~(QFile::ReadUser | QFile::WriteUser),
                 QFile::ReadOwner | QFile::WriteOwner);
    }

    void azEltuntMappaEsFajlKimarad() {
        TLegutobbiTar tar(tarFajl());
        tar.felvesz(ut("b/béla.kvh"));
        tar.felvesz(ut("a/anna.kvh"));
        QVERIFY(QDir(ut("a")).removeRecursively());
        QCOMPARE(tar.mappa(), QDir::currentPath());
        QCOMPARE(tar.fajlok(), QStringList{ut("b/béla.kvh")});
    }

    void ketFutasNemFelejtiEgymasKepleteit() {
        TLegutobbiTar egyik(tarFajl());
        TLegutobbiTar masik(tarFajl());
        egyik.felvesz(ut("a/anna.kvh"));
        masik.felvesz(ut("b/béla.kvh"));
        QCOMPARE(masik.fajlok(), QStringList({ut("b/béla.kvh"), ut("a/anna.kvh")}));
    }

    void azIrhatatlanTarNemHiba() {
        QVERIFY(QDir().mkpath(tarFajl()));  // a folder stands where the store would
        TLegutobbiTar tar(tarFajl());
        tar.felvesz(ut("a/anna.kvh"));
        QCOMPARE(tar.mappa(), ut("a"));
    }

    void aParbeszedekAzUtolsoMappaban() {
        TLegutobbiTar tar(tarFajl());
        tar.felvesz(ut("b/béla.kvh"));
        TParbeszed p;
        p.legutobbiBeallitasa(tar);
        aktivValasz([this](QWidget& d) {
            QCOMPARE(dialogusMappa(d), ut("b"));
            auto* mezo = vezerlo<QLineEdit>(d, "fileNameEdit");
            QTest::keyClicks(mezo, ut("a/anna.kvh"));
            QTest::keyClick(mezo, Qt::Key_Return);
        });
        QCOMPARE(p.megnyitando(nullptr, kepletfajlSzuro), ut("a/anna.kvh"));
        QCOMPARE(tar.mappa(), ut("a"));
        aktivValasz([this](QWidget& d) {
            QCOMPARE(dialogusMappa(d), ut("a"));
            QCOMPARE(vezerlo<QLineEdit>(d, "fileNameEdit")->text(), "új.kvh");
            QVERIFY(lista(d) == nullptr);  // who saves has no use for them
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        QCOMPARE(p.mentendo(nullptr, kepletfajlSzuro, "új.kvh"), "");
        QCOMPARE(tar.mappa(), ut("a"));
    }

    void aMegnyitasOldalanALegutobbiKepletek() {
        TLegutobbiTar tar(tarFajl());
        for (const char* fajl : {"a/anna.kvh", "b/béla.kvh"}) tar.felvesz(ut(fajl));
        TParbeszed p;
        p.legutobbiBeallitasa(tar);
        for (const auto& [sor, fajl] : {std::pair(1, "a/anna.kvh"), std::pair(0, "b/béla.kvh")}) {
            aktivValasz([this, sor = sor, fajl = fajl](QWidget& d) {
                QListWidget* sorok = lista(d);
                QVERIFY(sorok != nullptr && sorok->isVisible());
                QCOMPARE(sorok->count(), 2);
                QCOMPARE(sorok->item(0)->text(), "béla");
                QCOMPARE(sorok->item(1)->text(), "anna");
                QCOMPARE(sorok->item(1)->toolTip(), ut("a/anna.kvh"));
                // The list fills its part but for the caption over it; the files have more room.
                const QRect lap = sorok->parentWidget()->rect();
                QCOMPARE(sorok->geometry().left(), lap.left());
                QCOMPARE(sorok->geometry().bottomRight(), lap.bottomRight());
                QCOMPARE(sorok->parentWidget()->findChild<QLabel*>()->geometry().topLeft(), lap.topLeft());
                const auto* fajlok = vezerlo<QWidget>(d, "listView")->parentWidget();
                QVERIFY2(fajlok->width() > 2 * sorok->width(), qPrintable(QString::number(sorok->width())));
                const QPoint hely = sorok->visualItemRect(sorok->item(sor)).center();
                QTest::mouseClick(sorok->viewport(), Qt::LeftButton, {}, hely);
                QCOMPARE(vezerlo<QLineEdit>(d, "fileNameEdit")->text(), QFileInfo(fajl).fileName());
                QVERIFY(d.isVisible());
                QTest::mouseDClick(sorok->viewport(), Qt::LeftButton, {}, hely);
            });
            QCOMPARE(p.megnyitando(nullptr, kepletfajlSzuro), ut(fajl));
            QCOMPARE(tar.mappa(), QFileInfo(ut(fajl)).path());
        }
    }

    void aLegutobbiKepletBillentyuvel() {
        TLegutobbiTar tar(tarFajl());
        for (const char* fajl : {"a/anna.kvh", "b/béla.kvh"}) tar.felvesz(ut(fajl));
        TParbeszed p;
        p.legutobbiBeallitasa(tar);
        aktivValasz([](QWidget& d) {
            QTest::keyClick(&d, Qt::Key_L, Qt::AltModifier);
            QListWidget* sorok = lista(d);
            QVERIFY(sorok->hasFocus());
            QTest::keyClick(sorok, Qt::Key_End);
            QTest::keyClick(sorok, Qt::Key_Return);
        });
        QCOMPARE(p.megnyitando(nullptr, kepletfajlSzuro), ut("a/anna.kvh"));
        aktivValasz([](QWidget& d) {
            lista(d)->setFocus();
            QTest::keyClick(lista(d), Qt::Key_Escape);
        });
        QCOMPARE(p.megnyitando(nullptr, kepletfajlSzuro), "");
    }

    void legutobbiNelkulNincsOldalLista() {
        TLegutobbiTar tar(tarFajl());
        TParbeszed p;
        p.legutobbiBeallitasa(tar);
        aktivValasz([](QWidget& d) {
            QVERIFY(lista(d) == nullptr);
            QTest::keyClick(&d, Qt::Key_Escape);
        });
        p.megnyitando(nullptr, kepletfajlSzuro);
    }

private:
    QString ut(const QString& nev) const {
        const QString gyoker = QDir(mappa_->path()).canonicalPath();
        return nev.isEmpty() ? gyoker : gyoker + "/" + nev;
    }
    QString tarFajl() const { return ut("beállítás/legutobbi"); }

    std::unique_ptr<QTemporaryDir> mappa_;
};

QTEST_MAIN(LegutobbiTarTeszt)
#include "legutobbitar_teszt.moc"
