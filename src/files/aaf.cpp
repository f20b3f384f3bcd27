#include "files/aaf.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>

#include "files/aafido.h"
#include "files/aafmezok.h"
#include "files/adatellenorzes.h"
#include "tables/szamtan.h"
#include "tables/szoveg.h"

namespace {

constexpr std::string_view forrasElo = "Forrás: ";
constexpr std::string_view kozreadoElo = "Közreadta: ";
constexpr std::string_view hangElo = "Hangjel: ";
constexpr std::string_view analogiaElo = "Házanalógiák: ";
constexpr std::string_view solarElo = "Solar-Nap: ";

/// Kinds that the writer gives: the sex of a person is not known here.
constexpr std::string_view kepletFajta = "*";
constexpr std::string_view esemenyFajta = "e";

/// Country of a place as the writer gives it.
std::string_view irtOrszag(std::string_view helyseg) {
    const TTelepules* telepules = IsmertTelepules(helyseg);
    return telepules ? TelepulesOrszaga(*telepules) : "*";
}

/// One chunk of a file: its name, and its text with the lines that continue it.
struct TDarab {
    std::string nev;
    std::string szoveg;
    int sor;
};

/// Reports of things that occur again and again, told once with their number.
class TIsmetlodo {
public:
    void volt(const std::string& mi, int sor) {
        auto& [db, elso] = esetek_.try_emplace(mi, 0, sor).first->second;
        ++db;
    }
    void jelent(TJelentesek& jelentesek) const {
        for (const auto& [mi, eset] : esetek_)
            jelentesek.push_back({TJelentesFajta::elteres, eset.second,
                                  std::to_string(eset.first) + " helyen (először itt) " + mi});
    }

private:
    std::map<std::string, std::pair<int, int>> esetek_;
};

bool azonosito(std::string_view szoveg) {
    return std::all_of(szoveg.begin(), szoveg.end(), [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    });
}

/// The chunk that a line begins, if it does.
std::optional<TDarab> ujDarab(std::string_view sor, int szam) {
    if (!sor.starts_with('#')) return std::nullopt;
    const std::size_t vege = sor.find(':');
    if (vege == sor.npos || !azonosito(sor.substr(1, vege - 1))) return std::nullopt;
    TDarab darab{std::string(sor.substr(1, vege - 1)), std::string(sor.substr(vege + 1)), szam};
    for (char& c : darab.nev)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return darab;
}

std::vector<TDarab> darabolas(std::string_view bajtok, TKodlap kodlap, TJelentesek& jelentesek,
                              TIsmetlodo& ismetlodo) {
    std::vector<TDarab> darabok;
    int kivul = 0;
    TJelentes elsoKivul{};
    bajtok = BajtsorrendJelNelkul(bajtok);
    for (int szam = 1; !bajtok.empty(); ++szam) {
        const std::size_t vege = std::min(bajtok.find('\n'), bajtok.size());
        std::string sor(bajtok.substr(0, vege));
        bajtok.remove_prefix(std::min(vege + 1, bajtok.size()));
        if (sor.ends_with('\r')) sor.pop_back();
        if (!ervenyesUtf8(sor)) {
            int hianyok = 0;
            sor = KodlapSzoveg(sor, kodlap, hianyok);
            ismetlodo.volt(std::string("nem UTF-8 sor, ") + (kodlap == TKodlap::cp1250 ? "1250" : "1252") +
                               "-es kódlapként olvasva",
                           szam);
            if (hianyok > 0)
                jelentesek.push_back({TJelentesFajta::veszteseg, szam,
                                      std::to_string(hianyok) + " bájt nem karakter, „?” áll helyette"});
        }
        if (auto uj = ujDarab(sor, szam))
            darabok.push_back(std::move(*uj));
        else if (!darabok.empty())
            darabok.back().szoveg += "\n" + sor;
        else if (!AafIsmeretlen(sor) && kivul++ == 0)
            elsoKivul = {TJelentesFajta::hiba, szam, " sor az első rekord előtt, kimarad: " + Idezve(sor)};
    }
    elsoKivul.szoveg.insert(0, std::to_string(kivul));
    if (kivul > 0) jelentesek.push_back(elsoKivul);
    return darabok;
}

/// A field without the white space around it; where it goes over a line's end a blank stands.
std::string mezo(std::string_view szoveg) {
    szoveg = AafVagott(szoveg);
    std::string ki;
    for (std::size_t vege = szoveg.find('\n'); vege != szoveg.npos; vege = szoveg.find('\n')) {
        ki.append(AafVagott(szoveg.substr(0, vege))).append(" ");
        szoveg = AafVagott(szoveg.substr(vege + 1));
    }
    return ki.append(szoveg);
}

std::vector<std::string> mezok(std::string_view szoveg) {
    std::vector<std::string> ki;
    for (;;) {
        const std::size_t vege = std::min(szoveg.find(','), szoveg.size());
        ki.push_back(mezo(szoveg.substr(0, vege)));
        if (vege == szoveg.size()) return ki;
        szoveg.remove_prefix(vege + 1);
    }
}

bool magyarorszag(std::string_view orszag) {
    constexpr std::array<std::string_view, 8> nevek{"h",       "hu",           "hun",    "hungary",
                                                    "hongrie", "magyarország", "ungarn", "ungheria"};
    return std::find(nevek.begin(), nevek.end(), kisbetus(orszag)) != nevek.end();
}

/// `#A93` or `#SUB` with the `#B93` that belongs to it.
struct TSzakasz {
    const TDarab* fej;
    const TDarab* hely = nullptr;
    bool esemeny = false;
    std::string analogia = {};
    std::optional<std::string> solarNap = {};
};

/// Reads the fields of one section into a record.
class TSzakaszOlvaso {
public:
    TSzakaszOlvaso(const TSzakasz& szakasz, TIsmetlodo& ismetlodo)
        : szakasz_(szakasz), ismetlodo_(ismetlodo) {}

