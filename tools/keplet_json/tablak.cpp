#include "tablak.h"

#include <fstream>
#include <vector>

#include "files/fajlmuvelet.h"
#include "tables/efemerida.h"
#include "tables/haztablak.h"
#include "tables/nyariido.h"
#include "tables/telepulesek.h"

namespace {

/// A file of raw little-endian numbers.
class TSzamFajl {
public:
    explicit TSzamFajl(const std::string& fajl) : ki_(FajlUt(fajl), std::ios::binary) {}

    void ir(std::int32_t szam) {
        const auto u = static_cast<std::uint32_t>(szam);
        for (int bit = 0; bit < 32; bit += 8) ki_.put(static_cast<char>(u >> bit & 0xFFU));
    }
    template <typename TTabla>
    void irTablat(const TTabla& tabla) {
        for (const auto& elem : tabla) {
            if constexpr (requires { elem.begin(); })
                irTablat(elem);
            else
                ir(elem);
        }
    }
    void irBetu(char betu) { ki_.put(betu); }
    bool kesz() { return static_cast<bool>(ki_.flush()); }

private:
    std::ofstream ki_;
};

bool efemeridaIras(const std::string& fajl) {
    TSzamFajl ki(fajl);
    for (int sor = 1; sor <= efemeridaSorok; ++sor) {
        const TEfemeridaNap& nap = Efemerida[sor];
        for (const std::int32_t szam :
             {nap.ev, nap.ho, nap.nap, nap.csillagOra, nap.csillagPerc, nap.csillagMasodperc})
            ki.ir(szam);
        for (const auto oszlop : efemeridaOszlopok) ki.ir(nap.*oszlop);
        for (const char mozgas : nap.mozgas) ki.irBetu(mozgas);
    }
    return ki.kesz();
}

template <typename TTabla>
bool tablaIras(const std::string& fajl, const TTabla& tabla) {
    TSzamFajl ki(fajl);
    ki.irTablat(tabla);
    return ki.kesz();
}

bool nyariIras(const std::string& fajl) {
    TSzamFajl ki(fajl);
    for (const auto& [kezdoNap, vegeNap, kezdoOra, vegeOra] : NyariIdoszakok)
        for (const std::int32_t szam : {kezdoNap, vegeNap, kezdoOra, vegeOra}) ki.ir(szam);
    return ki.kesz();
}

bool telepulesIras(const std::string& fajl) {
    std::ofstream ki(FajlUt(fajl), std::ios::binary);
    ki << "nev\tszelesseg\thosszusag\n";
    for (const TTelepules& t : Telepulesek) ki << t.nev << '\t' << t.szelesseg << '\t' << t.hosszusag << '\n';
    return static_cast<bool>(ki.flush());
}

}  // namespace

bool tablakIrasa(const std::string& mappa) {
    const auto fajl = [&](const char* nev) { return mappa + "/" + nev; };
    return efemeridaIras(fajl("efemerida.bin")) && tablaIras(fajl("mctabla.i32"), McTabla) &&
           tablaIras(fajl("haztabla.i32"), HazTabla) && tablaIras(fajl("ferde.i32"), FerdeAszcenzioTabla) &&
           tablaIras(fajl("rekt.i32"), RektaszcenzioTabla) && tablaIras(fajl("hossz.i32"), HosszusagTabla) &&
           nyariIras(fajl("nyari.i32")) && telepulesIras(fajl("telepulesek.tsv"));
}
