#include "commands/nezet.h"

#include <string_view>

#include "chart/kepletciklus.h"
#include "chart/kepletmutatas.h"
#include "chart/statuszsor.h"

namespace {

struct TNezet {
    std::string_view panel;      ///< status panel 0
    std::string_view kovetkezo;  ///< caption of PanelButton3_Valt
};

constexpr Tomb<TNezet, 3> nezetek{{{{"Radix", "Mundán"}, {"Mundán", "Dekád"}, {"Dekád", "Radix"}}}};

void nezetParancs(Allapot& allapot, FoAblak& ablak, int tipus, UralkodoLepes lepes) {
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

void NezetBeallitas(Allapot& allapot, int tipus) {
    allapot.KepletTipus = tipus;
    allapot.Feliratok.statusz[panelTipus] = nezetek[tipus].panel;
    allapot.Feliratok.valtGomb = nezetek[tipus].kovetkezo;
}

void ValtParancs(Allapot& allapot, FoAblak& ablak) {
    nezetParancs(allapot, ablak, allapot.KepletTipus % 3 + 1, UralkodoLepes::teljes);
}

void HorizontParancs(Allapot& allapot, FoAblak& ablak) {
    nezetParancs(allapot, ablak, 1, UralkodoLepes::teljes);
}

void MundanParancs(Allapot& allapot, FoAblak& ablak) {
    nezetParancs(allapot, ablak, 2, UralkodoLepes::csakDekad);
}

void DekadParancs(Allapot& allapot, FoAblak& ablak) {
    nezetParancs(allapot, ablak, 3, UralkodoLepes::csakDekad);
}
