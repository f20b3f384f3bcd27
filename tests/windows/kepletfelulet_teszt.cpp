// The picture that the main window shows: the wheel without a ghost of the one before, on screens of any
// pixel ratio; the panel's rows and the status bar's fields. The clock ticks as it does for a user.

#include <array>

#include <QFile>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QTemporaryDir>

#include "ablakteszt.h"
#include "drawing/geometria.h"
#include "drawing/kepletrajz.h"
#include "windows/kepletfelulet.h"
#include "windows/qtvaszon.h"

namespace {

/// Pixel ratios of the screens that the tests run on.
constexpr std::array aranyok{1.0, 1.25, 1.5, 2.0};

struct TJaroAblakok : TFrissAblakok {
    TJaroAblakok() {
        szuletes(*this);
        vezerloOra()->start();
    }
    KepletFelulet& felulet() { return *form1.findChild<KepletFelulet*>("Felulet"); }
    QImage felszin() { return ::felszin(felulet()); }
    /// The chart in force on an empty surface.
    QImage tisztaRajz() {
        Allapot a = allapot();
        QPixmap kep(felulet().size() * felulet().devicePixelRatioF());
        kep.setDevicePixelRatio(felulet().devicePixelRatioF());
        kep.fill(Qt::white);
        {
            QPainter festo(&kep);
            QtVaszon vaszon(festo);
            AblakGeometria(a.Rajz, a.Keplet.hazCsucs[1], felulet().width(), felulet().height());
            KepletRajz(vaszon, a);
        }
        return kep.toImage();
    }
    /// To the screen of a ratio, its size kept.
    void atvisz(std::size_t kepernyo) {
        form1.setScreen(QGuiApplication::screens()[static_cast<qsizetype>(kepernyo)]);
        QApplication::processEvents();
    }
};

constexpr std::array nezetek{"Horizont1", "Mundan1", "Dekad1"};

/// Rows of a picture that have something dark in a range of columns.
QList<int> tintaSorok(const QImage& kep, int balra, int jobbra) {
    QList<int> sorok;
    for (int y = 0; y < kep.height(); ++y) {
        bool van = false;
        for (int x = balra; x < jobbra; ++x) van = van || qGray(kep.pixel(x, y)) < 140;
        if (van) sorok << y;
    }
    return sorok;
}

QLabel* cimke(const TForm1& ablak, int szam) {
    return vezerlo<QLabel>(ablak, qPrintable(QStringLiteral("Label%1").arg(szam)));
}

/// Counts how often a widget is painted.
class TFestesSzamlalo : public QObject {
public:
    explicit TFestesSzamlalo(QWidget& mezo) { mezo.installEventFilter(this); }
    int szam = 0;

private:
    bool eventFilter(QObject* targy, QEvent* esemeny) override {
        if (esemeny->type() == QEvent::Paint) ++szam;
        return QObject::eventFilter(targy, esemeny);
    }
};

}  // namespace

class KepletFeluletTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        sajatBetukBetoltese();
        const QList<QScreen*> kepernyok = QGuiApplication::screens();
        QCOMPARE(kepernyok.size(), aranyok.size());
        for (std::size_t i = 0; i < aranyok.size(); ++i)
            QCOMPARE(kepernyok[static_cast<qsizetype>(i)]->devicePixelRatio(), aranyok[i]);
    }

    void otRajzolasUgyanazMintEgy() {
        TJaroAblakok a;
        for (std::size_t i = 0; i < aranyok.size(); ++i) {
            a.atvisz(i);
            for (const char* nezet : nezetek) {
                menu(a.form1, nezet);
                a.form1.RajzolKeplet();
                const QImage egy = a.felszin();
                QVERIFY(fekete(egy) > 100);
                QCOMPARE(egy, a.tisztaRajz());
                for (int n = 0; n < 4; ++n) a.form1.RajzolKeplet();
                QCOMPARE(a.felszin(), egy);
            }
        }
    }

    /// Where the surface begins half a device pixel below a whole one too, as under a menu bar of an odd
    /// height.
    void azAblakAFelszintMutatjaElesen() {
        TJaroAblakok a;
        a.vezerloOra()->stop();
        for (std::size_t i = 0; i < aranyok.size(); ++i) {
            a.atvisz(i);
            for (const int menuMagassag : {24, 25}) {
                a.form1.menuBar()->setFixedHeight(menuMagassag);
                QApplication::processEvents();
                QCOMPARE(a.felulet().mapTo(&a.form1, QPoint()).y(), menuMagassag);
                const QImage ablak = a.form1.grab().toImage();
                const QImage felszin = a.felszin();
                const int panel = vezerlo<QFrame>(a.form1, "Panel1")->width();
                const int balra = qRound(panel * aranyok[i]) + 1;
                const int fent = qRound(menuMagassag * aranyok[i]);
                const QRect lathato(balra, 0, felszin.width() - balra, felszin.height() - 1);
                QVERIFY(fekete(felszin) > 100);
                QCOMPARE(ablak.copy(lathato.translated(0, fent)).convertToFormat(QImage::Format_RGB32),
                         felszin.copy(lathato).convertToFormat(QImage::Format_RGB32));
            }
        }
    }

    void azOrajelUjKepenNincsSzellem() {
        TJaroAblakok a;
        const QImage elobb = a.felszin();
        QImage utana, vart;
        // Right after the tick that carries out the step, before any paint that it has asked for.
        connect(a.vezerloOra(), &QTimer::timeout, this, [&] {
            if (!utana.isNull() || a.allapot().LeptetesVolt) return;
            utana = a.felszin();
            vart = a.tisztaRajz();
        });
        kattint(a.form7, "Button7orap");
        QVERIFY(a.allapot().LeptetesVolt);
        QTRY_VERIFY(!utana.isNull());
        QVERIFY(utana != elobb);
        QCOMPARE(utana, vart);
        QApplication::processEvents();
        QCOMPARE(a.felszin(), vart);
    }

    void aKertFestesASajatMutatasUtanIsMegjon() {
        KepletFelulet felulet;
        felulet.resize(100, 80);
        felulet.show();
        QVERIFY(QTest::qWaitForWindowExposed(&felulet));
        QApplication::processEvents();
        int keresek = 0;
        connect(&felulet, &KepletFelulet::festesKeres, this, [&] { ++keresek; });
        felulet.megmutat();
        QApplication::processEvents();
        QCOMPARE(keresek, 0);
        felulet.ervenytelenit();
        felulet.megmutat();
        QCOMPARE(keresek, 0);  // shown as it stands; the paint comes with the next turn
        QApplication::processEvents();
        QCOMPARE(keresek, 1);
        felulet.megmutat();
        QApplication::processEvents();
        QCOMPARE(keresek, 1);
    }

    void aFestesKozbeniMutatasNemFestUjra() {
        QTest::failOnWarning(QRegularExpression("ecursive repaint"));
        KepletFelulet felulet;
        felulet.resize(100, 80);
        int keresek = 0;
        connect(&felulet, &KepletFelulet::festesKeres, this, [&] {
            ++keresek;
            felulet.rajzol([](Vaszon& vaszon) { vaszon.Ellipse(10, 10, 40, 40); });
            felulet.megmutat();
        });
        felulet.show();
        QVERIFY(QTest::qWaitForWindowExposed(&felulet));
        QApplication::processEvents();
        const int elso = keresek;
        QVERIFY(elso >= 1);
        felulet.update();
        QApplication::processEvents();
        QCOMPARE(keresek, elso + 1);
    }

    void aSzimbolumValtasNemHagyMaradekot() {
        TJaroAblakok a;
        const QImage elobb = a.felszin();
        valasz([](QWidget& d) {
            vezerlo<QComboBox>(d, "ComboBox1")->setEditText("DejaVu Sans");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Szimbolumok1");
        QCOMPARE(a.allapot().Rajz.szimbolumFont, std::string("DejaVu Sans"));
        QVERIFY(a.felszin() != elobb);
        QCOMPARE(a.felszin(), a.tisztaRajz());
        valasz([](QWidget& d) { kattint(d, "Button_Megsem1"); });
        menu(a.form1, "Szimbolumok1");
        QCOMPARE(a.felszin(), a.tisztaRajz());
    }

    void aReszlegesFestesUgyanazAKep() {
        TJaroAblakok a;
        const QRegion resz = QRegion(301, 203, 111, 77).united(QRect(350, 250, 123, 201));
        for (std::size_t i = 0; i < aranyok.size(); ++i) {
            a.atvisz(i);
            a.form1.RajzolKeplet();
            const QImage elobb = a.felszin();
            for (int n = 0; n < 3; ++n) {
                a.felulet().update(resz);
                QApplication::processEvents();
            }
            QCOMPARE(a.felszin(), elobb);
        }
    }

    void aReszlegesFestesCsakAReszetFesti() {
        const QRect resz(300, 200, 120, 80);  // whole pixels at each ratio
        TJaroAblakok a;
        for (std::size_t i = 0; i < aranyok.size(); ++i) {
            a.atvisz(i);
            menu(a.form1, i % 2 == 0 ? "Mundan1" : "Dekad1");
            QVERIFY(a.allapot().TeljesTorles);
            QImage vart = a.felszin();
            QCOMPARE(vart.devicePixelRatio(), aranyok[i]);
            QPainter(&vart).fillRect(resz, Qt::white);
            QVERIFY(vart != a.felszin());
            a.felulet().update(resz);
            QApplication::processEvents();
            QCOMPARE(a.felszin(), vart);
            // Without the flag the part comes back.
            a.allapot().TeljesTorles = false;
            a.felulet().update(resz);
            QApplication::processEvents();
            QCOMPARE(a.felszin(), a.tisztaRajz());
        }
    }

    void azUjMeretuKepFeher() {
        KepletFelulet felulet;
        felulet.show();
        for (const QSize& meret : {QSize(100, 80), QSize(300, 200), QSize(90, 250)}) {
            felulet.rajzol([](Vaszon& vaszon) { vaszon.Ellipse(10, 10, 40, 40); });
            felulet.resize(meret);
            QApplication::processEvents();
            QImage feher = felszin(felulet);
            QCOMPARE(feher.size(), meret);
            feher.fill(Qt::white);
            QCOMPARE(felszin(felulet), feher);
        }
    }

    void aReszlegesUjrarajzolasAReszenUjAzonKivulRegi() {
        KepletFelulet felulet;
        felulet.resize(100, 100);
        felulet.show();
        QApplication::processEvents();
        const auto vonal = [](int y) {
            return [y](Vaszon& v) {
                v.MoveTo(5, y);
                v.LineTo(95, y);
            };
        };
        felulet.ujrarajzol(felulet.rect(), vonal(20));
        felulet.ujrarajzol(QRect(0, 0, 50, 100), vonal(70));
        const QImage kep = felszin(felulet);
        const auto szurke = [&](int x, int y) {
            const double arany = kep.devicePixelRatio();
            return qGray(kep.pixel(static_cast<int>((x + 0.5) * arany), static_cast<int>((y + 0.5) * arany)));
        };
        QVERIFY(szurke(30, 20) > 192 && szurke(30, 70) < 64);
        QVERIFY(szurke(80, 20) < 64 && szurke(80, 70) > 192);
    }

    void aRairtSzovegAKovetkezoRajzolasigAll() {
        TJaroAblakok a;
        valasz([](QWidget& d) { kattint(d, "Button_Rendben1"); });
        menu(a.form1, "Tercier1");
        const QImage szoveggel = a.felszin();
        QVERIFY(szoveggel != a.tisztaRajz());
        const QRect sor(55, 7, 900, 24);
        QVERIFY(szoveggel.copy(sor) != a.tisztaRajz().copy(sor));
        a.felulet().update(QRect(300, 200, 120, 80));
        QApplication::processEvents();
        QCOMPARE(a.felszin(), szoveggel);
        a.form1.RajzolKeplet();
        QCOMPARE(a.felszin(), a.tisztaRajz());
    }

    void aKepernyoAranyatAtmeretezesNelkulKoveti() {
        QTest::failOnWarning(QRegularExpression("ecursive repaint"));
        TJaroAblakok a;
        for (const char* nezet : nezetek) {
            for (const std::size_t kepernyo : {1U, 2U, 3U, 0U}) {
                menu(a.form1, nezet);
                const QSize elobb = a.felulet().size();
                a.atvisz(kepernyo);
                QCOMPARE(a.felulet().size(), elobb);
                QCOMPARE(a.felulet().devicePixelRatioF(), aranyok[kepernyo]);
                QVERIFY(fekete(a.felszin()) > 100);
                QCOMPARE(a.felszin(), a.tisztaRajz());
            }
        }
    }

    /// At once, so that a command that computes for long leaves no old picture.
    void azUjrafestesRogtonTorolVagyRajzol() {
        TJaroAblakok a;
        const TFestesSzamlalo felulet(a.felulet());
        a.allapot().TeljesTorles = true;
        a.form1.Ujrafest();
        QCOMPARE(felulet.szam, 1);
        QImage ures = a.felszin();
        ures.fill(Qt::white);
        QCOMPARE(a.felszin(), ures);
        a.allapot().TeljesTorles = false;
        a.form1.Ujrafest();
        QCOMPARE(felulet.szam, 2);
        QCOMPARE(a.felszin(), a.tisztaRajz());
    }

    void azIndulasEgyszerFestiAPanelt() {
        TAblakok a;
        a.form1.findChild<QTimer*>("Timer1")->stop();  // a tick paints anew
        const TFestesSzamlalo helyzet(*cimke(a.form1, 3));
        a.form1.show();
        constexpr int tobbFestes = 100;  // milliseconds; a window asks for its next painting some later
        QTest::qWait(tobbFestes);
        QCOMPARE(helyzet.szam, 1);
    }

    void aHelyzetSzovegAJeleihezTartozik() {
        TJaroAblakok a;
        const auto* memo = vezerlo<QPlainTextEdit>(a.form1, "Memo1");
        const auto* utolsoGomb = vezerlo<QPushButton>(a.form1, "PanelButton7Tercier");
        QVERIFY(cimke(a.form1, 1)->y() >= utolsoGomb->geometry().bottom());
        for (int sor = 0; sor < 16; ++sor) {
            const QLabel* jel = cimke(a.form1, 3 * sor + 1);
            const QLabel* jegy = cimke(a.form1, 3 * sor + 2);
            const QLabel* szoveg = cimke(a.form1, 3 * sor + 3);
            QCOMPARE(jel->y(), jegy->y());
            QCOMPARE(jel->height(), jegy->height());
            const int belul = szoveg->y() - (jel->y() + jel->height());
            QVERIFY(belul <= 1);
            const int alja = szoveg->y() + szoveg->height();
            const int kovetkezo = sor < 15 ? cimke(a.form1, 3 * sor + 4)->y() : memo->y();
            QVERIFY(kovetkezo - alja >= belul + 3);
            QVERIFY(szoveg->height() >= QFontMetrics(szoveg->font()).height());
            QVERIFY(QFontMetrics(szoveg->font()).horizontalAdvance("28°58'58''") < szoveg->width());
        }
    }

    void aSorokTintajaIsOsszetartozik() {
        TJaroAblakok a;
        auto* panel1 = vezerlo<QFrame>(a.form1, "Panel1");
        const QImage kep = panel1->grab(QRect(0, 146, 49, 454)).toImage();
        // The blanks of the panel's first ten rows, from their glyphs down: within a row, then before the
        // next.
        const QList<int> sorok = tintaSorok(kep, 1, 48);
        QList<int> kozok;
        for (qsizetype i = 1; i < sorok.size() && kozok.size() < 19; ++i)
            if (sorok[i] > sorok[i - 1] + 1) kozok << sorok[i] - sorok[i - 1] - 1;
        QCOMPARE(kozok.size(), 19);
        for (qsizetype i = 0; i + 1 < kozok.size(); i += 2)
            QVERIFY2(kozok[i + 1] >= 2 * kozok[i] && kozok[i + 1] >= kozok[i] + 3,
                     qPrintable(QStringLiteral("%1 %2").arg(kozok[i]).arg(kozok[i + 1])));
    }

    void azAllapotsorMezoiATerviSzelessegukkel() {
        TJaroAblakok a;
        constexpr std::array szelessegek{48, 90, 150, 135, 150, 90};
        for (std::size_t i = 0; i < szelessegek.size(); ++i)
            QCOMPARE(statusz(a, static_cast<int>(i))->width(), szelessegek[i]);
        QVERIFY(statusz(a, 6)->width() > 100);
    }

    void aKeskenyAblakAllapotsorabanSemmiSemFediEgymast() {
        TJaroAblakok a;
        a.allapot().Feliratok.statusz[2] = "Egy igen hosszú nevű személy";
        a.allapot().Feliratok.statusz[4] = "Hódmezővásárhelykutasipuszta";
        a.form1.Mutat();
        for (const int szelesseg : {600, 400}) {
            a.form1.resize(szelesseg, 600);
            QApplication::processEvents();
            QCOMPARE(a.form1.width(), szelesseg);
            for (int i = 0; i < 7; ++i) {
                const QRect mezo = statusz(a, i)->geometry();
                QVERIFY(mezo.left() >= 0);
                QVERIFY(mezo.right() < szelesseg);
                if (i > 0) QVERIFY(mezo.left() > statusz(a, i - 1)->geometry().right());
                if (i < 6) QVERIFY(mezo.width() >= 20);
            }
        }
        // The empty panel leaves its room to the others, and the long texts have more than the short ones.
        QVERIFY(statusz(a, 6)->width() <= 20);
        QVERIFY(statusz(a, 2)->width() > statusz(a, 1)->width());
        QVERIFY(statusz(a, 1)->width() > statusz(a, 0)->width());
        a.form1.resize(995, 717);
        QApplication::processEvents();
        QCOMPARE(statusz(a, 2)->width(), 150);
    }

private:
    static const QLabel* statusz(const TFrissAblakok& a, int szam) {
        return vezerlo<QLabel>(a.form1, qPrintable(QStringLiteral("StatusBar1Panel%1").arg(szam)));
    }
};

/// Screens of every ratio beside each other.
int main(int argc, char** argv) {
    const QTemporaryDir mappa;
    QStringList kepernyok;
    for (const double arany : aranyok)
        kepernyok << QStringLiteral(R"({"name": "K%1", "x": %2, "y": 0, "width": 2400, "height": 1600,)"
                                    R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": %3})")
                         .arg(kepernyok.size())
                         .arg(kepernyok.size() * 2400)
                         .arg(arany);
    QFile leiras(mappa.filePath("kepernyok.json"));
    if (!leiras.open(QIODevice::WriteOnly)) return 1;
    leiras.write(QStringLiteral(R"({"screens": [%1]})").arg(kepernyok.join(", ")).toUtf8());
    leiras.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + leiras.fileName().toUtf8());
    QApplication program(argc, argv);
    KepletFeluletTeszt teszt;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&teszt, argc, argv);
}
#include "kepletfelulet_teszt.moc"
