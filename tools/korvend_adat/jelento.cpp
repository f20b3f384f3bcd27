#include "jelento.h"

#include <algorithm>
#include <ostream>
#include <tuple>

namespace {
constexpr std::array<const char*, 3> fajtaNevek{"hiba", "veszteség", "eltérés"};
}

void TJelento::jelent(const std::string& forras, const TJelentes& jelentes) {
    const auto [hely, uj] = forrasok_.try_emplace(forras, forrasok_.size());
    tetelek_.push_back({hely->second, forras, jelentes});
    ++szamok_[static_cast<std::size_t>(jelentes.fajta)];
}

void TJelento::jelent(const std::string& forras, const TJelentesek& jelentesek) {
    for (const TJelentes& jelentes : jelentesek) jelent(forras, jelentes);
}

void TJelento::kiir(std::ostream& ki) const {
    std::vector<const TTetel*> sorrend;
    for (const TTetel& tetel : tetelek_) sorrend.push_back(&tetel);
    std::stable_sort(sorrend.begin(), sorrend.end(), [](const TTetel* a, const TTetel* b) {
        return std::tie(a->hanyadik, a->jelentes.sor) < std::tie(b->hanyadik, b->jelentes.sor);
    });
    for (const TTetel* tetel : sorrend) {
        ki << tetel->forras;
        if (tetel->jelentes.sor > 0) ki << ':' << tetel->jelentes.sor;
        ki << ": " << fajtaNevek[static_cast<std::size_t>(tetel->jelentes.fajta)] << ": "
           << tetel->jelentes.szoveg << '\n';
    }
}
