#include "windows/tform13_pontositas.h"

#include <algorithm>
#include <cmath>

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>

#include "chart/allapot.h"
#include "predictive/olvashato.h"
#include "rectify/pontositas.h"
#include "tables/szotar.h"
#include "tables/szoveg.h"
#include "windows/ablakelhelyezes.h"
#include "windows/betukeszlet.h"
#include "windows/memosorok.h"
#include "windows/qszoveg.h"
#include "windows/szammezo.h"
#include "windows/vezerlok.h"

namespace {

constexpr QSize tervezettMeret{722, 430};
constexpr int elsoSzelesseg = 369;  ///< hides `Memo3` until the user widens the window
constexpr int leptetoTav = 30;      ///< pixels under the stepper

constexpr int szel = 8;
constexpr int koz = 4;  ///< between the first two lists, and between the buttons
constexpr int memo1Legkisebb = 132;
constexpr int memo2Szelesseg = elsoSzelesseg - 2 * szel - memo1Legkisebb - koz;
constexpr int memo3Legkisebb = 170;
constexpr int hazHelye = 21;  ///< of a line's house, before its first hit

/// The reach in hundredths, as it reads behind the "0," of its caption.
class THatotavMezo : public SzamMezo {
public:
    using SzamMezo::SzamMezo;

private:
    QString textFromValue(int ertek) const override { return qszoveg(ketJegy(ertek)); }
};

/// Height of a line as the list lays it out, pixels.
double sorMagassag(const QPlainTextEdit& memo) {
    const QTextDocument& lap = *memo.document();
    return lap.documentLayout()->blockBoundingRect(lap.firstBlock()).height();
}

}  // namespace

TForm13::TForm13(Allapot& allapot, FoAblak&, QWidget* fo)
    : TKesobbiAblak(fo, Qt::Dialog | Qt::WindowStaysOnTopHint), allapot_(allapot), fo_(fo) {
    setObjectName("TForm13");
    setWindowTitle("Pontosítás");
    setMinimumSize(elsoSzelesseg, 240);
}

void TForm13::epites() {
    spinEdit1_ = new THatotavMezo(this);
    for (QPlainTextEdit** memo : {&memo1_, &memo2_, &memo3_}) *memo = new QPlainTextEdit(this);
    memokEpitese();
    fejekEpitese();
    listakHelye_ = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding);
    auto* egesz = new QGridLayout(this);
    egesz->setContentsMargins(szel, szel, szel, szel);
    egesz->setHorizontalSpacing(0);
    egesz->addLayout(hatotavSor(), 0, 0, 1, 2);
    egesz->addItem(listakHelye_, 1, 0, 1, 2);
    // The buttons share the first width, and keep to it in a wider window.
    egesz->addLayout(gombok(), 2, 0);
    egesz->setColumnMinimumWidth(0, elsoSzelesseg - 2 * szel);
    egesz->setColumnStretch(1, 1);
    resize(tervezettMeret);
}

QHBoxLayout* TForm13::hatotavSor() {
    auto* label1 = new QLabel("Direkciós hatótávolság:   0,", this);
    label1->setObjectName("Label1");
    spinEdit1_->setObjectName("SpinEdit1");
    spinEdit1_->setRange(1, 99);
    spinEdit1_->setValue(allapot_.PontositasHatotav);
    spinEdit1_->setMinimumHeight(mezoMagas);
    connect(spinEdit1_, &QSpinBox::valueChanged, this, &TForm13::SpinEdit1Change);
    auto* sor = new QHBoxLayout;
    sor->setSpacing(2);
    sor->addWidget(label1);
    sor->addWidget(spinEdit1_);
    sor->addStretch();
    // Controls for an analysis of the directions: in their row, but never shown and without any action.
    const auto elrejtett = [sor](QWidget* vezerlo, const char* nev) {
        vezerlo->setObjectName(nev);
        vezerlo->hide();
        sor->addWidget(vezerlo);
    };
    elrejtett(new QLabel("Direkció-elemzés:", this), "Label6");
    elrejtett(new QPushButton("1", this), "Button_Elemzes1");
    elrejtett(new QPushButton("+", this), "Button_Elemzesp1");
    elrejtett(new QPushButton("-", this), "Button_Elemzesm2");
    return sor;
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
    listaMuvelet(*memo1_, "események", [](int, std::string_view sor) { return std::string(sor); });
    listaMuvelet(*memo2_, "direkciók", OlvashatoTalalatok);
    listaMuvelet(*memo3_, "születési idők", [](int, std::string_view sor) { return OlvashatoIdok(sor); });
}

