#include "files/fajlmuvelet.h"

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace {

namespace fs = std::filesystem;

/// A name of its own in the folder of the file; short, since the file's own may already be as long as one can
/// be.
fs::path ideiglenes(const fs::path& fajl) {
    return fajl.parent_path() / (".korvend-" + std::to_string(std::random_device{}()));
}

bool kiir(const fs::path& fajl, std::string_view tartalom) {
    std::ofstream ki(fajl, std::ios::binary | std::ios::trunc);
    ki.write(tartalom.data(), static_cast<std::streamsize>(tartalom.size()));
    ki.close();
    return !ki.fail();
}

bool irhato(const fs::path& fajl) {
    return std::ofstream(fajl, std::ios::binary | std::ios::app).is_open();
}

}  // namespace

fs::path FajlUt(std::string_view nev) {
    return std::u8string(nev.begin(), nev.end());
}

std::ifstream OlvasasraNyit(const std::string& fajl) {
    std::error_code hiba;
    const fs::path ut = FajlUt(fajl);
    if (!fs::is_regular_file(ut, hiba)) return {};
    return std::ifstream(ut, std::ios::binary);
}

bool FajlIras(const std::string& fajl, std::string_view tartalom) {
    std::error_code hiba;
    fs::path cel = fs::canonical(FajlUt(fajl), hiba);
    if (hiba) cel = FajlUt(fajl);
    const fs::file_status regi = fs::status(cel, hiba);
    if (fs::exists(regi) && (!fs::is_regular_file(regi) || !irhato(cel))) return false;

    const fs::path uj = ideiglenes(cel);
    if (kiir(uj, tartalom)) {
        if (fs::exists(regi)) fs::permissions(uj, regi.permissions(), hiba);
        fs::rename(uj, cel, hiba);
        if (!hiba) return true;
    }
    fs::remove(uj, hiba);
    return false;
}
