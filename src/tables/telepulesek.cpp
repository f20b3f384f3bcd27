#include "tables/telepulesek.h"

#include <algorithm>

const std::array<TTelepules, 3138> Telepulesek{{
#include "telepulesek.inc"
}};

namespace {
constexpr TTelepules alapHely{"Budapest", 1, 171000, 68640, 'N', 'E'};
}

const TTelepules& TelepulesKeres(std::string_view nev) {
    const auto hely = std::find_if(Telepulesek.begin(), Telepulesek.end(),
                                   [nev](const TTelepules& t) { return t.nev == nev; });
    return hely == Telepulesek.end() ? alapHely : *hely;
}

void TelepulesKeres(std::string_view nev, std::int32_t& idozona, std::int32_t& szelesseg, char& hosszusagJel,
                    char& szelessegJel, std::int32_t& hosszusag) {
    const TTelepules& talalat = TelepulesKeres(nev);
    idozona = talalat.idozona;
    szelesseg = talalat.szelesseg;
    hosszusag = talalat.hosszusag;
    szelessegJel = talalat.szelessegJel;
    hosszusagJel = talalat.hosszusagJel;
}
