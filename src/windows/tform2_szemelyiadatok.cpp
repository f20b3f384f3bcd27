#include "windows/tform2_szemelyiadatok.h"

#include <initializer_list>

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "chart/allapot.h"
#include "tables/helyhatarok.h"
#include "tables/pillanat.h"
#include "windows/helysegmezo.h"
#include "windows/idovalaszto.h"
#include "windows/mezojeloles.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

TForm2::TForm2(Allapot& allapot, FoAblak&, QWidget* fo) : TKesobbiAblak(fo), allapot_(allapot) {
    setObjectName("TForm2");
    setWindowTitle("Személyi adatok");
}

namespace {

QLabel* cimke(const QString& szoveg) {
    auto* felirat = new QLabel(szoveg);
    felirat->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return felirat;
}

struct TFeliratosMezo {
    const char* felirat;
    QWidget* mezo;
};

/// Three fields in a row, each behind its caption.
void haromMezo(QGridLayout& racs, int sor, std::initializer_list<TFeliratosMezo> mezok) {
    int oszlop = 0;
    for (const auto& [felirat, mezo] : mezok) {
        racs.addWidget(cimke(felirat), sor, oszlop++);
        racs.addWidget(mezo, sor, oszlop++);
    }
}

void koordinataSor(QGridLayout& racs, int sor, const char* felirat, QWidget* fok, QWidget* perc) {
    racs.addWidget(cimke(felirat), sor, 0, 1, 2);
    racs.addWidget(cimke("fok:"), sor, 2);
    racs.addWidget(fok, sor, 3);
    racs.addWidget(cimke("perc:"), sor, 4);
    racs.addWidget(perc, sor, 5);
}

}  // namespace

void TForm2::mezokEpitese() {
    editNev1_ = ujSzovegMezo(this, "EditNev1");
    hosszKorlat(*editNev1_, rovidSzovegHossz);
    spinEditEv1_ = ujSzamMezo(this, "SpinEditEv1", 1900, 2068);
    spinEditHo1_ = ujSzamMezo(this, "SpinEditHo1", 1, 12);
    spinEditNap1_ = ujSzamMezo(this, "SpinEditNap1", 1, 31);
    spinEditOra1_ = ujSzamMezo(this, "SpinEditOra1", 0, 23);
    spinEditPerc1_ = ujSzamMezo(this, "SpinEditPerc1", 0, 59);
    spinEditMperc1_ = ujSzamMezo(this, "SpinEditMperc1", 0, 59);
    comboBoxHelyseg1_ = ujHelysegMezo(this, "ComboBoxHelyseg1", 0);
    spinEditIdozona1_ = ujSzamMezo(this, "SpinEditIdozona1", -legnagyobbIdozona, legnagyobbIdozona);
    spinEditNyariidosz1_ = ujSzamMezo(this, "SpinEditNyariidosz1", 0, 1);
    spinEditHosszFok1_ = ujSzamMezo(this, "SpinEditHosszFok1", -legnagyobbFok, legnagyobbFok);
    spinEditHosszPerc1_ = ujSzamMezo(this, "SpinEditHosszPerc1", 0, 59);
    spinEditSzelFok1_ = ujSzamMezo(this, "SpinEditSzelFok1", -legnagyobbFok, legnagyobbFok);
    spinEditSzelPerc1_ = ujSzamMezo(this, "SpinEditSzelPerc1", 0, 59);
    connect(comboBoxHelyseg1_, &QComboBox::editTextChanged, this, &TForm2::ComboBoxHelyseg1Change);
    for (const QSpinBox* mezo : {spinEditEv1_, spinEditHo1_, spinEditNap1_, spinEditOra1_, spinEditPerc1_,
                                 spinEditMperc1_, spinEditNyariidosz1_})
        connect(mezo, &QSpinBox::valueChanged, this, &TForm2::nyariIdoJeloles);
}

