#include "windows/tform3_tercier.h"

#include <QPushButton>
#include <QSignalBlocker>

#include "predictive/ingresszio.h"
#include "tables/efemerida.h"
#include "windows/ablakelhelyezes.h"
#include "windows/gomb.h"
#include "windows/qszoveg.h"
#include "windows/qtvaszon.h"

namespace {

constexpr int orbisTetej = 88;
constexpr int orbisFeliratBal = 24;
constexpr int orbisMezoBal = 152;
constexpr int kivulre = 400;  ///< added to the left of the orb's controls, out of the window
constexpr QSize ablakMeret{400, 230};
constexpr double alapOrbis = 45;  // days

}  // namespace

TForm3::TForm3(Allapot& allapot, FoAblak&, QWidget* fo)
    : QDialog(fo, Qt::Dialog | Qt::WindowStaysOnTopHint), allapot_(allapot), fo_(fo) {
    setObjectName("TForm3");
    setWindowTitle("Tercier direkció");
    setFixedSize(ablakMeret);
    auto* cim = new QLabel("Esemény dátuma:", this);
    cim->setObjectName("Datum_bekero1");
    cim->move(24, 12);
    ev_ = mezo("SpinEditEv1", "Év:", 1900, 2068, 24);
    ho_ = mezo("SpinEditHo1", "Hó:", 0, 13, 150);
    nap_ = mezo("SpinEditNap1", "Nap:", 0, 32, 256);
    orbisFelirat_ = new QLabel("Orbis napokban:", this);
    orbisFelirat_->setObjectName("Orbis_napokban1");
    orbis_ = new QSpinBox(this);
    orbis_->setObjectName("SpinEditOrbis1");
    orbis_->setRange(1, 99);
    direkcio1_ = new QLabel(this);
    direkcio1_->setObjectName("Tercier_Direkcio1");
    direkcio1_->setGeometry(24, 120, ablakMeret.width() - 48, 22);
    direkcio2_ = new QLabel(this);
    direkcio2_->setObjectName("Tercier_Direkcio2");
    direkcio2_->setGeometry(24, 144, ablakMeret.width() - 48, 40);
    direkcio2_->setWordWrap(true);
    direkcio2_->setTextFormat(Qt::PlainText);

    auto* rendben = ujGomb(this, "Button_Rendben1", "Rendben", {90, 192, 100, 28});
    rendben->setDefault(true);
    auto* megsem = ujGomb(this, "Button_Megsem1", "Mégsem", {210, 192, 100, 28});
    connect(rendben, &QPushButton::clicked, this, &TForm3::Button_Rendben1Click);
    connect(megsem, &QPushButton::clicked, this, &TForm3::Button_Megsem1Click);
    connect(this, &QDialog::rejected, this, [this] { allapot_.Megsem3 = true; });
    for (const QSpinBox* datum : {ev_, ho_, nap_})
        connect(datum, &QSpinBox::valueChanged, this, &TForm3::DatumChange);
    connect(orbis_, &QSpinBox::valueChanged, this, &TForm3::SpinEditOrbis1Change);
}

QSpinBox* TForm3::mezo(const char* nev, const char* felirat, int also, int felso, int x) {
    auto* cimke = new QLabel(felirat, this);
    cimke->move(x, 45);
    auto* uj = new QSpinBox(this);
    uj->setObjectName(nev);
    uj->setRange(also, felso);
    uj->setGeometry(x + 36, 40, 62, 26);
    return uj;
}

void TForm3::megmutat() {
    const bool tercier = allapot_.TercierAblak;
    allapot_.TercierOrbisNap = alapOrbis;
    setWindowTitle(tercier ? "Tercier direkció" : "Szolár-ingresszió");
    const int eltolas = tercier ? 0 : kivulre;
    orbisFelirat_->move(orbisFeliratBal + eltolas, orbisTetej);
    orbis_->move(orbisMezoBal + eltolas, orbisTetej);
    direkcio2_->setFont(cellaMagassaguBetu(qszoveg(allapot_.Rajz.szimbolumFont), 18, logicalDpiY()));
    {
        const QSignalBlocker blokkok[]{QSignalBlocker(ev_), QSignalBlocker(ho_), QSignalBlocker(nap_),
                                       QSignalBlocker(orbis_)};
        ev_->setValue(allapot_.TercierDatum.ev);
        ho_->setValue(allapot_.TercierDatum.ho);
        nap_->setValue(allapot_.TercierDatum.nap);
        orbis_->setValue(static_cast<int>(alapOrbis));
    }
    DatumChange();
    kozepre(*this, *fo_);
    exec();
}

void TForm3::keres() {
    const std::string& hely = allapot_.VisszaMod ? allapot_.helysegMentett : allapot_.Keplet.helyseg;
    const TPillanat datum{ev_->value(), ho_->value(), nap_->value(), 0, 0, 0};
    eredmeny_ =
        allapot_.TercierAblak
            ? TercierKeres(allapot_, allapot_.SzuletesiPillanat, datum, hely, orbis_->value()).TercierSzoveg
            : IngresszioKeres(allapot_, allapot_.SzuletesiPillanat, datum, hely);
    direkcio1_->setText(eredmeny_.empty() ? verdikt().nincs : verdikt().van);
}

/// The spins roll over; the year stops at its ends while the month still wraps.
void TForm3::atfordulas() {
    const QSignalBlocker blokkok[]{QSignalBlocker(ev_), QSignalBlocker(ho_), QSignalBlocker(nap_)};
    if (nap_->value() == 32) {
        nap_->setValue(1);
        ho_->setValue(ho_->value() + 1);
    } else if (nap_->value() == 0) {
        nap_->setValue(31);
        ho_->setValue(ho_->value() - 1);
    }
    if (ho_->value() == 13) {
        ho_->setValue(1);
        ev_->setValue(ev_->value() + 1);
    } else if (ho_->value() == 0) {
        ho_->setValue(12);
        ev_->setValue(ev_->value() - 1);
    }
}

void TForm3::DatumChange() {
    atfordulas();
    keres();
    direkcio2_->setText(qszoveg(eredmeny_));
}

/// The text beneath stays until the date changes, so that it may disagree with the verdict: meant so.
void TForm3::SpinEditOrbis1Change() {
    keres();
}

void TForm3::Button_Rendben1Click() {
    TPillanat& datum = allapot_.TercierDatum;
    datum = {ev_->value(), ho_->value(), nap_->value(), 0, 0, 0};
    JulianszambolDatum(DatumbolJulianszam(datum.ev, datum.ho, datum.nap), datum.ev, datum.ho, datum.nap);
    allapot_.TercierOrbisNap = orbis_->value();
    keres();
    allapot_.Megsem3 = false;
    accept();
}

void TForm3::Button_Megsem1Click() {
    reject();
}
