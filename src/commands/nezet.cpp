#include "commands/nezet.h"

#include <array>
#include <string>
#include <string_view>

#include "chart/kepletciklus.h"
#include "chart/kepletmutatas.h"
#include "chart/statuszsor.h"
#include "tables/tomb.h"

namespace {

struct TNezet {
    std::string_view panel;      ///< status panel 0
    std::string_view kovetkezo;  ///< caption of PanelButton3_Valt
};

/// In the order of `TKepletTipus`.
constexpr Tomb<TNezet, 3> nezetek{{{{"Radix", "Mundán"}, {"Mundán", "Dekád"}, {"Dekád", "Radix"}}}};

TKepletTipus kovetkezo(TKepletTipus tipus) {
    return tipus == TKepletTipus::dekad ? TKepletTipus::radix
                                        : static_cast<TKepletTipus>(static_cast<int>(tipus) + 1);
}

void nezetParancs(Allapot& allapot, FoAblak& ablak, TKepletTipus tipus, UralkodoLepes lepes) {
    NezetBeallitas(allapot, tipus);
    allapot.TeljesTorles = true;
    ablak.Ujrafest();
    allapot.MostFut = false;
    allapot.Feliratok.mostGomb = allapot.VisszaMod ? "Vissza" : "Most";
    IdoAdatok(allapot);
    KepletCiklus(allapot, lepes);
    ablak.Mutat();
    ablak.RajzolKeplet();
    IranyListak(allapot, ablak);
}

}  // namespace

void NezetBeallitas(Allapot& allapot, TKepletTipus tipus) {
    const TNezet& nezet = nezetek[static_cast<int>(tipus)];
    allapot.KepletTipus = tipus;
    allapot.Feliratok.statusz[panelTipus] = nezet.panel;
    allapot.Feliratok.valtGomb = nezet.kovetkezo;
}

void ValtParancs(Allapot& allapot, FoAblak& ablak) {
    nezetParancs(allapot, ablak, kovetkezo(allapot.KepletTipus), UralkodoLepes::teljes);
}

void HorizontParancs(Allapot& allapot, FoAblak& ablak) {
    nezetParancs(allapot, ablak, TKepletTipus::radix, UralkodoLepes::teljes);
}

void MundanParancs(Allapot& allapot, FoAblak& ablak) {
    nezetParancs(allapot, ablak, TKepletTipus::mundan, UralkodoLepes::csakDekad);
}

void DekadParancs(Allapot& allapot, FoAblak& ablak) {
    nezetParancs(allapot, ablak, TKepletTipus::dekad, UralkodoLepes::csakDekad);
}
