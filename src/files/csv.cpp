#include "files/csv.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <set>
#include <utility>
#include <vector>

#include "tables/szoveg.h"

namespace {

constexpr std::string_view sorVege = "\r\n";

std::string_view vagott(std::string_view szoveg) {
    constexpr std::string_view feherek = " \t\r\n";
    const std::size_t eleje = szoveg.find_first_not_of(feherek);
    if (eleje == szoveg.npos) return {};
    return szoveg.substr(eleje, szoveg.find_last_not_of(feherek) + 1 - eleje);
}

/// Cuts a text into records of cells.
class TCsvBontas {
public:
    explicit TCsvBontas(std::string_view bajtok) : maradek_(bajtok) {}

    char elvalaszto = ',';
    std::vector<std::string> cellak;
    int sor = 0;  ///< where the record begins

    /// @return false at the end; `hiba` tells a record that breaks the rules of quoting: reading goes on
    /// behind its first line
    bool kovetkezo(std::string& hiba) {
        if (maradek_.empty()) return false;
        hiba.clear();
        cellak.clear();
        sor = sorok_ + 1;
        const std::string_view eredeti = maradek_;
        while (cella(hiba)) {
        }
        if (hiba.empty()) return true;
        maradek_ = eredeti;
        sorok_ = sor - 1;
        maradek_.remove_prefix(std::min(maradek_.find('\n'), maradek_.size()));
        sorVegen();
        return true;
    }

private:
    /// Steps over the end of a line, which the end of the text may take the place of.
    void sorVegen() {
        if (!maradek_.starts_with('\n')) return;
        ++sorok_;
        maradek_.remove_prefix(1);
    }

    /// Takes one cell with what ends it.
    /// @return whether the record goes on
    bool cella(std::string& hiba) {
        std::string ertek;
        if (maradek_.starts_with('"')) {
            if (!idezett(ertek)) {
                hiba = "idézőjel, amelynek nincs párja";
                return false;
            }
        } else {
            const char vegek[]{elvalaszto, '\n', '\0'};
            const std::size_t vege = std::min(maradek_.find_first_of({vegek, 2}), maradek_.size());
            ertek = maradek_.substr(0, vege);
            maradek_.remove_prefix(vege);
            if (!maradek_.starts_with(elvalaszto) && ertek.ends_with('\r')) ertek.pop_back();
        }
        cellak.push_back(std::move(ertek));
        if (maradek_.starts_with(elvalaszto)) {
            maradek_.remove_prefix(1);
            return true;
        }
        if (maradek_.starts_with(sorVege)) maradek_.remove_prefix(1);
        if (!maradek_.empty() && maradek_[0] != '\n') {
            hiba = "szöveg a záró idézőjel után";
            return false;
        }
        sorVegen();
        return false;
    }

    bool idezett(std::string& ertek) {
        std::size_t hely = 1;
        for (;;) {
            const std::size_t jel = maradek_.find('"', hely);
            if (jel == maradek_.npos) return false;
            ertek.append(maradek_.substr(hely, jel - hely));
            hely = jel + 1;
            if (hely >= maradek_.size() || maradek_[hely] != '"') break;
            ertek += '"';
            ++hely;
        }
        sorok_ += static_cast<int>(
            std::count(maradek_.begin(), maradek_.begin() + static_cast<std::ptrdiff_t>(hely), '\n'));
        maradek_.remove_prefix(hely);
        return true;
    }

    std::string_view maradek_;
    int sorok_ = 0;  ///< complete lines behind us
};

/// The most frequent of the three separators in the first line.
char talaltElvalaszto(std::string_view bajtok) {
    const std::string_view fejlec = bajtok.substr(0, bajtok.find('\n'));
    char legjobb = ',';
    for (const char jel : {';', '\t'})
        if (std::count(fejlec.begin(), fejlec.end(), jel) > std::count(fejlec.begin(), fejlec.end(), legjobb))
            legjobb = jel;
    return legjobb;
}

/// What a column holds.
struct TOszlop {
    std::size_t esemeny = 0;  ///< number of the event, or 0 for the chart
    const TMezoLeiras* leiras = nullptr;
    std::string nev;
};

constexpr TMezo kellenek[]{TMezo::nev, TMezo::ev, TMezo::ho, TMezo::nap, TMezo::ora, TMezo::perc};

TOszlop oszlop(const std::string& fejlec) {
    TOszlop ki;
    ki.nev = vagott(fejlec);
    std::string_view nev = ki.nev;
    std::size_t szam = 0;
    const auto [vege, hiba] = std::from_chars(nev.data(), nev.data() + nev.size(), szam);
    if (hiba == std::errc{} && szam > 0 && vege != nev.data() + nev.size() && *vege == '.') {
        ki.esemeny = szam;
        nev = vagott(nev.substr(static_cast<std::size_t>(vege - nev.data()) + 1));
    }
    const auto leiras = std::find_if(adatMezok.begin(), adatMezok.end(), [&](const TMezoLeiras& l) {
        return kisbetus(nev) == kisbetus(ki.esemeny == 0 ? l.nev : l.esemenyNev);
    });
    if (leiras != adatMezok.end()) ki.leiras = &*leiras;
    return ki;
}

std::optional<std::int32_t> egeszErtek(std::string_view szoveg) {
    szoveg = vagott(szoveg);
    if (szoveg.starts_with('+')) szoveg.remove_prefix(1);
    return szamErtek(szoveg);
}

class TCsvOlvaso {
public:
    TCsvOlvaso(TAdatlapok& ki, std::optional<TKodlap> kodlap) : ki_(ki), kodlap_(kodlap) {}

