#include "windows/tform3_tercier.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>

#include "chart/allapot.h"
#include "commands/datumosdirekcio.h"
#include "predictive/olvashato.h"
#include "predictive/tercier.h"
#include "windows/ablakelhelyezes.h"
#include "windows/betukeszlet.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

namespace {

constexpr int orbisTetej = 88;
constexpr int orbisFeliratBal = 24;
constexpr int orbisMezoBal = 152;
constexpr int kivulre = 400;  ///< added to the left of the orb's controls, out of the window
constexpr int ablakSzelesseg = 400;
constexpr int szovegSzelesseg = ablakSzelesseg - 2 * 24;
constexpr int szovegTetej = 144;
constexpr int ketSor = 40;        ///< height of the text where it has no more, pixels
constexpr double alapOrbis = 45;  // days

}  // namespace

TForm3::TForm3(Allapot& allapot, FoAblak&, QWidget* fo)
    : TKesobbiAblak(fo, Qt::Dialog | Qt::WindowStaysOnTopHint), allapot_(allapot), fo_(fo) {
    setObjectName("TForm3");
    setWindowTitle("Tercier direkció");
}

void TForm3::epites() {
    ujCimke(this, "Esemény dátuma:", {24, 12})->setObjectName("Datum_bekero1");
    datumSor();
    orbis_ = ujSzamMezo(this, "SpinEditOrbis1", 1, 99);
    orbis_->resize(ev_->minimumSize());
    orbisFelirat_ = ujCimke(this, "Orbis napokban:", {});
    orbisFelirat_->resize(orbisFelirat_->width(), mezoMagas);
    orbisFelirat_->setObjectName("Orbis_napokban1");
    direkcio1_ = new QLabel(this);
    direkcio1_->setObjectName("Tercier_Direkcio1");
    direkcio1_->setGeometry(24, 120, szovegSzelesseg, 22);
    direkcio2_ = new TJelSzoveg(this);
    direkcio2_->setObjectName("Tercier_Direkcio2");
    new TListaMuveletek(*direkcio2_, [this] { return lista(); });

    rendben_ = ujGomb(this, "Button_Rendben1", "Rendben");
    rendben_->setDefault(true);
    megsem_ = ujGomb(this, "Button_Megsem1", "Mégsem");
    connect(rendben_, &QPushButton::clicked, this, &TForm3::Button_Rendben1Click);
    connect(megsem_, &QPushButton::clicked, this, &TForm3::Button_Megsem1Click);
    connect(this, &QDialog::rejected, this, [this] { allapot_.Megsem3 = true; });
    for (const QSpinBox* datum : {ev_, ho_, nap_})
        connect(datum, &QSpinBox::valueChanged, this, &TForm3::DatumChange);
    connect(orbis_, &QSpinBox::valueChanged, this, &TForm3::SpinEditOrbis1Change);
    // The field keeps its value while its text is empty, so the text is listened to as well.
    connect(orbis_->findChild<QLineEdit*>(), &QLineEdit::textChanged, this, [this](const QString& szoveg) {
        if (szoveg.isEmpty()) SpinEditOrbis1Change();
    });
}

void TForm3::datumSor() {
    auto* datum = new QWidget(this);
    auto* sor = new QHBoxLayout(datum);
    sor->setContentsMargins({});
    ev_ = ujSzamMezo(datum, *sor, "Év:", "SpinEditEv1", 1900, 2068);
    ho_ = ujSzamMezo(datum, *sor, "Hó:", "SpinEditHo1", 0, 13);
    nap_ = ujSzamMezo(datum, *sor, "Nap:", "SpinEditNap1", 0, 32);
    for (QSpinBox* mezo : {ev_, ho_, nap_}) mezo->setMinimumSize(ev_->sizeHint().width(), mezoMagas);
    datum->setGeometry(24, 40, szovegSzelesseg, mezoMagas);
}

void TForm3::megmutat() {
    elkeszites();
    const bool tercier = allapot_.TercierAblak;
    allapot_.TercierOrbisNap = alapOrbis;
    setWindowTitle(tercier ? "Tercier direkció" : "Szolár-ingresszió");
    const int eltolas = tercier ? 0 : kivulre;
    orbisFelirat_->move(orbisFeliratBal + eltolas, orbisTetej);
    orbis_->move(orbisMezoBal + eltolas, orbisTetej);
    direkcio2_->setFont(cellaMagassaguBetu(qszoveg(allapot_.Rajz.szimbolumFont), 18, logicalDpiY()));
    elrendezes(ketSor);
    datumMutatas(allapot_.TercierDatum);
    {
        const QSignalBlocker blokk(orbis_);
        orbis_->setValue(static_cast<int>(alapOrbis));
    }
    DatumChange();
    kozepre(*this, *fo_);
    exec();
}

/// The window has room for the whole text.
void TForm3::elrendezes(int szovegMagassag) {
    constexpr QSize gombMeret{100, gombMagas};
    direkcio2_->setGeometry(24, szovegTetej, szovegSzelesseg, szovegMagassag);
    const int gombTetej = szovegTetej + szovegMagassag + 8;
    rendben_->setGeometry({{90, gombTetej}, gombMeret});
    megsem_->setGeometry({{210, gombTetej}, gombMeret});
    setFixedSize(ablakSzelesseg, gombTetej + gombMeret.height() + 10);
}

TListaSzoveg TForm3::lista() const {
    return {listaCim(windowTitle(), allapot_, allapot_.SzuletesiPillanat),
            {qszoveg(OlvashatoDatumos(datum(), szoveg(direkcio2_->text()), allapot_.TercierAblak))}};
}

TPillanat TForm3::datum() const {
    return {ev_->value(), ho_->value(), nap_->value(), 0, 0, 0};
}

/// An emptied field counts as 1.
int TForm3::orbis() const {
    return orbis_->cleanText().isEmpty() ? 1 : orbis_->value();
}

void TForm3::datumMutatas(const TPillanat& d) {
    const QSignalBlocker blokkok[]{QSignalBlocker(ev_), QSignalBlocker(ho_), QSignalBlocker(nap_)};
    ev_->setValue(d.ev);
    ho_->setValue(d.ho);
    nap_->setValue(d.nap);
}

void TForm3::keres() {
    eredmeny_ = DatumosKereses(allapot_, datum(), orbis());
    const TVerdikt& verdikt = DatumosVerdikt(allapot_);
    direkcio1_->setText(eredmeny_.empty() ? verdikt.nincs : verdikt.van);
}

void TForm3::DatumChange() {
    TPillanat d = datum();
    DatumAtfordulas(d);
    datumMutatas(d);
    keres();
    direkcio2_->setText(qszoveg(eredmeny_));
    // It only grows while it is open: the buttons shall not run from the mouse at each step of a date.
    elrendezes(std::max(direkcio2_->height(), direkcio2_->heightForWidth(szovegSzelesseg)));
}

/// The text beneath stays until the date changes, so that it may disagree with the verdict: the user sees
/// what the last date's hits were while trying orbs.
void TForm3::SpinEditOrbis1Change() {
    keres();
}

void TForm3::Button_Rendben1Click() {
    DatumosRendben(allapot_, datum(), orbis());
    keres();
    accept();
}

void TForm3::Button_Megsem1Click() {
    reject();
}
