#include "files/adatellenorzes.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iterator>
#include <optional>

#include "tables/haztablak.h"
#include "tables/pillanat.h"
#include "tables/szoveg.h"

const TTelepules* IsmertTelepules(std::string_view nev) {
    const TTelepules& talalat = TelepulesKeres(nev);
    return talalat.nev == nev ? &talalat : nullptr;
}

namespace {

struct TKulfoldi {
    std::string_view nev;
    std::string_view orszag;
};
/// Places of the gazetteer that lie abroad.
constexpr TKulfoldi kulfoldiek[]{{"Bécs", "A"}, {"Róma", "I"}, {"Wadowice", "PL"}};

}  // namespace

std::string_view TelepulesOrszaga(const TTelepules& telepules) {
    const auto kulfoldi = std::find_if(std::begin(kulfoldiek), std::end(kulfoldiek),
                                       [&](const TKulfoldi& k) { return k.nev == telepules.nev; });
    return kulfoldi == std::end(kulfoldiek) ? "H" : kulfoldi->orszag;
}

bool HazaiTelepules(std::string_view nev) {
    const TTelepules* telepules = IsmertTelepules(nev);
    return telepules && TelepulesOrszaga(*telepules) == "H";
}

std::int32_t TablaKoordinata(std::int32_t ivmasodperc, bool esemeny) {
    return esemeny ? ivmasodperc / 60 * 60 : ivmasodperc;
}

namespace {

constexpr TMezo helyMezok[]{TMezo::idozona, TMezo::hosszusag, TMezo::szelesseg};

std::string_view mezoNev(TMezo mezo) {
    return adatMezok[static_cast<std::size_t>(mezo)].nev;
}

void sorol(std::string& lista, std::string_view elem) {
    lista.append(lista.empty() ? "" : ", ").append(elem);
}

std::string hianyzoHelyMezok(const TAdatRekord& rekord) {
    std::string lista;
    for (const TMezo mezo : helyMezok)
        if (!rekord.van(mezo)) sorol(lista, mezoNev(mezo));
    return lista;
}

void helyAdatok(TAdatRekord& rekord, bool esemeny, const TTelepules& telepules) {
    TKvhRekord& r = rekord.adat;
    if (!rekord.van(TMezo::idozona)) r.idozona = telepules.idozona;
    if (!rekord.van(TMezo::hosszusag)) r.hosszusag = TablaKoordinata(telepules.hosszusag, esemeny);
    if (!rekord.van(TMezo::szelesseg)) r.szelesseg = TablaKoordinata(telepules.szelesseg, esemeny);
    for (const TMezo mezo : helyMezok) rekord.hianyzo(mezo, false);
}

/// Whether the tables can be asked about a moment at all.
bool tablaban(const TPillanat& p) {
    return std::all_of(adatMezok.begin(), adatMezok.end(), [&](const TMezoLeiras& leiras) {
        if (!leiras.pillanat) return true;
        const std::int32_t ertek = p.*leiras.pillanat;
        return ertek >= leiras.also && ertek <= leiras.felso;
    });
}

void nyariIdo(TAdatRekord& rekord, std::vector<std::string>& kozlesek) {
    const bool hazai = HazaiTelepules(rekord.adat.helyseg) && tablaban(rekord.adat.pillanat);
    rekord.adat.nyariIdo = hazai ? NyariIdoE(rekord.adat.pillanat) : 0;
    rekord.hianyzo(TMezo::nyariIdo, false);
    kozlesek.push_back(
        "nyariIdo: nincs megadva, " +
        (hazai ? "a nyári idő táblája szerint " + std::to_string(rekord.adat.nyariIdo) : std::string("0")));
}

}  // namespace

std::string Kiegeszites(TAdatRekord& rekord, bool esemeny, std::vector<std::string>& kozlesek) {
    const std::string hianyzik = hianyzoHelyMezok(rekord);
    if (!hianyzik.empty()) {
        const TTelepules* telepules = IsmertTelepules(rekord.adat.helyseg);
        if (!telepules)
            return hianyzik + ": nincs megadva, és a helység, " + Idezve(rekord.adat.helyseg) +
                   ", nincs a helységtáblában";
        helyAdatok(rekord, esemeny, *telepules);
        kozlesek.push_back(hianyzik + ": nincs megadva, a helységtáblából való");
    }
    if (!rekord.van(TMezo::nyariIdo)) nyariIdo(rekord, kozlesek);
    return {};
}

