#include "files/legutobbi.h"

#include <algorithm>

namespace {

std::string sorra(std::string_view ut) {
    std::string sor;
    for (const char c : ut) {
        if (c == '\n')
            sor += "\\n";
        else if (c == '\\')
            sor += "\\\\";
        else
            sor += c;
    }
    return sor + "\n";
}

std::string sorbol(std::string_view sor) {
    std::string ut;
    for (std::size_t i = 0; i < sor.size(); ++i) {
        const bool jel = sor[i] == '\\' && i + 1 < sor.size();
        if (jel) ++i;
        ut += jel && sor[i] == 'n' ? '\n' : sor[i];
    }
    return ut;
}

/// Takes the first line off a text.
std::string_view elsoSor(std::string_view& szoveg) {
    const std::string_view sor = szoveg.substr(0, szoveg.find('\n'));
    szoveg.remove_prefix(std::min(sor.size() + 1, szoveg.size()));
    return sor;
}

}  // namespace

void LegutobbiFelvetel(TLegutobbiak& legutobbiak, const std::string& fajl) {
    auto& fajlok = legutobbiak.fajlok;
    fajlok.erase(std::remove(fajlok.begin(), fajlok.end(), fajl), fajlok.end());
    fajlok.insert(fajlok.begin(), fajl);
    if (fajlok.size() > legtobbLegutobbi) fajlok.resize(legtobbLegutobbi);
}

std::string LegutobbiSzoveg(const TLegutobbiak& legutobbiak) {
    std::string szoveg = sorra(legutobbiak.mappa);
    for (const std::string& fajl : legutobbiak.fajlok) szoveg += sorra(fajl);
    return szoveg;
}

TLegutobbiak LegutobbiOlvas(std::string_view szoveg) {
    TLegutobbiak legutobbiak;
    legutobbiak.mappa = sorbol(elsoSor(szoveg));
    auto& fajlok = legutobbiak.fajlok;
    while (!szoveg.empty() && fajlok.size() < legtobbLegutobbi) {
        std::string fajl = sorbol(elsoSor(szoveg));
        if (!fajl.empty() && std::find(fajlok.begin(), fajlok.end(), fajl) == fajlok.end())
            fajlok.push_back(std::move(fajl));
    }
    return legutobbiak;
}
