#include "fajlok.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <system_error>

#include "files/fajlmuvelet.h"
#include "files/fajlnev.h"
#include "tables/szoveg.h"

namespace fs = std::filesystem;

std::string UtvonalSzoveg(const fs::path& ut) {
    const std::u8string utf8 = ut.u8string();
    return {utf8.begin(), utf8.end()};
}

std::string Vegzodes(const fs::path& ut) {
    return kisbetus(UtvonalSzoveg(ut.extension()));
}

std::optional<std::string> FajlBajtok(const fs::path& ut, std::size_t legfeljebb) {
    std::error_code hiba;
    if (fs::is_directory(ut, hiba)) return std::nullopt;
    std::ifstream be(ut, std::ios::binary);
    if (!be) return std::nullopt;
    std::string bajtok;
    std::array<char, 65536> tar{};
    while (bajtok.size() < legfeljebb) {
        be.read(tar.data(), static_cast<std::streamsize>(std::min(tar.size(), legfeljebb - bajtok.size())));
        bajtok.append(tar.data(), static_cast<std::size_t>(be.gcount()));
        if (!be) break;
    }
    if (be.bad()) return std::nullopt;
    return bajtok;
}

namespace {

bool kiir(const fs::path& ut, std::string_view bajtok) {
    std::ofstream ki(ut, std::ios::binary | std::ios::trunc);
    ki.write(bajtok.data(), static_cast<std::streamsize>(bajtok.size()));
    ki.close();
    return !ki.fail();
}

}  // namespace

bool FajlbaIr(const fs::path& ut, std::string_view bajtok) {
    std::error_code hiba;
    const fs::file_status regi = fs::status(ut, hiba);
    if (fs::exists(regi) && !fs::is_regular_file(regi)) return kiir(ut, bajtok);
    return FajlIras(UtvonalSzoveg(ut), bajtok);
}

namespace {

constexpr int leghosszabbNev = 60;  ///< characters, so that a folder of charts can be read at a glance

/// In small letters: those of English and of the languages of Western Europe, and ő and ű.
std::string kisbetusNev(std::string_view szoveg) {
    std::string ki;
    for (std::size_t i = 0; i < szoveg.size(); ++i) {
        const std::string_view ketto = szoveg.substr(i, 2);
        const auto masodik = static_cast<unsigned char>(ketto.size() == 2 ? ketto[1] : 0);
        if (ketto == "Ő" || ketto == "Ű") {
            ki += ketto == "Ő" ? "ő" : "ű";
            ++i;
        } else if (szoveg[i] == '\xC3' && masodik >= 0x80 && masodik <= 0x9E && ketto != "×") {
            ki += szoveg[i];
            ki += static_cast<char>(masodik + 0x20);
            ++i;
        } else {
            ki += kisbetu(szoveg[i]);
        }
    }
    return ki;
}

}  // namespace

std::string KepletFajlNev(std::string_view nev) {
    return nev.empty() ? "névtelen" : FajlNev(elsoKarakterek(nev, leghosszabbNev));
}

std::pair<std::string, int> SzamozottNev(const std::string& nev) {
    const std::size_t nyit = nev.rfind(" (");
    if (nyit == nev.npos || !nev.ends_with(')')) return {nev, 0};
    const auto szam = szamErtek<int>(std::string_view(nev).substr(nyit + 2, nev.size() - nyit - 3));
    return szam ? std::pair(nev.substr(0, nyit), *szam) : std::pair(nev, 0);
}

std::string TFajlNevek::uj(std::string_view nev) {
    const std::string alap = KepletFajlNev(nev);
    std::string jelolt = alap;
    int& szam = szamok_[kisbetusNev(alap)];  // where the search for a free number goes on
    while (!foglalt_.insert(kisbetusNev(jelolt)).second) {
        szam = std::max(szam + 1, 2);
        jelolt = alap + " (" + std::to_string(szam) + ")";
    }
    return jelolt;
}
