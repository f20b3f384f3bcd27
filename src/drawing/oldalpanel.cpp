#include "drawing/oldalpanel.h"

#include <cstddef>
#include <string_view>

#include "tables/szamtan.h"
#include "tables/szotar.h"

std::string helyzetSzoveg(double hossz) {
    const double r = hossz - 30.0 * egesz(hossz / 30);
    const int fok = egesz(r);
    const double m = (r - fok) * 60;
    const int perc = egesz(m);
    const int mperc = egesz((m - perc) * 60);
    return std::to_string(fok) + "°" + std::to_string(perc) + "'" + std::to_string(mperc) + "''";
}

void OldalPanelIras(const TBolygok& bolygo, const THazcsucsok& hazCsucs, TPanel& panel) {
    const auto sor = [](double hossz) {
        return TPanelSor{std::string(jegyBetu(egesz(hossz / 30) + 1)), helyzetSzoveg(hossz)};
    };
    std::size_t n = 0;
    for (int i = 1; i <= 10; ++i) panel[n++] = sor(bolygo[i]);
    for (const int haz : feliratosCsucsok) panel[n++] = sor(hazCsucs[haz]);
}
