#include "adatjson.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>

#include "commands/kvhfajl.h"
#include "files/bajtszoveg.h"
#include "kerelem.h"

namespace {

constexpr std::size_t legnagyobbMelyseg = 64;
constexpr std::string_view feherek = " \t\r\n";

/// End of the object at the start of a text, told by its brackets alone; nothing if they don't match, if it
/// is too deep, or if a string does not end on its line.
std::optional<std::size_t> objektumVege(std::string_view szoveg) {
    std::string zarok;
    bool szovegben = false;
    for (std::size_t i = 0; i < szoveg.size(); ++i) {
        const char c = szoveg[i];
        if (szovegben) {
            if (c == '\n') return std::nullopt;
            if (c == '\\') ++i;
            szovegben = c != '"';
        } else if (c == '"') {
            szovegben = true;
        } else if (c == '{' || c == '[') {
            zarok += c == '{' ? '}' : ']';
            if (zarok.size() > legnagyobbMelyseg) return std::nullopt;
        } else if (c == '}' || c == ']') {
            if (zarok.empty() || zarok.back() != c) return std::nullopt;
            zarok.pop_back();
            if (zarok.empty()) return i + 1;
        }
    }
    return std::nullopt;
}

/// Keys of a record and of an event that are no loss when they are passed over: those of a request.
bool kerelemKulcs(std::string_view kulcs) {
    return kulcs == "op" || kulcs == "fajl";
}

std::optional<std::int32_t> egeszHaVan(const TKerelem& forras, const char* nev) {
    const auto hely = forras.find(nev);
    if (hely == forras.end() || hely->is_null()) return std::nullopt;
    return egeszErtek(*hely, nev);
}

std::string szovegHaVan(const TKerelem& forras, const char* nev) {
    return forras.contains(nev) ? szovegMezo(forras, nev) : std::string();
}

class TJsonOlvaso {
public:
    explicit TJsonOlvaso(std::string_view bajtok) : szoveg_(bajtok) {}

    TAdatlapok olvas() {
        atugor(feherek);
        const bool tomb = hely_ < szoveg_.size() && szoveg_[hely_] == '[';
        if (tomb) ++hely_;
        for (;;) {
            atugor(tomb ? " \t\r\n," : feherek);
            if (hely_ >= szoveg_.size()) break;
            if (tomb && szoveg_[hely_] == ']') {
                ++hely_;
                atugor(feherek);
                if (hely_ < szoveg_.size()) jelent(TJelentesFajta::hiba, "szöveg a tömb vége után; kimarad");
                return std::move(ki_);
            }
            if (!elem()) return std::move(ki_);
        }
        if (tomb) jelent(TJelentesFajta::hiba, "a tömb nincs lezárva");
        return std::move(ki_);
    }

private:
    void atugor(std::string_view jelek) {
        lep(std::min(szoveg_.find_first_not_of(jelek, hely_), szoveg_.size()));
    }

    /// Goes on to a place further behind, counting lines.
    void lep(std::size_t hova) {
        sor_ += static_cast<int>(std::count(szoveg_.begin() + static_cast<std::ptrdiff_t>(hely_),
                                            szoveg_.begin() + static_cast<std::ptrdiff_t>(hova), '\n'));
        hely_ = hova;
    }

    void jelent(TJelentesFajta fajta, const std::string& szoveg) {
        ki_.jelentesek.push_back({fajta, sor_, szoveg});
    }

    /// Next line that begins like the one of the present record.
    std::optional<std::size_t> hasonloSor() const {
        const std::size_t elozo = szoveg_.substr(0, hely_).rfind('\n');
        const std::size_t oszlop = hely_ - (elozo == szoveg_.npos ? 0 : elozo + 1);
        for (std::size_t vege = szoveg_.find('\n', hely_); vege != szoveg_.npos;
             vege = szoveg_.find('\n', vege + 1)) {
            const std::size_t kezdet = szoveg_.find_first_not_of(" \t", vege + 1);
            if (kezdet != szoveg_.npos && kezdet == vege + 1 + oszlop && szoveg_[kezdet] == '{')
                return kezdet;
        }
        return std::nullopt;
    }

    /// Reads the element that begins here.
    /// @return false if there is no way on
    bool elem() {
        const std::string_view maradek = szoveg_.substr(hely_);
        const auto vege = maradek[0] == '{' ? objektumVege(maradek) : std::nullopt;
        const TKerelem objektum =
            vege ? TKerelem::parse(maradek.substr(0, *vege), nullptr, false) : TKerelem();
        if (vege && objektum.is_object()) {
            rekord(objektum);
            lep(hely_ + *vege);
            return true;
        }
        jelent(TJelentesFajta::hiba,
               "nem JSON objektum: " + Idezve(maradek.substr(0, maradek.find('\n'))) + "; kimarad");
        std::size_t tovabb = hasonloSor().value_or(szoveg_.size());
        if (vege) tovabb = std::min(tovabb, hely_ + *vege);
        if (tovabb == szoveg_.size()) return false;
        lep(tovabb);
        return true;
    }

