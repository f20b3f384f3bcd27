#include "windows/tform10_eletesemenyek.h"

#include <QMouseEvent>
#include <QSignalBlocker>

#include "events/analogia.h"
#include "tables/fokperc.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"
#include "tables/telepulesek.h"
#include "tables/tomb.h"
#include "windows/ablakelhelyezes.h"
#include "windows/helysegmezo.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

namespace {

/// Left positions of the list's columns, pixels.
constexpr std::array<int, esemenyOszlopok> oszlopHelyek{7,   22,  180, 290, 318, 333, 348, 363,
                                                        378, 410, 520, 538, 556, 574, 632};
constexpr int listaTeteje = 26;
constexpr int sorMagassag = 17;
constexpr int ablakSzelesseg = 690;
constexpr int mezokTeteje = listaTeteje + esemenyHelyek * sorMagassag + 10;

constexpr int mezoMagassag = 22;
constexpr int mezoSorKoz = 28;

/// Columns whose click selects the row: number, event, analogies.
constexpr std::size_t kijeloloOszlopok = 3;

}  // namespace

TForm10::TForm10(Allapot& allapot, FoAblak&, QWidget* fo) : TKesobbiAblak(fo), allapot_(allapot), fo_(fo) {
    setObjectName("TForm10");
    setWindowTitle("Életesemények");
}

void TForm10::epites() {
    QFont kicsi = font();
    kicsi.setFamily(qszoveg(szovegFont));
    kicsi.setPixelSize(11);
    setFont(kicsi);
    setFixedSize(ablakSzelesseg, mezokTeteje + 150);
    listaEpitese();
    mezokEpitese();
    gombok();
}

