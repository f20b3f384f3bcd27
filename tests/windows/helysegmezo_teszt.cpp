// The place field by itself: what it offers, what it takes, what it marks, how its list looks.

#include <cmath>

#include <QAbstractItemView>
#include <QDialog>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "kezteszt.h"
#include "windows/helysegmezo.h"
#include "windows/helysegmodell.h"
#include "windows/vezerlok.h"

namespace {

constexpr int nevek = 3138;

struct TProbaDialogus : QDialog {
    explicit TProbaDialogus(const QString& nev = "Szeged") : mezo(*ujHelysegMezo(this, "Hely")) {
        auto* sor = new QVBoxLayout(this);
        sor->addWidget(&mezo);
        auto* rendben = ujGomb(this, "Rendben", "Rendben");
        rendben->setDefault(true);
        connect(rendben, &QPushButton::clicked, this, [this] { ++rendbenek; });
        sor->addWidget(rendben);
        mezo.helysegBeallitasa(nev);
        show();
        fokuszig(*this);
        belelep(*this, "Hely");
    }
    QStringList felkinalt() {
        QStringList lista;
        const QAbstractItemView* popup = mezo.completer()->popup();
        if (!popup->isVisible()) return lista;
        for (int i = 0; i < popup->model()->rowCount(); ++i)
            lista << popup->model()->index(i, 0).data().toString();
        return lista;
    }
    bool jelolt() { return mezo.toolTip().contains("Budapest"); }
    QColor betuszin() { return mezo.lineEdit()->palette().color(QPalette::Text); }
    QColor hatter() { return mezo.lineEdit()->palette().color(QPalette::Base); }

