#include "files/cimfajl.h"

#include <istream>

#include "tables/szoveg.h"

void CimFajlOlvas(std::istream& be, Tomb<std::string, feliratHelyek>& szovegek) {
    szovegek.tolt({});
    std::string sor;
    for (int i = 1; i <= feliratHelyek && std::getline(be, sor); ++i) {
        if (sor.ends_with('\r')) sor.pop_back();
        if (sor.empty()) break;
        sor += ' ';
        for (int ismetles = 200 / karakterSzam(sor) + 1; ismetles > 0; --ismetles) szovegek[i] += sor;
    }
}
