#include "commands/parancssor.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <ostream>
#include <string_view>

namespace {

constexpr std::string_view sugoSzoveg =
    "Használat: korvend [KÉPLET.kvh]\n"
    "           korvend --uj-jelszo | --help | --version\n"
    "\n"
    "Születési és előrejelző horoszkópok rajza. Fájl nélkül a jelen pillanat képletét mutatja.\n"
    "\n"
    "  KÉPLET.kvh    megnyitja a képletet\n"
    "  --uj-jelszo   kicseréli a jelszót; előbb a régit kéri\n"
    "  --help        ezt a leírást írja ki\n"
    "  --version     a program változatát írja ki\n"
    "  --            ami utána áll, az fájl\n";

/// What the toolkit takes for itself, with one hyphen or two; some have a value as the next argument, or
/// behind an equals sign.
struct TKeszletKapcsolo {
    std::string_view nev;
    bool ertek;
};
constexpr std::array<TKeszletKapcsolo, 20> keszletKapcsolok{
    {{"display", true},       {"dpi", true},      {"fontengine", true},      {"geometry", true},
     {"icon", true},          {"name", true},     {"platform", true},        {"platformpluginpath", true},
     {"platformtheme", true}, {"plugin", true},   {"qwindowgeometry", true}, {"qwindowicon", true},
     {"qwindowtitle", true},  {"session", true},  {"style", true},           {"stylesheet", true},
     {"title", true},         {"reverse", false}, {"testability", false},    {"widgetcount", false}}};

/// Arguments that an option of the toolkit takes up, itself included; 0 if it is none.
std::size_t keszletArgumentumok(std::string_view kapcsolo) {
    kapcsolo.remove_prefix(kapcsolo.substr(0, 2) == "--" ? 2 : 1);
    const std::size_t egyenlo = kapcsolo.find('=');
    const std::string_view nev = kapcsolo.substr(0, egyenlo);
    const auto hely = std::find_if(keszletKapcsolok.begin(), keszletKapcsolok.end(),
                                   [nev](const TKeszletKapcsolo& k) { return k.nev == nev; });
    if (hely == keszletKapcsolok.end()) return 0;
    return hely->ertek && egyenlo == kapcsolo.npos ? 2 : 1;
}

TParancssor hibas(std::string mondat) {
    return {TParancsFajta::hibas, {}, std::move(mondat)};
}

/// Takes a file over; only one can be opened.
bool fajlAtvetel(TParancssor& parancs, const std::string& fajl) {
    if (fajl.empty())
        parancs = hibas("A fájlnév üres.");
    else if (!parancs.fajl.empty())
        parancs = hibas("Egyszerre csak egy képletfájl nyitható meg: " + fajl);
    else
        parancs.fajl = fajl;
    return parancs.fajta != TParancsFajta::hibas;
}

}  // namespace

TParancssor ParancssorOlvas(const std::vector<std::string>& argumentumok) {
    TParancssor parancs;
    bool kapcsolokVege = false;
    for (std::size_t i = 0; i < argumentumok.size(); ++i) {
        const std::string& a = argumentumok[i];
        if (kapcsolokVege || a.empty() || a[0] != '-') {
            if (!fajlAtvetel(parancs, a)) return parancs;
        } else if (a == "--") {
            kapcsolokVege = true;
        } else if (a == "--help") {
            return {TParancsFajta::sugo, {}, {}};
        } else if (a == "--version") {
            return {TParancsFajta::verzio, {}, {}};
        } else if (a == "--uj-jelszo") {
            parancs.fajta = TParancsFajta::ujJelszo;
        } else if (const std::size_t db = keszletArgumentumok(a); db > 0) {
            i += db - 1;
        } else {
            return hibas("Ismeretlen kapcsoló: " + a);
        }
    }
    if (parancs.fajta == TParancsFajta::ujJelszo && !parancs.fajl.empty())
        return hibas("Az --uj-jelszo mellett nem adható meg fájl: " + parancs.fajl);
    return parancs;
}

std::string ParancssorHiba(const std::string& mondat) {
    return "korvend: " + mondat + "\n";
}

std::optional<int> ParancssorValasz(const TParancssor& parancs, std::ostream& ki, std::ostream& hiba) {
    switch (parancs.fajta) {
        case TParancsFajta::sugo:
            ki << sugoSzoveg;
            return 0;
        case TParancsFajta::verzio:
            ki << "Korvend " KORVEND_VERZIO "\n";
            return 0;
        case TParancsFajta::hibas:
            hiba << ParancssorHiba(parancs.hiba + " (leírás: korvend --help)");
            return hibasParancssorKod;
        case TParancsFajta::indulas:
        case TParancsFajta::ujJelszo:
            break;
    }
    return std::nullopt;
}