QGroupBox* TForm2::idoValaszto() {
    auto* valaszto = ujIdoValaszto(this);
    idovalaszto_ = new QButtonGroup(valaszto);
    int index = 0;
    for (QRadioButton* radio : valaszto->findChildren<QRadioButton*>())
        idovalaszto_->addButton(radio, index++);
    connect(idovalaszto_, &QButtonGroup::idClicked, this, &TForm2::RadioGroupIdovalaszto1Click);
    return valaszto;
}

QHBoxLayout* TForm2::gombSor() {
    eletesemenyekGomb_ = ujGomb(this, "Button_Eletesemenyek1", "Életesemények");
    auto* rendben = ujGomb(this, "Button_Rendben1", "Rendben");
    rendben->setDefault(true);
    auto* megsem = ujGomb(this, "Button_Megsem1", "Mégsem");
    connect(rendben, &QPushButton::clicked, this, &TForm2::Button_Rendben1Click);
    connect(megsem, &QPushButton::clicked, this, &TForm2::Button_Megsem1Click);
    connect(eletesemenyekGomb_, &QPushButton::clicked, this, &TForm2::Button_Eletesemenyek1Click);
    connect(this, &QDialog::rejected, this, [this] { allapot_.Megsem2 = true; });
    auto* sor = new QHBoxLayout;
    sor->addWidget(eletesemenyekGomb_);
    sor->addStretch();
    sor->addWidget(rendben);
    sor->addWidget(megsem);
    return sor;
}

void TForm2::epites() {
    mezokEpitese();
    auto* racs = new QGridLayout;
    racs->addWidget(cimke("Név:"), 0, 0);
    racs->addWidget(editNev1_, 0, 1, 1, 5);
    haromMezo(*racs, 1, {{"Év:", spinEditEv1_}, {"Hó:", spinEditHo1_}, {"Nap:", spinEditNap1_}});
    haromMezo(*racs, 2, {{"Óra:", spinEditOra1_}, {"Perc:", spinEditPerc1_}, {"Mp:", spinEditMperc1_}});
    racs->addWidget(cimke("Helység:"), 3, 0);
    racs->addWidget(comboBoxHelyseg1_, 3, 1, 1, 5);
    racs->addWidget(cimke("Időzóna (+/K, -/Ny):"), 4, 0, 1, 2);
    racs->addWidget(spinEditIdozona1_, 4, 2, 1, 2);
    racs->addWidget(cimke("Nyári idősz. (0/1):"), 5, 0, 1, 2);
    racs->addWidget(spinEditNyariidosz1_, 5, 2, 1, 2);
    koordinataSor(*racs, 6, "Hosszúság (+/K, -/Ny):", spinEditHosszFok1_, spinEditHosszPerc1_);
    koordinataSor(*racs, 7, "Szélesség (+/É, -/D):", spinEditSzelFok1_, spinEditSzelPerc1_);
    racs->addWidget(idoValaszto(), 8, 0, 1, 6);
    memo_Jegyzet1_ = new JegyzetMezo(this, hosszuSzovegHossz);
    memo_Jegyzet1_->setObjectName("Memo_Jegyzet1");
    memo_Jegyzet1_->setTabChangesFocus(true);
    racs->addWidget(cimke("Jegyzet:"), 9, 0);
    racs->addWidget(memo_Jegyzet1_, 9, 1, 1, 5);

    auto* egesz = new QVBoxLayout(this);
    egesz->addLayout(racs);
    egesz->addLayout(gombSor());
}

void TForm2::kitoltes(bool ujKeplet) {
    elkeszites();
    const QSignalBlocker blokk(comboBoxHelyseg1_);
    comboBoxHelyseg1_->listaNovelese();
    mutat(ujKeplet ? UjKepletMezok(allapot_) : SzemelyMezok(allapot_));
    idoTipusMutatas(ujKeplet ? -1 : allapot_.Szemely.idoTipusIndex);
    esemenySzamMutatas();
    editNev1_->setFocus();
    editNev1_->selectAll();
}

