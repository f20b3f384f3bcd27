#include "windows/tform12_primer.h"

#include <algorithm>

#include <QVBoxLayout>

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

constexpr QSize legkisebbMeret{560, 470};  ///< large letters make the window larger
constexpr int alsoTav = 18;                ///< pixels above the main window's bottom

}  // namespace

TForm12::TForm12(Allapot& allapot, FoAblak&, QWidget* fo)
    : TKesobbiAblak(fo, Qt::Dialog | Qt::WindowStaysOnTopHint), allapot_(allapot), fo_(fo) {
    setObjectName("TForm12");
    setWindowTitle("Primer direkció");
}

void TForm12::epites() {
    auto* egesz = new QVBoxLayout(this);
    egesz->addLayout(felsoSor());
    egesz->addWidget(fejSav());
    memo1_ = new QPlainTextEdit(this);
    memo1_->setObjectName("Memo1");
    memo1_->setReadOnly(true);
    memo1_->setLineWrapMode(QPlainTextEdit::NoWrap);
    new TListaMuveletek(*memo1_, [this] { return lista(); });
    egesz->addWidget(memo1_);
    egesz->addLayout(alsoSor());
    setFixedSize(legkisebbMeret.expandedTo(sizeHint()));
}

QPushButton* TForm12::gomb(const char* nev, const char* felirat) {
    auto* uj = ujGomb(this, nev, felirat);
    uj->setMinimumHeight(gombMagas);
    return uj;
}

QHBoxLayout* TForm12::felsoSor() {
    auto* sor = new QHBoxLayout;
    ev_ = ujSzamMezo(this, *sor, "Kezdő év:", "SpinEditEv1", 1900, 2068);
    ho_ = ujSzamMezo(this, *sor, "hó:", "SpinEditHo1", 1, 12);
    nap_ = ujSzamMezo(this, *sor, "nap:", "SpinEditNap1", 1, 31);
    for (QSpinBox* m : {ev_, ho_, nap_}) m->setMinimumSize(ev_->sizeHint().expandedTo({0, mezoMagas}));
    auto* rendben = gomb("Button_Rendben1", "Rendben");
    rendben->setDefault(true);
    auto* megsem = gomb("Button_Megsem1", "Mégsem");
    sor->addWidget(rendben);
    sor->addWidget(megsem);
    connect(rendben, &QPushButton::clicked, this, &TForm12::Button_Rendben1Click);
    connect(megsem, &QPushButton::clicked, this, &TForm12::Button_Megsem1Click);
    return sor;
}

/// The strip over the list; where in it a head stands is the list's font's matter.
QWidget* TForm12::fejSav() {
    auto* sav = new QWidget(this);
    label8_ = new QLabel("Solar-Nap:", sav);
    label8_->setObjectName("Label8");
    std::size_t n = 0;
    for (const char* fej : {"dMC:", "cMC:", "dAsc:", "cAsc:"}) fejek_[n++] = new QLabel(fej, sav);
    sav->setFixedHeight(label8_->sizeHint().height());
    return sav;
}

QHBoxLayout* TForm12::alsoSor() {
    vege_ =
        new QLabel(QStringLiteral("Legfeljebb %1 sor; a lista itt véget ér.").arg(primerLegtobbSor), this);
    vege_->setObjectName("LabelVege1");
    vege_->hide();
    auto* pontositasGomb = gomb("Button_Pontositas1", "Pontosítás");
    connect(pontositasGomb, &QPushButton::clicked, this, [this] {
        if (pontositas) pontositas();
    });
    auto* sor = new QHBoxLayout;
    sor->addWidget(vege_);
    sor->addStretch();
    sor->addWidget(pontositasGomb);
    return sor;
}

/// Symbol font in the list, and each head over its column: the columns are indented by that font's blanks.
void TForm12::betukEsFejek() {
    const QFont betu = cellaMagassaguBetu(qszoveg(sajatSzimbolumFont), 14, logicalDpiY());
    memo1_->setFont(betu);
    const QFontMetrics meretek(betu);
    const int bal = memo1_->frameWidth() + static_cast<int>(memo1_->document()->documentMargin());
    const QString datum = "2000.01.01.   ";
    for (std::size_t i = 0; i < fejek_.size(); ++i)
        fejek_[i]->move(bal + meretek.horizontalAdvance(
                                  datum + "w" + QString(static_cast<qsizetype>(PrimerOszlopKoz[i]), u' ')),
                        0);
    // The first one is centred, as far as its letters leave room for the next.
    const int solarNap = label8_->sizeHint().width();
    label8_->move(std::min(bal + meretek.horizontalAdvance(datum) - solarNap / 2,
                           fejek_[0]->x() - meretek.horizontalAdvance(' ') - solarNap),
                  0);
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