    /// @return nothing if the section can't be read; `hiba` says why
    std::optional<TAdatRekord> olvas() {
        rekord_.sor = szakasz_.fej->sor;
        if (!fej() || !hely() || !koordinatak()) return std::nullopt;
        const auto pillanat = AafPillanat(idopont_, kozlesek, hiba);
        if (!pillanat) return std::nullopt;
        rekord_.adat.pillanat = pillanat->pillanat;
        rekord_.adat.idozona = pillanat->idozona;
        rekord_.adat.nyariIdo = pillanat->nyariIdo;
        rekord_.adat.jegyzet = szakasz_.analogia;
        if (szakasz_.solarNap) rekord_.adat.hang = *szakasz_.solarNap;
        rekord_.hianyzo(TMezo::hang, szakasz_.esemeny && !szakasz_.solarNap);
        return rekord_;
    }
    const std::string& nev() const { return rekord_.adat.nev; }

    std::vector<std::string> kozlesek;     ///< what was supposed or put right
    std::vector<std::string> vesztesegek;  ///< what was left out
    std::string hiba;

private:
    template <typename T>
    bool ertek(const std::string& szoveg, const char* nev, std::optional<T> (*ertelmez)(std::string_view),
               std::optional<T>& ki) {
        if (AafIsmeretlen(szoveg)) return true;
        ki = ertelmez(szoveg);
        if (!ki) hiba = std::string(nev) + ": érthetetlen, " + Idezve(szoveg);
        return ki.has_value();
    }

    std::vector<std::string> darabMezoi(const TDarab& darab, std::size_t szam) {
        auto m = mezok(darab.szoveg);
        if (m.size() > szam)
            vesztesegek.push_back("#" + darab.nev + ": " + std::to_string(m.size()) + " mező van " +
                                  std::to_string(szam) + " helyett, a többlet kimarad");
        m.resize(szam);
        return m;
    }

