#include "files/cimfajl.h"

#include <istream>
#include <string_view>

#include "files/kodlap1250.h"
#include "tables/szoveg.h"

namespace {
constexpr std::string_view bajtsorrendJel = "\xEF\xBB\xBF";  ///< some editors put it before UTF-8 text
}

void CimFajlOlvas(std::istream& be, Tomb<std::string, feliratHelyek>& szovegek) {
    szovegek.tolt({});
    std::string sor;
    for (int i = 1; i <= feliratHelyek && std::getline(be, sor); ++i) {
        if (sor.ends_with('\r')) sor.pop_back();
        if (i == 1 && sor.starts_with(bajtsorrendJel)) sor.erase(0, bajtsorrendJel.size());
        if (sor.empty()) break;
        if (!ervenyesUtf8(sor)) sor = kodlaprol(sor);
        sor += ' ';
        for (int ismetles = 200 / karakterSzam(sor) + 1; ismetles > 0; --ismetles) szovegek[i] += sor;
    }
}
