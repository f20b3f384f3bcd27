#include "files/fajlmuvelet.h"

#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

namespace fs = std::filesystem;

/// A name of its own in the folder of the file; short, since the file's own may already be as long as one can
/// be.
fs::path ideiglenes(const fs::path& fajl) {
    return fajl.parent_path() / (".korvend-" + std::to_string(std::random_device{}()));
}

#ifdef _WIN32
std::FILE* irasraNyit(const fs::path& fajl) {
    return _wfopen(fajl.c_str(), L"wb");
}
bool lemezre(std::FILE* fajl) {
    return _commit(_fileno(fajl)) == 0;
}
#else
std::FILE* irasraNyit(const fs::path& fajl) {
    return std::fopen(fajl.c_str(), "wbe");
}
bool lemezre(std::FILE* fajl) {
    return fsync(fileno(fajl)) == 0;
}
#endif

/// Writes and waits until the bytes are on the disk: a rename may reach it before what it renames.
bool kiir(const fs::path& fajl, std::string_view tartalom) {
    std::FILE* const ki = irasraNyit(fajl);
    if (!ki) return false;
    const bool sikerult = std::fwrite(tartalom.data(), 1, tartalom.size(), ki) == tartalom.size() &&
                          std::fflush(ki) == 0 && lemezre(ki);
    return std::fclose(ki) == 0 && sikerult;
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