    bool fej() {
        const auto m = darabMezoi(*szakasz_.fej, 7);
        TKvhRekord& r = rekord_.adat;
        for (const std::string& nev : {m[0], m[1]})
            if (!AafIsmeretlen(nev)) r.nev += (r.nev.empty() ? "" : " ") + nev;
        if (!AafIsmeretlen(m[5])) r.helyseg = m[5];
        const bool magyar = magyarorszag(m[6]);
        const std::string_view orszag = magyar ? "H" : std::string_view(m[6]);
        idopont_.hazai = magyar && (!IsmertTelepules(r.helyseg) || HazaiTelepules(r.helyseg));
        if (m[2] != (szakasz_.esemeny ? esemenyFajta : kepletFajta) && !AafIsmeretlen(m[2]))
            ismetlodo_.volt("a fajta jele (m, f, e, …) kimarad, a képletfájlban nincs helye", rekord_.sor);
        if (!AafIsmeretlen(orszag) && orszag != irtOrszag(r.helyseg))
            ismetlodo_.volt("az ország kimarad, a képletfájlban nincs helye", rekord_.sor);
        if (!ertek(m[3], "datum", AafDatum, idopont_.datum) || !ertek(m[4], "ido", AafIdo, idopont_.ido))
            return false;
        if (!idopont_.datum || !idopont_.datum->julianNaptar) return true;
        hiba = "datum: a Julián-naptár szerinti, itt nem lehet belőle képlet";
        return false;
    }

    bool hely() {
        if (!szakasz_.hely) return true;
        const auto m = darabMezoi(*szakasz_.hely, 5);
        return ertek(m[0], "Julián-nap", AafJulian, idopont_.julian) &&
               ertek(m[1], "szelesseg", AafSzelesseg, szelesseg_) &&
               ertek(m[2], "hosszusag", AafHosszusag, hosszusag_) &&
               ertek(m[3], "idozona", AafZona, idopont_.zona) &&
               ertek(m[4], "nyariIdo", AafNyariIdo, idopont_.nyariIdo);
    }

    bool koordinatak() {
        if (!szelesseg_ || !hosszusag_) {
            const TTelepules* telepules = IsmertTelepules(rekord_.adat.helyseg);
            if (!idopont_.hazai || !telepules) {
                hiba = "nincs koordináta, és a helység, " + Idezve(rekord_.adat.helyseg) +
                       ", nem hazai vagy nincs a helységtáblában";
                return false;
            }
            kozlesek.emplace_back("koordináták: nincsenek megadva, a helységtáblából valók");
            if (!szelesseg_) szelesseg_ = TablaKoordinata(telepules->szelesseg, szakasz_.esemeny);
            if (!hosszusag_) hosszusag_ = TablaKoordinata(telepules->hosszusag, szakasz_.esemeny);
        }
        rekord_.adat.szelesseg = *szelesseg_;
        rekord_.adat.hosszusag = idopont_.hosszusag = *hosszusag_;
        return true;
    }

    const TSzakasz& szakasz_;
    TIsmetlodo& ismetlodo_;
    TAdatRekord rekord_;
    TAafIdopont idopont_;
    std::optional<std::int32_t> szelesseg_, hosszusag_;
};

std::optional<std::string> solarNapSzoveg(std::string_view szoveg) {
    const auto szam = szamErtek(szoveg);
    if (!szam) return std::nullopt;
    return std::to_string(*szam);
}

class TAafOlvaso {
public:
    explicit TAafOlvaso(TAdatlapok& ki) : ki_(ki) {}

    void olvas(const std::vector<TDarab>& darabok) {
        for (const TDarab& darab : darabok) {
            if (darab.nev == "A93") {
                lezar();
                szakaszok_.push_back({&darab});
            } else if (!szakaszok_.empty()) {
                folytat(darab);
            } else if (darab.nev == "B93" || darab.nev == "SUB") {
                ki_.jelentesek.push_back(
                    {TJelentesFajta::hiba, darab.sor, "#" + darab.nev + " #A93 nélkül, kimarad"});
            }
        }
        lezar();
        ismetlodo.jelent(ki_.jelentesek);
    }

    TIsmetlodo ismetlodo;

private:
    void folytat(const TDarab& darab) {
        if (darab.nev == "SUB") {
            szakaszok_.push_back({&darab, nullptr, true});
        } else if (darab.nev == "B93") {
            if (szakaszok_.back().hely)
                ki_.jelentesek.push_back({TJelentesFajta::veszteseg, darab.sor, "második #B93, kimarad"});
            else
                szakaszok_.back().hely = &darab;
        } else if (darab.nev == "COM") {
            megjegyzes(std::string(AafVagott(darab.szoveg)));
        } else if (darab.nev == "SRC") {
            jegyzetbe(std::string(forrasElo).append(AafVagott(darab.szoveg)));
        } else if (darab.nev == "VIA") {
            jegyzetbe(std::string(kozreadoElo).append(AafVagott(darab.szoveg)));
        }
    }

