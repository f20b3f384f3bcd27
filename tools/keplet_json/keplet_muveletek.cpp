#include <array>

#include "chart/kepletciklus.h"
#include "commands/szemelyiadatok.h"
#include "drawing/geometria.h"
#include "drawing/kepletrajz.h"
#include "drawing/rogzitovaszon.h"
#include "muveletek.h"
#include "tables/efemerida.h"
#include "tables/nyariido.h"
#include "tables/telepulesek.h"

TJson datumMuvelet(const TKerelem& kerelem) {
    auto [ev, ho, nap] = egeszTomb<3>(kerelem, "datum");
    const int julianszam = DatumbolJulianszam(ev, ho, nap);
    std::array<std::int32_t, 3> datum{};
    JulianszambolDatum(julianszam, datum[0], datum[1], datum[2]);
    return {{"julianszam", julianszam}, {"beirt", TJson::array({ev, ho, nap})}, {"datum", datum}};
}

TJson nyariIdoMuvelet(const TKerelem& kerelem) {
    return {{"nyariIdo", NyariIdoE(egeszMezo(kerelem, "julianszam"), egeszMezo(kerelem, "ora"),
                                   egeszMezo(kerelem, "perc"), egeszMezo(kerelem, "mperc"))}};
}

TJson telepulesMuvelet(const TKerelem& kerelem) {
    const TTelepules& t = TelepulesKeres(szovegMezo(kerelem, "nev"));
    return {{"idozona", t.idozona},
            {"szelesseg", t.szelesseg},
            {"hosszusag", t.hosszusag},
            {"szelessegJel", std::string(1, t.szelessegJel)},
            {"hosszusagJel", std::string(1, t.hosszusagJel)}};
}

TJson idoMuvelet(const TKerelem& kerelem) {
    Allapot allapot;
    pillanatMezo(kerelem, allapot);
    const std::string idoTipus = szovegMezo(kerelem, "idoTipus");
    const auto tipus = std::find(idoTipusok.begin(), idoTipusok.end(), idoTipus);
    if (tipus == idoTipusok.end()) throw THiba("idoTipus: ZN, LMT vagy GMT");
    TPillanat pillanat = allapot.Keplet.pillanat;
    std::int32_t julianszam = allapot.Keplet.julianszam;
    IdoAtvaltas(pillanat, julianszam, static_cast<TIdoTipus>(tipus - idoTipusok.begin()),
                egeszMezo(kerelem, "idozona"), egeszMezo(kerelem, "hosszusag"));
    return {{"pillanat", pillanatTomb(pillanat)}, {"julianszam", julianszam}};
}

TJson kepletMuvelet(const TKerelem& kerelem) {
    Allapot allapot = allapotKerelembol(kerelem);
    KepletCiklus(allapot);
    return kepletValasz(allapot);
}

namespace {

struct TMuveletIro {
    TJson operator()(const TKorMuvelet& m) const {
        return TJson::array({"E", m.x, m.y, m.r, m.toll, m.stilus});
    }
    TJson operator()(const TVonalMuvelet& m) const {
        return TJson::array({"L", m.x1, m.y1, m.x2, m.y2, m.toll, m.stilus});
    }
    TJson operator()(const TSzovegMuvelet& m) const {
        return TJson::array({"T", m.x, m.y, m.szoveg, m.betutipus, m.magassag});
    }
};

}  // namespace

TJson rajzMuvelet(const TKerelem& kerelem) {
    Allapot allapot = allapotKerelembol(kerelem);
    const std::int32_t tipus = egeszMezo(kerelem, "tipus", 1, 3);
    const auto [szelesseg, magassag] = egeszTomb<2>(kerelem, "felulet");
    constexpr std::int32_t legnagyobbFelulet = 100000;  // pixels; beyond any printer's page
    if (szelesseg < 0 || magassag < 0 || szelesseg > legnagyobbFelulet || magassag > legnagyobbFelulet)
        throw THiba("felulet: 0 és 100000 között");
    allapot.Rajz.nyomtatasMod = logikaiMezo(kerelem, "nyomtatas");
    KepletCiklus(allapot);

    // A window that has shown the chart in the Radix view, then the view asked for.
    RogzitoVaszon vaszon;
    for (const auto nezet : {TKepletTipus::radix, static_cast<TKepletTipus>(tipus)}) {
        vaszon = {};
        allapot.KepletTipus = nezet;
        AblakGeometria(allapot.Rajz, allapot.Keplet.hazCsucs[1], szelesseg, magassag);
        if (allapot.Rajz.nyomtatasMod) LapGeometria(allapot.Rajz, szelesseg, magassag);
        KepletRajz(vaszon, allapot);
    }
    TJson muveletek = TJson::array();
    for (const TMuvelet& m : vaszon.muveletek()) muveletek.push_back(std::visit(TMuveletIro{}, m));
    return {{"muveletek", muveletek}};
}
