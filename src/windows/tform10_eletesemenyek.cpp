#include "windows/tform10_eletesemenyek.h"

#include <QMouseEvent>
#include <QSignalBlocker>

#include "events/analogia.h"
#include "tables/efemerida.h"
#include "tables/fokperc.h"
#include "tables/nyariido.h"
#include "tables/szotar.h"
#include "tables/telepulesek.h"
#include "windows/ablakelhelyezes.h"
#include "windows/gomb.h"
#include "windows/helysegmezo.h"
#include "windows/qszoveg.h"

namespace {

/// Left positions of the list's columns, pixels.
constexpr std::array<int, esemenyOszlopok> oszlopHelyek{7,   22,  180, 290, 318, 333, 348, 363,
                                                        378, 410, 520, 538, 556, 574, 632};
constexpr int listaTeteje = 26;
constexpr int sorMagassag = 17;
constexpr int ablakSzelesseg = 690;
constexpr int mezokTeteje = listaTeteje + esemenyHelyek * sorMagassag + 10;

/// Columns whose click selects the row: number, event, analogies.
constexpr std::size_t kijeloloOszlopok = 3;

}  // namespace

TForm10::TForm10(Allapot& allapot, FoAblak&, QWidget* fo) : QDialog(fo), allapot_(allapot), fo_(fo) {
    setObjectName("TForm10");
    setWindowTitle("Életesemények");
    QFont kicsi = font();
    kicsi.setFamily("Ariel");
    kicsi.setPixelSize(11);
    setFont(kicsi);
    setFixedSize(ablakSzelesseg, mezokTeteje + 150);
    listaEpitese();
    mezokEpitese();
}

void TForm10::cimke(const QString& szoveg, int x, int y) {
    auto* uj = new QLabel(szoveg, this);
    uj->move(x, y);
}

QSpinBox* TForm10::szamMezo(const char* nev, int also, int felso, const QRect& hely) {
    auto* mezo = new QSpinBox(this);
    mezo->setObjectName(nev);
    mezo->setRange(also, felso);
    mezo->setGeometry(hely);
    return mezo;
}

QLineEdit* TForm10::szovegMezo(const char* nev, const QRect& hely) {
    auto* mezo = new QLineEdit(this);
    mezo->setObjectName(nev);
    mezo->setGeometry(hely);
    return mezo;
}

QPushButton* TForm10::gomb(const char* nev, const QString& felirat, const QRect& hely,
                           void (TForm10::*kezelo)()) {
    auto* uj = ujGomb(this, nev, felirat, hely);
    connect(uj, &QPushButton::clicked, this, kezelo);
    return uj;
}

