#include "atalakitas.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "adatjson.h"
#include "commands/kvhfajl.h"
#include "events/eletesemenyek.h"
#include "fajlok.h"
#include "files/aaf.h"
#include "files/adatellenorzes.h"
#include "files/csv.h"
#include "files/fajlmuvelet.h"
#include "files/kodlap1250.h"
#include "kvhfajlok.h"

namespace fs = std::filesystem;

namespace {

/// A chart with the name of the file that it comes from.
struct TForrasLap {
    std::string forras;
    TAdatlap lap;
};
using TForrasLapok = std::vector<TForrasLap>;

class TBeolvaso {
public:
    TBeolvaso(const TParancs& parancs, TJelento& jelento) : parancs_(parancs), jelento_(jelento) {}

    TForrasLapok olvas() {
        if (parancs_.beFormatum == TFormatum::kvh) {
            kvhFajlok();
        } else {
            szovegfajl();
        }
        if (olvasott == 0 && !vanHiba_)
            jelento_.jelent(UtvonalSzoveg(parancs_.be), {TJelentesFajta::hiba, 0, "nincs benne képlet"});
        return std::move(lapok_);
    }

    std::size_t olvasott = 0;

private:
    void kvhFajlok() {
        const auto utak = KvhFajlok(parancs_.be);
        if (!utak) nemOlvashato(UtvonalSzoveg(parancs_.be));
        for (const fs::path& ut : utak.value_or(std::vector<fs::path>{}))
            atvesz(UtvonalSzoveg(ut), KvhFajlOlvasas(ut));
    }

    void nemOlvashato(const std::string& forras) {
        atvesz(forras, {{}, {{TJelentesFajta::hiba, 0, "nem olvasható"}}});
    }

    void szovegfajl() {
        const std::string forras = UtvonalSzoveg(parancs_.be);
        const auto bajtok = FajlBajtok(parancs_.be);
        if (!bajtok) return nemOlvashato(forras);
        switch (parancs_.beFormatum) {
            case TFormatum::aaf:
                return atvesz(forras, AafOlvasas(*bajtok, parancs_.beKodlap.value_or(TKodlap::cp1252)));
            case TFormatum::csv:
                return atvesz(forras, CsvOlvasas(*bajtok, parancs_.beKodlap));
            default:
                return atvesz(forras, JsonOlvasas(*bajtok));
        }
    }

    void atvesz(const std::string& forras, TAdatlapok olvasottak) {
        jelento_.jelent(forras, olvasottak.jelentesek);
        vanHiba_ = vanHiba_ || !olvasottak.jelentesek.empty();
        for (TAdatlap& lap : olvasottak.lapok) {
            ++olvasott;
            if (ellenoriz(forras, lap)) lapok_.push_back({forras, std::move(lap)});
        }
    }

    /// Checks and completes a chart and its events.
    /// @return false if the chart is left out
    bool ellenoriz(const std::string& forras, TAdatlap& lap) {
        if (!rekord(forras, lap, lap.keplet, 0)) return false;
        std::vector<TAdatRekord> jok;
        for (std::size_t i = 0; i < lap.esemenyek.size(); ++i)
            if (rekord(forras, lap, lap.esemenyek[i], static_cast<int>(i + 1)))
                jok.push_back(lap.esemenyek[i]);
        lap.esemenyek = std::move(jok);
        return true;
    }

    bool rekord(const std::string& forras, const TAdatlap& lap, TAdatRekord& rekord, int esemeny) {
        const auto jelent = [&](TJelentesFajta fajta, const std::string& szoveg) {
            jelento_.jelent(forras,
                            {fajta, rekord.sor, RekordCimke(lap.keplet.adat, esemeny) + ": " + szoveg});
        };
        if (esemeny > 0 && !rekord.van(TMezo::hang)) rekord.adat.hang = "0";  // until its place is known
        const auto hibak = kizaroHibak(rekord.adat, esemeny);
        const bool marad = parancs_.beFormatum == TFormatum::kvh;
        for (const std::string& szoveg : hibak)
            jelent(marad ? TJelentesFajta::elteres : TJelentesFajta::hiba,
                   szoveg + (marad ? "" : "; kimarad"));
        if (!hibak.empty() && !marad) return false;
        std::vector<std::string> kozlesek;
        if (const std::string hianyzik = Kiegeszites(rekord, esemeny > 0, kozlesek); !hianyzik.empty()) {
            jelent(TJelentesFajta::hiba, hianyzik + "; kimarad");
            return false;
        }
        if (esemeny > 0 && !rekord.van(TMezo::hang)) solarNap(lap.keplet.adat, rekord);
        for (const std::string& szoveg : kozlesek) jelent(TJelentesFajta::elteres, szoveg);
        for (const std::string& szoveg : TablaElteresek(rekord.adat)) jelent(TJelentesFajta::elteres, szoveg);
        if (esemeny > 0 || parancs_.beFormatum != TFormatum::aaf)
            for (const std::string& szoveg : SzelessegHibak(rekord.adat))
                jelent(TJelentesFajta::elteres, szoveg);
        return true;
    }

    /// Charts of other programs for which there are no houses here are left out; the program's own are kept.
    std::vector<std::string> kizaroHibak(const TKvhRekord& adat, int esemeny) const {
        auto hibak = TartomanyHibak(adat, esemeny > 0);
        if (esemeny == 0 && parancs_.beFormatum == TFormatum::aaf)
            for (std::string& szoveg : SzelessegHibak(adat)) hibak.push_back(std::move(szoveg));
        return hibak;
    }

