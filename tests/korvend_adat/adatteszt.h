#pragma once

// Folders and charts of the tests of korvend-adat.

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "files/kvhrekord.h"
#include "ideiglenesmappa.h"

inline void irj(const std::filesystem::path& fajl, std::string_view tartalom) {
    std::filesystem::create_directories(fajl.parent_path());
    std::ofstream(fajl, std::ios::binary) << tartalom;
}

inline std::string olvasd(const std::filesystem::path& fajl) {
    std::ifstream be(fajl, std::ios::binary);
    std::ostringstream ki;
    ki << be.rdbuf();
    return ki.str();
}

/// The bytes of a chart file.
inline std::string kvhBajtok(TKvhRekord keplet, std::vector<TKvhRekord> esemenyek = {}) {
    std::string ki;
    const auto hozza = [&](const TKvhRekord& r) {
        const TKvhBajtok b = KvhKodolas(r);
        ki.append(b.begin(), b.end());
    };
    keplet.esemenySzam = static_cast<std::int32_t>(esemenyek.size());
    hozza(keplet);
    for (std::size_t i = 0; i < esemenyek.size(); ++i) {
        esemenyek[i].esemenySzam = static_cast<std::int32_t>(i + 1);
        hozza(esemenyek[i]);
    }
    return ki;
}

inline TKvhRekord mintaKeplet(const std::string& nev = "Kovács Éva") {
    return {nev, {1975, 7, 21, 6, 4, 9}, 1, 0, "Szeged", 72540, 166440, "jegyzet", 0, "H"};
}

inline TKvhRekord mintaEsemeny(const std::string& nev = "Házasság") {
    return {nev, {2000, 7, 1, 12, 0, 0}, 1, 1, "Pécs", 65640, 165840, "I,7", 0, "11"};
}