    HelysegMezo& mezo;
    int rendbenek = 0;
};

/// Relative luminance of a colour, 0..1.
double fenyesseg(const QColor& szin) {
    const auto csatorna = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * csatorna(szin.redF()) + 0.7152 * csatorna(szin.greenF()) +
           0.0722 * csatorna(szin.blueF());
}

double kontraszt(const QColor& a, const QColor& b) {
    const double x = fenyesseg(a), y = fenyesseg(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

/// Rows of a picture that hold ink.
int tintasSorok(const QImage& kep) {
    int szam = 0;
    for (int y = 0; y < kep.height(); ++y) {
        bool tinta = false;
        for (int x = 0; x < kep.width(); ++x) tinta = tinta || qGray(kep.pixel(x, y)) < 200;
        szam += tinta ? 1 : 0;
    }
    return szam;
}

/// The same text painted with room all around it.
int tintasSorokSzabadon(const QString& szoveg, const QFont& betu) {
    QImage kep(300, 100, QImage::Format_RGB32);
    kep.fill(Qt::white);
    QPainter festo(&kep);
    festo.setFont(betu);
    festo.setPen(Qt::black);
    festo.drawText(10, 60, szoveg);
    festo.end();
    return tintasSorok(kep);
}

/// Rows of ink of an item as a list shows it, unselected and without the list's frame.
int tintasSorokAListaban(QAbstractItemView& lista, const QModelIndex& sor) {
    lista.clearSelection();
    lista.setCurrentIndex({});
    lista.scrollTo(sor, QAbstractItemView::PositionAtCenter);
    return tintasSorok(lista.viewport()->grab(lista.visualRect(sor)).toImage());
}

}  // namespace

class HelysegMezoTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void ekezetNelkulEsKisbetuvelIsMegtalalja() {
        TProbaDialogus d;
        beut("gyor");
        const QStringList lista = d.felkinalt();
        QVERIFY(lista.size() > 2);
        QCOMPARE(lista[0], "Győr");
        QCOMPARE(lista[1], "Gyóró");
        QVERIFY(lista.contains("Szentgyörgyvár"));
    }

    void azEnterAzEgyetlenTalalatotVesziADialogusNyitvaMarad() {
        TProbaDialogus d;
        beut("hodmezo");
        QCOMPARE(d.felkinalt(), QStringList{"Hódmezővásárhely"});
        leut(Qt::Key_Return);
        QCOMPARE(d.mezo.currentText(), "Hódmezővásárhely");
        QCOMPARE(d.mezo.itemText(d.mezo.currentIndex()), "Hódmezővásárhely");
        QVERIFY(d.felkinalt().isEmpty());
        QCOMPARE(d.rendbenek, 0);
        leut(Qt::Key_Return);
        QCOMPARE(d.rendbenek, 1);
    }

    void azEnterABecsukottListavalIsAzEgyetlentVeszi() {
        TProbaDialogus d;
        beut("gyor");
        leut(Qt::Key_Escape);
        QVERIFY(d.felkinalt().isEmpty());
        QVERIFY(d.isVisible());
        leut(Qt::Key_Return);
        QCOMPARE(d.mezo.currentText(), "Győr");
        QCOMPARE(d.rendbenek, 0);
    }

    void atabulatorANyitottListarolIsTovabbmegy() {
        TProbaDialogus d;
        beut("szeged");
        QVERIFY(!d.felkinalt().isEmpty());
        leut(Qt::Key_Tab);
        QVERIFY(d.felkinalt().isEmpty());
        QVERIFY(!d.mezo.hasFocus());
        QCOMPARE(d.mezo.currentText(), "szeged");  // only Enter takes a name
        QVERIFY(d.jelolt());
    }

    void azEnterTobbTalalatKozulNemValaszt() {
        TProbaDialogus d;
        beut("komlo");
        leut(Qt::Key_Return);
        QCOMPARE(d.mezo.currentText(), "komlo");
        QCOMPARE(d.mezo.count(), nevek);  // nor is it put into the list
        QCOMPARE(d.mezo.findText("komlo", Qt::MatchExactly | Qt::MatchCaseSensitive), -1);
    }

    void aListabolNyillalValasztott() {
        TProbaDialogus d;
        beut("komlo");
        leut(Qt::Key_Down);
        leut(Qt::Key_Down);
        leut(Qt::Key_Return);
        QCOMPARE(d.mezo.currentText(), "Kömlő");
        QCOMPARE(d.rendbenek, 0);
        QVERIFY(!d.jelolt());
    }

    void aValasztasUtanUjraGepelheto() {
        TProbaDialogus d;
        beut("gyor");
        leut(Qt::Key_Return);
        leut(Qt::Key_A, Qt::ControlModifier);
        beut("pecs");
        QCOMPARE(d.felkinalt().value(0), "Pécs");
        leut(Qt::Key_Return);
        QCOMPARE(d.mezo.currentText(), "Pécs");
    }

    void azIsmeretlenNevJelolveVan() {
        TProbaDialogus d;
        QVERIFY(!d.jelolt());
        QCOMPARE(d.mezo.toolTip(), "Legfeljebb 32 karakter");
        const QColor rendes = d.betuszin();
        beut("Xanadu");
        QVERIFY(d.jelolt());
        QVERIFY(d.betuszin() != rendes);
        leut(Qt::Key_A, Qt::ControlModifier);
        beut("Baja");
        QVERIFY(!d.jelolt());
        QCOMPARE(d.betuszin(), rendes);
        QCOMPARE(d.mezo.toolTip(), "Legfeljebb 32 karakter");
        d.mezo.helysegBeallitasa("Xanadu");  // by the program, too
        QVERIFY(d.jelolt());
        QCOMPARE(d.mezo.currentIndex(), -1);
    }

    void aJelolesVilagosEsSotetHatterenIsOlvashato() {
        const QPalette elobb = QApplication::palette();
        TProbaDialogus d("Xanadu");
        for (const QColor& hatter : {QColor(Qt::white), QColor(0x1e, 0x1e, 0x1e), QColor(0xef, 0xe8, 0xd0),
                                     QColor(0x31, 0x36, 0x3b)}) {
            QPalette tema = elobb;
            tema.setColor(QPalette::Base, hatter);
            tema.setColor(QPalette::Text, hatter.lightness() < 128 ? Qt::white : Qt::black);
            QApplication::setPalette(tema);  // also while the dialog is open
            QApplication::processEvents();
            QCOMPARE(d.hatter(), hatter);
            QVERIFY2(kontraszt(d.betuszin(), d.hatter()) >= 4.5, qPrintable(hatter.name()));
            QVERIFY(d.betuszin() != tema.color(QPalette::Text));
        }
        QApplication::setPalette(elobb);
    }

    void aNyilakAHelytolIndulnak() {
        TProbaDialogus d("Szeged");
        QCOMPARE(d.mezo.itemText(d.mezo.currentIndex()), "Szeged");
        leut(Qt::Key_Down);
        QCOMPARE(d.mezo.currentText(), "Szegerdő");
        leut(Qt::Key_Up);
        leut(Qt::Key_Up);
        QCOMPARE(d.mezo.currentText(), "Szedres");
        d.mezo.helysegBeallitasa("Pécs");
        leut(Qt::Key_Down);
        QCOMPARE(d.mezo.currentText(), "Pécsbagota");
    }

    void aBegepeltHelytolIsOnnanIndulnak() {
        TProbaDialogus d("Szeged");
        beut("Pécs");
        leut(Qt::Key_Escape);
        leut(Qt::Key_Down);
        QCOMPARE(d.mezo.currentText(), "Pécsbagota");
        leut(Qt::Key_A, Qt::ControlModifier);
        beut("oriszen");
        leut(Qt::Key_Escape);
        leut(Qt::Key_Down);
        QCOMPARE(d.mezo.currentText(), "Őriszentpéter");
        leut(Qt::Key_A, Qt::ControlModifier);
        beut("Aba");  // the first row
        leut(Qt::Key_Escape);
        leut(Qt::Key_Down);
        QCOMPARE(d.mezo.currentText(), "Abádszalók");
    }

    /// From a text that can mean no place an arrow key leads to a place all the same.
    void aNyilAzErtelmetlenSzovegrolIsHelyreVisz() {
        TProbaDialogus d("Szeged");
        beut("xyzw");
        leut(Qt::Key_Down);
        QVERIFY(d.mezo.findText(d.mezo.currentText(), Qt::MatchExactly) >= 0);
    }

    void aListaAHelynelNyilik() {
        TProbaDialogus d("Szeged");
        for (const char* nev : {"Szeged", "Zubogy", "Aba", "Őriszentpéter"}) {
            d.mezo.helysegBeallitasa(nev);
            leut(Qt::Key_Down, Qt::AltModifier);
            QAbstractItemView* lista = d.mezo.view();
            QVERIFY(lista->isVisible());
            QCOMPARE(lista->currentIndex().data().toString(), nev);
            QVERIFY(lista->viewport()->rect().contains(lista->visualRect(lista->currentIndex())));
            leut(Qt::Key_Escape);
            QCOMPARE(d.mezo.currentText(), nev);
        }
        d.mezo.setEditText("gyor");
        d.mezo.showPopup();
        QCOMPARE(d.mezo.view()->currentIndex().data().toString(), "Győr");
        d.mezo.hidePopup();
        QCOMPARE(d.mezo.currentText(), "gyor");
    }

    void aGorgoFokusszalAHelytolIndul() {
        TProbaDialogus d("Szeged");
        gorget(d.mezo, -1);
        QCOMPARE(d.mezo.currentText(), "Szegerdő");
    }

    void aNagybetukEkezeteNemVagodikLe() {
        TProbaDialogus d;
        d.mezo.showPopup();
        QAbstractItemView& lista = *d.mezo.view();
        for (const char* nev : {"Őr", "Ózd", "Ádánd", "Öskü", "Érd"}) {
            const int sor = d.mezo.findText(nev);
            QVERIFY(sor >= 0);
            QCOMPARE(tintasSorokAListaban(lista, d.mezo.model()->index(sor, 0)),
                     tintasSorokSzabadon(nev, lista.font()));
        }
        d.mezo.hidePopup();
        belelep(d, "Hely");
        beut("or");
        QAbstractItemView& felkinalt = *d.mezo.completer()->popup();
        QVERIFY(felkinalt.isVisible());
        QCOMPARE(felkinalt.model()->index(0, 0).data().toString(), "Őr");
        QCOMPARE(tintasSorokAListaban(felkinalt, felkinalt.model()->index(0, 0)),
                 tintasSorokSzabadon("Őr", felkinalt.font()));
    }

    void aListaNoDeANevekEgyszerVannakAMemoriaban() {
        TProbaDialogus d;
        HelysegMezo& mezo = d.mezo;
        QCOMPARE(mezo.count(), nevek);
        for (int i = 2; i <= 50; ++i) {
            mezo.listaNovelese();
            QCOMPARE(mezo.count(), i * nevek);
            QCOMPARE(mezo.currentText(), "Szeged");
        }
        TProbaDialogus masik;
        for (const int sor : {0, 1, 1500, nevek - 1}) {
            const QString elso = mezo.itemText(sor);
            const QString utolso = mezo.itemText(sor + 49 * nevek);
            QCOMPARE(utolso, elso);
            QVERIFY(utolso.constData() == elso.constData());
            QVERIFY(masik.mezo.itemText(sor).constData() == elso.constData());
        }
        QCOMPARE(mezo.itemText(0), "Aba");
        QCOMPARE(mezo.itemText(nevek - 1), "Zubogy");
        mezo.setItemText(0, "Más");  // the list can only be read
        QCOMPARE(mezo.itemText(0), "Aba");
    }

    void aSoroknakNincsAlsoSora() {
        HelysegModell modell;
        QCOMPARE(modell.rowCount(), 0);
        const QSignalSpy ujSorok(&modell, &QAbstractItemModel::rowsInserted);
        modell.noveles();
        QCOMPARE(modell.rowCount(), 3138);
        modell.noveles();
        QCOMPARE(ujSorok.size(), 2);
        for (int n = 0; n < 2; ++n) {
            QCOMPARE(ujSorok[n][1].toInt(), n * nevek);
            QCOMPARE(ujSorok[n][2].toInt(), (n + 1) * nevek - 1);
        }
        QVERIFY(!modell.data({}, Qt::DisplayRole).isValid());
        QVERIFY(!modell.data(modell.index(0), Qt::ToolTipRole).isValid());
        QCOMPARE(modell.rowCount(modell.index(0)), 0);
    }

    void legfeljebbHarminckettoKarakter() {
        TProbaDialogus d;
        beut(qPrintable(QString(40, u'x')));
        QCOMPARE(d.mezo.currentText().size(), 32);
    }
};

QTEST_MAIN(HelysegMezoTeszt)
#include "helysegmezo_teszt.moc"
