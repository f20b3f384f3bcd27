// What the window of the life events is made of: the list, the fields, the buttons.

#include <array>

#include <QPushButton>

#include "tables/szotar.h"
#include "windows/helysegmezo.h"
#include "windows/qszoveg.h"
#include "windows/tform10_eletesemenyek.h"
#include "windows/vezerlok.h"

namespace {

/// Left positions of the list's columns, pixels.
constexpr std::array<int, esemenyOszlopok> oszlopHelyek{7,   22,  180, 290, 318, 333, 348, 363,
                                                        378, 410, 520, 538, 556, 574, 632};
constexpr int listaTeteje = 26;
constexpr int sorMagassag = 17;
constexpr int ablakSzelesseg = 690;
constexpr int mezokTeteje = listaTeteje + esemenyHelyek * sorMagassag + 10;
constexpr int koz = 4;  ///< between a caption and its field

/// Columns whose click selects the row: number, event, analogies.
constexpr std::size_t kijeloloOszlopok = 3;

}  // namespace

void TForm10::epites() {
    QFont kicsi = font();
    kicsi.setFamily(qszoveg(szovegFont));
    kicsi.setPixelSize(11);
    setFont(kicsi);
    listaEpitese();
    auto* egesz = new QVBoxLayout(this);
    egesz->setContentsMargins(oszlopHelyek[0], mezokTeteje, oszlopHelyek[0], oszlopHelyek[0]);
    egesz->addLayout(mezokEpitese());
    mezokBeallitasa();
    egesz->addLayout(gombok());
    setFixedSize(ablakSzelesseg, sizeHint().height());
}

void TForm10::listaEpitese() {
    ujCimke(this, "Életesemény:", {oszlopHelyek[1], 6});
    ujCimke(this, "Házanalógiák:", {oszlopHelyek[2], 6});
    ujCimke(this, "Esemény ideje (GMT):", {oszlopHelyek[3], 6});
    ujCimke(this, "Solar-évforduló helye:", {oszlopHelyek[9], 6});
    ujCimke(this, "Solar-Nap:", {oszlopHelyek[13], 6});
    for (std::size_t sor = 0; sor < sorok_.size(); ++sor) {
        for (std::size_t oszlop = 0; oszlop < oszlopHelyek.size(); ++oszlop) {
            auto* felirat = new QLabel(this);
            const int vege = oszlop + 1 < oszlopHelyek.size() ? oszlopHelyek[oszlop + 1] : ablakSzelesseg;
            felirat->setObjectName(QStringLiteral("LEletes_%1_%2").arg(sor + 1).arg(oszlop + 1));
            felirat->setGeometry(oszlopHelyek[oszlop], listaTeteje + static_cast<int>(sor) * sorMagassag,
                                 vege - oszlopHelyek[oszlop], sorMagassag);
            felirat->setTextFormat(Qt::PlainText);
            if (oszlop < kijeloloOszlopok) felirat->installEventFilter(this);
            sorok_[sor][oszlop] = felirat;
        }
    }
}

/// A field behind its caption, if it has one.
QHBoxLayout* TForm10::felirattal(const char* felirat, QWidget* mezo) {
    auto* sor = new QHBoxLayout;
    sor->setSpacing(koz);
    if (felirat != nullptr) sor->addWidget(new QLabel(felirat, this));
    sor->addWidget(mezo, 1);
    return sor;
}

/// The room that a row has over goes between the captioned fields.
QHBoxLayout* TForm10::szamMezok(std::span<const TSzamMezo> leirasok) {
    auto* sor = new QHBoxLayout;
    sor->setSpacing(koz);
    for (const TSzamMezo& l : leirasok) {
        if (sor->count() > 0 && l.felirat != nullptr) sor->addStretch();
        this->*l.mezo = ujSzamMezo(this, l.nev, l.also, l.felso);
        sor->addLayout(felirattal(l.felirat, this->*l.mezo));
    }
    return sor;
}