QPushButton* TForm10::gomb(const char* nev, const QString& felirat, const QRect& hely,
                           void (TForm10::*kezelo)()) {
    auto* uj = ujGomb(this, nev, felirat, hely);
    connect(uj, &QPushButton::clicked, this, kezelo);
    return uj;
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

void TForm10::szamMezok(std::span<const TSzamMezo> leirasok, int y) {
    for (const TSzamMezo& l : leirasok) {
        QSpinBox* uj = ujSzamMezo(this, l.nev, l.also, l.felso, {l.x, y, l.szelesseg, mezoMagassag});
        if (l.felirat != nullptr) ujCimke(this, l.felirat, l.feliratX, *uj);
        this->*l.mezo = uj;
    }
}

void TForm10::mezokEpitese() {
    static constexpr TSzamMezo idoMezok[]{
        {"Év:", 7, "SpinEditEv1", 1900, 2068, 28, 60, &TForm10::ev_},
        {"Hó:", 95, "SpinEditHo1", 1, 12, 117, 44, &TForm10::ho_},
        {"Nap:", 168, "SpinEditNap1", 1, 31, 196, 44, &TForm10::nap_},
        {"Óra:", 250, "SpinEditOra1", 0, 23, 275, 44, &TForm10::ora_},
        {"Perc:", 326, "SpinEditPerc1", 0, 59, 356, 44, &TForm10::perc_},
        {"Mp:", 407, "SpinEditMperc1", 0, 59, 430, 44, &TForm10::mperc_},
        {"Időzóna:", 484, "SpinEditIdozona1", -12, 12, 534, 44, &TForm10::idozona_},
        {"Nyári id.:", 586, "SpinEditNyariidosz1", 0, 1, 636, 44, &TForm10::nyariIdo_}};
    static constexpr TSzamMezo helyMezok[]{
        {"Hossz.:", 323, "SpinEditHosszFok1", -180, 180, 364, 52, &TForm10::hosszFok_},
        {nullptr, 0, "SpinEditHosszPerc1", 0, 59, 419, 44, &TForm10::hosszPerc_},
        {"Szél.:", 469, "SpinEditSzelFok1", -180, 180, 500, 54, &TForm10::szelFok_},
        {nullptr, 0, "SpinEditSzelPerc1", 0, 59, 557, 44, &TForm10::szelPerc_}};

    const int y = mezokTeteje;
    esemeny_ = ujSzovegMezo(this, "Edit_Eletesemenyek1", {90, y, 230, mezoMagassag});
    ujCimke(this, "Életesemény:", 7, *esemeny_);
    hosszKorlat(*esemeny_, rovidSzovegHossz);
    analogia_ = ujSzovegMezo(this, "Edit_Hazanalogiak1", {420, y, 260, mezoMagassag});
    ujCimke(this, "Házanalógiák:", 335, *analogia_);
    hosszKorlat(*analogia_, hosszuSzovegHossz);

    szamMezok(idoMezok, y + mezoSorKoz);

    const int y3 = y + 2 * mezoSorKoz;
    helyseg_ = ujHelysegMezo(this, "ComboBoxHelyseg1");
    helyseg_->setGeometry(125, y3, 195, mezoMagassag);
    ujCimke(this, "Solar-évforduló helye:", 7, *helyseg_);
    szamMezok(helyMezok, y3);
    solarNap_ = new QLabel(this);
    solarNap_->setObjectName("LabelSolarNap1");
    solarNap_->setGeometry(666, y3, 24, mezoMagassag);
    ujCimke(this, "Solar-Nap:", 607, *solarNap_);

    connect(helyseg_, &QComboBox::editTextChanged, this, &TForm10::ComboBoxHelyseg1Change);
    for (const QSpinBox* mezo : {ev_, ho_, nap_, ora_, perc_, mperc_})
        connect(mezo, &QSpinBox::valueChanged, this, &TForm10::SpinEditEv1Change);
}

void TForm10::gombok() {
    const int y = mezokTeteje + 2 * mezoSorKoz + 34;
    gomb("Button_Rendben1", "Rendben", {90, y, 100, 26}, &TForm10::Button_Rendben1Click)->setDefault(true);
    gomb("Button_Torol1", "Töröl", {196, y, 100, 26}, &TForm10::Button_Torol1Click);
    gomb("Button_Rendben2", "Lista rendben", {440, y, 120, 26}, &TForm10::Button_Rendben2Click);
    gomb("Button_Megsem2", "Mégsem", {566, y, 100, 26}, &TForm10::Button_Megsem2Click);
}

void TForm10::megmutat(std::function<TSzuletes()> szuletes, const TEletesemeny& kezdoHely) {
    elkeszites();
    szuletes_ = std::move(szuletes);
    masodik_ = allapot_.Esemenyek;
    kijeloles(0);
    mezokMutatasa(EsemenyKezdoMezok(allapot_.Esemenyek, kezdoHely));
    solarNap_->clear();
    listaMutatasa();
    esemeny_->setFocus();
    kozepre(*this, *fo_);
    exec();
}

/// Selects a row, 0 for none, and shows it so.
void TForm10::kijeloles(int sor) {
    kijelolt_ = sor;
    for (std::size_t i = 0; i < sorok_.size(); ++i) {
        const bool kijelolt = static_cast<int>(i) + 1 == sor;
        for (QLabel* felirat : sorok_[i]) {
            felirat->setAutoFillBackground(kijelolt);
            felirat->setBackgroundRole(kijelolt ? QPalette::Highlight : QPalette::NoRole);
            felirat->setForegroundRole(kijelolt ? QPalette::HighlightedText : QPalette::NoRole);
        }
    }
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
    e.pillanat = pillanat();
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
    helyseg_->helysegBeallitasa(qszoveg(e.helyseg));
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
    kijeloles(kijelolt_);
    szovegekUritese();
}

/// Date and place stay: the next event is often of the same time or town.
void TForm10::szovegekUritese() {
    esemeny_->setText({});
    analogia_->setText({});
    esemeny_->setFocus();
}

void TForm10::Button_Torol1Click() {
    EsemenyTorles(allapot_.Esemenyek, kijelolt_);
    kijeloles(kijelolt_);
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

/// Whether leaving would lose something: the list is another than at the opening, or a text was typed that
/// is not in it yet.
bool TForm10::valtozott() const {
    return !EsemenyListaAzonos(allapot_.Esemenyek, masodik_) || esemeny_->isModified() ||
           analogia_->isModified();
}

/// The Escape key and the window's own button; "Mégsem" is an answer already and does not ask.
void TForm10::reject() {
    if (parbeszed_ != nullptr && valtozott() &&
        !parbeszed_->igen(this, "Életesemények", "A változtatások elvesznek. Valóban bezárja az ablakot?"))
        return;
    Button_Megsem2Click();
}

void TForm10::ComboBoxHelyseg1Change() {
    const TTelepules& hely = TelepulesKeres(szoveg(helyseg_->currentText()));
    idozona_->setValue(hely.idozona);
    hosszFok_->setValue(fokPercre(hely.hosszusag).fok);
    hosszPerc_->setValue(fokPercre(hely.hosszusag).perc);
    szelFok_->setValue(fokPercre(hely.szelesseg).fok);
    szelPerc_->setValue(fokPercre(hely.szelesseg).perc);
    nyariIdo_->setValue(EsemenyHelyNyariIdo(allapot_.Szemely.idoTipus, pillanat()));
}

TPillanat TForm10::pillanat() const {
    return {ev_->value(), ho_->value(), nap_->value(), ora_->value(), perc_->value(), mperc_->value()};
}

void TForm10::SpinEditEv1Change() {
    nyariIdo_->setValue(NyariIdoE(pillanat()));
}

void TForm10::LEletesClick(const QString& felirat) {
    const int sor = EsemenyKijeloles(allapot_.Esemenyek, szoveg(felirat));
    if (sor == 0) return;
    kijeloles(sor);
    mezokMutatasa(allapot_.Esemenyek.esemenyek[sor]);
}

bool TForm10::eventFilter(QObject* targy, QEvent* esemeny) {
    if (esemeny->type() == QEvent::MouseButtonRelease)
        if (const auto* felirat = qobject_cast<QLabel*>(targy)) LEletesClick(felirat->text());
    return QDialog::eventFilter(targy, esemeny);
}
