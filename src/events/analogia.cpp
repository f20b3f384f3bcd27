#include "events/analogia.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "tables/szotar.h"
#include "tables/tomb.h"

namespace {

constexpr std::size_t szamHelyek = 30;
constexpr int toltelek = 13;  ///< above all houses

/// Digits and the letters I, V, X stand, small letters become capitals, each run of others is one comma; none
/// leads.
std::string kozbulsoSzoveg(std::string_view szoveg) {
    std::string ki;
    for (const char c : szoveg) {
        const char nagy = c == 'i' ? 'I' : c == 'v' ? 'V' : c == 'x' ? 'X' : c;
        const bool marad = (nagy >= '0' && nagy <= '9') || nagy == 'I' || nagy == 'V' || nagy == 'X';
        if (marad)
            ki += nagy;
        else if (!ki.empty() && ki.back() != ',')
            ki += ',';
    }
    return ki;
}

/// Reads one house at the start of a text, which is not empty.
struct TOlvasott {
    int szam = 0;           ///< 0 for none
    std::size_t hossz = 1;  ///< characters taken
};

TOlvasott egyHaz(std::string_view s) {
    const char kovetkezo = s.size() > 1 ? s[1] : '\0';
    switch (s[0]) {
        case 'X':
            return {10, 1};
        case 'I':
            return kovetkezo == 'V' ? TOlvasott{4, 2} : TOlvasott{1, 1};
        case 'V':
            if (s.substr(1, 2) == "II") return {7, 3};
            return {0, kovetkezo == 'I' ? 2U : 1U};  // the I of "VI" goes with it
        case '1':
            if (kovetkezo >= '0' && kovetkezo <= '2') return {10 + (kovetkezo - '0'), 2};
            return {kovetkezo == '\0' ? 0 : 1, 1};
        default:
            return {s[0] >= '2' && s[0] <= '9' ? s[0] - '0' : 0, 1};
    }
}

}  // namespace

TAnalogia AnalogiaElemzes(std::string_view szoveg) {
    std::array<int, szamHelyek> szamok;
    szamok.fill(toltelek);
    const std::string kozbulso = kozbulsoSzoveg(szoveg);
    std::size_t db = 0;
    for (std::string_view maradek = kozbulso; !maradek.empty() && db < szamHelyek;) {
        const TOlvasott olvasott = egyHaz(maradek);
        if (olvasott.szam != 0) szamok[db++] = olvasott.szam;
        maradek.remove_prefix(olvasott.hossz);
    }
    std::sort(szamok.begin(), szamok.end());

    TAnalogia analogia;
    for (const int szam : szamok) {
        if (szam == toltelek || (!analogia.szamok.empty() && analogia.szamok.back() == szam)) continue;
        if (!analogia.szoveg.empty()) analogia.szoveg += ',';
        analogia.szoveg += HazCimkeRovid[szam];
        analogia.szamok.push_back(szam);
    }
    return analogia;
}
