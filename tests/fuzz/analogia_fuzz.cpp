// Whatever is typed as house analogies, the houses are 1..12, ascending and each once, and their text reads
// the same again.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "events/analogia.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* adat, std::size_t hossz) {
    const TAnalogia a = AnalogiaElemzes({reinterpret_cast<const char*>(adat), hossz});
    const auto& szamok = a.szamok;
    if (std::any_of(szamok.begin(), szamok.end(), [](int haz) { return haz < 1 || haz > 12; })) std::abort();
    if (std::adjacent_find(szamok.begin(), szamok.end(), [](int x, int y) { return x >= y; }) != szamok.end())
        std::abort();
    if (AnalogiaElemzes(a.szoveg).szamok != szamok) std::abort();
    return 0;
}
