#include "predictive/solarkereses.h"

#include <algorithm>

#include "engine/hazak.h"
#include "tables/efemerida.h"

TSolar SolarKereses(double hossz, std::int32_t kezdo) {
    const auto nap = [](std::int32_t sor) { return static_cast<double>(Efemerida[sor].nap_hossz); };
    std::int32_t sor = std::clamp(kezdo, 1, efemeridaSorok);
    while (sor > 1 && !NapiLepesben(nap(sor), nap(sor + 1), hossz)) --sor;

    TSolar solar{};
    solar.napsorszam = sor;
    solar.napresz = NapiResz(nap(sor), nap(sor + 1), hossz);
    solar.ido = napszak(solar.napresz);
    return solar;
}

TSolarKeplet SolarKeplet(const TSolar& solar, std::int32_t hosszusag, std::int32_t szelesseg) {
    TSolarKeplet k;
    k.ido = CsillagIdo(solar.napsorszam + julianszamAlap, solar.ido.ora, solar.ido.perc, solar.ido.mperc,
                       hosszusag, 0, 0);
    Hazak(k.ido.armcOra, k.ido.armcPerc, k.ido.armcMperc, k.csucsok, szelesseg);
    return k;
}
