#include "windows/tform7_lepteto.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "commands/lepteto.h"
#include "windows/qszoveg.h"

namespace {

constexpr std::array<const char*, 6> sorFeliratok{"Év", "Hó", "Nap", "óra", "perc", "mperc"};

}  // namespace

TForm7::TForm7(Allapot& allapot, FoAblak&, QWidget* fo) : TKesobbiAblak(fo), allapot_(allapot) {
    setObjectName("TForm7");
    setWindowTitle("Léptet");
}

void TForm7::epites() {
    auto* racs = new QGridLayout(this);
    for (int sor = 0; sor < static_cast<int>(sorFeliratok.size()); ++sor)
        racs->addWidget(new QLabel(sorFeliratok[static_cast<std::size_t>(sor)], this), sor, 0);
    std::array<int, 6> oszlop{};
    for (const TLepes& lepes : lepesek) {
        auto* gomb = new QPushButton(qszoveg(lepes.felirat), this);
        gomb->setObjectName(qszoveg(lepes.gomb));
        gomb->setAutoDefault(false);
        gomb->setAutoRepeat(true);
        gomb->setFixedWidth(44);
        const auto sor = static_cast<std::size_t>(lepes.mezo);
        racs->addWidget(gomb, static_cast<int>(sor), ++oszlop[sor]);
        connect(gomb, &QPushButton::clicked, this, [this, &lepes] { Leptetes(allapot_, lepes); });
    }
    setMinimumWidth(280);  // the title shows date and time
    adjustSize();
}