namespace {

std::string tartomanyon(std::string_view nev, const std::string& ertek, const std::string& also,
                        const std::string& felso) {
    return std::string(nev) + ": " + ertek + ", " + also + " és " + felso + " között kell lennie";
}

}  // namespace

std::vector<std::string> TartomanyHibak(const TKvhRekord& rekord, bool esemeny) {
    std::vector<std::string> hibak;
    for (const TMezoLeiras& leiras : adatMezok) {
        if (leiras.szoveg) continue;
        const std::int32_t ertek = MezoSzam(rekord, leiras);
        if (ertek >= leiras.also && ertek <= leiras.felso) continue;
        const auto szoveg = [&](std::int32_t szam) {
            if (leiras.fajta == TMezoFajta::szam) return std::to_string(szam);
            return FokSzoveg(szam, leiras.fajta == TMezoFajta::szelesseg);
        };
        hibak.push_back(tartomanyon(leiras.nev, szoveg(ertek), szoveg(leiras.also), szoveg(leiras.felso)));
    }
    if (esemeny) {
        const auto haz = szamErtek(rekord.hang);
        if (!haz || *haz < 0 || *haz > 12)
            hibak.push_back(tartomanyon("solarNap", Idezve(rekord.hang), "0", "12"));
    }
    return hibak;
}

std::vector<std::string> SzelessegHibak(const TKvhRekord& rekord) {
    const std::int32_t sz = rekord.szelesseg;
    if (sz >= legkisebbSzelesseg * 3600 && sz <= legnagyobbSzelesseg * 3600) return {};
    if (sz < 0) return {"szelesseg: " + FokSzoveg(sz, true) + ", déli szélességre nincs háztábla"};
    return {"szelesseg: " + FokSzoveg(sz, true) + ", a háztáblák " + std::to_string(legkisebbSzelesseg) +
            "° és " + std::to_string(legnagyobbSzelesseg) + "° között valók"};
}

namespace {

void naptar(const TPillanat& p, std::vector<std::string>& ki) {
    using namespace std::chrono;
    const year_month_day datum{year{p.ev}, month{static_cast<unsigned>(p.ho)},
                               day{static_cast<unsigned>(p.nap)}};
    if (datum.ok()) return;
    TPillanat valodi = p;
    JulianszambolDatum(napSzama(p), valodi);
    ki.push_back("nap: nincs ilyen nap, a program ezzel számol: " + std::to_string(valodi.ev) + ". " +
                 ketJegy(valodi.ho) + ". " + ketJegy(valodi.nap) + ".");
}

void koordinata(std::string_view nev, std::int32_t ertek, std::int32_t tabla, bool szelesseg,
                std::vector<std::string>& ki) {
    constexpr std::int64_t ivperc = 60;
    if (std::abs(std::int64_t{ertek} - tabla) < ivperc) return;
    ki.push_back(std::string(nev) + ": " + FokSzoveg(ertek, szelesseg) + ", a helységtábla szerint " +
                 FokSzoveg(tabla, szelesseg));
}

}  // namespace

std::vector<std::string> TablaElteresek(const TKvhRekord& rekord) {
    std::vector<std::string> ki;
    const bool ellenorizheto = tablaban(rekord.pillanat);
    if (ellenorizheto) naptar(rekord.pillanat, ki);
    const TTelepules* telepules = IsmertTelepules(rekord.helyseg);
    if (!telepules) {
        ki.push_back("helyseg: " + Idezve(rekord.helyseg) +
                     " nincs a helységtáblában, időzónája és nyári ideje nem ellenőrizhető");
        return ki;
    }
    if (rekord.idozona != telepules->idozona)
        ki.push_back("idozona: " + std::to_string(rekord.idozona) + ", a helységtábla szerint " +
                     std::to_string(telepules->idozona));
    if (ellenorizheto && HazaiTelepules(rekord.helyseg))
        if (const int tabla = NyariIdoE(rekord.pillanat); rekord.nyariIdo != tabla)
            ki.push_back("nyariIdo: " + std::to_string(rekord.nyariIdo) + ", a nyári idő táblája szerint " +
                         std::to_string(tabla));
    koordinata("hosszusag", rekord.hosszusag, telepules->hosszusag, false, ki);
    koordinata("szelesseg", rekord.szelesseg, telepules->szelesseg, true, ki);
    return ki;
}