    /// A remark: a field of the chart file that the format has no other place for, or a line of the note.
    void megjegyzes(const std::string& szoveg) {
        TSzakasz& utolso = szakaszok_.back();
        const std::string_view sz = szoveg;
        if (!utolso.esemeny && !hang_ && sz.starts_with(hangElo))
            hang_ = sz.substr(hangElo.size());
        else if (utolso.esemeny && utolso.analogia.empty() && sz.starts_with(analogiaElo))
            utolso.analogia = sz.substr(analogiaElo.size());
        else if (auto haz =
                     sz.starts_with(solarElo) ? solarNapSzoveg(sz.substr(solarElo.size())) : std::nullopt;
                 haz && utolso.esemeny && !utolso.solarNap)
            utolso.solarNap = haz;
        else
            jegyzetbe(szoveg);
    }

    void jegyzetbe(const std::string& szoveg) {
        if (jegyzet_)
            jegyzet_->append("\n").append(szoveg);
        else
            jegyzet_ = szoveg;
    }

    /// The record is complete: its sections become a chart with its events.
    void lezar() {
        if (szakaszok_.empty()) return;
        if (auto keplet = rekord(szakaszok_.front(), 0)) {
            TAdatlap lap{*keplet, {}};
            lap.keplet.adat.jegyzet = jegyzet_.value_or("");
            lap.keplet.adat.hang = hang_.value_or("");
            esemenyek(lap);
            ki_.lapok.push_back(std::move(lap));
        }
        szakaszok_.clear();
        jegyzet_.reset();
        hang_.reset();
    }

    void esemenyek(TAdatlap& lap) {
        for (std::size_t i = 1; i < szakaszok_.size(); ++i) {
            const auto szam = static_cast<int>(i);
            if (i > adatEsemenyek)
                ki_.jelentesek.push_back({TJelentesFajta::veszteseg, szakaszok_[i].fej->sor,
                                          cimke(szam) + ": a képletfájlba húsz esemény fér, kimarad"});
            else if (auto esemeny = rekord(szakaszok_[i], szam))
                lap.esemenyek.push_back(std::move(*esemeny));
        }
    }

    std::string cimke(int esemeny) const {
        TKvhRekord r;
        r.nev = nev_;
        return RekordCimke(r, esemeny);
    }

    std::optional<TAdatRekord> rekord(const TSzakasz& szakasz, int esemeny) {
        TSzakaszOlvaso olvaso(szakasz, ismetlodo);
        auto kesz = olvaso.olvas();
        if (esemeny == 0) nev_ = olvaso.nev();
        const auto jelent = [&](TJelentesFajta fajta, const std::string& szoveg) {
            ki_.jelentesek.push_back({fajta, szakasz.fej->sor, cimke(esemeny) + ": " + szoveg});
        };
        for (const std::string& szoveg : olvaso.vesztesegek) jelent(TJelentesFajta::veszteseg, szoveg);
        for (const std::string& szoveg : olvaso.kozlesek) jelent(TJelentesFajta::elteres, szoveg);
        if (!kesz) jelent(TJelentesFajta::hiba, olvaso.hiba + "; kimarad");
        return kesz;
    }

    TAdatlapok& ki_;
    std::vector<TSzakasz> szakaszok_;
    std::optional<std::string> jegyzet_, hang_;
    std::string nev_;  ///< of the record's chart
};

}  // namespace

TAdatlapok AafOlvasas(std::string_view bajtok, TKodlap kodlap) {
    TAdatlapok ki;
    TAafOlvaso olvaso(ki);
    olvaso.olvas(darabolas(bajtok, kodlap, ki.jelentesek, olvaso.ismetlodo));
    return ki;
}

