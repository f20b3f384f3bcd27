#include "commands/rendszerido.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>

namespace {

struct TSzamCsoport {
    std::string szamjegyek;
    std::int32_t ertek = 0;
};
using TSzamCsoportok = std::array<TSzamCsoport, 3>;

std::optional<TSzamCsoportok> szamCsoportok(std::string_view szoveg) {
    TSzamCsoportok csoportok;
    std::size_t melyik = 0;
    for (const char c : szoveg) {
        if (c >= '0' && c <= '9')
            csoportok[melyik].szamjegyek += c;
        else if (++melyik == csoportok.size())
            break;
    }
    for (auto& [jegyek, ertek] : csoportok)
        if (std::from_chars(jegyek.data(), jegyek.data() + jegyek.size(), ertek).ec != std::errc{})
            return std::nullopt;
    return csoportok;
}

}  // namespace

bool OlvasDatum(std::string_view szoveg, TPillanat& pillanat) {
    const auto csoportok = szamCsoportok(szoveg);
    if (!csoportok) return false;
    std::size_t ev = 0;
    while (ev < csoportok->size() && (*csoportok)[ev].szamjegyek.size() != 4) ++ev;
    if (ev == csoportok->size()) return false;

    pillanat.ev = (*csoportok)[ev].ertek;
    pillanat.ho = (*csoportok)[ev == 0 ? 1 : 0].ertek;
    pillanat.nap = (*csoportok)[ev == 2 ? 1 : 2].ertek;
    if (pillanat.ho > 12) pillanat.ho = pillanat.nap;
    return true;
}

bool OlvasIdo(std::string_view szoveg, TPillanat& pillanat) {
    const auto csoportok = szamCsoportok(szoveg);
    if (!csoportok) return false;
    pillanat.ora = (*csoportok)[0].ertek;
    pillanat.perc = (*csoportok)[1].ertek;
    pillanat.mperc = (*csoportok)[2].ertek;
    return true;
}
