#include "fajlok.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

#include "tables/szoveg.h"

namespace fs = std::filesystem;

fs::path Utvonal(std::string_view utf8) {
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string UtvonalSzoveg(const fs::path& ut) {
    const std::u8string utf8 = ut.u8string();
    return {utf8.begin(), utf8.end()};
}

namespace {

char kisbetu(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::string Vegzodes(const fs::path& ut) {
    std::string ki = UtvonalSzoveg(ut.extension());
    std::transform(ki.begin(), ki.end(), ki.begin(), kisbetu);
    return ki;
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
    fs::path cel = fs::canonical(ut, hiba);  // a link stays a link
    if (hiba) cel = ut;
    const fs::file_status regi = fs::status(cel, hiba);
    if (fs::exists(regi) && !fs::is_regular_file(regi)) return kiir(cel, bajtok);
    const fs::path uj = cel.parent_path() / (".korvend-adat-" + std::to_string(std::random_device{}()));
    if (kiir(uj, bajtok)) {
        if (fs::exists(regi)) fs::permissions(uj, regi.permissions(), hiba);
        fs::rename(uj, cel, hiba);
        if (!hiba) return true;
    }
    fs::remove(uj, hiba);
    return false;
}

namespace {

constexpr int leghosszabbNev = 60;  ///< characters, of four bytes at most: names may have 255 bytes

/// Names that stand for devices on some system, whatever their ending.
constexpr std::array<std::string_view, 22> eszkozok{
    "con",  "prn",  "aux",  "nul",  "com1", "com2", "com3", "com4", "com5", "com6", "com7",
    "com8", "com9", "lpt1", "lpt2", "lpt3", "lpt4", "lpt5", "lpt6", "lpt7", "lpt8", "lpt9"};

bool tiltott(std::string_view karakter) {
    constexpr std::string_view jelek = "/\\:*?\"<>|\x7F";
    const auto elso = static_cast<unsigned char>(karakter[0]);
    if (karakter.size() > 1)  // the upper control characters
        return !ervenyesUtf8(karakter) || (elso == 0xC2 && static_cast<unsigned char>(karakter[1]) < 0xA0);
    return elso < 0x20 || elso >= 0x80 || jelek.find(karakter[0]) != jelek.npos;
}

/// In small letters: those of English and of the languages of Western Europe, and ő and ű.
std::string kisbetus(std::string_view szoveg) {
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
    if (nev.empty()) return "névtelen";
    std::string ki;
    for (std::string_view maradek = elsoKarakterek(nev, leghosszabbNev); !maradek.empty();) {
        const std::string_view karakter = maradek.substr(0, karakterHossz(maradek));
        ki += tiltott(karakter) ? "-" : karakter;
        maradek.remove_prefix(karakter.size());
    }
    for (std::size_t i = 0; i < ki.size() && (ki[i] == ' ' || ki[i] == '.'); ++i) ki[i] = '-';
    for (std::size_t i = ki.size(); i > 0 && (ki[i - 1] == ' ' || ki[i - 1] == '.'); --i) ki[i - 1] = '-';
    const std::string torzs = kisbetus(ki.substr(0, ki.find('.')));
    if (std::find(eszkozok.begin(), eszkozok.end(), torzs) != eszkozok.end()) ki.insert(0, "-");
    return ki;
}

std::pair<std::string, int> SzamozottNev(const std::string& nev) {
    const std::size_t nyit = nev.rfind(" (");
    if (nyit == nev.npos || !nev.ends_with(')')) return {nev, 0};
    int szam = 0;
    const char* vege = nev.data() + nev.size() - 1;
    const auto [hely, hiba] = std::from_chars(nev.data() + nyit + 2, vege, szam);
    if (hiba != std::errc{} || hely != vege) return {nev, 0};
    return {nev.substr(0, nyit), szam};
}

std::string TFajlNevek::uj(std::string_view nev) {
    const std::string alap = KepletFajlNev(nev);
    std::string jelolt = alap;
    int& szam = szamok_[kisbetus(alap)];  // where the search for a free number goes on
    while (!foglalt_.insert(kisbetus(jelolt)).second) {
        szam = std::max(szam + 1, 2);
        jelolt = alap + " (" + std::to_string(szam) + ")";
    }
    return jelolt;
}
