#include "tables/telepulesek.h"

#include <algorithm>

const std::array<TTelepules, 3138> Telepulesek{{
#include "telepulesek.inc"
}};

namespace {
constexpr TTelepules alapHely{"Budapest", 1, 171000, 68640, 'N', 'E'};
}

void TelepulesKeres(std::string_view nev, std::int32_t& idozona, std::int32_t& szelesseg, char& hosszusagJel,
                    char& szelessegJel, std::int32_t& hosszusag) {
    const auto hely = std::find_if(Telepulesek.begin(), Telepulesek.end(),
                                   [nev](const TTelepules& t) { return t.nev == nev; });
    const TTelepules& talalat = hely == Telepulesek.end() ? alapHely : *hely;
    idozona = talalat.idozona;
    szelesseg = talalat.szelesseg;
    hosszusag = talalat.hosszusag;
    szelessegJel = talalat.szelessegJel;
    hosszusagJel = talalat.hosszusagJel;
}
