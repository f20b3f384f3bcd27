#include "commands/hang.h"

bool VanHang(const TSzemely& szemely) {
    return szemely.hangJel.starts_with('H');
}

std::vector<std::string> HangMappak(const std::string& konyvtar, const std::string& otthon, bool meghajtok) {
    if (!meghajtok) return {konyvtar + "/", otthon + "/Korvend/", otthon + "/"};
    std::vector<std::string> mappak{konyvtar + "\\"};
    for (char betu = 'C'; betu <= 'I'; ++betu) {
        mappak.push_back(std::string(1, betu) + ":\\Korvend\\");
        mappak.push_back(std::string(1, betu) + ":\\");
    }
    return mappak;
}

std::string HangFajlKeres(const std::string& nev, const std::vector<std::string>& mappak,
                          const std::function<bool(const std::string&)>& fajlVan) {
    if (nev.find_first_of("/\\") != std::string::npos) return {};
    for (const std::string& mappa : mappak)
        if (std::string fajl = mappa + nev + ".mpe"; fajlVan(fajl)) return fajl;
    return {};
}
