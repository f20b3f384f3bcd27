// Turns the kept data files into what goes into the program image, at build time.
//
//   adatkibonto efemerida BE KI    compact ephemeris to 65536 records of 72 bytes, little endian
//   adatkibonto telepulesek BE KI  the gazetteer's rows as initialisers
//   adatkibonto tomorit KI NYERS…  raw rows of `efemerida_keszito` to the compact ephemeris

#include <chrono>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "efemeridafajl.h"

namespace {

constexpr int tablaSorok = 65536;
constexpr int telepulesekSzama = 3138;

class TMozgasSzamitas {
public:
    TMozgasSzamitas(const std::vector<TEfemeridaAdat>& sorok, std::size_t bolygo)
        : sorok_(sorok), bolygo_(bolygo) {}

    /// 'D' or 'R' by the sign of the step to the next row. A zero step keeps the letter of the phase that it
    /// lies in, and is 'S' between two phases.
    char betu(std::size_t i) const {
        if (const int d = lepes(i); d != 0) return d > 0 ? 'D' : 'R';
        std::size_t elozo = i;
        while (lepes(elozo) == 0) --elozo;
        std::size_t kovetkezo = i;
        while (lepes(kovetkezo) == 0) ++kovetkezo;
        const bool elore = lepes(elozo) > 0;
        if (elore != (lepes(kovetkezo) > 0)) return 'S';
        return elore ? 'D' : 'R';
    }

private:
    int lepes(std::size_t i) const {
        const int d = sorok_.at(i + 1).hosszusagok[bolygo_] - sorok_.at(i).hosszusagok[bolygo_];
        constexpr int fel = korIvmasodperc / 2;
        return d >= fel ? d - korIvmasodperc : d < -fel ? d + korIvmasodperc : d;
    }

    const std::vector<TEfemeridaAdat>& sorok_;
    std::size_t bolygo_;
};

void irSzam(std::ostream& ki, int szam) {
    const auto u = static_cast<unsigned>(szam);
    for (int bit = 0; bit < 32; bit += 8) ki.put(static_cast<char>(u >> bit & 0xFFU));
}

void irDatum(std::ostream& ki, int napsorszam) {
    using namespace std::chrono;
    const year_month_day datum{sys_days{year{1900} / January / 1} + days{napsorszam - 1}};
    irSzam(ki, static_cast<int>(datum.year()));
    irSzam(ki, static_cast<int>(static_cast<unsigned>(datum.month())));
    irSzam(ki, static_cast<int>(static_cast<unsigned>(datum.day())));
}

void efemeridaKibontas(const std::string& be, std::ostream& ki) {
    const auto sorok = efemeridaBeolvasas(be);
    for (int napsorszam = 1; napsorszam <= tablaSorok; ++napsorszam) {
        const auto i = static_cast<std::size_t>(napsorszam - elsoSor);
        irDatum(ki, napsorszam);
        const int csillagido = sorok[i].csillagido;
        for (const int szam : {csillagido / 3600, csillagido % 3600 / 60, csillagido % 60}) irSzam(ki, szam);
        for (const int hossz : sorok[i].hosszusagok) irSzam(ki, hossz);
        for (std::size_t bolygo = 2; bolygo < 10; ++bolygo) ki.put(TMozgasSzamitas(sorok, bolygo).betu(i));
    }
}

void telepulesKibontas(const std::string& fajl, std::ostream& ki) {
    std::ifstream be(fajl, std::ios::binary);
    std::string nev;
    std::string szelesseg;
    std::string hosszusag;
    if (!std::getline(be, nev)) throw std::runtime_error("nem olvasható: " + fajl);
    int sorok = 0;
    while (std::getline(be, nev, '\t') && std::getline(be, szelesseg, '\t') && std::getline(be, hosszusag)) {
        ki << "{\"" << nev << "\", 1, " << std::stoi(szelesseg) << ", " << std::stoi(hosszusag)
           << ", 'N', 'E'},\n";
        ++sorok;
    }
    // Too few rows would leave empty settlements at the table's end.
    if (sorok != telepulesekSzama) throw std::runtime_error("a települések száma nem jó: " + fajl);
}

int futas(int argc, char** argv) {
    const std::string_view mit = argc > 3 ? argv[1] : "";
    if (mit == "tomorit") {
        efemeridaIras(argv[2], nyersBeolvasas({argv + 3, argv + argc}));
        return 0;
    }
    if (argc != 4 || (mit != "efemerida" && mit != "telepulesek")) {
        std::cerr << "Használat: adatkibonto efemerida|telepulesek BE KI | tomorit KI NYERS…\n";
        return 2;
    }
    std::ofstream ki(argv[3], std::ios::binary);
    mit == "efemerida" ? efemeridaKibontas(argv[2], ki) : telepulesKibontas(argv[2], ki);
    if (!ki.flush()) throw std::runtime_error(std::string("nem írható: ") + argv[3]);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return futas(argc, argv);
    } catch (const std::exception& hiba) {
        std::cerr << hiba.what() << '\n';
        return 1;
    }
}
