// How the program looks in other surroundings: dark colours, its icon.

#include <cmath>

#include <QClipboard>
#include <QFile>
#include <QListView>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "kepteszt.h"
#include "windows/jelzoszin.h"
#include "windows/kepkimentes.h"
#include "windows/mezojeloles.h"
#include "windows/programikon.h"

namespace {

/// A desktop's dark colours.
QPalette sotet() {
    QPalette p;
    const QColor hatter(0x23, 0x26, 0x29), mezo(0x1b, 0x1e, 0x20), szoveg(0xfc, 0xfc, 0xfc);
    for (const auto szerep : {QPalette::Window, QPalette::Button}) p.setColor(szerep, hatter);
    for (const auto szerep : {QPalette::Base, QPalette::AlternateBase}) p.setColor(szerep, mezo);
    for (const auto szerep :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        p.setColor(szerep, szoveg);
    p.setColor(QPalette::ToolTipBase, hatter);
    return p;
}

double fenyesseg(const QColor& szin) {
    const auto resz = [](double x) { return x <= 0.04045 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4); };
    return 0.2126 * resz(szin.redF()) + 0.7152 * resz(szin.greenF()) + 0.0722 * resz(szin.blueF());
}

/// Contrast of two colours, 1 to 21; text wants 4.5.
double ellentet(const QColor& a, const QColor& b) {
    const double x = fenyesseg(a) + 0.05;
    const double y = fenyesseg(b) + 0.05;
    return qMax(x, y) / qMin(x, y);
}

/// Contrast of what a control writes.
double olvashatosag(const QWidget& mezo) {
    const QPalette p = mezo.palette();
    if (const auto* gorgeto = qobject_cast<const QAbstractScrollArea*>(&mezo)) {
        const QWidget& lap = *gorgeto->viewport();
        return ellentet(p.color(QPalette::Text), lap.palette().color(lap.backgroundRole()));
    }
    return ellentet(p.color(mezo.foregroundRole()), p.color(mezo.backgroundRole()));
}

bool irMagara(const QWidget& mezo) {
    return qobject_cast<const QLabel*>(&mezo) != nullptr ||
           qobject_cast<const QLineEdit*>(&mezo) != nullptr ||
           qobject_cast<const QPushButton*>(&mezo) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&mezo) != nullptr ||
           qobject_cast<const QListView*>(&mezo) != nullptr;
}

/// The windows while the desktop's colours are dark.
struct TSotetAblakok {
    TSotetAblakok() : regi(QApplication::palette()) {
        QApplication::setPalette(sotet());
        a = std::make_unique<TFrissAblakok>();
        szuletes(*a);
        a->oraIndul();
    }
    ~TSotetAblakok() {
        a.reset();
        QApplication::setPalette(regi);
    }
    const QPalette regi;
    std::unique_ptr<TFrissAblakok> a;
};

QImage feherAlapon(const QImage& kep) {
    QImage uj(kep.size(), QImage::Format_RGB32);
    uj.fill(Qt::white);
    QPainter(&uj).drawImage(0, 0, kep);
    return uj;
}

}  // namespace

class KinezetTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void sotetSzinekkelMindenSzovegOlvashato() {
        TSotetAblakok s;
        TFrissAblakok& a = *s.a;
        menu(a.form1, "Mundnhzaspontosts1");
        menu(a.form1, "Primer1");
        menu(a.form1, "Radixlepteto1");
        QTest::qWait(tobbOrajel);
        int mezok = 0;
        for (QWidget* ablak : std::initializer_list<QWidget*>{
                 &a.form1, &a.form2, &a.form3, &a.form5, &a.form6, &a.form7, &a.form8, &a.form9, &a.form10,
                 &a.form11, &a.form12, &a.form13, &a.form14}) {
            for (const QWidget* mezo : ablak->findChildren<QWidget*>()) {
                if (!irMagara(*mezo)) continue;
                ++mezok;
                const QString mi = ablak->objectName() + " " + mezo->objectName() + " " +
                                   QString::number(olvashatosag(*mezo));
                QVERIFY2(olvashatosag(*mezo) >= 4.5, qPrintable(mi));
            }
        }
        QVERIFY(mezok > 200);
    }

    void sotetSzinekkelIsFeketeFeherAKerek() {
        QImage vilagos;
        {
            TFrissAblakok a;
            szuletes(a);
            vilagos = felszin(*a.form1.findChild<KepletFelulet*>("Felulet"));
        }
        TSotetAblakok s;
        const QImage sotetben = felszin(*s.a->form1.findChild<KepletFelulet*>("Felulet"));
        QCOMPARE(sotetben, vilagos);
        QVERIFY(fekete(s.a->kep()) < 5000);
        menu(s.a->form1, "KepMasolas1");
        QCOMPARE(QGuiApplication::clipboard()->image().pixelColor(3, 3), QColor(Qt::white));
    }

    void aJegyzetASzinvaltastKoveti() {
        TFrissAblakok a;
        auto* memo = vezerlo<QPlainTextEdit>(a.form1, "Memo1");
        const auto alap = [memo] {
            return memo->viewport()->palette().color(memo->viewport()->backgroundRole());
        };
        QCOMPARE(alap(), a.form1.palette().color(QPalette::Button));
        const QPalette regi = QApplication::palette();
        QApplication::setPalette(sotet());
        QApplication::processEvents();
        const QColor sotetAlap = alap();
        QApplication::setPalette(regi);
        QCOMPARE(sotetAlap, sotet().color(QPalette::Button));
    }

    void aVerdiktSzineiAHatterenOlvashatok() {
        for (const auto szin : {VerdiktSzin::kek, VerdiktSzin::piros}) {
            QVERIFY(ellentet(jelzoSzin(szin, sotet()), sotet().color(QPalette::Window)) >= 4.5);
            QCOMPARE(jelzoSzin(szin, QPalette(Qt::lightGray)),
                     QColor(szin == VerdiktSzin::kek ? Qt::blue : Qt::red));
        }
        const QColor kek = jelzoSzin(VerdiktSzin::kek, sotet());
        const QColor piros = jelzoSzin(VerdiktSzin::piros, sotet());
        QVERIFY(kek.blue() > kek.red() && piros.red() > piros.blue());
    }

    void azIkonAzAsztalFajljanakKepe() {
        if (QStandardPaths::findExecutable("rsvg-convert").isEmpty()) QSKIP("no rsvg-convert");
        const QTemporaryDir mappa;
        for (const auto& [meret, legtobb] : {std::pair(512, 45), std::pair(128, 15), std::pair(32, 30)}) {
            const QString ki = mappa.filePath("ikon.png");
            const QString oldal = QString::number(meret);
            QCOMPARE(QProcess::execute("rsvg-convert", {"-w", oldal, "-h", oldal, "-o", ki, IKON_FAJL}), 0);
            const QImage sajat = feherAlapon(programIkonKep(meret).toImage());
            QCOMPARE(sajat.size(), QSize(meret, meret));
            const double folt = legnagyobbFolt(sajat, feherAlapon(QImage(ki)), 8);
            QVERIFY2(folt < legtobb, qPrintable(QString::number(folt)));
            QCOMPARE(programIkonKep(meret).toImage().pixelColor(0, 0).alpha(), 0);
        }
    }

    void azIkonMindenMeretbenKesz() {
        const QList<QSize> meretek = programIkon().availableSizes();
        for (const int meret : {16, 24, 32, 48, 64, 128}) QVERIFY(meretek.contains(QSize(meret, meret)));
    }
};

QTEST_MAIN(KinezetTeszt)
#include "kinezet_teszt.moc"
