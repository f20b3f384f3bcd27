// The engine over standard input: one JSON request a line, one JSON answer a line.

#include <array>
#include <iostream>
#include <string>
#include <string_view>

#include "muveletek.h"
#include "tablak.h"

namespace {

struct TMuveletNev {
    std::string_view op;
    TJson (*muvelet)(const TJson&);
};

constexpr std::array muveletTabla{
    TMuveletNev{"datum", datumMuvelet},
    TMuveletNev{"nyariido", nyariIdoMuvelet},
    TMuveletNev{"telepules", telepulesMuvelet},
    TMuveletNev{"ido", idoMuvelet},
    TMuveletNev{"keplet", kepletMuvelet},
    TMuveletNev{"rajz", rajzMuvelet},
    TMuveletNev{"lepes", lepesMuvelet},
    TMuveletNev{"kvh_olvas", kvhOlvasMuvelet},
    TMuveletNev{"kvh_ir", kvhIrMuvelet},
    TMuveletNev{"analogia", analogiaMuvelet},
    TMuveletNev{"eletesemeny", eletesemenyMuvelet},
    TMuveletNev{"revolucio", revolucioMuvelet},
    TMuveletNev{"personar", personarMuvelet},
    TMuveletNev{"tercier", tercierMuvelet},
    TMuveletNev{"ingresszio", ingresszioMuvelet},
    TMuveletNev{"primer", primerMuvelet},
    TMuveletNev{"solarhaz", solarHazMuvelet},
    TMuveletNev{"mundan", mundanMuvelet},
    TMuveletNev{"mundan_kereses", mundanKeresesMuvelet},
    TMuveletNev{"pontositas", pontositasMuvelet},
};

TJson valasz(const std::string& sor) {
    try {
        const TJson kerelem = TJson::parse(sor, nullptr, false);
        if (!kerelem.is_object()) throw THiba("nem JSON objektum");
        const std::string op = szovegMezo(kerelem, "op");
        for (const auto& [nev, muvelet] : muveletTabla)
            if (op == nev) return muvelet(kerelem);
        throw THiba("ismeretlen op: " + op);
    } catch (const THiba& hiba) {
        return {{"hiba", hiba.what()}};
    }
}

int feldolgozas() {
    std::string sor;
    std::string ki;
    while (std::getline(std::cin, sor)) {
        ki.clear();
        irJson(ki, valasz(sor));
        std::cout << ki << '\n' << std::flush;
    }
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
