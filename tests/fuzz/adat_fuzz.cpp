// Whatever an AAF file or a table of charts holds, what is read of it are UTF-8 texts and no more events than
// a chart file takes; a table written of it reads back the same, an AAF record reads back as one record and
// stays as it is from then on.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "files/aaf.h"
#include "files/adatellenorzes.h"
#include "files/csv.h"
#include "tables/szoveg.h"

namespace {

void kell(bool igaz) {
    if (!igaz) std::abort();
}

bool ervenyes(const TKvhRekord& r) {
    return ervenyesUtf8(r.nev) && ervenyesUtf8(r.helyseg) && ervenyesUtf8(r.jegyzet) && ervenyesUtf8(r.hang);
}

/// A chart that can be written as an AAF record: numbers that the format can express.
bool aafba(TAdatlap& lap) {
    for (TAdatRekord& e : lap.esemenyek)
        if (!e.van(TMezo::hang)) e.adat.hang = "0";
    return TartomanyHibak(lap.keplet.adat, false).empty() &&
           std::all_of(lap.esemenyek.begin(), lap.esemenyek.end(),
                       [](const TAdatRekord& e) { return TartomanyHibak(e.adat, true).empty(); });
}

TAdatlap egyetlen(const TAdatlapok& ki) {
    kell(ki.lapok.size() == 1);
    return ki.lapok[0];
}

void ellenoriz(TAdatlap lap) {
    kell(lap.esemenyek.size() <= adatEsemenyek && ervenyes(lap.keplet.adat));
    for (const TAdatRekord& e : lap.esemenyek) kell(ervenyes(e.adat));
    kell(MezoElteresek(lap, egyetlen(CsvOlvasas(CsvFejlec(adatEsemenyek) + CsvSor(lap, adatEsemenyek))))
             .empty());
    TablaElteresek(lap.keplet.adat);
    std::vector<std::string> kozlesek;
    if (!Kiegeszites(lap.keplet, false, kozlesek).empty() || !aafba(lap)) return;
    const TAdatlap masodik = egyetlen(AafOlvasas(AafIras(lap), TKodlap::cp1250));
    kell(masodik.esemenyek.size() == lap.esemenyek.size());
    const TAdatlap harmadik = egyetlen(AafOlvasas(AafIras(masodik), TKodlap::cp1250));
    kell(MezoElteresek(masodik, harmadik).empty());
}

void ellenoriz(const TAdatlapok& ki) {
    for (const TJelentes& j : ki.jelentesek) kell(j.sor >= 1 && ervenyesUtf8(j.szoveg));
    for (const TAdatlap& lap : ki.lapok) ellenoriz(lap);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* adat, std::size_t hossz) {
    const std::string_view bajtok(reinterpret_cast<const char*>(adat), hossz);
    ellenoriz(AafOlvasas(bajtok, TKodlap::cp1252));
    ellenoriz(AafOlvasas(bajtok, TKodlap::cp1250));
    ellenoriz(CsvOlvasas(bajtok));
    ellenoriz(CsvOlvasas(bajtok, TKodlap::cp1250));
    return 0;
}