void TForm10::listaEpitese() {
    cimke("Életesemény:", oszlopHelyek[1], 6);
    cimke("Házanalógiák:", oszlopHelyek[2], 6);
    cimke("Esemény ideje (GMT):", oszlopHelyek[3], 6);
    cimke("Solar-évforduló helye:", oszlopHelyek[9], 6);
    cimke("Solar-Nap:", oszlopHelyek[13], 6);
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

void TForm10::mezokEpitese() {
    const int y = mezokTeteje;
    cimke("Életesemény:", 7, y + 4);
    esemeny_ = szovegMezo("Edit_Eletesemenyek1", {90, y, 230, 22});
    cimke("Házanalógiák:", 335, y + 4);
    analogia_ = szovegMezo("Edit_Hazanalogiak1", {420, y, 260, 22});

    const int y2 = y + 28;
    cimke("Év:", 7, y2 + 4);
    ev_ = szamMezo("SpinEditEv1", 1900, 2068, {28, y2, 60, 22});
    cimke("Hó:", 95, y2 + 4);
    ho_ = szamMezo("SpinEditHo1", 1, 12, {117, y2, 44, 22});
    cimke("Nap:", 168, y2 + 4);
    nap_ = szamMezo("SpinEditNap1", 1, 31, {196, y2, 44, 22});
    cimke("Óra:", 250, y2 + 4);
    ora_ = szamMezo("SpinEditOra1", 0, 23, {275, y2, 44, 22});
    cimke("Perc:", 326, y2 + 4);
    perc_ = szamMezo("SpinEditPerc1", 0, 59, {356, y2, 44, 22});
    cimke("Mp:", 407, y2 + 4);
    mperc_ = szamMezo("SpinEditMperc1", 0, 59, {430, y2, 44, 22});
    cimke("Időzóna:", 484, y2 + 4);
    idozona_ = szamMezo("SpinEditIdozona1", -12, 12, {534, y2, 44, 22});
    cimke("Nyári id.:", 586, y2 + 4);
    nyariIdo_ = szamMezo("SpinEditNyariidosz1", 0, 1, {636, y2, 44, 22});

    const int y3 = y2 + 28;
    cimke("Solar-évforduló helye:", 7, y3 + 4);
    helyseg_ = ujHelysegMezo(this, "ComboBoxHelyseg1");
    helyseg_->setGeometry(125, y3, 195, 22);
    cimke("Hossz.:", 323, y3 + 4);
    hosszFok_ = szamMezo("SpinEditHosszFok1", -180, 180, {364, y3, 52, 22});
    hosszPerc_ = szamMezo("SpinEditHosszPerc1", 0, 59, {419, y3, 44, 22});
    cimke("Szél.:", 469, y3 + 4);
    szelFok_ = szamMezo("SpinEditSzelFok1", -180, 180, {500, y3, 54, 22});
    szelPerc_ = szamMezo("SpinEditSzelPerc1", 0, 59, {557, y3, 44, 22});
    cimke("Solar-Nap:", 607, y3 + 4);
    solarNap_ = new QLabel(this);
    solarNap_->setObjectName("LabelSolarNap1");
    solarNap_->setGeometry(666, y3, 24, 22);

    const int y4 = y3 + 34;
    gomb("Button_Rendben1", "Rendben", {90, y4, 100, 26}, &TForm10::Button_Rendben1Click)->setDefault(true);
    gomb("Button_Torol1", "Töröl", {196, y4, 100, 26}, &TForm10::Button_Torol1Click);
    gomb("Button_Rendben2", "Lista rendben", {440, y4, 120, 26}, &TForm10::Button_Rendben2Click);
    gomb("Button_Megsem2", "Mégsem", {566, y4, 100, 26}, &TForm10::Button_Megsem2Click);

    connect(helyseg_, &QComboBox::editTextChanged, this, &TForm10::ComboBoxHelyseg1Change);
    for (const QSpinBox* mezo : {ev_, ho_, nap_, ora_, perc_, mperc_})
        connect(mezo, &QSpinBox::valueChanged, this, &TForm10::SpinEditEv1Change);
}

void TForm10::megmutat(std::function<TSzuletes()> szuletes) {
    szuletes_ = std::move(szuletes);
    masodik_ = allapot_.Esemenyek;
    kijelolt_ = 0;
    {
        const QSignalBlocker blokk(helyseg_);
        if (helyseg_->count() == 0) helysegekHozzaadasa(*helyseg_);
        helyseg_->setEditText(qszoveg(allapot_.Keplet.helyseg));
    }
    ComboBoxHelyseg1Change();
    listaMutatasa();
    kozepre(*this, *fo_);
    exec();
}

void TForm10::listaMutatasa() {
    for (std::size_t sor = 0; sor < sorok_.size(); ++sor) {
        const auto szovegek = EsemenySor(allapot_.Esemenyek, static_cast<int>(sor) + 1);
        for (std::size_t oszlop = 0; oszlop < szovegek.size(); ++oszlop)
            sorok_[sor][oszlop]->setText(qszoveg(szovegek[oszlop]));
    }
}

TEletesemeny TForm10::mezok() const {
    TEletesemeny e;
    e.esemeny = szoveg(esemeny_->text());
    e.analogia = AnalogiaElemzes(szoveg(analogia_->text())).szoveg;
    e.pillanat.ev = ev_->value();
    e.pillanat.ho = ho_->value();
    e.pillanat.nap = nap_->value();
    e.pillanat.ora = ora_->value();
    e.pillanat.perc = perc_->value();
    e.pillanat.mperc = mperc_->value();
    e.helyseg = szoveg(helyseg_->currentText());
    e.idozona = idozona_->value();
    e.nyariIdo = nyariIdo_->value();
    e.hosszFok = hosszFok_->value();
    e.hosszPerc = hosszPerc_->value();
    e.szelFok = szelFok_->value();
    e.szelPerc = szelPerc_->value();
    return e;
}

void TForm10::mezokMutatasa(const TEletesemeny& e) {
    esemeny_->setText(qszoveg(e.esemeny));
    analogia_->setText(qszoveg(e.analogia));
    helyseg_->setEditText(qszoveg(e.helyseg));
    ev_->setValue(e.pillanat.ev);
    ho_->setValue(e.pillanat.ho);
    nap_->setValue(e.pillanat.nap);
    ora_->setValue(e.pillanat.ora);
    perc_->setValue(e.pillanat.perc);
    mperc_->setValue(e.pillanat.mperc);
    idozona_->setValue(e.idozona);
    nyariIdo_->setValue(e.nyariIdo);
    hosszFok_->setValue(e.hosszFok);
    hosszPerc_->setValue(e.hosszPerc);
    szelFok_->setValue(e.szelFok);
    szelPerc_->setValue(e.szelPerc);
    solarNap_->setText(qszoveg(HazCimke(e.solarNap)));
}

void TForm10::Button_Rendben1Click() {
    TEletesemeny e = mezok();
    e.solarNap = EsemenySolarNap(szuletes_(), e);
    if (!EsemenyFelvetel(allapot_.Esemenyek, kijelolt_, e)) return;
    solarNap_->setText(qszoveg(HazCimke(e.solarNap)));
    listaMutatasa();
}

void TForm10::Button_Torol1Click() {
    EsemenyTorles(allapot_.Esemenyek, kijelolt_);
    listaMutatasa();
}

void TForm10::Button_Rendben2Click() {
    accept();
}

void TForm10::Button_Megsem2Click() {
    allapot_.Esemenyek = masodik_;
    for (auto& sor : sorok_)
        for (QLabel* felirat : sor) felirat->clear();
    QDialog::reject();
}

void TForm10::ComboBoxHelyseg1Change() {
    TTelepules hely{};
    TelepulesKeres(szoveg(helyseg_->currentText()), hely.idozona, hely.szelesseg, hely.hosszusagJel,
                   hely.szelessegJel, hely.hosszusag);
    idozona_->setValue(hely.idozona);
    hosszFok_->setValue(fokPercre(hely.hosszusag).fok);
    hosszPerc_->setValue(fokPercre(hely.hosszusag).perc);
    szelFok_->setValue(fokPercre(hely.szelesseg).fok);
    szelPerc_->setValue(fokPercre(hely.szelesseg).perc);
    nyariIdo_->setValue(allapot_.Szemely.idoTipus == TIdoTipus::ZN ? tablaNyariIdo() : 0);
}

int TForm10::tablaNyariIdo() const {
    std::int32_t ev = ev_->value();
    std::int32_t ho = ho_->value();
    std::int32_t nap = nap_->value();
    return NyariIdoE(DatumbolJulianszam(ev, ho, nap), ora_->value(), perc_->value(), mperc_->value());
}

/// A change of the date or time asks the table whatever the kind of the clock; only a change of the place
/// looks at the kind: meant so.
void TForm10::SpinEditEv1Change() {
    nyariIdo_->setValue(tablaNyariIdo());
}

void TForm10::LEletesClick(const QString& felirat) {
    const int sor = EsemenyKijeloles(allapot_.Esemenyek, szoveg(felirat));
    if (sor == 0) return;
    kijelolt_ = sor;
    mezokMutatasa(allapot_.Esemenyek.esemenyek[sor]);
}

bool TForm10::eventFilter(QObject* targy, QEvent* esemeny) {
    if (esemeny->type() == QEvent::MouseButtonRelease)
        if (const auto* felirat = qobject_cast<QLabel*>(targy)) LEletesClick(felirat->text());
    return QDialog::eventFilter(targy, esemeny);
}
