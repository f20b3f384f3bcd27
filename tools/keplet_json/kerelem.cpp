#include "kerelem.h"

#include <cmath>
#include <cstdio>
#include <limits>

#include "chart/kepletciklus.h"
#include "chart/statuszsor.h"
#include "drawing/oldalpanel.h"
#include "drawing/rendezett.h"
#include "engine/fenyszogpontok.h"

const TKerelem& mezo(const TKerelem& kerelem, const char* nev) {
    const auto hely = kerelem.find(nev);
    if (hely == kerelem.end()) throw THiba(std::string("hiányzó mező: ") + nev);
    return *hely;
}

std::int32_t egeszErtek(const TKerelem& ertek, const char* nev) {
    constexpr std::int64_t also = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t felso = std::numeric_limits<std::int32_t>::max();
    if (!ertek.is_number_integer()) throw THiba(std::string(nev) + ": egész szám kell");
    const bool tulNagy =
        ertek.is_number_unsigned() && ertek.get<std::uint64_t>() > static_cast<std::uint64_t>(felso);
    if (tulNagy || ertek.get<std::int64_t>() < also || ertek.get<std::int64_t>() > felso)
        throw THiba(std::string(nev) + ": a szám nem fér el 32 biten");
    return ertek.get<std::int32_t>();
}

std::int32_t egeszMezo(const TKerelem& kerelem, const char* nev) {
    return egeszErtek(mezo(kerelem, nev), nev);
}

std::int32_t egeszMezo(const TKerelem& kerelem, const char* nev, std::int32_t also, std::int32_t felso) {
    const std::int32_t ertek = egeszMezo(kerelem, nev);
    if (ertek < also || ertek > felso)
        throw THiba(std::string(nev) + ": " + std::to_string(also) + " és " + std::to_string(felso) +
                    " között");
    return ertek;
}

double valosMezo(const TKerelem& kerelem, const char* nev) {
    const TKerelem& ertek = mezo(kerelem, nev);
    if (!ertek.is_number()) throw THiba(std::string(nev) + ": szám kell");
    return ertek.get<double>();
}

bool logikaiMezo(const TKerelem& kerelem, const char* nev) {
    const TKerelem& ertek = mezo(kerelem, nev);
    if (!ertek.is_boolean()) throw THiba(std::string(nev) + ": igaz vagy hamis kell");
    return ertek.get<bool>();
}

std::string szovegMezo(const TKerelem& kerelem, const char* nev) {
    const TKerelem& ertek = mezo(kerelem, nev);
    if (!ertek.is_string()) throw THiba(std::string(nev) + ": szöveg kell");
    return ertek.get<std::string>();
}

std::string fajlMezo(const TKerelem& kerelem, const char* nev) {
    std::string fajl = szovegMezo(kerelem, nev);
    if (fajl.find('\0') != std::string::npos) throw THiba(std::string(nev) + ": a névben nem lehet NUL");
    return fajl;
}

void pillanatMezo(const TKerelem& kerelem, Allapot& allapot) {
    const auto p = egeszTomb<6>(kerelem, "pillanat");
    allapot.Keplet.pillanat = {p[0], p[1], p[2], p[3], p[4], p[5]};
    DatumRendezes(allapot.Keplet);
}

void helyMezo(const TKerelem& kerelem, Allapot& allapot) {
    const TKerelem& hely = mezo(kerelem, "hely");
    if (!hely.is_object()) throw THiba("hely: objektum kell");
    TKeplet& k = allapot.Keplet;
    k.helyseg = szovegMezo(hely, "helyseg");
    if (hely.size() == 1) {
        HelyAdatok(allapot);
        return;
    }
    k.idozona = egeszMezo(hely, "idozona");
    k.nyariIdo = egeszMezo(hely, "nyariIdo");
    k.szelesseg = egeszMezo(hely, "szelesseg");
    k.hosszusag = egeszMezo(hely, "hosszusag");
}

