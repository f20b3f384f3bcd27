#include "windows/tform9_szimbolumok.h"

#include <QGridLayout>

#include "chart/allapot.h"
#include "windows/ablakelhelyezes.h"
#include "windows/betumappak.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

TForm9::TForm9(Allapot& allapot, FoAblak&, QWidget* fo) : TKesobbiAblak(fo), allapot_(allapot), fo_(fo) {
    setObjectName("TForm9");
    setWindowTitle("Szimbólumok");
}

void TForm9::epites() {
    comboBox1_ = new QComboBox(this);
    comboBox1_->setObjectName("ComboBox1");
    comboBox1_->setEditable(true);
    comboBox1_->setMinimumContentsLength(20);
    gorgoCsakFokusszal(*comboBox1_);
    auto* rendben = ujGomb(this, "Button_Rendben1", "Rendben");
    rendben->setDefault(true);
    auto* megsem = ujGomb(this, "Button_Megsem1", "Mégsem");
    auto* racs = new QGridLayout(this);
    racs->addWidget(comboBox1_, 0, 0, 1, 2);
    racs->addWidget(rendben, 1, 0);
    racs->addWidget(megsem, 1, 1);
    connect(rendben, &QPushButton::clicked, this, &TForm9::Button_Rendben1Click);
    connect(megsem, &QPushButton::clicked, this, &TForm9::Button_Megsem1Click);
}

void TForm9::megmutat() {
    elkeszites();
    comboBox1_->clear();
    comboBox1_->addItems(szimbolumFontok());
    adjustSize();
    constexpr int felsoTav = 30;  // pixels
    jobbraFent(*this, *fo_, felsoTav);
    exec();
}

void TForm9::Button_Rendben1Click() {
    if (!comboBox1_->currentText().isEmpty()) allapot_.Rajz.szimbolumFont = szoveg(comboBox1_->currentText());
    comboBox1_->clear();
    accept();
}

void TForm9::Button_Megsem1Click() {
    comboBox1_->clear();
    reject();
}