QGridLayout* TForm10::mezokEpitese() {
    static constexpr TSzamMezo idoMezok[]{{"Év:", "SpinEditEv1", 1900, 2068, &TForm10::ev_},
                                          {"Hó:", "SpinEditHo1", 1, 12, &TForm10::ho_},
                                          {"Nap:", "SpinEditNap1", 1, 31, &TForm10::nap_},
                                          {"Óra:", "SpinEditOra1", 0, 23, &TForm10::ora_},
                                          {"Perc:", "SpinEditPerc1", 0, 59, &TForm10::perc_},
                                          {"Mp:", "SpinEditMperc1", 0, 59, &TForm10::mperc_},
                                          {"Időzóna:", "SpinEditIdozona1", -12, 12, &TForm10::idozona_},
                                          {"Nyári id.:", "SpinEditNyariidosz1", 0, 1, &TForm10::nyariIdo_}};
    static constexpr TSzamMezo helyMezok[]{{"Hossz.:", "SpinEditHosszFok1", -180, 180, &TForm10::hosszFok_},
                                           {nullptr, "SpinEditHosszPerc1", 0, 59, &TForm10::hosszPerc_},
                                           {"Szél.:", "SpinEditSzelFok1", -180, 180, &TForm10::szelFok_},
                                           {nullptr, "SpinEditSzelPerc1", 0, 59, &TForm10::szelPerc_}};
    auto* racs = new QGridLayout;
    esemeny_ = ujSzovegMezo(this, "Edit_Eletesemenyek1");
    racs->addLayout(felirattal("Életesemény:", esemeny_), 0, 0);
    analogia_ = ujSzovegMezo(this, "Edit_Hazanalogiak1");
    racs->addLayout(felirattal("Házanalógiák:", analogia_), 0, 1);
    racs->addLayout(szamMezok(idoMezok), 1, 0, 1, 2);
    helyseg_ = ujHelysegMezo(this, "ComboBoxHelyseg1");
    racs->addLayout(felirattal("Solar-évforduló helye:", helyseg_), 2, 0);
    QHBoxLayout* hely = szamMezok(helyMezok);
    solarNap_ = new QLabel("VII", this);  // the longest one
    hely->addStretch();
    hely->addLayout(felirattal("Solar-Nap:", solarNap_));
    racs->addLayout(hely, 2, 1);
    return racs;
}

void TForm10::mezokBeallitasa() {
    hosszKorlat(*esemeny_, rovidSzovegHossz);
    hosszKorlat(*analogia_, hosszuSzovegHossz);
    solarNap_->setObjectName("LabelSolarNap1");
    solarNap_->setMinimumWidth(solarNap_->sizeHint().width());
    solarNap_->clear();
    helyseg_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // as wide as its row lets it be
    // All fields as high as the highest, all numbers at least as wide as the longest of two figures.
    const int magassag = helyseg_->sizeHint().height();
    for (auto* mezo : findChildren<QSpinBox*>()) mezo->setMinimumSize(idozona_->sizeHint().width(), magassag);
    for (auto* mezo : QWidgetList{esemeny_, analogia_, solarNap_}) mezo->setMinimumHeight(magassag);

    connect(helyseg_, &QComboBox::editTextChanged, this, &TForm10::ComboBoxHelyseg1Change);
    for (const QSpinBox* mezo : {ev_, ho_, nap_, ora_, perc_, mperc_})
        connect(mezo, &QSpinBox::valueChanged, this, &TForm10::SpinEditEv1Change);
}

QHBoxLayout* TForm10::gombok() {
    auto* sor = new QHBoxLayout;
    const auto gomb = [&](const char* nev, const char* felirat, void (TForm10::*kezelo)()) {
        auto* uj = ujGomb(this, nev, felirat);
        connect(uj, &QPushButton::clicked, this, kezelo);
        sor->addWidget(uj);
        return uj;
    };
    gomb("Button_Rendben1", "Rendben", &TForm10::Button_Rendben1Click)->setDefault(true);
    gomb("Button_Torol1", "Töröl", &TForm10::Button_Torol1Click);
    sor->addStretch();
    gomb("Button_Rendben2", "Lista rendben", &TForm10::Button_Rendben2Click);
    gomb("Button_Megsem2", "Mégsem", &TForm10::Button_Megsem2Click);
    return sor;
}
