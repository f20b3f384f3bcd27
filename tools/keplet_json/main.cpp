// The engine over standard input: one JSON request a line, one JSON answer a line.

#include <iostream>
#include <string>
#include <string_view>

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
    if (argc == 1) return feldolgozas();
    if (argc == 3 && std::string_view(argv[1]) == "--tablak") {
        if (tablakIrasa(argv[2])) return 0;
        std::cerr << "A táblák nem írhatók ide: " << argv[2] << '\n';
        return 1;
    }
    std::cerr << "Használat: keplet-json [--tablak MAPPA]\n";
    return 2;
}
