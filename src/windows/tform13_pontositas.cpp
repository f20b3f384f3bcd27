#include "windows/tform13_pontositas.h"

#include <algorithm>
#include <array>

#include <QAbstractTextDocumentLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>

#include "chart/allapot.h"
#include "rectify/pontositas.h"
#include "tables/szotar.h"
#include "windows/ablakelhelyezes.h"
#include "windows/qszoveg.h"
#include "windows/qtvaszon.h"
#include "windows/vezerlok.h"

namespace {

constexpr QSize tervezettMeret{722, 430};
constexpr int elsoSzelesseg = 369;  ///< hides `Memo3` until the user widens the window
constexpr int leptetoTav = 30;      ///< pixels under the stepper

constexpr int memokTeteje = 62;
constexpr int memokAlja = 46;  ///< left for the buttons
constexpr int szel = 8;
constexpr int memo1Szelesseg = 132;
constexpr int memo2Bal = szel + memo1Szelesseg + 4;
constexpr int memo2Szelesseg = elsoSzelesseg - szel - memo2Bal;

QString sorokbol(const std::vector<std::string>& sorok) {
    QStringList lista;
    for (const std::string& sor : sorok) lista << qszoveg(sor);
    return lista.join('\n');
}

/// Height of a line as the list lays it out, pixels.
double sorMagassag(const QPlainTextEdit& memo) {
    const QTextDocument& lap = *memo.document();
    return lap.documentLayout()->blockBoundingRect(lap.firstBlock()).height();
}

}  // namespace

TForm13::TForm13(Allapot& allapot, FoAblak&, QWidget* fo)
    : QDialog(fo, Qt::Dialog | Qt::WindowStaysOnTopHint),
      allapot_(allapot),
      fo_(fo),
      spinEdit1_(ujSzamMezo(this, "SpinEdit1", 1, 99)),
      memo1_(new QPlainTextEdit(this)),
      memo2_(new QPlainTextEdit(this)),
      memo3_(new QPlainTextEdit(this)) {
    setObjectName("TForm13");
    setWindowTitle("Pontosítás");
    setMinimumSize(elsoSzelesseg, 240);
    hatotavSor();
    memokEpitese();
    gombok();
    lathatatlanVezerlok();
    resize(tervezettMeret);
}

void TForm13::hatotavSor() {
    auto* label1 = new QLabel("Direkciós hatótávolság:   0,", this);
    label1->setObjectName("Label1");
    label1->move(szel, 14);
    label1->adjustSize();
    spinEdit1_->setValue(allapot_.PontositasHatotav);
    spinEdit1_->setGeometry(label1->geometry().right() + 2, 9, 56, 26);
    connect(spinEdit1_, &QSpinBox::valueChanged, this, &TForm13::SpinEdit1Change);
}

void TForm13::memokEpitese() {
    int sorszam = 0;
    for (QPlainTextEdit* memo : {memo1_, memo2_, memo3_}) {
        memo->setObjectName(QStringLiteral("Memo%1").arg(++sorszam));
        memo->setReadOnly(memo != memo3_);
        memo->setLineWrapMode(QPlainTextEdit::NoWrap);
        memo->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        // A row is one event in all three, so they scroll together.
        connect(memo->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int ertek) {
            for (QPlainTextEdit* masik : {memo1_, memo2_, memo3_})
                masik->verticalScrollBar()->setValue(ertek);
        });
    }
    constexpr std::array<const char*, 4> fejek{"dMc", "cMc", "dAsc", "cAsc"};
    for (std::size_t i = 0; i < fejek.size(); ++i) {
        auto* fej = new QLabel(fejek[i], this);
        fej->setObjectName(QStringLiteral("Label%1").arg(i + 2));
        fej->move(memo2Bal + 24 + 46 * static_cast<int>(i), memokTeteje - 20);
    }
}

