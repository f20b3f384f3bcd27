// Whatever the title file holds, each text is UTF-8, empty or long enough to scroll, and none stands behind
// an empty one.

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "files/cimfajl.h"
#include "tables/szoveg.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* adat, std::size_t hossz) {
    std::istringstream be(std::string(reinterpret_cast<const char*>(adat), hossz));
    Tomb<std::string, feliratHelyek> szovegek;
    CimFajlOlvas(be, szovegek);
    bool ures = false;
    for (const std::string& szoveg : szovegek) {
        if (!ervenyesUtf8(szoveg)) std::abort();
        if (!szoveg.empty() && (ures || karakterSzam(szoveg) < 200)) std::abort();
        ures = ures || szoveg.empty();
    }
    return 0;
}