namespace {

void orbisMezo(const TKerelem& kerelem, Allapot& allapot) {
    const auto hely = kerelem.find("orbis");
    if (hely == kerelem.end()) return;
    if (!hely->is_array() || hely->size() != 12) throw THiba("orbis: 12 sor kell");
    for (int sor = 1; sor <= 12; ++sor) {
        const TKerelem& szamok = (*hely)[static_cast<std::size_t>(sor - 1)];
        if (!szamok.is_array() || szamok.size() != 9) throw THiba("orbis: 9 szám kell egy sorba");
        for (int oszlop = 1; oszlop <= 9; ++oszlop) {
            const TKerelem& ertek = szamok[static_cast<std::size_t>(oszlop - 1)];
            if (!ertek.is_number()) throw THiba("orbis: szám kell");
            allapot.OrbisTabla[sor][oszlop] = ertek.get<double>();
        }
    }
}

TJson betuk(const Tomb<char, 10>& sor) {
    return std::string(sor.begin(), sor.end());
}

TJson betuMatrix(const TJelMatrix& matrix) {
    TJson valasz = TJson::array();
    for (const auto& sor : matrix) valasz.push_back(betuk(sor));
    return valasz;
}

template <typename TMatrix>
TJson szamMatrix(const TMatrix& matrix) {
    TJson valasz = TJson::array();
    for (const auto& sor : matrix) valasz.push_back(tombValasz(sor));
    return valasz;
}

TJson rendezettValasz(const Allapot& allapot) {
    auto rendezett = allapot.Rajz.Rendezett;
    RendezettEpites(rendezett, allapot.Keplet.bolygo, allapot.Keplet.mozgas);
    Szetteritas(rendezett);
    TJson valasz = TJson::array();
    for (const TRendezettSor& sor : rendezett)
        valasz.push_back(TJson::array({sor.rendHossz, std::string(1, sor.rendJel),
                                       std::string(1, sor.rendMozgas), sor.rendFok, sor.rendPerc}));
    return valasz;
}

TJson panelValasz(const Allapot& allapot) {
    TJson valasz = TJson::array();
    for (const auto& sor : allapot.Rajz.panel) valasz.push_back(TJson::array({sor.jel, sor.szoveg}));
    return valasz;
}

TJson statuszValasz(const Allapot& allapot) {
    const auto& panelek = allapot.Feliratok.statusz;
    return TJson::array(
        {panelek[panelArmc], panelek[panelIdo], panelek[panelHely], panelek[panelKoordinata]});
}

}  // namespace

Allapot allapotKerelembol(const TKerelem& kerelem) {
    Allapot allapot;
    pillanatMezo(kerelem, allapot);
    helyMezo(kerelem, allapot);
    orbisMezo(kerelem, allapot);
    CsillagIdoLepes(allapot.Keplet);
    IrStatuszSor(allapot, allapot.Keplet.pillanat, TIdoTipus::ZN);
    return allapot;
}

Allapot szuletesiAllapot(const TKerelem& kerelem) {
    Allapot allapot = allapotKerelembol(kerelem);
    allapot.RadixPillanat = allapot.SzuletesiPillanat = allapot.Keplet.pillanat;
    KepletCiklus(allapot);
    FenyszogPontSzamitas(allapot.Keplet.bolygo, allapot.Rajz.FenyszogPontok);
    return allapot;
}

TJson kepletValasz(Allapot& allapot) {
    OldalPanelIras(allapot.Keplet.bolygo, allapot.Keplet.hazCsucs, allapot.Rajz.panel);
    FenyszogPontSzamitas(allapot.Keplet.bolygo, allapot.Rajz.FenyszogPontok);
    const TKeplet& k = allapot.Keplet;
    const TUralkodok& u = allapot.Uralkodok;
    TJson v;
    v["pillanat"] = pillanatTomb(k.pillanat);
    v["julianszam"] = k.julianszam;
    v["napresz"] = k.napresz;
    v["nyariIdo"] = k.nyariIdo;
    v["idozona"] = k.idozona;
    v["szelesseg"] = k.szelesseg;
    v["hosszusag"] = k.hosszusag;
    v["armc"] = TJson::array({k.armcOra, k.armcPerc, k.armcMperc});
    v["Hazcsucsok"] = tombValasz(k.Hazcsucsok);
    v["Bolygok"] = tombValasz(k.Bolygok);
    v["BolygoHazak"] = tombValasz(k.BolygoHazak);
    v["DekadKezdetek"] = tombValasz(allapot.DekadKezdetek);
    v["DekadHaz"] = tombValasz(u.DekadHaz);
    v["UralkodoJegy"] = tombValasz(u.UralkodoJegy);
    v["Mozgasok"] = betuk(k.Mozgasok);
    v["Elteresek"] = szamMatrix(allapot.Elteresek);
    v["FenyszogOrbis"] = szamMatrix(allapot.FenyszogOrbis);
    v["FenyszogRadix"] = betuMatrix(allapot.FenyszogRadix);
    v["EgyuttallasMatrix"] = betuMatrix(allapot.EgyuttallasMatrix);
    v["AlsoFelsoMatrix"] = betuMatrix(allapot.AlsoFelsoMatrix);
    v["Forditott"] = tombValasz(u.Forditott);
    v["PratlanJegy"] = tombValasz(u.PratlanJegy);
    v["HazJegy"] = tombValasz(u.HazJegy);
    v["HazUra"] = tombValasz(u.HazUra);
    v["MundanHazUra"] = tombValasz(u.MundanHazUra);
    v["UralkodoSzoveg"] = u.UralkodoSzoveg;
    v["MundanUralkodoSzoveg"] = u.MundanUralkodoSzoveg;
    v["DekadSzoveg"] = tombValasz(u.DekadSzoveg);
    v["FenyszogPontok"] = szamMatrix(allapot.Rajz.FenyszogPontok);
    v["Rendezett"] = rendezettValasz(allapot);
    v["panel"] = panelValasz(allapot);
    v["statuszsor"] = statuszValasz(allapot);
    return v;
}