namespace {

constexpr std::string_view sorVege = "\r\n";

/// Text that a field can hold.
std::string mezoSzoveg(std::string_view szoveg) {
    std::string ki(szoveg);
    std::replace(ki.begin(), ki.end(), ',', ';');
    std::replace(ki.begin(), ki.end(), '\n', ' ');
    return ki.empty() ? "*" : ki;
}

std::string datumSzoveg(const TPillanat& p) {
    return std::to_string(p.nap) + "." + std::to_string(p.ho) + "." + std::to_string(p.ev);
}

/// Julian day of a record, or a star where its moment is none.
std::string julianSzoveg(const TKvhRekord& r) {
    const TPillanat& p = r.pillanat;
    const auto datum = AafDatum(datumSzoveg(p));
    const auto ido = AafIdo(AafIdoSzoveg(p.ora, p.perc, p.mperc));
    if (!datum || !ido || p.ev < 1) return "*";
    const std::int64_t eltolas = (std::int64_t{r.idozona} + r.nyariIdo) * 3600;
    if (std::abs(eltolas) > napMasodperc) return "*";
    return AafJulianSzoveg(AafNapSzam(p.ev, p.ho, p.nap) * napMasodperc + *ido - eltolas);
}

std::string nyariIdoSzoveg(std::int32_t orak) {
    return orak >= 0 && orak <= 2 ? std::to_string(orak) : "*";
}

/// Chunk of a person or an event, and the chunk of its moment and place.
std::string szakaszIras(std::string_view fej, std::string_view csalad, std::string_view utonev,
                        std::string_view fajta, const TKvhRekord& r) {
    const TPillanat& p = r.pillanat;
    std::string ki = "#" + std::string(fej) + ":" + mezoSzoveg(csalad) + "," + mezoSzoveg(utonev) + ",";
    ki.append(fajta).append("," + datumSzoveg(p) + "," + AafIdoSzoveg(p.ora, p.perc, p.mperc) + ",");
    ki.append(mezoSzoveg(r.helyseg)).append(",").append(irtOrszag(r.helyseg)).append(sorVege);
    ki += "#B93:" + julianSzoveg(r) + "," + AafSzelessegSzoveg(r.szelesseg) + "," +
          AafHosszusagSzoveg(r.hosszusag) + "," + AafZonaSzoveg(r.idozona) + "," + nyariIdoSzoveg(r.nyariIdo);
    return ki.append(sorVege);
}

/// A line of remark: a line end within it would begin what it likes.
std::string megjegyzesIras(std::string_view darab, std::string_view eleje, std::string_view szoveg) {
    std::string ki = std::string("#").append(darab).append(":").append(eleje).append(szoveg);
    std::replace(ki.begin(), ki.end(), '\n', ' ');
    return ki.append(sorVege);
}

std::string jegyzetIras(std::string_view jegyzet) {
    std::string ki;
    while (true) {
        const std::size_t vege = std::min(jegyzet.find('\n'), jegyzet.size());
        const std::string_view sor = jegyzet.substr(0, vege);
        if (sor.starts_with(forrasElo))
            ki += megjegyzesIras("SRC", "", sor.substr(forrasElo.size()));
        else if (sor.starts_with(kozreadoElo))
            ki += megjegyzesIras("VIA", "", sor.substr(kozreadoElo.size()));
        else
            ki += megjegyzesIras("COM", "", sor);
        if (vege == jegyzet.size()) return ki;
        jegyzet.remove_prefix(vege + 1);
    }
}

}  // namespace

std::string AafFejlec() {
    return std::string("#:Korvend").append(sorVege);
}

std::string AafIras(const TAdatlap& lap) {
    const TKvhRekord& r = lap.keplet.adat;
    const std::string nev = r.nev.empty() ? "" : mezoSzoveg(r.nev);
    const std::size_t koz = std::min(nev.find(' '), nev.size());
    const std::string utonev = koz == nev.size() ? "" : nev.substr(koz + 1);
    std::string ki = szakaszIras("A93", nev.substr(0, koz), utonev, kepletFajta, r);
    if (!r.hang.empty()) ki += megjegyzesIras("COM", hangElo, r.hang);
    if (!r.jegyzet.empty()) ki += jegyzetIras(r.jegyzet);
    for (const TAdatRekord& esemeny : lap.esemenyek) {
        const TKvhRekord& e = esemeny.adat;
        ki += szakaszIras("SUB", e.nev, "", esemenyFajta, e);
        if (!e.jegyzet.empty()) ki += megjegyzesIras("COM", analogiaElo, e.jegyzet);
        if (!e.hang.empty()) ki += megjegyzesIras("COM", solarElo, e.hang);
    }
    return ki;
}