void TForm13::gombok() {
    auto* rendben = ujGomb(this, "Button_Rendben1", "Rendben");
    rendben->setDefault(true);
    connect(rendben, &QPushButton::clicked, this, &TForm13::Button_Rendben1Click);
    connect(ujGomb(this, "Button_Megsem1", "Mégsem"), &QPushButton::clicked, this,
            &TForm13::Button_Megsem1Click);
    connect(ujGomb(this, "Button_Eletesemenyek1", "Életesemények"), &QPushButton::clicked, this, [this] {
        if (eletesemenyek) eletesemenyek();
    });
}

/// Controls for an analysis of the directions: in their places, but never shown and without any action.
void TForm13::lathatatlanVezerlok() {
    const auto elrejtett = [this](QWidget* vezerlo, const char* nev, const QRect& hely) {
        vezerlo->setObjectName(nev);
        vezerlo->setGeometry(hely);
        vezerlo->hide();
    };
    elrejtett(new QLabel("Direkció-elemzés:", this), "Label6", {400, 14, 120, 16});
    elrejtett(new QPushButton("1", this), "Button_Elemzes1", {524, 9, 26, 26});
    elrejtett(new QPushButton("+", this), "Button_Elemzesp1", {553, 9, 26, 26});
    elrejtett(new QPushButton("-", this), "Button_Elemzesm2", {582, 9, 26, 26});
}

void TForm13::resizeEvent(QResizeEvent* esemeny) {
    QDialog::resizeEvent(esemeny);
    const int magassag = height() - memokTeteje - memokAlja;
    memo1_->setGeometry(szel, memokTeteje, memo1Szelesseg, magassag);
    memo2_->setGeometry(memo2Bal, memokTeteje, memo2Szelesseg, magassag);
    const int memo3Szelesseg = std::max(width(), tervezettMeret.width()) - elsoSzelesseg - szel;
    memo3_->setGeometry(elsoSzelesseg, memokTeteje, memo3Szelesseg, magassag);
    int bal = szel;
    for (const char* nev : {"Button_Rendben1", "Button_Megsem1", "Button_Eletesemenyek1"}) {
        findChild<QPushButton*>(nev)->setGeometry(bal, height() - 37, 114, 28);
        bal += 119;
    }
}

/// The text font in the first list, and in the others the smallest symbol font whose lines are as high.
void TForm13::betuk() {
    constexpr int szovegMagassag = 16;  // pixels
    memo1_->setFont(cellaMagassaguBetu(qszoveg(szovegFont), szovegMagassag, logicalDpiY()));
    int magassag = szovegMagassag - 2;
    do memo2_->setFont(cellaMagassaguBetu(qszoveg(sajatSzimbolumFont), ++magassag, logicalDpiY()));
    while (sorMagassag(*memo2_) < sorMagassag(*memo1_) && magassag < 2 * szovegMagassag);
    memo3_->setFont(memo2_->font());
}

void TForm13::megmutat(int leptetoMagassag) {
    allapot_.PontositasFut = true;
    allapot_.PrimerFut = false;
    betuk();
    futtat();
    resize(elsoSzelesseg, height());
    jobbraFent(*this, *fo_, leptetoMagassag + leptetoTav);
    show();
    raise();
}

void TForm13::futtat() {
    const QSignalBlocker blokk(spinEdit1_);
    spinEdit1_->setValue(allapot_.PontositasHatotav);
    const TPontositas lista = PontositasFutas(allapot_);
    memo1_->setPlainText(sorokbol(lista.Memo1));
    memo2_->setPlainText(sorokbol(lista.Memo2));
    memo3_->setPlainText(sorokbol(lista.Memo3));
}

void TForm13::SpinEdit1Change() {
    allapot_.PontositasHatotav = spinEdit1_->value();
    futtat();
}

void TForm13::Button_Rendben1Click() {
    SpinEdit1Change();
}

void TForm13::Button_Megsem1Click() {
    reject();
}

/// Every way of closing ends here, the window's own button and the Escape key too: the repeats go back to the
/// primary list.
void TForm13::done(int eredmeny) {
    allapot_.PontositasFut = false;
    allapot_.PrimerFut = true;
    QDialog::done(eredmeny);
}
