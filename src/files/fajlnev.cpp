#include "files/fajlnev.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "tables/szoveg.h"

namespace {

constexpr std::size_t leghosszabb = 200;  ///< bytes; leaves room for a date and an extension within 255
constexpr std::string_view tiltottJelek = "/\\:*?\"<>|\x7F";
constexpr std::string_view szelenTiltottJelek = " .";

bool tiltott(std::string_view karakter) {
    const auto elso = static_cast<unsigned char>(karakter[0]);
    if (!ervenyesUtf8(karakter)) return true;
    if (karakter.size() == 1) return elso < 0x20 || tiltottJelek.find(karakter[0]) != tiltottJelek.npos;
    return elso == 0xC2 && static_cast<unsigned char>(karakter[1]) < 0xA0;  // the upper control characters
}

/// Names that stand for devices on some system, whatever their ending.
constexpr std::array<std::string_view, 22> eszkozok{
    "con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4", "com5", "com6", "com7",
    "com8", "com9", "lpt1", "lpt2", "lpt3", "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"};

bool eszkoz(std::string_view nev) {
    const std::string torzs = kisbetus(nev.substr(0, nev.find('.')));
    return std::find(eszkozok.begin(), eszkozok.end(), torzs) != eszkozok.end();
}

bool betu(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool szamjegy(char c) {
    return c >= '0' && c <= '9';
}

bool kiterjesztes(std::string_view vege) {
    return std::any_of(vege.begin(), vege.end(), betu) &&
           std::all_of(vege.begin(), vege.end(), [](char c) { return betu(c) || szamjegy(c); });
}

}  // namespace

std::string FajlNev(std::string_view szoveg) {
    std::string nev;
    while (!szoveg.empty()) {
        const std::string_view karakter = szoveg.substr(0, karakterHossz(szoveg));
        if (nev.size() + karakter.size() > leghosszabb) break;
        nev += tiltott(karakter) ? "-" : karakter;
        szoveg.remove_prefix(karakter.size());
    }
    const auto marad = [](char c) { return szelenTiltottJelek.find(c) == szelenTiltottJelek.npos; };
    const auto eleje = std::find_if(nev.begin(), nev.end(), marad);
    std::fill(nev.begin(), eleje, '-');
    std::fill(std::find_if(nev.rbegin(), nev.rend(), marad).base(), nev.end(), '-');
    if (eszkoz(nev)) nev.insert(0, "-");
    return nev;
}

std::string Kiterjesztessel(std::string fajl, std::string_view uj) {
    const std::size_t nevHelye = fajl.find_last_of("/\\") + 1;
    const std::size_t pont = fajl.rfind('.');
    if (fajl.size() == nevHelye) return fajl;
    if (pont == fajl.npos || pont < nevHelye) return fajl.append(uj);
    if (kiterjesztes(std::string_view(fajl).substr(pont + 1))) return fajl;
    if (pont + 1 == fajl.size()) fajl.pop_back();
    return fajl.append(uj);
}