/// The heads of the hits at equal distances, behind the room of the house.
void TForm13::fejekEpitese() {
    fejek_ = new QWidget(this);
    auto* sor = new QHBoxLayout(fejek_);
    sor->setContentsMargins(hazHelye, koz, koz, koz);
    sor->setSpacing(0);
    int sorszam = 2;
    for (const char* fej : {"dMc", "cMc", "dAsc", "cAsc"}) {
        auto* felirat = new QLabel(fej, fejek_);
        felirat->setObjectName(QStringLiteral("Label%1").arg(sorszam++));
        sor->addWidget(felirat, 1);
    }
}

void TForm13::listaMuvelet(QPlainTextEdit& memo, const char* cim,
                           std::string (*olvashato)(int szam, std::string_view sor)) {
    new TListaMuveletek(memo, [this, &memo, cim, olvashato] {
        const QString lista = windowTitle() + " 0," + spinEdit1_->text() + "°, " + cim;
        return TListaSzoveg{listaCim(lista, allapot_, allapot_.Keplet.pillanat), memoSorai(memo, olvashato)};
    });
}

QHBoxLayout* TForm13::gombok() {
    auto* sor = new QHBoxLayout;
    sor->setContentsMargins(0, szel, 0, 0);
    sor->setSpacing(koz);
    const auto gomb = [&](const char* nev, const char* felirat) {
        auto* uj = ujGomb(this, nev, felirat);
        uj->setMinimumHeight(gombMagas);
        sor->addWidget(uj);
        return uj;
    };
    auto* rendben = gomb("Button_Rendben1", "Rendben");
    rendben->setDefault(true);
    connect(rendben, &QPushButton::clicked, this, &TForm13::Button_Rendben1Click);
    connect(gomb("Button_Megsem1", "Mégsem"), &QPushButton::clicked, this, &TForm13::Button_Megsem1Click);
    connect(gomb("Button_Eletesemenyek1", "Életesemények"), &QPushButton::clicked, this, [this] {
        if (eletesemenyek) eletesemenyek();
    });
    return sor;
}

/// The lists follow whatever moves their place: another size of the window, or other letters in it.
bool TForm13::event(QEvent* esemeny) {
    const bool kesz = QDialog::event(esemeny);
    if (memo1_ != nullptr && (esemeny->type() == QEvent::Resize || esemeny->type() == QEvent::LayoutRequest))
        elrendezes();
    return kesz;
}

/// The first list takes as much of the window's width as its texts need, as long as the third one keeps its
/// least width.
int TForm13::memo1Szelesseg() const {
    const QFontMetrics meretek(memo1_->font());
    int szoveg = 0;
    for (const QString& sor : memo1_->toPlainText().split('\n'))
        szoveg = std::max(szoveg, meretek.horizontalAdvance(sor));
    const int keret = 2 * memo1_->frameWidth() + memo1_->verticalScrollBar()->sizeHint().width() +
                      2 * static_cast<int>(std::ceil(memo1_->document()->documentMargin()));
    const int tobblet = width() - elsoSzelesseg - szel - memo3Legkisebb;
    return std::clamp(szoveg + keret + 1, memo1Legkisebb, memo1Legkisebb + std::max(0, tobblet));
}

/// The heads and the three lists under them; the third one may lie outside the window.
void TForm13::elrendezes() {
    const QRect hely = listakHelye_->geometry();
    const int elso = memo1Szelesseg();
    const int memo2Bal = szel + elso + koz;
    const int memo3Bal = memo2Bal + memo2Szelesseg + szel;
    const int memo3Szelesseg = std::max(memo3Legkisebb, width() - memo3Bal - szel);
    const int fejMagassag = fejek_->sizeHint().height();
    const int teteje = hely.top() + fejMagassag;
    const int magassag = hely.height() - fejMagassag;
    fejek_->setGeometry(memo2Bal, hely.top(), memo2Szelesseg, fejMagassag);
    memo1_->setGeometry(szel, teteje, elso, magassag);
    memo2_->setGeometry(memo2Bal, teteje, memo2Szelesseg, magassag);
    memo3_->setGeometry(memo3Bal, teteje, memo3Szelesseg, magassag);
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
    elkeszites();
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
    elkeszites();
    // The same value would still write its text anew, under the user's typing too.
    if (spinEdit1_->value() != allapot_.PontositasHatotav) {
        const QSignalBlocker blokk(spinEdit1_);
        spinEdit1_->setValue(allapot_.PontositasHatotav);
    }
    const TPontositas lista = PontositasFutas(allapot_);
    memoSorok({{memo1_, lista.Memo1}, {memo2_, lista.Memo2}, {memo3_, lista.Memo3}});
    elrendezes();
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
