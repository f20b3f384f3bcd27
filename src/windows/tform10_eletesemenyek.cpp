#include "windows/tform10_eletesemenyek.h"

#include <utility>

#include <QKeyEvent>

#include "events/analogia.h"
#include "tables/fokperc.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"
#include "tables/telepulesek.h"
#include "tables/tomb.h"
#include "windows/ablakelhelyezes.h"
#include "windows/qszoveg.h"

TForm10::TForm10(Allapot& allapot, FoAblak&, QWidget* fo) : TKesobbiAblak(fo), allapot_(allapot), fo_(fo) {
    setObjectName("TForm10");
    setWindowTitle("Életesemények");
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

/// Selects a row, 0 for none, and shows it so; the letters' colour follows the background's role.
void TForm10::kijeloles(int sor) {
    kijelolt_ = sor;
    for (std::size_t i = 0; i < sorok_.size(); ++i) {
        const bool kijelolt = static_cast<int>(i) + 1 == sor;
        for (QLabel* felirat : sorok_[i]) {
            felirat->setAutoFillBackground(kijelolt);
            felirat->setBackgroundRole(kijelolt ? QPalette::Highlight : QPalette::NoRole);
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
    // The moment before its summer time, which it changes.
    const std::pair<QSpinBox*, int> szamok[]{
        {ev_, e.pillanat.ev},      {ho_, e.pillanat.ho},     {nap_, e.pillanat.nap},
        {ora_, e.pillanat.ora},    {perc_, e.pillanat.perc}, {mperc_, e.pillanat.mperc},
        {idozona_, e.idozona},     {nyariIdo_, e.nyariIdo},  {hosszFok_, e.hosszFok},
        {hosszPerc_, e.hosszPerc}, {szelFok_, e.szelFok},    {szelPerc_, e.szelPerc}};
    for (const auto& [mezo, ertek] : szamok) mezo->setValue(ertek);
    solarNap_->setText(qszoveg(HazCimke(e.solarNap)));
    alapMezok_ = mezok();
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
    alapMezok_ = mezok();
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

/// Whether a text was typed that is not in the list yet.
bool TForm10::gepelt() const {
    return esemeny_->isModified() || analogia_->isModified();
}

/// The Escape key and the window's own button, which ask before something is lost; "Mégsem" is an answer
/// already and does not.
void TForm10::reject() {
    const bool valtozott = gepelt() || !EsemenyListaAzonos(allapot_.Esemenyek, masodik_);
    if (parbeszed_ != nullptr && valtozott &&
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
    if (sor != 0) betoltes(sor);
}

void TForm10::betoltes(int sor) {
    kijeloles(sor);
    mezokMutatasa(allapot_.Esemenyek.esemenyek[sor]);
}

/// The arrow keys walk through the list where the focused field has no use for them, as the texts have none;
/// but what was typed stays.
void TForm10::keyPressEvent(QKeyEvent* esemeny) {
    const int lepes = esemeny->key() == Qt::Key_Down ? 1 : esemeny->key() == Qt::Key_Up ? -1 : 0;
    if (lepes == 0 || gepelt() || mezok() != alapMezok_) return QDialog::keyPressEvent(esemeny);
    const int db = allapot_.Esemenyek.EsemenyDb;
    const int sor = kijelolt_ == 0 && lepes < 0 ? db : kijelolt_ + lepes;
    if (sor >= 1 && sor <= db) betoltes(sor);
}

bool TForm10::eventFilter(QObject* targy, QEvent* esemeny) {
    if (esemeny->type() == QEvent::MouseButtonRelease)
        if (const auto* felirat = qobject_cast<QLabel*>(targy)) LEletesClick(felirat->text());
    return QDialog::eventFilter(targy, esemeny);
}
