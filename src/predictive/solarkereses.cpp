#include "predictive/solarkereses.h"

#include <algorithm>

#include "engine/hazak.h"
#include "tables/efemerida.h"
#include "tables/szamtan.h"

namespace {

constexpr double kor = 1296000;  // arcseconds

/// Whether the day's step from a to b holds the longitude s.
bool tartalmazza(double a, double b, double s) {
    if (a < b) return a <= s && s < b;
    return (s >= a && s < 360) || (s >= 0 && s < b);
}

}  // namespace

TSolar SolarKereses(double hossz, std::int32_t kezdo) {
    const auto nap = [](std::int32_t sor) { return static_cast<double>(Efemerida[sor].nap_hossz); };
    std::int32_t sor = std::clamp(kezdo, 1, efemeridaSorok);
    while (sor > 1 && !tartalmazza(nap(sor), nap(sor + 1), hossz)) --sor;

    const double a = nap(sor);
    const double b = nap(sor + 1);
    const double ut = b <= a ? b + kor - a : b - a;
    const double megtett = hossz <= a ? hossz + kor - a : hossz - a;

    TSolar solar{};
    solar.napsorszam = sor;
    solar.napresz = megtett / ut;
    const double s = solar.napresz * 86400;
    solar.ora = egesz(s / 3600);
    solar.perc = egesz((s - solar.ora * 3600.0) / 60);
    solar.mperc = egesz(s - solar.perc * 60.0 - solar.ora * 3600.0);
    return solar;
}

TSolarKeplet SolarKeplet(const TSolar& solar, std::int32_t hosszusag, std::int32_t szelesseg) {
    TSolarKeplet k;
    k.ido =
        CsillagIdo(solar.napsorszam + julianszamAlap, solar.ora, solar.perc, solar.mperc, hosszusag, 0, 0);
    Hazak(k.ido.armcOra, k.ido.armcPerc, k.ido.armcMperc, k.csucsok, szelesseg);
    return k;
}
