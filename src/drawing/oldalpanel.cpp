#include "drawing/oldalpanel.h"

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

void OldalPanelIras(Allapot& allapot) {
    const auto sor = [](double hossz) {
        return TRajz::TPanelSor{std::string(jegyBetu(egesz(hossz / 30) + 1)), helyzetSzoveg(hossz)};
    };
    auto& panel = allapot.Rajz.panel;
    std::size_t n = 0;
    for (int i = 1; i <= 10; ++i) panel[n++] = sor(allapot.Keplet.bolygo[i]);
    for (const int haz : feliratosCsucsok) panel[n++] = sor(allapot.Keplet.hazCsucs[haz]);
}

void FenyszogPontSzamitas(Allapot& allapot) {
    for (int i = 1; i <= 10; ++i) {
        auto& pontok = allapot.Rajz.FenyszogPontok[i];
        pontok[1] = allapot.Keplet.bolygo[i];
        for (int k = 2; k <= 16; ++k) {
            const double s = allapot.Keplet.bolygo[i] + FenyszogEltolasok[k];
            pontok[k] = s < 0 ? s + 360 : s >= 360 ? s - 360 : s;
        }
    }
}