namespace {

struct TSzovegMezo {
    const char* nev;
    std::string TEletesemeny::*mezo;
};
constexpr TSzovegMezo esemenySzovegek[]{{"esemeny", &TEletesemeny::esemeny},
                                        {"analogia", &TEletesemeny::analogia},
                                        {"helyseg", &TEletesemeny::helyseg}};

template <typename TRekord>
struct TSzamMezo {
    const char* nev;
    std::int32_t TRekord::*mezo;
};
constexpr TSzamMezo<TPillanat> pillanatSzamok[]{{"ev", &TPillanat::ev},     {"ho", &TPillanat::ho},
                                                {"nap", &TPillanat::nap},   {"ora", &TPillanat::ora},
                                                {"perc", &TPillanat::perc}, {"mperc", &TPillanat::mperc}};
constexpr TSzamMezo<TEletesemeny> esemenySzamok[]{
    {"idozona", &TEletesemeny::idozona},   {"nyariIdo", &TEletesemeny::nyariIdo},
    {"hosszFok", &TEletesemeny::hosszFok}, {"hosszPerc", &TEletesemeny::hosszPerc},
    {"szelFok", &TEletesemeny::szelFok},   {"szelPerc", &TEletesemeny::szelPerc},
    {"solarNap", &TEletesemeny::solarNap}};

}  // namespace

TEletesemeny esemenyErtek(const TKerelem& ertek) {
    if (!ertek.is_object()) throw THiba("esemeny: objektum kell");
    TEletesemeny e;
    for (const auto& [nev, mezo] : esemenySzovegek)
        if (ertek.contains(nev)) e.*mezo = szovegMezo(ertek, nev);
    for (const auto& [nev, mezo] : pillanatSzamok)
        if (ertek.contains(nev)) e.pillanat.*mezo = egeszMezo(ertek, nev);
    for (const auto& [nev, mezo] : esemenySzamok)
        if (ertek.contains(nev)) e.*mezo = egeszMezo(ertek, nev);
    return e;
}

void esemenyekMezo(const TKerelem& kerelem, TEsemenyTar& tar) {
    const TKerelem& tomb = mezo(kerelem, "esemenyek");
    if (!tomb.is_array() || tomb.size() > esemenyHelyek) throw THiba("esemenyek: legfeljebb húsz");
    tar.EsemenyDb = 0;
    for (const TKerelem& elem : tomb) tar.esemenyek[++tar.EsemenyDb] = esemenyErtek(elem);
}

TJson esemenyValasz(const TEletesemeny& e) {
    TJson v;
    for (const auto& [nev, mezo] : esemenySzovegek) v[nev] = e.*mezo;
    for (const auto& [nev, mezo] : pillanatSzamok) v[nev] = e.pillanat.*mezo;
    for (const auto& [nev, mezo] : esemenySzamok) v[nev] = e.*mezo;
    return v;
}

TJson pillanatTomb(const TPillanat& p) {
    return TJson::array({p.ev, p.ho, p.nap, p.ora, p.perc, p.mperc});
}

namespace {

void irValos(std::string& ki, double ertek) {
    if (!std::isfinite(ertek)) {
        ki += "null";
        return;
    }
    char szoveg[32];
    const int hossz = std::snprintf(szoveg, sizeof szoveg, "%.17g", ertek);
    ki.append(szoveg, static_cast<std::size_t>(hossz));
}

}  // namespace

void irJson(std::string& ki, const TJson& ertek) {
    char elvalaszto = 0;
    const auto kovetkezo = [&](char nyito) {
        ki += elvalaszto == 0 ? nyito : ',';
        elvalaszto = ',';
    };
    if (ertek.is_object()) {
        for (const auto& [kulcs, elem] : ertek.items()) {
            kovetkezo('{');
            ki += TJson(kulcs).dump() + ":";
            irJson(ki, elem);
        }
        ki += elvalaszto == 0 ? "{}" : "}";
    } else if (ertek.is_array()) {
        for (const TJson& elem : ertek) {
            kovetkezo('[');
            irJson(ki, elem);
        }
        ki += elvalaszto == 0 ? "[]" : "]";
    } else if (ertek.is_number_float()) {
        irValos(ki, ertek.get<double>());
    } else {
        ki += ertek.dump(-1, ' ', false, TJson::error_handler_t::replace);
    }
}
