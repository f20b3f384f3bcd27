#include "files/aafmezok.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <vector>

#include "tables/szamtan.h"
#include "tables/szoveg.h"

namespace {

constexpr std::string_view feherek = " \t\r\n\v\f";
constexpr std::int64_t felNap = napMasodperc / 2;

std::vector<std::string_view> darabok(std::string_view szoveg, char hatar) {
    std::vector<std::string_view> ki;
    for (std::size_t vege = szoveg.find(hatar); vege != szoveg.npos; vege = szoveg.find(hatar)) {
        ki.push_back(szoveg.substr(0, vege));
        szoveg.remove_prefix(vege + 1);
    }
    ki.push_back(szoveg);
    return ki;
}

bool szamjegy(char c) {
    return c >= '0' && c <= '9';
}

/// A number of digits only, up to a bound.
std::optional<std::int32_t> szam(std::string_view szoveg, std::int32_t felso) {
    if (szoveg.empty() || !szamjegy(szoveg[0])) return std::nullopt;
    const auto ertek = szamErtek(szoveg);
    return ertek && *ertek <= felso ? ertek : std::nullopt;
}

/// Number, letters, and behind them minutes with or without seconds: the form of coordinates and zones.
struct TBetusSzam {
    std::int32_t egesz;
    std::string betuk;  ///< in small letters
    std::int32_t hatvanadok;
};

std::optional<std::int32_t> percMasodperc(std::string_view szoveg) {
    if (szoveg.empty()) return 0;
    const auto reszek = darabok(szoveg, ':');
    if (reszek.size() > 2) return std::nullopt;
    const auto perc = szam(reszek[0], 59);
    const auto masodperc = reszek.size() == 2 ? szam(reszek[1], 59) : 0;
    if (!perc || !masodperc) return std::nullopt;
    return *perc * 60 + *masodperc;
}

std::optional<TBetusSzam> betusSzam(std::string_view szoveg, std::int32_t felso) {
    const std::size_t betu = szoveg.find_first_not_of("0123456789");
    if (betu == szoveg.npos) return std::nullopt;
    std::size_t vege = betu;
    std::string betuk;
    while (vege < szoveg.size() && !szamjegy(szoveg[vege])) betuk += kisbetu(szoveg[vege++]);
    const auto egesz = szam(szoveg.substr(0, betu), felso);
    const auto hatvanadok = percMasodperc(szoveg.substr(vege));
    if (!egesz || !hatvanadok) return std::nullopt;
    return TBetusSzam{*egesz, betuk, *hatvanadok};
}

/// An angle or zone whose letters give its sign.
std::optional<std::int32_t> elojeles(std::string_view mezo, std::int32_t felso, std::string_view plusz,
                                     std::string_view minusz) {
    const auto b = betusSzam(AafVagott(mezo), felso);
    if (!b || (b->betuk != plusz && b->betuk != minusz)) return std::nullopt;
    const std::int32_t ertek = b->egesz * 3600 + b->hatvanadok;
    if (ertek > felso * 3600) return std::nullopt;
    return b->betuk == plusz ? ertek : -ertek;
}

std::string szogSzoveg(std::int32_t ivmasodperc, char plusz, char minusz) {
    const std::int64_t nagysag = std::abs(std::int64_t{ivmasodperc});
    std::string ki = std::to_string(nagysag / 3600) + (ivmasodperc < 0 ? minusz : plusz) +
                     ketJegy(static_cast<int>(nagysag / 60 % 60));
    if (const auto mperc = static_cast<int>(nagysag % 60); mperc != 0) ki += ":" + ketJegy(mperc);
    return ki;
}

}  // namespace

std::string_view AafVagott(std::string_view szoveg) {
    const std::size_t eleje = szoveg.find_first_not_of(feherek);
    if (eleje == szoveg.npos) return {};
    return szoveg.substr(eleje, szoveg.find_last_not_of(feherek) + 1 - eleje);
}

bool AafIsmeretlen(std::string_view mezo) {
    const std::string_view tartalom = AafVagott(mezo);
    return tartalom.empty() || tartalom == "*";
}

std::optional<TAafDatum> AafDatum(std::string_view mezo) {
    mezo = AafVagott(mezo);
    TAafDatum datum;
    if (!mezo.empty() && !szamjegy(mezo.back())) {
        const char naptar = kisbetu(mezo.back());
        if (naptar != 'g' && naptar != 'j') return std::nullopt;
        datum.julianNaptar = naptar == 'j';
        mezo = AafVagott(mezo.substr(0, mezo.size() - 1));
    }
    const auto reszek = darabok(mezo, '.');
    if (reszek.size() != 3) return std::nullopt;
    const auto nap = szam(reszek[0], 31);
    const auto ho = szam(reszek[1], 12);
    const bool elotte = reszek[2].starts_with('-');
    const auto ev = szam(reszek[2].substr(elotte ? 1 : 0), 9999);
    if (!nap || !ho || !ev || *nap < 1 || *ho < 1) return std::nullopt;
    datum.ev = elotte ? -*ev : *ev;
    datum.ho = *ho;
    datum.nap = *nap;
    return datum;
}

