// Feeds the chart-file reader with whatever the fuzzer makes. What was read must be in range, and what is
// written from it must read back equal.

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "commands/kvhfajl.h"
#include "files/kvhrekord.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* adat, std::size_t hossz) {
    std::istringstream be(std::string(reinterpret_cast<const char*>(adat), hossz));
    Allapot allapot;
    const TKvhHiba hiba = KepletBeolvasas(allapot, be);
    if (allapot.Esemenyek.EsemenyDb < 0 || allapot.Esemenyek.EsemenyDb > esemenyHelyek) std::abort();
    if (hiba && *hiba != "File olvasási hiba!") std::abort();
    if (hossz >= kvhRekordHossz) {
        TKvhBajtok bajtok{};
        std::copy(adat, adat + kvhRekordHossz, bajtok.begin());
        const TKvhRekord rekord = KvhDekodolas(bajtok);
        if (!(KvhDekodolas(KvhKodolas(rekord)) == rekord)) std::abort();
    }
    return 0;
}
