#include "predictive/jelsorok.h"

#include <algorithm>
#include <cstddef>

namespace {

/// Length of the longest beginning that fits, at least one letter.
std::size_t belefer(std::string_view jelek, int szelesseg, const TJelMeres& meres) {
    std::size_t hossz = 1;
    while (hossz < jelek.size() && meres(jelek.substr(0, hossz + 1)) <= szelesseg) ++hossz;
    return hossz;
}

}  // namespace

std::vector<std::string_view> JelSorok(std::string_view jelek, int szelesseg, const TJelMeres& meres) {
    std::vector<std::string_view> sorok;
    while (!jelek.empty()) {
        std::size_t hossz = belefer(jelek, szelesseg, meres);
        if (hossz < jelek.size()) {
            const std::size_t hatar = jelek.find_last_of("Q ", hossz - 1);
            // A blank at the very start parts nothing.
            if (hatar != jelek.npos && hatar > 0) hossz = hatar + 1;
        }
        sorok.push_back(jelek.substr(0, hossz));
        jelek.remove_prefix(hossz);
    }
    return sorok;
}
