#include "tables/helyhatarok.h"

#include <array>

#include "tables/haztablak.h"

namespace {

constexpr bool kivul(std::int32_t ertek, int also, int felso) {
    return ertek < also || ertek > felso;
}

}  // namespace

std::string HelyenKivul(std::int32_t idozona, std::int32_t nyariIdo, std::int32_t hosszusag,
                        std::int32_t szelesseg) {
    struct TErtek {
        const char* nev;
        bool kivul;
    };
    constexpr int hosszuHatar = legnagyobbFok * 3600;
    const std::array<TErtek, 4> ertekek{
        {{"hosszúság (-180 … 180 fok)", kivul(hosszusag, -hosszuHatar, hosszuHatar)},
         {"szélesség (42 … 60 fok)", kivul(szelesseg, legkisebbSzelesseg * 3600, legnagyobbSzelesseg * 3600)},
         {"időzóna (-12 … 12)", kivul(idozona, -legnagyobbIdozona, legnagyobbIdozona)},
         {"nyári időszámítás (0 vagy 1)", kivul(nyariIdo, 0, 1)}}};
    std::string lista;
    for (const TErtek& e : ertekek)
        if (e.kivul) lista.append(lista.empty() ? "" : ", ").append(e.nev);
    return lista.empty() ? lista : "A táblák határain kívül esik: " + lista + ".";
}
