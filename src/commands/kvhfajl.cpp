#include "commands/kvhfajl.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <istream>

#include "chart/kepletciklus.h"
#include "commands/szemelyiadatok.h"
#include "files/fajlmuvelet.h"
#include "files/fajlnev.h"
#include "files/kvhrekord.h"
#include "tables/fokperc.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"
#include "tables/szoveg.h"
#include "tables/tomb.h"

namespace {

const std::string irasiHiba = "File írási hiba!";
const std::string olvasasiHiba = "File olvasási hiba!";

TKvhRekord kepletRekord(const Allapot& allapot) {
    const TKeplet& k = allapot.Keplet;
    const TSzemely& sz = allapot.Szemely;
    return {sz.nev,      k.pillanat, k.idozona,
            k.nyariIdo,  k.helyseg,  k.hosszusag,
            k.szelesseg, sz.jegyzet, allapot.Esemenyek.EsemenyDb,
            sz.hangJel};
}

void hozzafuz(std::string& tartalom, const TKvhRekord& rekord) {
    const TKvhBajtok bajtok = KvhKodolas(rekord);
    tartalom.append(bajtok.begin(), bajtok.end());
}

std::optional<TKvhRekord> rekordOlvasas(std::istream& be) {
    TKvhBajtok bajtok{};
    for (std::uint8_t& bajt : bajtok) {
        const int c = be.get();
        if (c == std::istream::traits_type::eof()) return std::nullopt;
        bajt = static_cast<std::uint8_t>(c);
    }
    return KvhDekodolas(bajtok);
}

void kepletAtvetel(Allapot& allapot, const TKvhRekord& r) {
    TKeplet& k = allapot.Keplet;
    TSzemely& sz = allapot.Szemely;
    sz.nev = r.nev;
    sz.beirt = r.pillanat;
    k.idozona = r.idozona;
    k.nyariIdo = r.nyariIdo;
    k.helyseg = r.helyseg;
    k.hosszusag = r.hosszusag;
    k.szelesseg = r.szelesseg;
    sz.jegyzet = r.jegyzet;
    sz.hangJel = r.hang;
}

}  // namespace

TKvhRekord EsemenyRekord(const TEletesemeny& e, int index) {
    return {e.esemeny,
            e.pillanat,
            e.idozona,
            e.nyariIdo,
            e.helyseg,
            ivmasodpercre(e.hosszFok, e.hosszPerc),
            ivmasodpercre(e.szelFok, e.szelPerc),
            e.analogia,
            index,
            std::to_string(e.solarNap)};
}

std::optional<TEletesemeny> EsemenyOlvasas(const TKvhRekord& r) {
    const auto solarNap = szamErtek<int>(r.hang);
    if (!solarNap) return std::nullopt;
    TEletesemeny e;
    e.esemeny = r.nev;
    e.analogia = r.jegyzet;
    e.pillanat = r.pillanat;
    e.helyseg = r.helyseg;
    e.idozona = r.idozona;
    e.nyariIdo = r.nyariIdo;
    e.hosszFok = fokPercre(r.hosszusag).fok, e.hosszPerc = fokPercre(r.hosszusag).perc;
    e.szelFok = fokPercre(r.szelesseg).fok, e.szelPerc = fokPercre(r.szelesseg).perc;
    e.solarNap = *solarNap;
    return e;
}

TKvhHiba KepletMentes(const Allapot& allapot, const std::string& fajl) {
    std::string tartalom;
    hozzafuz(tartalom, kepletRekord(allapot));
    for (int i = 1; i <= allapot.Esemenyek.EsemenyDb; ++i)
        hozzafuz(tartalom, EsemenyRekord(allapot.Esemenyek.esemenyek[i], i));
    return FajlIras(fajl, tartalom) ? TKvhHiba{} : irasiHiba;
}

std::string KvhFajlNev(const TSzemely& szemely) {
    return FajlNev(szemely.nev) + ".kvh";
}

TKvhHiba KepletBeolvasas(Allapot& allapot, std::istream& be) {
    allapot.Szemely.jegyzet.clear();
    const auto keplet = rekordOlvasas(be);
    if (!keplet) return olvasasiHiba;
    kepletAtvetel(allapot, *keplet);
    if (keplet->esemenySzam < 0 || keplet->esemenySzam > esemenyHelyek) return olvasasiHiba;
    allapot.Esemenyek.EsemenyDb = keplet->esemenySzam;
    for (int i = 1; i <= keplet->esemenySzam; ++i) {
        const auto rekord = rekordOlvasas(be);
        if (!rekord) return olvasasiHiba;
        const auto esemeny = EsemenyOlvasas(*rekord);
        if (!esemeny) return olvasasiHiba;
        allapot.Esemenyek.esemenyek[i] = *esemeny;
    }
    return {};
}

TKvhHiba KepletMegnyitas(Allapot& allapot, FoAblak& ablak, const std::string& fajl,
                         const std::function<void()>& hangLink) {
    std::ifstream be = OlvasasraNyit(fajl);
    if (TKvhHiba hiba = KepletBeolvasas(allapot, be)) return hiba;
    hangLink();
    allapot.Keplet.pillanat = allapot.Szemely.beirt;
    DatumRendezes(allapot.Keplet);
    allapot.Szemely.idoTipus = TIdoTipus::ZN;
    BevittKepletMutatasa(allapot, ablak);
    return {};
}
