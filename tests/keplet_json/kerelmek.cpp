// Requests of every kind for keplet-json, made by chance from a seed, some of them bad: two builds of the
// program must answer them alike to the byte. The same seed gives the same requests. Chart files are written
// into the current folder. Usage: kerelmek NUMBER [SEED]

#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tables/telepulesek.h"

namespace {

using TJson = nlohmann::ordered_json;

std::mt19937 veletlen;

int szam(int also, int felso) {
    return also + static_cast<int>(veletlen() % static_cast<std::uint32_t>(felso - also + 1));
}

bool esely(int szazalek) {
    return szam(1, 100) <= szazalek;
}

template <typename T>
const T& valaszt(const std::vector<T>& mik) {
    return mik[static_cast<std::size_t>(szam(0, static_cast<int>(mik.size()) - 1))];
}

constexpr int legnagyobbHossz = 648000;  // arcseconds: half a circle

TJson datum(int elsoEv = 1900, int utolsoEv = 2070) {
    return {szam(elsoEv, utolsoEv), szam(1, 12), szam(1, 31)};
}

TJson pillanat(int elsoEv = 1900, int utolsoEv = 2070) {
    TJson p = datum(elsoEv, utolsoEv);
    for (const int felso : {23, 59, 59}) p.push_back(szam(0, felso));
    return p;
}

std::string helyseg() {
    if (esely(3)) return valaszt<std::string>({"Nincs ilyen", "budapest", "Ő", ""});
    std::string nev;
    while (nev.empty()) nev = Telepulesek[static_cast<std::size_t>(szam(1, 3000))].nev;
    return nev;
}

TJson hely() {
    if (esely(60)) return {{"helyseg", helyseg()}};
    return {{"helyseg", helyseg()},
            {"idozona", szam(-12, 12)},
            {"nyariIdo", szam(0, 1)},
            {"szelesseg", esely(50) ? szam(150000, 217000) : szam(-300000, 300000)},
            {"hosszusag", szam(-legnagyobbHossz, legnagyobbHossz)}};
}

TJson orbis() {
    TJson tabla = TJson::array();
    for (int sor = 0; sor < 12; ++sor) {
        TJson ertekek = TJson::array();
        for (int i = 0; i < 9; ++i) ertekek.push_back(valaszt<double>({0, 2, 4.5, 8, 12, 15.5}));
        tabla.push_back(ertekek);
    }
    return tabla;
}

TJson esemeny() {
    TJson e{{"esemeny", valaszt<std::string>({"Házasság", "Költözés", "műtét Ű", std::string(40, 'x')})},
            {"analogia", valaszt<std::string>({"I,7", "", "X.2", "ű"})}};
    const TJson p = pillanat(1900, 2068);
    const std::array<const char*, 6> nevek{"ev", "ho", "nap", "ora", "perc", "mperc"};
    for (std::size_t i = 0; i < nevek.size(); ++i) e[nevek[i]] = p[i];
    e["helyseg"] = helyseg();
    e["idozona"] = szam(-2, 3);
    e["nyariIdo"] = szam(0, 1);
    e["hosszFok"] = szam(-20, 30);
    e["hosszPerc"] = szam(0, 59);
    e["szelFok"] = szam(40, 61);
    e["szelPerc"] = szam(0, 59);
    e["solarNap"] = szam(0, 12);
    return e;
}

TJson esemenyek() {
    TJson lista = TJson::array();
    for (int i = szam(0, 20); i > 0; --i) lista.push_back(esemeny());
    return lista;
}

TJson kepletes(const char* op) {
    return {{"op", op}, {"pillanat", pillanat()}, {"hely", hely()}};
}

TJson kepletKerelem() {
    TJson k = kepletes("keplet");
    if (esely(20)) k["orbis"] = orbis();
    return k;
}

TJson rajzKerelem() {
    TJson k = kepletes("rajz");
    k["tipus"] = szam(1, 3);
    k["felulet"] = {szam(200, 3000), szam(200, 3000)};
    k["nyomtatas"] = esely(30);
    return k;
}

TJson visszateres(const char* op, int fajtak) {
    TJson k = kepletes(op);
    k["fajta"] = szam(1, fajtak);
    if (esely(70)) k["sor"] = szam(1, 6);
    if (k.contains("sor") && esely(50)) k["ujhely"] = helyseg();
    return k;
}

TJson revolucioKerelem() {
    return visszateres("revolucio", 7);
}

TJson personarKerelem() {
    return visszateres("personar", 11);
}

TJson tercierKerelem() {
    TJson k = kepletes("tercier");
    k["esemeny"] = datum();
    k["orbis_nap"] = valaszt<double>({1, 45, 45.5, 99});
    return k;
}

TJson ingresszioKerelem() {
    TJson k = kepletes("ingresszio");
    k["esemeny"] = datum();
    return k;
}

TJson primerKerelem() {
    TJson k = kepletes("primer");
    k["kezdo"] = datum(1900, 2068);
    return k;
}

TJson solarhazKerelem() {
    TJson k = kepletes("solarhaz");
    k["datum"] = datum();
    k["hosszusag"] = szam(-legnagyobbHossz, legnagyobbHossz);
    k["szelesseg"] = szam(150000, 216000);
    return k;
}

TJson mundanKerelem() {
    return kepletes("mundan");
}

/// The search for the next moment; rare, since it takes long.
TJson keresesKerelem() {
    if (!esely(10)) return mundanKerelem();
    TJson k = kepletes("mundan_kereses");
    k["hely"] = {{"helyseg", "Budapest"}};
    k["irany"] = esely(50) ? 1 : -1;
    k["KeresesVolt"] = esely(70);
    return k;
}

TJson pontositasKerelem() {
    TJson k = kepletes("pontositas");
    k["hatotav"] = szam(1, 99);
    k["esemenyek"] = esemenyek();
    return k;
}

TJson datumKerelem() {
    return {{"op", "datum"}, {"datum", {szam(1890, 2090), szam(-1, 14), szam(-1, 34)}}};
}

TJson nyariidoKerelem() {
    return {{"op", "nyariido"},
            {"julianszam", szam(2415000, 2480600)},
            {"ora", szam(0, 23)},
            {"perc", szam(0, 59)},
            {"mperc", szam(0, 59)}};
}

TJson telepulesKerelem() {
    return {{"op", "telepules"}, {"nev", helyseg()}};
}

TJson idoKerelem() {
    return {{"op", "ido"},
            {"pillanat", pillanat()},
            {"idoTipus", valaszt<std::string>({"ZN", "LMT", "GMT"})},
            {"idozona", szam(-12, 12)},
            {"hosszusag", szam(-legnagyobbHossz, legnagyobbHossz)}};
}

TJson lepesKerelem() {
    static const std::vector<std::string> gombok{
        "Button1evp",     "Button2evm",     "Button3hop",      "Button4hom",
        "Button5napp",    "Button6napm",    "Button7orap",     "Button8oram",
        "Button9percp",   "Button10percm",  "Button11percpp",  "Button12percmm",
        "Button13mpercp", "Button14mpercm", "Button15mpercpp", "Button16mpercmm"};
    TJson k{{"op", "lepes"}, {"pillanat", pillanat()}, {"gombok", TJson::array()}};
    for (int i = szam(1, 30); i > 0; --i) k["gombok"].push_back(valaszt(gombok));
    return k;
}

TJson analogiaKerelem() {
    static const std::string betuk = "0123456789IVXivx, .;a";
    std::string szoveg;
    for (int i = szam(0, 20); i > 0; --i)
        szoveg += betuk[static_cast<std::size_t>(szam(0, static_cast<int>(betuk.size()) - 1))];
    return {{"op", "analogia"}, {"szoveg", szoveg}};
}

TJson eletesemenyKerelem() {
    TJson k = kepletes("eletesemeny");
    k["esemeny"] = esemeny();
    return k;
}

std::string fajl() {
    return valaszt<std::string>({"a.kvh", "Őrült tűzhely.kvh", "Kiss Anna 1975.kvh", "ÁÉÍÓÖŐÚÜŰ.kvh"});
}

TJson kvhIrKerelem() {
    return {{"op", "kvh_ir"},
            {"fajl", esely(95) ? fajl() : std::string("nincs ilyen mappa/a.kvh")},
            {"nev", valaszt<std::string>({"Őrült Ű", "Kiss Anna", "日本", std::string(50, 'a'), ""})},
            {"pillanat", pillanat()},
            {"idozona", szam(-12, 12)},
            {"nyariIdo", szam(0, 1)},
            {"helyseg", helyseg()},
            {"hosszusag", szam(-legnagyobbHossz, legnagyobbHossz)},
            {"szelesseg", szam(-300000, 300000)},
            {"jegyzet",
             valaszt<std::string>({"", "jegyzet €„”–", std::string(300, 'u'), "sor\nsor", "sor\r\nsor\x1A"})},
            {"hang", valaszt<std::string>({"", "H", "Hang"})},
            {"esemenyek", esemenyek()}};
}

TJson kvhOlvasKerelem() {
    return {{"op", "kvh_olvas"}, {"fajl", fajl()}};
}

TJson rosszKerelem() {
    return valaszt<TJson>({TJson{{"op", "nincs"}}, TJson{{"op", "keplet"}},
                           TJson{{"op", "datum"}, {"datum", {1, 2}}},
                           TJson{{"op", "datum"}, {"datum", {1900, 1, 99999999999}}},
                           TJson{{"op", "keplet"}, {"pillanat", "x"}}, TJson{{"op", 7}}, TJson::array({1}),
                           TJson("z"), TJson()});
}

constexpr std::array keszitok{datumKerelem,       nyariidoKerelem,   telepulesKerelem, idoKerelem,
                              lepesKerelem,       kepletKerelem,     kepletKerelem,    rajzKerelem,
                              rajzKerelem,        revolucioKerelem,  personarKerelem,  tercierKerelem,
                              ingresszioKerelem,  primerKerelem,     solarhazKerelem,  analogiaKerelem,
                              eletesemenyKerelem, pontositasKerelem, mundanKerelem,    keresesKerelem,
                              kvhIrKerelem,       kvhOlvasKerelem,   rosszKerelem};

}  // namespace

int main(int argc, char** argv) {
    const int db = argc > 1 ? std::atoi(argv[1]) : 0;
    veletlen.seed(argc > 2 ? static_cast<std::uint32_t>(std::atoi(argv[2])) : 20260101U);
    for (int i = 0; i < db; ++i) {
        const auto keszit =
            keszitok[static_cast<std::size_t>(szam(0, static_cast<int>(keszitok.size()) - 1))];
        std::cout << (i % 100 == 99 ? std::string("{\"op\":") : keszit().dump()) << '\n';
    }
    return db > 0 ? 0 : 2;
}
