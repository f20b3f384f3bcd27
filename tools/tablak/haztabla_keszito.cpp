// Makes the tables of houses and ascensions.
//
//   haztabla_keszito MAPPA   writes mctabla.inc, haztabla.inc, ferde.inc, rekt.inc, hossz.inc

#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <numbers>
#include <string>
#include <vector>

namespace {

constexpr double fokbol = std::numbers::pi / 180;
/// Obliquities in degrees: the one that the house tables were made for, and that of the ascension tables.
constexpr double hazFerdeseg = 23.4453 * fokbol;
constexpr double aszcenzioFerdeseg = 23.45 * fokbol;

constexpr int elsoSzelesseg = 42;
constexpr int utolsoSzelesseg = 60;

/// Angle of a point in degrees, 0..360.
double irany(double y, double x) {
    const double fok = std::atan2(y, x) / fokbol;
    return fok < 0 ? fok + 360 : fok;
}

int kerekit(double x) {
    return static_cast<int>(std::lround(x));
}

using TOszlop = std::vector<int>;

TOszlop mcTabla() {
    TOszlop sorok;
    for (int a = 0; a < 360; ++a)
        sorok.push_back(
            kerekit(3600 * irany(std::sin(a * fokbol), std::cos(a * fokbol) * std::cos(hazFerdeseg))));
    sorok.push_back(1296000);
    return sorok;
}

double ekliptikaFok(double rekt) {
    return irany(std::sin(rekt * fokbol), std::cos(rekt * fokbol) * std::cos(hazFerdeseg));
}

/// A cusp that divides a semi-arc: its right ascension by iteration, degrees to longitude.
/// @param kezdet     right ascension of the meridian that the arc is counted from, degrees
/// @param k          share of the semi-arc, 1/3 or 2/3
/// @param elojel     +1 eastward from the upper meridian (houses 11, 12), -1 back from the lower one (2, 3)
/// @param szelesseg  geographic latitude, radians
double felivCsucs(double kezdet, double k, int elojel, double szelesseg) {
    double r = kezdet + elojel * 90 * k;
    for (double elozo = r + 1; std::abs(r - elozo) >= 1e-12;) {
        elozo = r;
        const double ad =
            std::asin(std::tan(szelesseg) * std::tan(hazFerdeseg) * std::sin(r * fokbol)) / fokbol;
        r = kezdet + elojel * k * (90 + elojel * ad);
    }
    return ekliptikaFok(r);
}

std::array<double, 5> hazSor(int ramc, int szelessegFok) {
    const double a = ramc * fokbol;
    const double f = szelessegFok * fokbol;
    const double asc =
        irany(std::cos(a), -(std::sin(a) * std::cos(hazFerdeseg) + std::tan(f) * std::sin(hazFerdeseg)));
    return {asc, felivCsucs(ramc + 180, 2.0 / 3, -1, f), felivCsucs(ramc + 180, 1.0 / 3, -1, f),
            felivCsucs(ramc, 1.0 / 3, 1, f), felivCsucs(ramc, 2.0 / 3, 1, f)};
}

TOszlop hazTabla() {
    TOszlop cellak;
    for (int szelesseg = elsoSzelesseg; szelesseg <= utolsoSzelesseg; ++szelesseg)
        for (int ramc = 0; ramc <= 360; ++ramc)
            for (const double csucs : hazSor(ramc % 360, szelesseg))
                cellak.push_back(kerekit(60 * csucs) % 21600);
    return cellak;
}

double rektaszcenzio(double hossz) {
    return irany(std::sin(hossz * fokbol) * std::cos(aszcenzioFerdeseg), std::cos(hossz * fokbol));
}

TOszlop rektTabla() {
    TOszlop sorok;
    for (int i = 0; i < 2160; ++i) sorok.push_back(kerekit(60 * rektaszcenzio(i / 6.0)));
    sorok.push_back(21600);
    return sorok;
}

/// The inverse of the rounded table, not of the curve.
TOszlop hosszTabla(const TOszlop& rekt) {
    TOszlop sorok;
    std::size_t i = 0;
    for (int x = 0; x < 21600; x += 10) {
        while (i + 1 < 2160 && rekt[i + 1] <= x) ++i;
        const double resz = static_cast<double>(x - rekt[i]) / (rekt[i + 1] - rekt[i]);
        sorok.push_back(kerekit(10.0 * static_cast<double>(i) + 10 * resz));
    }
    sorok.push_back(21600);
    return sorok;
}

TOszlop ferdeTabla() {
    TOszlop cellak;
    for (int szelesseg = elsoSzelesseg; szelesseg <= utolsoSzelesseg; ++szelesseg) {
        for (int l = 0; l < 360; ++l) {
            const double deklinacio = std::asin(std::sin(aszcenzioFerdeseg) * std::sin(l * fokbol));
            const double ad = std::asin(std::tan(szelesseg * fokbol) * std::tan(deklinacio)) / fokbol;
            cellak.push_back(kerekit(60 * (rektaszcenzio(l) - ad)));
        }
        cellak.push_back(21600);
    }
    return cellak;
}

std::size_t hazCella(int szelesseg, int ramc, int oszlop) {
    return (static_cast<std::size_t>(szelesseg - elsoSzelesseg) * 361 + static_cast<std::size_t>(ramc)) * 5 +
           static_cast<std::size_t>(oszlop);
}
std::size_t ferdeCella(int szelesseg, int sor) {
    return static_cast<std::size_t>(szelesseg - elsoSzelesseg) * 361 + static_cast<std::size_t>(sor);
}

bool iras(const std::string& fajl, const TOszlop& szamok, std::size_t soronkent) {
    std::ofstream ki(fajl);
    for (std::size_t i = 0; i < szamok.size(); ++i)
        ki << szamok[i] << ',' << ((i + 1) % soronkent == 0 || i + 1 == szamok.size() ? '\n' : ' ');
    return static_cast<bool>(ki.flush());
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Használat: haztabla_keszito MAPPA\n";
        return 2;
    }
    TOszlop haz = hazTabla();
    TOszlop rekt = rektTabla();
    const TOszlop hossz = hosszTabla(rekt);
    TOszlop ferde = ferdeTabla();

    // Cells set by hand: the tables that the program has always used stand off the curve here, and directions
    // through them would change in the last digits if they were smoothed.
    haz[hazCella(58, 240, 1)] = 21599;
    haz[hazCella(60, 240, 1)] = 21599;
    rekt[102] = 910;
    rekt[1182] = 11710;
    ferde[ferdeCella(42, 1)] = 33;
    ferde[ferdeCella(42, 16)] = 571;
    ferde[ferdeCella(42, 209)] = 13007;
    ferde[ferdeCella(47, 323)] = 20411;

    const std::string mappa = std::string(argv[1]) + "/";
    const bool kesz = iras(mappa + "mctabla.inc", mcTabla(), 12) && iras(mappa + "haztabla.inc", haz, 15) &&
                      iras(mappa + "ferde.inc", ferde, 16) && iras(mappa + "rekt.inc", rekt, 16) &&
                      iras(mappa + "hossz.inc", hossz, 16);
    return kesz ? 0 : 1;
}