    static void solarNap(const TKvhRekord& keplet, TAdatRekord& esemeny) {
        esemeny.adat.hang = std::to_string(
            EsemenySolarNap({keplet.pillanat, keplet.nyariIdo, keplet.idozona, keplet.hosszusag},
                            EsemenyOlvasas(esemeny.adat).value_or(TEletesemeny{})));
        esemeny.hianyzo(TMezo::hang, false);
    }

    const TParancs& parancs_;
    TJelento& jelento_;
    TForrasLapok lapok_;
    bool vanHiba_ = false;
};

class TKiiro {
public:
    TKiiro(const TParancs& parancs, TJelento& jelento) : parancs_(parancs), jelento_(jelento) {}

    std::size_t ir(const TForrasLapok& lapok) {
        if (lapok.empty()) return 0;
        if (parancs_.kiFormatum == TFormatum::kvh) return mappaba(lapok);
        std::string bajtok = fejlec(lapok);
        for (std::size_t i = 0; i < lapok.size(); ++i) bajtok += rekord(lapok[i], i + 1 == lapok.size());
        bajtok += veg();
        if (FajlbaIr(parancs_.ki, bajtok)) return lapok.size();
        jelento_.jelent(UtvonalSzoveg(parancs_.ki), {TJelentesFajta::hiba, 0, "nem írható"});
        return 0;
    }

private:
    std::size_t mappaba(const TForrasLapok& lapok) {
        std::error_code hiba;
        fs::create_directories(parancs_.ki, hiba);
        if (!fs::is_directory(parancs_.ki, hiba)) {
            jelento_.jelent(UtvonalSzoveg(parancs_.ki),
                            {TJelentesFajta::hiba, 0, "a mappa nem hozható létre"});
            return 0;
        }
        TFajlNevek nevek;
        std::size_t irt = 0;
        for (const TForrasLap& f : lapok) {
            const fs::path ut = parancs_.ki / FajlUt(nevek.uj(f.lap.keplet.adat.nev) + ".kvh");
            if (kvhFajl(f, ut)) ++irt;
        }
        return irt;
    }

    bool kvhFajl(const TForrasLap& f, const fs::path& ut) {
        std::error_code hiba;
        if (!parancs_.felulir && fs::exists(fs::symlink_status(ut, hiba))) {
            jelent(f, TJelentesFajta::hiba, "már létezik, --felulir írja felül: " + UtvonalSzoveg(ut));
            return false;
        }
        if (const std::string uzenet = KvhFajlIras(f.lap, ut); !uzenet.empty()) {
            jelent(f, TJelentesFajta::hiba, uzenet + " " + UtvonalSzoveg(ut));
            return false;
        }
        osszevet(f, KvhFajlOlvasas(ut));
        return true;
    }

    std::string fejlec(const TForrasLapok& lapok) {
        switch (parancs_.kiFormatum) {
            case TFormatum::aaf:
                return AafFejlec();
            case TFormatum::csv:
                for (const TForrasLap& f : lapok) esemenyek_ = std::max(esemenyek_, f.lap.esemenyek.size());
                return CsvFejlec(esemenyek_, csvMod());
            default:
                return parancs_.soronkent ? "" : "[\n";
        }
    }

    std::string rekord(const TForrasLap& f, bool utolso) {
        switch (parancs_.kiFormatum) {
            case TFormatum::aaf: {
                const std::string szoveg = AafIras(f.lap);
                std::string bajtok = parancs_.kiKodlap ? kodlapra(szoveg) : szoveg;
                osszevet(f, AafOlvasas(bajtok, parancs_.kiKodlap.value_or(TKodlap::cp1252)));
                return bajtok;
            }
            case TFormatum::csv: {
                const std::size_t sajat = f.lap.esemenyek.size();
                osszevet(f, CsvOlvasas(CsvFejlec(sajat, csvMod()) + CsvSor(f.lap, sajat, csvMod())));
                return CsvSor(f.lap, esemenyek_, csvMod());
            }
            default: {
                const std::string szoveg = JsonIras(f.lap);
                osszevet(f, JsonOlvasas(szoveg));
                return szoveg + (utolso || parancs_.soronkent ? "\n" : ",\n");
            }
        }
    }

    std::string veg() const {
        return parancs_.kiFormatum == TFormatum::json && !parancs_.soronkent ? "]\n" : "";
    }

    TCsvMod csvMod() const { return parancs_.excel ? TCsvMod{';', true} : TCsvMod{}; }

    /// Reports what was lost between a chart and what is read of it again.
    void osszevet(const TForrasLap& f, const TAdatlapok& vissza) {
        if (vissza.lapok.size() != 1) {
            std::string oka;
            for (const TJelentes& j : vissza.jelentesek)
                if (j.fajta == TJelentesFajta::hiba) oka = " (" + j.szoveg + ")";
            jelent(f, TJelentesFajta::veszteseg, "a kiírt rekord nem olvasható vissza" + oka);
            return;
        }
        for (const std::string& szoveg : MezoElteresek(f.lap, vissza.lapok[0]))
            jelent(f, TJelentesFajta::veszteseg, szoveg);
    }

    void jelent(const TForrasLap& f, TJelentesFajta fajta, const std::string& szoveg) {
        const TAdatRekord& keplet = f.lap.keplet;
        jelento_.jelent(f.forras, {fajta, keplet.sor, RekordCimke(keplet.adat) + ": " + szoveg});
    }

    const TParancs& parancs_;
    TJelento& jelento_;
    std::size_t esemenyek_ = 0;  ///< that get columns in a table
};

}  // namespace

TEredmeny Atalakitas(const TParancs& parancs, TJelento& jelento) {
    TBeolvaso beolvaso(parancs, jelento);
    const TForrasLapok lapok = beolvaso.olvas();
    return {beolvaso.olvasott, TKiiro(parancs, jelento).ir(lapok)};
}