    /// @return false if the table lacks a column that must be there
    bool fejlec(const std::vector<std::string>& cellak, int sor) {
        for (const std::string& cella : cellak) {
            TOszlop uj = oszlop(cella);
            const bool ismetelt = uj.leiras && !ismertek_.insert({uj.esemeny, uj.leiras->mezo}).second;
            if (ismetelt) uj.leiras = nullptr;
            if (!uj.leiras && !uj.nev.empty())
                jelent(TJelentesFajta::veszteseg, sor,
                       (ismetelt ? "ismételt oszlop, kimarad: " : "ismeretlen oszlop, kimarad: ") +
                           Idezve(uj.nev));
            oszlopok_.push_back(std::move(uj));
        }
        bool megvan = true;
        for (const TMezo mezo : kellenek) {
            const TMezoLeiras& leiras = adatMezok[static_cast<std::size_t>(mezo)];
            if (ismertek_.count({0, mezo}) > 0) continue;
            jelent(TJelentesFajta::hiba, sor, "hiányzó oszlop: " + std::string(leiras.nev));
            megvan = false;
        }
        return megvan;
    }

    void sor(std::vector<std::string>& cellak, int sor) {
        if (std::all_of(cellak.begin(), cellak.end(), [](const auto& c) { return vagott(c).empty(); }))
            return;
        sor_ = sor;
        if (!kodolas(cellak)) return;
        cellak_ = &cellak;
        TKvhRekord cimzett;
        for (std::size_t i = 0; i < std::min(oszlopok_.size(), cellak.size()); ++i)
            if (oszlopok_[i].leiras == adatMezok.data() && oszlopok_[i].esemeny == 0) cimzett.nev = cellak[i];
        nev_ = RekordCimke(cimzett);
        tobbletek();
        TAdatlap lap;
        if (!rekord(0, lap.keplet)) return;
        for (std::size_t i = 1; i <= adatEsemenyek; ++i) {
            TAdatRekord esemeny;
            if (ures(i)) continue;
            nev_ = RekordCimke(cimzett, static_cast<int>(i));
            if (rekord(i, esemeny)) lap.esemenyek.push_back(std::move(esemeny));
        }
        ki_.lapok.push_back(std::move(lap));
    }

    void jelent(TJelentesFajta fajta, int sor, const std::string& szoveg) {
        ki_.jelentesek.push_back({fajta, sor, szoveg});
    }

private:
    bool kodolas(std::vector<std::string>& cellak) {
        int hianyok = 0;
        const bool rossz =
            std::any_of(cellak.begin(), cellak.end(), [](const std::string& c) { return !ervenyesUtf8(c); });
        if (!rossz) return true;
        if (!kodlap_) {
            jelent(TJelentesFajta::hiba, sor_, "a sor nem UTF-8; kimarad");
            return false;
        }
        for (std::string& cella : cellak) cella = KodlapSzoveg(cella, *kodlap_, hianyok);
        if (hianyok > 0)
            jelent(TJelentesFajta::veszteseg, sor_,
                   std::to_string(hianyok) + " bájt nem karakter, „?” áll helyette");
        return true;
    }

