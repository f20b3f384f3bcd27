#include "chart/kepletmutatas.h"

void IranyListak(const Allapot& a, FoAblak& ablak) {
    if (a.PontositasFut) ablak.PontositasFuttat();
    if (a.PrimerFut) ablak.PrimerFuttat();
}

void KepletMutatas(Allapot& a, FoAblak& ablak) {
    ablak.Mutat();
    ablak.Ervenytelenit();
    a.TeljesTorles = false;
    ablak.RajzolKeplet();
    IranyListak(a, ablak);
}
