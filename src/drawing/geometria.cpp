#include "drawing/geometria.h"

#include <algorithm>
#include <numbers>
#include <utility>

#include "tables/szamtan.h"

namespace {
constexpr double ablakArany = 0.8;
constexpr double lapArany = 0.75;
constexpr double kisKerekHely = 4.3;  ///< small radii that must fit along the side of the two small wheels
}  // namespace

void AblakGeometria(TRajz& rajz, double elsoCsucs, int szelesseg, int magassag) {
    rajz.forgatas = std::numbers::pi * elsoCsucs / 180;
    rajz.feluletSzelesseg = szelesseg;
    rajz.feluletMagassag = magassag;
    rajz.kozpontX = szelesseg / 2;
    rajz.kozpontY = magassag / 2;
    rajz.kerekSugar = kerekit(ablakArany * std::min(rajz.kozpontX, rajz.kozpontY));
    if (rajz.kozpontX > rajz.kozpontY) rajz.kozpontX = rajz.kozpontY + 20;
}

void LapGeometria(TRajz& rajz, int szelesseg, int magassag) {
    rajz.feluletSzelesseg = szelesseg;
    rajz.feluletMagassag = magassag;
    rajz.kozpontX = szelesseg / 2;
    rajz.kozpontY = magassag / 2;
    rajz.kerekSugar = kerekit(lapArany * std::min(rajz.kozpontX, rajz.kozpontY));
    if (rajz.kozpontY > rajz.kozpontX) rajz.kozpontY = rajz.kozpontX;
}

namespace {

struct TTengely {
    int hossz;    ///< surface along the axis from the large wheel to the small ones
    int kereszt;  ///< surface across it, along which the two small wheels stand
    int kozpont;  ///< centre of the large wheel on the first axis
    int levonas;  ///< taken off twice the centre
};

struct THely {
    int sugar, tavol, negyed;  ///< radius; place along the axis; a quarter of the cross side
};

THely kisHely(const TTengely& t) {
    int sugar = (t.hossz - (2 * t.kozpont - t.levonas)) / 2;
    if (t.kereszt < kisKerekHely * sugar) sugar = kerekit(t.kereszt / kisKerekHely);
    const int tavol = kerekit(t.hossz - sugar - t.kozpont / 10.0);
    const int negyed = t.kereszt / 4;
    return {kerekit(ablakArany * std::min(sugar, negyed)), tavol, negyed};
}

}  // namespace

TKisKerekek KisKerekGeometria(const TRajz& r) {
    if (!r.nyomtatasMod) {
        const THely h = kisHely({r.feluletSzelesseg, r.feluletMagassag, r.kozpontX, 20});
        return {h.sugar, h.tavol, h.negyed, h.tavol, 3 * h.negyed};
    }
    const THely h = kisHely({r.feluletMagassag, r.feluletSzelesseg, r.kozpontY, 0});
    return {h.sugar, h.negyed, h.tavol, 3 * h.negyed, h.tavol};
}

TSugarak GyuruSugarak(int kerekSugar, bool nyomtatas) {
    TSugarak s{};
    const double r = kerekSugar;
    s.kulso = kerekSugar;
    s.skala = s.kulso - kerekit(8.0 * s.kulso / 300 + 2);
    s.bolygo =
        s.skala - (nyomtatas ? kerekit(45.0 * s.skala / 300 + 45) : kerekit(30.0 * s.skala / 300 + 30));
    s.haz = nyomtatas ? kerekit(0.23 * r + 38) : kerekit(0.13 * r + 25);
    s.belso = s.haz - (nyomtatas ? kerekit(36.0 * s.haz / 300 + 36) : kerekit(18.0 * s.haz / 300 + 18));
    s.mag = kerekit(s.belso / 10.0);
    return s;
}

int TollVastagsag(int egyseg, int kerekSugar) {
    return kerekit(static_cast<double>(egyseg) * kerekSugar / 300);
}