    /// Text in cells that have no place in a chart file: beyond the columns, or of an event beyond the last.
    void tobbletek() {
        std::size_t jelentett = 0;
        for (std::size_t i = 0; i < cellak_->size(); ++i) {
            if (vagott((*cellak_)[i]).empty()) continue;
            if (i >= oszlopok_.size()) {
                jelent(TJelentesFajta::veszteseg, sor_, nev_ + ": több mező, mint oszlop, a többlet kimarad");
                return;
            }
            if (oszlopok_[i].esemeny <= adatEsemenyek || oszlopok_[i].esemeny == jelentett) continue;
            jelentett = oszlopok_[i].esemeny;
            jelent(TJelentesFajta::veszteseg, sor_,
                   nev_ + ", " + std::to_string(jelentett) +
                       ". esemény: a képletfájlba húsz esemény fér, kimarad");
        }
    }

    bool ures(std::size_t esemeny) const {
        for (std::size_t i = 0; i < std::min(oszlopok_.size(), cellak_->size()); ++i)
            if (oszlopok_[i].esemeny == esemeny && oszlopok_[i].leiras && !vagott((*cellak_)[i]).empty())
                return false;
        return true;
    }

    bool rekord(std::size_t esemeny, TAdatRekord& ki) {
        ki.sor = sor_;
        ki.hianyzik.set();
        for (std::size_t i = 0; i < std::min(oszlopok_.size(), cellak_->size()); ++i) {
            const TOszlop& o = oszlopok_[i];
            if (!o.leiras || o.esemeny != esemeny) continue;
            if (!cella(o, (*cellak_)[i], ki)) return false;
        }
        for (const TMezo mezo : kellenek) {
            const TMezoLeiras& leiras = adatMezok[static_cast<std::size_t>(mezo)];
            if (leiras.szoveg || ki.van(mezo)) continue;
            jelent(TJelentesFajta::hiba, sor_, nev_ + ": " + std::string(leiras.nev) + ": üres; kimarad");
            return false;
        }
        return true;
    }

    /// An empty cell is an empty text, but of a number a field that is not told.
    bool cella(const TOszlop& o, const std::string& szoveg, TAdatRekord& ki) {
        const bool hazSzam = o.esemeny > 0 && o.leiras->mezo == TMezo::hang;
        if (vagott(szoveg).empty() && (!o.leiras->szoveg || hazSzam)) return true;
        if (o.leiras->szoveg && !hazSzam) {
            ki.adat.*o.leiras->szoveg = szoveg;
        } else {
            const auto szam =
                o.leiras->fajta == TMezoFajta::hosszusag || o.leiras->fajta == TMezoFajta::szelesseg
                    ? FokErtek(szoveg, o.leiras->fajta == TMezoFajta::szelesseg)
                    : egeszErtek(szoveg);
            if (!szam) {
                jelent(TJelentesFajta::hiba, sor_,
                       nev_ + ": " + o.nev + ": érthetetlen, " + Idezve(szoveg) + "; kimarad");
                return false;
            }
            if (hazSzam)
                ki.adat.hang = std::to_string(*szam);
            else
                MezoSzam(ki.adat, *o.leiras) = *szam;
        }
        ki.hianyzo(o.leiras->mezo, false);
        return true;
    }

    TAdatlapok& ki_;
    std::optional<TKodlap> kodlap_;
    std::vector<TOszlop> oszlopok_;
    std::set<std::pair<std::size_t, TMezo>> ismertek_;  ///< columns by event and field
    const std::vector<std::string>* cellak_ = nullptr;
    int sor_ = 0;
    std::string nev_;
};

}  // namespace

TAdatlapok CsvOlvasas(std::string_view bajtok, std::optional<TKodlap> kodlap) {
    TAdatlapok ki;
    bajtok = BajtsorrendJelNelkul(bajtok);
    TCsvOlvaso olvaso(ki, kodlap);
    TCsvBontas bontas(bajtok);
    bontas.elvalaszto = talaltElvalaszto(bajtok);
    std::string hiba;
    if (!bontas.kovetkezo(hiba)) return ki;
    if (!hiba.empty()) {
        olvaso.jelent(TJelentesFajta::hiba, bontas.sor, "a fejléc rossz: " + hiba);
        return ki;
    }
    if (!olvaso.fejlec(bontas.cellak, bontas.sor)) return ki;
    while (bontas.kovetkezo(hiba)) {
        if (hiba.empty())
            olvaso.sor(bontas.cellak, bontas.sor);
        else
            olvaso.jelent(TJelentesFajta::hiba, bontas.sor, hiba + "; a sor kimarad");
    }
    return ki;
}