std::optional<std::int32_t> AafIdo(std::string_view mezo) {
    const auto reszek = darabok(AafVagott(mezo), ':');
    if (reszek.size() != 2 && reszek.size() != 3) return std::nullopt;
    const auto ora = szam(reszek[0], 23);
    const auto perc = szam(reszek[1], 59);
    const auto masodperc = reszek.size() == 3 ? szam(reszek[2], 59) : 0;
    if (!ora || !perc || !masodperc) return std::nullopt;
    return alsoBitek(idoMasodperc(*ora, *perc, *masodperc));
}

std::string AafIdoSzoveg(std::int32_t ora, std::int32_t perc, std::int32_t mperc) {
    return std::to_string(ora) + ":" + ketJegy(perc) + (mperc != 0 ? ":" + ketJegy(mperc) : "");
}

std::optional<std::int32_t> AafSzelesseg(std::string_view mezo) {
    return elojeles(mezo, 90, "n", "s");
}

std::optional<std::int32_t> AafHosszusag(std::string_view mezo) {
    return elojeles(mezo, 180, "e", "w");
}

std::string AafSzelessegSzoveg(std::int32_t ivmasodperc) {
    return szogSzoveg(ivmasodperc, 'n', 's');
}

std::string AafHosszusagSzoveg(std::int32_t ivmasodperc) {
    return szogSzoveg(ivmasodperc, 'e', 'w');
}

std::optional<std::int32_t> AafZona(std::string_view mezo) {
    return elojeles(mezo, 24, "he", "hw");
}

std::string AafZonaSzoveg(std::int32_t orak) {
    return std::to_string(std::abs(std::int64_t{orak})) + (orak < 0 ? "hw00" : "he00");
}

std::optional<TAafNyariIdo> AafNyariIdo(std::string_view mezo) {
    mezo = AafVagott(mezo);
    if (mezo == "L" || mezo == "l") return TAafNyariIdo{0, true};
    if (const auto orak = szam(mezo, 2)) return TAafNyariIdo{*orak, false};
    return std::nullopt;
}

namespace {

struct THatvany {
    std::int64_t ertek;
    int jegyek;
};

/// Digits behind the point, at most nine of them.
std::optional<THatvany> tort(std::string_view jegyek) {
    constexpr std::size_t legtobb = 9;
    THatvany ki{0, 0};
    for (const char c : jegyek) {
        if (!szamjegy(c)) return std::nullopt;
        if (static_cast<std::size_t>(ki.jegyek) == legtobb) continue;
        ki.ertek = ki.ertek * 10 + (c - '0');
        ++ki.jegyek;
    }
    return ki;
}

}  // namespace

std::optional<TAafJulian> AafJulian(std::string_view mezo) {
    mezo = AafVagott(mezo);
    const std::size_t pont = std::min(mezo.find('.'), mezo.size());
    const auto nap = szam(mezo.substr(0, pont), 9999999);
    const auto jegyek = tort(mezo.substr(std::min(pont + 1, mezo.size())));
    if (!nap || !jegyek) return std::nullopt;
    std::int64_t egyseg = 1;
    for (int i = 0; i < jegyek->jegyek; ++i) egyseg *= 10;
    const std::int64_t napbol = (jegyek->ertek * napMasodperc + egyseg / 2) / egyseg;
    return TAafJulian{*nap * napMasodperc + napbol - felNap,
                      static_cast<double>(napMasodperc) / static_cast<double>(egyseg)};
}

std::string AafJulianSzoveg(std::int64_t masodperc) {
    constexpr std::int64_t milliomod = 1000000;
    const std::int64_t ertek = ((masodperc + felNap) * milliomod + felNap) / napMasodperc;
    std::string tizedesek = std::to_string(ertek % milliomod);
    tizedesek.insert(0, 6 - tizedesek.size(), '0');
    return std::to_string(ertek / milliomod) + "." + tizedesek;
}

namespace {
constexpr std::int64_t hetvenesNap = 2440587;  ///< day number of 1970-01-01
}

std::int64_t AafNapSzam(std::int32_t ev, std::int32_t ho, std::int32_t nap) {
    using namespace std::chrono;
    const sys_days elseje{year{ev} / month{static_cast<unsigned>(ho)} / day{1}};
    return elseje.time_since_epoch().count() + hetvenesNap + nap - 1;
}

TAafDatum AafNapDatuma(std::int64_t julianszam) {
    using namespace std::chrono;
    const year_month_day datum{sys_days{days{julianszam - hetvenesNap}}};
    return {static_cast<int>(datum.year()), static_cast<std::int32_t>(static_cast<unsigned>(datum.month())),
            static_cast<std::int32_t>(static_cast<unsigned>(datum.day())), false};
}
