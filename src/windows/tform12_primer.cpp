#include "windows/tform12_primer.h"

#include <QPushButton>

#include "chart/allapot.h"
#include "predictive/olvashato.h"
#include "predictive/primer.h"
#include "tables/szotar.h"
#include "windows/ablakelhelyezes.h"
#include "windows/betukeszlet.h"
#include "windows/memosorok.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

namespace {

constexpr QSize ablakMeret{560, 470};
constexpr int alsoTav = 18;  ///< pixels above the main window's bottom
constexpr int memoBal = 8;
constexpr int fejTetej = 48;
constexpr int memoTetej = fejTetej + 20;
constexpr int memoAlja = memoTetej + 360;

}  // namespace

TForm12::TForm12(Allapot& allapot, FoAblak&, QWidget* fo)
    : TKesobbiAblak(fo, Qt::Dialog | Qt::WindowStaysOnTopHint), allapot_(allapot), fo_(fo) {
    setObjectName("TForm12");
    setWindowTitle("Primer direkció");
    setFixedSize(ablakMeret);
}

void TForm12::epites() {
    memo1_ = new QPlainTextEdit(this);
    vege_ = ujCimke(this, QStringLiteral("Legfeljebb %1 sor; a lista itt véget ér.").arg(primerLegtobbSor),
                    {memoBal, memoAlja + 4});
    const auto mezo = [this](const char* nev, const char* felirat, int also, int felso, int x,
                             int feliratSzelesseg) {
        QSpinBox* uj = ujSzamMezo(this, nev, also, felso, {x + feliratSzelesseg, 10, 66, mezoMagas});
        ujCimke(this, felirat, x, *uj);
        return uj;
    };
    ev_ = mezo("SpinEditEv1", "Kezdő év:", 1900, 2068, 10, 66);
    ho_ = mezo("SpinEditHo1", "hó:", 1, 12, 156, 28);
    nap_ = mezo("SpinEditNap1", "nap:", 1, 31, 264, 36);
    const auto gomb = [this](const char* nev, const char* felirat, const QRect& hely,
                             void (TForm12::*kezelo)()) {
        auto* uj = ujGomb(this, nev, felirat, hely);
        connect(uj, &QPushButton::clicked, this, kezelo);
        return uj;
    };
    gomb("Button_Rendben1", "Rendben", {384, 9, 80, gombMagas}, &TForm12::Button_Rendben1Click)
        ->setDefault(true);
    auto* megsem = gomb("Button_Megsem1", "Mégsem", {470, 9, 80, gombMagas}, &TForm12::Button_Megsem1Click);
    auto* pontositasGomb = ujGomb(this, "Button_Pontositas1", "Pontosítás", {450, 436, 100, gombMagas});
    connect(pontositasGomb, &QPushButton::clicked, this, [this] {
        if (pontositas) pontositas();
    });
    setTabOrder(megsem, memo1_);

    label8_ = new QLabel("Solar-Nap:", this);
    label8_->setObjectName("Label8");
    std::size_t n = 0;
    for (const char* fej : {"dMC:", "cMC:", "dAsc:", "cAsc:"}) fejek_[n++] = new QLabel(fej, this);
    memo1_->setObjectName("Memo1");
    memo1_->setReadOnly(true);
    memo1_->setLineWrapMode(QPlainTextEdit::NoWrap);
    memo1_->setGeometry(memoBal, memoTetej, ablakMeret.width() - 2 * memoBal, memoAlja - memoTetej);
    new TListaMuveletek(*memo1_, [this] { return lista(); });
    vege_->setObjectName("LabelVege1");
    vege_->hide();
}

/// Symbol font in the list, and each head over its column: the columns are indented by that font's blanks.
void TForm12::betukEsFejek() {
    const QFont betu = cellaMagassaguBetu(qszoveg(sajatSzimbolumFont), 14, logicalDpiY());
    memo1_->setFont(betu);
    const QFontMetrics meretek(betu);
    const int bal = memoBal + memo1_->frameWidth() + static_cast<int>(memo1_->document()->documentMargin());
    const QString datum = "2000.01.01.   ";
    label8_->move(bal + meretek.horizontalAdvance(datum) - label8_->sizeHint().width() / 2, fejTetej);
    for (std::size_t i = 0; i < fejek_.size(); ++i)
        fejek_[i]->move(bal + meretek.horizontalAdvance(
                                  datum + "w" + QString(static_cast<qsizetype>(PrimerOszlopKoz[i]), u' ')),
                        fejTetej);
}

void TForm12::megmutat(int kezdoEv) {
    elkeszites();
    ev_->setValue(kezdoEv);
    ho_->setValue(1);
    nap_->setValue(1);
    memo1_->clear();
    vege_->hide();
    betukEsFejek();
    jobbraLent(*this, *fo_, alsoTav);
    show();
    raise();
}

void TForm12::futtat() {
    elkeszites();
    const auto sorok = PrimerFutas(allapot_, {ev_->value(), ho_->value(), nap_->value(), 0, 0, 0});
    memoSorok({{memo1_, sorok}});
    vege_->setVisible(sorok.size() == primerLegtobbSor);
}

TListaSzoveg TForm12::lista() const {
    return {listaCim(windowTitle(), allapot_, allapot_.Keplet.pillanat),
            memoSorai(*memo1_, [](int, std::string_view sor) { return OlvashatoPrimer(sor); })};
}

void TForm12::Button_Rendben1Click() {
    allapot_.PrimerFut = true;
    futtat();
}

void TForm12::Button_Megsem1Click() {
    allapot_.PrimerFut = false;
    close();
}
