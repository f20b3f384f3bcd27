#include "drawing/betutipus.h"

#include <algorithm>
#include <string_view>

#include "tables/szotar.h"

std::string MeghajtoBetuMappa(char meghajto) {
    return std::string(1, meghajto) + ":\\WINDOWS\\Fonts\\";
}

char RendszerMeghajtoKeres(const TFajlVan& fajlVan) {
    for (char betu = 'C'; betu <= 'H'; ++betu) {
        const std::string mappa = MeghajtoBetuMappa(betu);
        if (fajlVan(mappa + "times.ttf") && fajlVan(mappa + "arial.ttf")) return betu;
    }
    return 'C';
}

std::string SzimbolumFontValaszt(const std::vector<std::string>& mappak, const TFajlVan& fajlVan) {
    const bool megvan = std::any_of(mappak.begin(), mappak.end(), [&](const std::string& mappa) {
        return fajlVan(mappa + std::string(sajatSzimbolumFont) + ".ttf");
    });
    return std::string(megvan ? sajatSzimbolumFont : potSzimbolumFont);
}