    void rekord(const TKerelem& objektum) {
        TAdatlap lap;
        lap.keplet.sor = sor_;
        cimke_ = "a rekord";
        try {
            TKvhRekord& r = lap.keplet.adat;
            r.nev = szovegMezo(objektum, "nev");
            cimke_ = RekordCimke(r);
            const auto p = egeszTomb<6>(objektum, "pillanat");
            r.pillanat = {p[0], p[1], p[2], p[3], p[4], p[5]};
            kepletMezok(objektum, lap.keplet);
            ismeretlenKulcsok(objektum, {"nev", "pillanat", "idozona", "nyariIdo", "helyseg", "hosszusag",
                                         "szelesseg", "jegyzet", "hang", "esemenyek"});
            esemenyek(objektum, lap);
        } catch (const THiba& hiba) {
            jelent(TJelentesFajta::hiba, cimke_ + ": " + hiba.what() + "; kimarad");
            return;
        }
        ki_.lapok.push_back(std::move(lap));
    }

    static void kepletMezok(const TKerelem& objektum, TAdatRekord& rekord) {
        for (const TMezo mezo : {TMezo::idozona, TMezo::nyariIdo, TMezo::hosszusag, TMezo::szelesseg}) {
            const TMezoLeiras& leiras = adatMezok[static_cast<std::size_t>(mezo)];
            const auto ertek = egeszHaVan(objektum, leiras.nev.data());
            rekord.hianyzo(mezo, !ertek);
            if (ertek) MezoSzam(rekord.adat, leiras) = *ertek;
        }
        rekord.adat.helyseg = szovegHaVan(objektum, "helyseg");
        rekord.adat.jegyzet = szovegHaVan(objektum, "jegyzet");
        rekord.adat.hang = szovegHaVan(objektum, "hang");
    }

    void ismeretlenKulcsok(const TKerelem& objektum, const std::vector<std::string>& ismertek) {
        for (const auto& [kulcs, ertek] : objektum.items())
            if (!kerelemKulcs(kulcs) && std::find(ismertek.begin(), ismertek.end(), kulcs) == ismertek.end())
                jelent(TJelentesFajta::veszteseg, cimke_ + ": ismeretlen kulcs, kimarad: " + Idezve(kulcs));
    }

    void esemenyek(const TKerelem& objektum, TAdatlap& lap) {
        const auto tomb = objektum.find("esemenyek");
        if (tomb == objektum.end()) return;
        if (!tomb->is_array()) throw THiba("esemenyek: tömb kell");
        const std::string keplet = cimke_;
        for (std::size_t i = 0; i < tomb->size(); ++i) {
            cimke_ = keplet + ", " + std::to_string(i + 1) + ". esemény";
            if (i >= adatEsemenyek) {
                jelent(TJelentesFajta::veszteseg, cimke_ + ": a képletfájlba húsz esemény fér, kimarad");
                continue;
            }
            try {
                lap.esemenyek.push_back(esemeny((*tomb)[i]));
            } catch (const THiba& hiba) {
                jelent(TJelentesFajta::hiba, cimke_ + ": " + hiba.what() + "; kimarad");
            }
        }
    }

    TAdatRekord esemeny(const TKerelem& ertek) {
        const TEletesemeny e = esemenyErtek(ertek);
        for (const char* kell : {"ev", "ho", "nap", "ora", "perc"}) mezo(ertek, kell);
        const TJson minta = esemenyValasz(e);
        std::vector<std::string> ismertek;
        for (const auto& [kulcs, mezoje] : minta.items()) ismertek.push_back(kulcs);
        ismeretlenKulcsok(ertek, ismertek);
        TAdatRekord rekord;
        rekord.sor = sor_;
        rekord.adat = EsemenyRekord(e, 0);
        szog(e.hosszFok, e.hosszPerc, rekord.adat.hosszusag, "hosszFok");
        szog(e.szelFok, e.szelPerc, rekord.adat.szelesseg, "szelFok");
        rekord.hianyzo(TMezo::idozona, !ertek.contains("idozona"));
        rekord.hianyzo(TMezo::nyariIdo, !ertek.contains("nyariIdo"));
        rekord.hianyzo(TMezo::hosszusag, !ertek.contains("hosszFok"));
        rekord.hianyzo(TMezo::szelesseg, !ertek.contains("szelFok"));
        rekord.hianyzo(TMezo::hang, !ertek.contains("solarNap"));
        return rekord;
    }

    static void szog(std::int32_t fok, std::int32_t perc, std::int32_t ivmasodperc, const char* nev) {
        if (std::int64_t{fok} * 3600 + std::int64_t{perc} * 60 != ivmasodperc)
            throw THiba(std::string(nev) + ": túl nagy, " + std::to_string(fok));
    }

    std::string_view szoveg_;
    std::size_t hely_ = 0;
    int sor_ = 1;
    std::string cimke_;
    TAdatlapok ki_;
};

}  // namespace

TAdatlapok JsonOlvasas(std::string_view bajtok) {
    return TJsonOlvaso(BajtsorrendJelNelkul(bajtok)).olvas();
}

std::string JsonIras(const TAdatlap& lap) {
    const TKvhRekord& r = lap.keplet.adat;
    TJson esemenyek = TJson::array();
    for (const TAdatRekord& esemeny : lap.esemenyek)
        esemenyek.push_back(esemenyValasz(EsemenyOlvasas(esemeny.adat).value_or(TEletesemeny{})));
    const TJson ki{{"nev", r.nev},
                   {"pillanat", pillanatTomb(r.pillanat)},
                   {"idozona", r.idozona},
                   {"nyariIdo", r.nyariIdo},
                   {"helyseg", r.helyseg},
                   {"hosszusag", r.hosszusag},
                   {"szelesseg", r.szelesseg},
                   {"jegyzet", r.jegyzet},
                   {"hang", r.hang},
                   {"esemenyek", esemenyek}};
    std::string szoveg;
    irJson(szoveg, ki);
    return szoveg;
}