void TForm2::idoTipusMutatas(int index) {
    idovalaszto_->setExclusive(false);
    for (QAbstractButton* radio : idovalaszto_->buttons())
        radio->setChecked(idovalaszto_->id(radio) == index);
    idovalaszto_->setExclusive(true);
    nyariIdoJeloles();
}

void TForm2::nyariIdoJeloles() {
    mezoJeloles(*spinEditNyariidosz1_, qszoveg(NyariIdoElteres(mezok(), idovalaszto_->checkedId())));
}

/// A new chart keeps the last one's events, so that their number is told before they are taken over.
void TForm2::esemenySzamMutatas() {
    eletesemenyekGomb_->setToolTip(
        QStringLiteral("Felvett életesemények száma: %1. Új képlet megtartja őket.")
            .arg(allapot_.Esemenyek.EsemenyDb));
}

void TForm2::mutat(const TSzemelyiAdatok& mezok) {
    editNev1_->setText(qszoveg(mezok.nev));
    spinEditEv1_->setValue(mezok.ido.ev);
    spinEditHo1_->setValue(mezok.ido.ho);
    spinEditNap1_->setValue(mezok.ido.nap);
    spinEditOra1_->setValue(mezok.ido.ora);
    spinEditPerc1_->setValue(mezok.ido.perc);
    spinEditMperc1_->setValue(mezok.ido.mperc);
    comboBoxHelyseg1_->helysegBeallitasa(qszoveg(mezok.helyseg));
    spinEditIdozona1_->setValue(mezok.idozona);
    spinEditNyariidosz1_->setValue(mezok.nyariIdo);
    spinEditHosszFok1_->setValue(mezok.hosszFok);
    spinEditHosszPerc1_->setValue(mezok.hosszPerc);
    spinEditSzelFok1_->setValue(mezok.szelFok);
    spinEditSzelPerc1_->setValue(mezok.szelPerc);
    memo_Jegyzet1_->setPlainText(qszoveg(mezok.jegyzet));
}

TSzemelyiAdatok TForm2::mezok() const {
    TSzemelyiAdatok m;
    m.nev = szoveg(editNev1_->text());
    m.ido = {spinEditEv1_->value(),  spinEditHo1_->value(),   spinEditNap1_->value(),
             spinEditOra1_->value(), spinEditPerc1_->value(), spinEditMperc1_->value()};
    m.helyseg = szoveg(comboBoxHelyseg1_->currentText());
    m.idozona = spinEditIdozona1_->value();
    m.nyariIdo = spinEditNyariidosz1_->value();
    m.hosszFok = spinEditHosszFok1_->value();
    m.hosszPerc = spinEditHosszPerc1_->value();
    m.szelFok = spinEditSzelFok1_->value();
    m.szelPerc = spinEditSzelPerc1_->value();
    m.jegyzet = szoveg(memo_Jegyzet1_->toPlainText());
    return m;
}

void TForm2::ComboBoxHelyseg1Change() {
    TSzemelyiAdatok m = mezok();
    HelysegValtozas(allapot_, m);
    spinEditIdozona1_->setValue(m.idozona);
    spinEditHosszFok1_->setValue(m.hosszFok);
    spinEditHosszPerc1_->setValue(m.hosszPerc);
    spinEditSzelFok1_->setValue(m.szelFok);
    spinEditSzelPerc1_->setValue(m.szelPerc);
    spinEditEv1_->setValue(m.ido.ev);
    spinEditHo1_->setValue(m.ido.ho);
    spinEditNap1_->setValue(m.ido.nap);
    spinEditNyariidosz1_->setValue(m.nyariIdo);
}

void TForm2::RadioGroupIdovalaszto1Click(int index) {
    IdoTipusValasztas(allapot_, index);
    nyariIdoJeloles();
}

void TForm2::Button_Rendben1Click() {
    SzemelyiRendben(allapot_, mezok());
    accept();
}

void TForm2::Button_Megsem1Click() {
    reject();
}

void TForm2::Button_Eletesemenyek1Click() {
    if (eletesemenyek) eletesemenyek();
    esemenySzamMutatas();
}
