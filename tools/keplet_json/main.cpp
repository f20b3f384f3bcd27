// The engine over standard input: one JSON request a line, one JSON answer a line.

#include <iostream>
#include <string>
#include <vector>

#include "parancssor.h"
#include "tablak.h"
#include "valasz.h"

namespace {

int feldolgozas() {
    std::string sor;
    while (kerelemSor(std::cin, sor)) std::cout << kerelemValasz(sor) << '\n' << std::flush;
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    BinarisBeKimenet();
    const std::vector<std::string> argumentumok = Argumentumok(argc, argv);
    if (argumentumok.empty()) return feldolgozas();
    if (argumentumok.size() == 2 && argumentumok[0] == "--tablak") {
        if (tablakIrasa(argumentumok[1])) return 0;
        std::cerr << "A táblák nem írhatók ide: " << argumentumok[1] << '\n';
        return 1;
    }
    std::cerr << "Használat: keplet-json [--tablak MAPPA]\n";
    return 2;
}