namespace {

void cellaIras(std::string& ki, std::string_view szoveg, char elvalaszto) {
    const char kulonlegesek[]{elvalaszto, '"', '\r', '\n'};
    const bool idezni = szoveg.find_first_of({kulonlegesek, sizeof kulonlegesek}) != szoveg.npos ||
                        szoveg.starts_with(' ') || szoveg.ends_with(' ');
    if (!idezni) {
        ki += szoveg;
        return;
    }
    ki += '"';
    for (const char c : szoveg) {
        if (c == '"') ki += '"';
        ki += c;
    }
    ki += '"';
}

std::string mezoSzoveg(const TKvhRekord& rekord, const TMezoLeiras& leiras) {
    if (leiras.szoveg) return rekord.*leiras.szoveg;
    const std::int32_t szam = MezoSzam(rekord, leiras);
    if (leiras.fajta == TMezoFajta::szam) return std::to_string(szam);
    return FokSzoveg(szam, leiras.fajta == TMezoFajta::szelesseg);
}

}  // namespace

std::string CsvFejlec(std::size_t esemenyek, const TCsvMod& mod) {
    std::string ki(mod.bajtsorrend ? bajtsorrendJel : "");
    for (std::size_t i = 0; i <= esemenyek; ++i)
        for (const TMezoLeiras& leiras : adatMezok) {
            if (i > 0 || &leiras != adatMezok.data()) ki += mod.elvalaszto;
            ki +=
                i == 0 ? std::string(leiras.nev) : std::to_string(i) + ". " + std::string(leiras.esemenyNev);
        }
    return ki.append(sorVege);
}

std::string CsvSor(const TAdatlap& lap, std::size_t esemenyek, const TCsvMod& mod) {
    std::string ki;
    for (std::size_t i = 0; i <= esemenyek; ++i)
        for (const TMezoLeiras& leiras : adatMezok) {
            if (i > 0 || &leiras != adatMezok.data()) ki += mod.elvalaszto;
            if (i > lap.esemenyek.size()) continue;
            const TKvhRekord& rekord = i == 0 ? lap.keplet.adat : lap.esemenyek[i - 1].adat;
            cellaIras(ki, mezoSzoveg(rekord, leiras), mod.elvalaszto);
        }
    return ki.append(sorVege);
}

namespace {

/// The numbers and the letters of a coordinate.
struct TFokReszek {
    std::vector<std::int64_t> szamok;
    std::string betuk;
};

std::optional<TFokReszek> fokReszek(std::string_view szoveg) {
    constexpr std::string_view jelek[]{"°", "'", "\"", "′", "″", "’", "”", ":", " "};
    constexpr std::int64_t legnagyobb = 1000000000;
    TFokReszek ki;
    bool szamban = false;
    while (!szoveg.empty()) {
        const std::string_view c = szoveg.substr(0, karakterHossz(szoveg));
        szoveg.remove_prefix(c.size());
        const bool jegy = c.size() == 1 && c[0] >= '0' && c[0] <= '9';
        if (jegy) {
            if (!szamban) ki.szamok.push_back(0);
            ki.szamok.back() = ki.szamok.back() * 10 + (c[0] - '0');
            if (ki.szamok.back() > legnagyobb) return std::nullopt;
        } else if (std::find(std::begin(jelek), std::end(jelek), c) == std::end(jelek)) {
            ki.betuk += c;
        }
        szamban = jegy;
    }
    return ki;
}

struct TEgtaj {
    std::string_view betuk;
    bool szelesseg;
    int elojel;
};
constexpr TEgtaj egtajak[]{{"É", true, 1},  {"é", true, 1},    {"n", true, 1},
                           {"d", true, -1}, {"s", true, -1},   {"k", false, 1},
                           {"e", false, 1}, {"ny", false, -1}, {"w", false, -1}};

}  // namespace

std::optional<std::int32_t> FokErtek(std::string_view szoveg, bool szelesseg) {
    const auto reszek = fokReszek(vagott(szoveg));
    if (!reszek || reszek->szamok.empty() || reszek->szamok.size() > 3) return std::nullopt;
    const auto egtaj = std::find_if(std::begin(egtajak), std::end(egtajak), [&](const TEgtaj& e) {
        return e.szelesseg == szelesseg && e.betuk == kisbetus(reszek->betuk);
    });
    if (egtaj == std::end(egtajak)) return std::nullopt;
    std::int64_t ertek = 0;
    std::int64_t szorzo = 3600;
    for (std::size_t i = 0; i < reszek->szamok.size(); ++i, szorzo /= 60) {
        if (i > 0 && reszek->szamok[i] > 59) return std::nullopt;
        ertek += reszek->szamok[i] * szorzo;
    }
    ertek *= egtaj->elojel;
    if (ertek < std::numeric_limits<std::int32_t>::min() || ertek > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(ertek);
}
