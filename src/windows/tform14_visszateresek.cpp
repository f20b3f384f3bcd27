#include "windows/tform14_visszateresek.h"

#include <QAction>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "chart/allapot.h"
#include "commands/rendszerido.h"
#include "predictive/visszateresek.h"
#include "tables/fokperc.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"
#include "tables/telepulesek.h"
#include "windows/ablakelhelyezes.h"
#include "windows/helysegmezo.h"
#include "windows/idovalaszto.h"
#include "windows/listamuveletek.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

namespace {

/// The coordinates' whole range: what a chart file holds is shown as it stands.
constexpr int legtobbFok = INT32_MAX / 3600 + 1;

/// A field that shows a number which the user may copy but not change.
QSpinBox* kijelzoMezo(QWidget* szulo, const char* nev, int also, int felso) {
    QSpinBox* mezo = ujSzamMezo(szulo, nev, also, felso);
    mezo->setReadOnly(true);
    mezo->setButtonSymbols(QAbstractSpinBox::NoButtons);
    mezo->setFocusPolicy(Qt::ClickFocus);
    return mezo;
}

}  // namespace

TForm14::TForm14(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : TKesobbiAblak(fo), allapot_(allapot), ablak_(ablak), fo_(fo) {
    setObjectName("TForm14");
    setWindowTitle("Nap-áthaladások");
}

void TForm14::epites() {
    label1_ = new QLabel(this);
    datumBekero1_ = new QLabel(this);
    helyseg_ = ujHelysegMezo(this, "ComboBoxHelyseg1");
    listBox1_ = new QListWidget(this);
    label1_->setObjectName("Label1");
    datumBekero1_->setObjectName("Datum_bekero1");
    listaEpitese();

    auto* egesz = new QGridLayout(this);
    egesz->addWidget(label1_, 0, 0);
    egesz->addWidget(listBox1_, 1, 0);
    egesz->addLayout(mezok(), 0, 1, 2, 1);
    connect(this, &QDialog::rejected, this, [this] { allapot_.Megsem14 = true; });
    connect(helyseg_, &QComboBox::editTextChanged, this, &TForm14::ComboBoxHelyseg1Change);

    listBox1_->setSelectionMode(QAbstractItemView::ExtendedSelection);  // to copy; one row is taken
    new TListaMuveletek(*listBox1_, [this] {
        QStringList sorok;
        for (int i = 0; i < listBox1_->count(); ++i) sorok << listBox1_->item(i)->text();
        return TListaSzoveg{listaCim(windowTitle(), allapot_, allapot_.RadixPillanat), sorok};
    });
}

void TForm14::listaEpitese() {
    listBox1_->setObjectName("ListBox1");
    listBox1_->setMinimumSize(220, 280);
    listBox1_->setToolTip("Kettős kattintás: Rendben. M: a mai naphoz legközelebbi sor.");
    connect(listBox1_, &QListWidget::currentRowChanged, this, &TForm14::ListBox1Click);
    connect(listBox1_, &QListWidget::itemDoubleClicked, this, &TForm14::Button_Rendben1Click);
    // A click with Ctrl takes the mark off the row, but not the row out of the choice.
    connect(listBox1_, &QListWidget::itemSelectionChanged, this, [this] {
        if (QListWidgetItem* sor = listBox1_->currentItem()) sor->setSelected(true);
    });

    auto* ma = new QAction("Mai naphoz", listBox1_);
    ma->setObjectName("MaiNaphoz1");
    ma->setShortcut(Qt::Key_M);
    ma->setShortcutContext(Qt::WidgetShortcut);
    listBox1_->addAction(ma);
    listBox1_->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(ma, &QAction::triggered, this, &TForm14::maiNaphoz);
}

/// Marks the row nearest to the computer's present moment.
void TForm14::maiNaphoz() {
    TPillanat most;
    OlvasDatum(ablak_.RendszerDatum(), most);
    OlvasIdo(ablak_.RendszerIdo(), most);
    const int sor = LegkozelebbiSor(allapot_.Visszateresek, most);
    if (sor == 0) return;
    listBox1_->setCurrentRow(sor - 1);
    listBox1_->scrollToItem(listBox1_->currentItem(), QAbstractItemView::PositionAtCenter);
}

QGridLayout* TForm14::mezok() {
    auto* racs = new QGridLayout;
    racs->addWidget(datumBekero1_, 0, 0, 1, 4);
    constexpr std::array<const char*, 3> datumNevek{"SpinEditEv1", "SpinEditHo1", "SpinEditNap1"};
    constexpr std::array<const char*, 3> editNevek{"Edit1", "Edit2", "Edit3"};
    for (std::size_t i = 0; i < 3; ++i) {
        datum_[i] = kijelzoMezo(this, datumNevek[i], 0, 9999);
        edit_[i] = ujSzovegMezo(this, editNevek[i]);
        edit_[i]->setReadOnly(true);
        edit_[i]->setFocusPolicy(Qt::ClickFocus);
        edit_[i]->setMaximumWidth(60);
        racs->addWidget(datum_[i], 1, static_cast<int>(i));
        racs->addWidget(edit_[i], 2, static_cast<int>(i));
    }
    QGroupBox* idoValaszto = ujIdoValaszto(this);
    idoValaszto->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (auto* radio : idoValaszto->findChildren<QRadioButton*>()) radio->setFocusPolicy(Qt::NoFocus);
    racs->addWidget(idoValaszto, 3, 0, 1, 4);
    racs->addWidget(new QLabel("Helység:", this), 4, 0);
    racs->addWidget(helyseg_, 4, 1, 1, 3);
    koordinataMezok(*racs);
    racs->setRowStretch(7, 1);
    auto* rendben = ujGomb(this, "Button_Rendben1", "Rendben");
    rendben->setDefault(true);
    auto* megsem = ujGomb(this, "Button_Megsem1", "Mégsem");
    racs->addWidget(rendben, 8, 0, 1, 2);
    racs->addWidget(megsem, 8, 2, 1, 2);
    setTabOrder(listBox1_, helyseg_);
    setTabOrder(helyseg_, rendben);
    setTabOrder(rendben, megsem);
    connect(rendben, &QPushButton::clicked, this, &TForm14::Button_Rendben1Click);
    connect(megsem, &QPushButton::clicked, this, &TForm14::Button_Megsem1Click);
    return racs;
}

void TForm14::koordinataMezok(QGridLayout& racs) {
    constexpr std::array<const char*, 4> nevek{"SpinEditHosszFok1", "SpinEditHosszPerc1", "SpinEditSzelFok1",
                                               "SpinEditSzelPerc1"};
    for (std::size_t i = 0; i < nevek.size(); ++i) {
        const bool fok = i % 2 == 0;
        // The minutes of a western or southern place carry the sign too.
        const int felso = fok ? legtobbFok : 59;
        koordinata_[i] = kijelzoMezo(this, nevek[i], -felso, felso);
        racs.addWidget(koordinata_[i], i < 2 ? 5 : 6, fok ? 2 : 3);
    }
    racs.addWidget(new QLabel("Hosszúság (+/K, -/Ny):", this), 5, 0, 1, 2);
    racs.addWidget(new QLabel("Szélesség (+/É, -/D):", this), 6, 0, 1, 2);
}

void TForm14::kitoltes(const TVisszateresFajta& fajta, const TPillanat& kezdo) {
    elkeszites();
    setWindowTitle(qszoveg(fajta.cim.hosszu));
    label1_->setText(fajta.listaCim);
    datumBekero1_->setText("Kezdő dátum:");
    const QSignalBlocker blokk(helyseg_);
    helyseg_->helysegBeallitasa(qszoveg(allapot_.Keplet.helyseg));
    listBox1_->clear();
    findChildren<QRadioButton*>().last()->setChecked(true);
    const std::array<int, 3> datum{kezdo.ev, kezdo.ho, kezdo.nap};
    for (std::size_t i = 0; i < datum.size(); ++i) {
        datum_[i]->setValue(datum[i]);
        edit_[i]->setText(QString::number(datum[i]));
    }
    koordinatak(allapot_.Keplet.hosszusag, allapot_.Keplet.szelesseg);
}

void TForm14::megmutat(const std::vector<std::string>& sorok) {
    for (const std::string& sor : sorok) listBox1_->addItem(qszoveg(sor));
    listBox1_->setCurrentRow(0);
    listBox1_->setFocus();
    adjustSize();
    kozepre(*this, *fo_);
    exec();
}

std::string TForm14::helyseg() const {
    return szoveg(helyseg_->currentText());
}

void TForm14::koordinatak(std::int32_t hosszusag, std::int32_t szelesseg) {
    const TFokPerc hossz = fokPercre(hosszusag);
    const TFokPerc szel = fokPercre(szelesseg);
    const std::array<int, 4> ertekek{hossz.fok, hossz.perc, szel.fok, szel.perc};
    for (std::size_t i = 0; i < ertekek.size(); ++i) koordinata_[i]->setValue(ertekek[i]);
}

void TForm14::Button_Rendben1Click() {
    allapot_.Megsem14 = false;
    accept();
}

void TForm14::Button_Megsem1Click() {
    reject();
}

void TForm14::ListBox1Click() {
    sor_ = std::max(0, listBox1_->currentRow()) + 1;
}

void TForm14::ComboBoxHelyseg1Change() {
    const TTelepules& hely = TelepulesKeres(helyseg());
    koordinatak(hely.hosszusag, hely.szelesseg);
}
