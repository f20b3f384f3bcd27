// Charts in and out: a folder of chart files to and from the exchange formats.

#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "atalakitas.h"
#include "parancssor.h"

namespace {

int futas(const std::vector<std::string>& szavak) {
    const TParancs parancs = ParancsErtelmezes(szavak);
    if (parancs.sugo) {
        std::cout << SugoSzoveg();
        return 0;
    }
    if (parancs.verzio) {
        std::cout << "korvend-adat " KORVEND_VALTOZAT "\n";
        return 0;
    }
    TJelento jelento;
    const TEredmeny eredmeny = Atalakitas(parancs, jelento);
    std::ostringstream jelentes;  // the error stream alone would write letter by letter
    jelento.kiir(jelentes);
    std::cerr << jelentes.str();
    const int hibak = jelento.szam(TJelentesFajta::hiba);
    const int vesztesegek = jelento.szam(TJelentesFajta::veszteseg);
    std::cerr << eredmeny.olvasott << " képletből " << eredmeny.irt << " kiírva; " << hibak << " hiba, "
              << vesztesegek << " veszteség, " << jelento.szam(TJelentesFajta::elteres) << " eltérés\n";
    return hibak > 0 || vesztesegek > 0 ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return futas(Argumentumok(argc, argv));
    } catch (const THasznalatHiba& hiba) {
        std::cerr << "korvend-adat: " << hiba.what() << "\nSúgó: korvend-adat --help\n";
        return 2;
    }
}
