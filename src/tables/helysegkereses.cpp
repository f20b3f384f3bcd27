#include "tables/helysegkereses.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "tables/szoveg.h"
#include "tables/telepulesek.h"

namespace {

/// An accented letter: capital, small, and the plain one that it counts as.
struct TEkezetes {
    std::string_view nagy, kicsi, sima;
};
constexpr std::array<TEkezetes, 9> ekezetesek{{{"Á", "á", "a"},
                                               {"É", "é", "e"},
                                               {"Í", "í", "i"},
                                               {"Ó", "ó", "o"},
                                               {"Ö", "ö", "o"},
                                               {"Ő", "ő", "o"},
                                               {"Ú", "ú", "u"},
                                               {"Ü", "ü", "u"},
                                               {"Ű", "ű", "u"}}};

/// The text in small letters, an accented letter as its given form.
std::string alakban(std::string_view szoveg, std::string_view TEkezetes::*alak) {
    std::string ki;
    while (!szoveg.empty()) {
        const std::string_view betu = szoveg.substr(0, karakterHossz(szoveg));
        szoveg.remove_prefix(betu.size());
        const auto ekezetes = std::find_if(ekezetesek.begin(), ekezetesek.end(), [betu](const TEkezetes& e) {
            return betu == e.nagy || betu == e.kicsi;
        });
        if (ekezetes != ekezetesek.end())
            ki += *ekezetes.*alak;
        else
            ki += kisbetus(betu);
    }
    return ki;
}

/// The gazetteer's names in plain small letters, row by row; folded once.
const std::vector<std::string>& simaNevek() {
    static const std::vector<std::string> nevek = [] {
        std::vector<std::string> simak;
        simak.reserve(Telepulesek.size());
        for (const TTelepules& t : Telepulesek) simak.push_back(ekezetNelkul(t.nev));
        return simak;
    }();
    return nevek;
}

constexpr std::size_t csoportok = 4;
using TCsoportok = std::array<std::vector<std::string_view>, csoportok>;

/// The names by how well they fit, best group first.
TCsoportok csoportositas(std::string_view beirt) {
    TCsoportok talalatok;
    if (beirt.empty()) return talalatok;
    const std::string kicsi = alakban(beirt, &TEkezetes::kicsi);
    const std::string sima = ekezetNelkul(beirt);
    for (std::size_t sor = 0; sor < Telepulesek.size(); ++sor) {
        const TTelepules& t = Telepulesek[sor];
        const std::string& nev = simaNevek()[sor];
        const std::size_t hely = nev.find(sima);
        if (hely == std::string::npos) continue;
        std::size_t csoport = hely == 0 ? 2 : 3;
        if (nev == sima) csoport = alakban(t.nev, &TEkezetes::kicsi) == kicsi ? 0 : 1;
        talalatok[csoport].push_back(t.nev);
    }
    return talalatok;
}

}  // namespace

std::string ekezetNelkul(std::string_view szoveg) {
    return alakban(szoveg, &TEkezetes::sima);
}

std::vector<std::string_view> HelysegTalalatok(std::string_view beirt) {
    std::vector<std::string_view> nevek;
    for (const auto& csoport : csoportositas(beirt))
        nevek.insert(nevek.end(), csoport.begin(), csoport.end());
    return nevek;
}

std::string_view EgyetlenHelyseg(std::string_view beirt) {
    for (const auto& csoport : csoportositas(beirt))
        if (!csoport.empty()) return csoport.size() == 1 ? csoport[0] : std::string_view{};
    return {};
}

int HelysegSor(std::string_view nev) {
    const auto hely = std::find_if(Telepulesek.begin(), Telepulesek.end(),
                                   [nev](const TTelepules& t) { return t.nev == nev; });
    return hely == Telepulesek.end() ? -1 : static_cast<int>(hely - Telepulesek.begin());
}
