#include "parancs.h"

#include <algorithm>
#include <array>
#include <system_error>

#include "fajlok.h"
#include "files/fajlmuvelet.h"

namespace fs = std::filesystem;

namespace {

/// A name in full, without steps that change nothing.
fs::path teljesNev(const fs::path& ut) {
    const fs::path nev = fs::absolute(ut).lexically_normal();
    return nev.has_filename() ? nev : nev.parent_path();
}

/// By what they are; on Windows folders are known by their names alone.
bool ugyanaz(const fs::path& egyik, const fs::path& masik) {
    std::error_code hiba;
    return (fs::equivalent(egyik, masik, hiba) && !hiba) || teljesNev(egyik) == teljesNev(masik);
}

struct TFormatumNev {
    std::string_view nev;
    TFormatum formatum;
};
constexpr std::array<TFormatumNev, 4> formatumNevek{
    {{"kvh", TFormatum::kvh}, {"aaf", TFormatum::aaf}, {"csv", TFormatum::csv}, {"json", TFormatum::json}}};

std::optional<TFormatum> formatum(std::string_view nev) {
    const auto talalat = std::find_if(formatumNevek.begin(), formatumNevek.end(),
                                      [&](const TFormatumNev& f) { return f.nev == nev; });
    if (talalat == formatumNevek.end()) return std::nullopt;
    return talalat->formatum;
}

TFormatum formatumErtek(const std::string& kapcsolo, const std::string& ertek) {
    if (const auto f = formatum(ertek)) return *f;
    throw THasznalatHiba(kapcsolo + ": kvh, aaf, csv vagy json kell, nem „" + ertek + "”");
}

TKodlap kodlapErtek(const std::string& kapcsolo, const std::string& ertek) {
    if (ertek == "1250") return TKodlap::cp1250;
    if (ertek == "1252" && kapcsolo == "--be-kodlap") return TKodlap::cp1252;
    throw THasznalatHiba(kapcsolo + (kapcsolo == "--be-kodlap" ? ": 1250 vagy 1252" : ": 1250") +
                         " kell, nem „" + ertek + "”");
}

/// Format by the ending of a name; nothing for another ending.
std::optional<TFormatum> vegzodesFormatum(const fs::path& ut) {
    const std::string vegzodes = Vegzodes(ut);
    if (vegzodes == ".jsonl") return TFormatum::json;
    return vegzodes.empty() ? std::nullopt : formatum(std::string_view(vegzodes).substr(1));
}

bool mappa(const fs::path& ut) {
    std::error_code hiba;
    return fs::is_directory(ut, hiba);
}

TFormatum beFormatum(const fs::path& ut, std::optional<TFormatum> kert) {
    std::error_code hiba;
    if (!fs::exists(ut, hiba)) throw THasznalatHiba("nincs ilyen fájl vagy mappa: " + UtvonalSzoveg(ut));
    if (mappa(ut)) {
        if (kert.value_or(TFormatum::kvh) == TFormatum::kvh) return TFormatum::kvh;
        throw THasznalatHiba("ez mappa, a formátumához fájl kell: " + UtvonalSzoveg(ut));
    }
    if (kert) return *kert;
    if (const auto f = vegzodesFormatum(ut)) return *f;
    throw THasznalatHiba("a neve nem árulja el a formátumát, --be kell hozzá: " + UtvonalSzoveg(ut));
}

TFormatum kiFormatum(const fs::path& ut, std::optional<TFormatum> kert) {
    std::error_code hiba;
    if (kert) {
        if (*kert == TFormatum::kvh && fs::exists(ut, hiba) && !mappa(ut))
            throw THasznalatHiba("képletfájlok csak mappába írhatók: " + UtvonalSzoveg(ut));
        if (*kert != TFormatum::kvh && mappa(ut))
            throw THasznalatHiba("ez mappa, a formátumához fájl kell: " + UtvonalSzoveg(ut));
        return *kert;
    }
    if (mappa(ut) || !ut.has_filename() || ut.extension().empty()) {
        if (fs::exists(ut, hiba) && !mappa(ut))
            throw THasznalatHiba("a neve nem árulja el a formátumát, --ki kell hozzá: " + UtvonalSzoveg(ut));
        return TFormatum::kvh;
    }
    const auto f = vegzodesFormatum(ut);
    if (f && *f != TFormatum::kvh) return *f;
    if (f) throw THasznalatHiba("képletfájlok csak mappába írhatók: " + UtvonalSzoveg(ut));
    throw THasznalatHiba("a neve nem árulja el a formátumát, --ki kell hozzá: " + UtvonalSzoveg(ut));
}

/// Words of the command line; an option's value stands behind it or behind "=".
class TErtelmezo {
public:
    explicit TErtelmezo(const std::vector<std::string>& szavak) : szavak_(szavak) {}

    TParancs ertelmez() {
        while (hely_ < szavak_.size()) szo(szavak_[hely_++]);
        if (p_.sugo || p_.verzio) return p_;
        if (utak_.size() != 2) throw THasznalatHiba("két név kell: MIBŐL és MIBE");
        p_.be = FajlUt(utak_[0]);
        p_.ki = FajlUt(utak_[1]);
        if (p_.be.empty() || p_.ki.empty()) throw THasznalatHiba("a név nem lehet üres");
        p_.beFormatum = beFormatum(p_.be, be_);
        p_.kiFormatum = kiFormatum(p_.ki, ki_);
        p_.soronkent = Vegzodes(p_.ki) == ".jsonl";
        ellenoriz();
        return p_;
    }

private:
    void szo(const std::string& szo) {
        if (csakNevek_ || szo.size() < 2 || szo[0] != '-') {
            utak_.push_back(szo);
            return;
        }
        if (szo == "--") {
            csakNevek_ = true;
            return;
        }
        const std::size_t egyenlo = szo.find('=');
        const std::string kapcsolo = szo.substr(0, egyenlo);
        std::optional<std::string> ertek;
        if (egyenlo != szo.npos) ertek = szo.substr(egyenlo + 1);
        if (!ertekes(kapcsolo, ertek)) jelzo(kapcsolo, ertek.has_value());
    }

    bool ertekes(const std::string& kapcsolo, const std::optional<std::string>& adott) {
        const auto ertek = [&] {
            if (adott) return *adott;
            if (hely_ < szavak_.size()) return szavak_[hely_++];
            throw THasznalatHiba(kapcsolo + ": érték kell utána");
        };
        if (kapcsolo == "--be")
            be_ = formatumErtek(kapcsolo, ertek());
        else if (kapcsolo == "--ki")
            ki_ = formatumErtek(kapcsolo, ertek());
        else if (kapcsolo == "--be-kodlap")
            p_.beKodlap = kodlapErtek(kapcsolo, ertek());
        else if (kapcsolo == "--ki-kodlap")
            p_.kiKodlap = kodlapErtek(kapcsolo, ertek());
        else
            return false;
        return true;
    }

    void jelzo(const std::string& kapcsolo, bool vanErtek) {
        struct TJelzo {
            std::string_view nev;
            bool TParancs::*mezo;
        };
        constexpr std::array<TJelzo, 4> jelzok{{{"--felulir", &TParancs::felulir},
                                                {"--excel", &TParancs::excel},
                                                {"--help", &TParancs::sugo},
                                                {"--version", &TParancs::verzio}}};
        const auto talalat =
            std::find_if(jelzok.begin(), jelzok.end(), [&](const TJelzo& j) { return j.nev == kapcsolo; });
        if (talalat == jelzok.end()) throw THasznalatHiba("ismeretlen kapcsoló: " + kapcsolo);
        if (vanErtek) throw THasznalatHiba(kapcsolo + ": nincs értéke");
        p_.*(talalat->mezo) = true;
    }

    void ellenoriz() const {
        if (p_.beKodlap && p_.beFormatum != TFormatum::aaf && p_.beFormatum != TFormatum::csv)
            throw THasznalatHiba("--be-kodlap: csak AAF és CSV olvasásakor");
        if (p_.kiKodlap && p_.kiFormatum != TFormatum::aaf)
            throw THasznalatHiba("--ki-kodlap: csak AAF írásakor");
        if (p_.excel && p_.kiFormatum != TFormatum::csv) throw THasznalatHiba("--excel: csak CSV írásakor");
        if (ugyanaz(p_.be, p_.ki)) throw THasznalatHiba("a forrás és a cél ugyanaz: " + UtvonalSzoveg(p_.be));
        std::error_code hiba;
        if (p_.kiFormatum != TFormatum::kvh && !p_.felulir && fs::is_regular_file(p_.ki, hiba))
            throw THasznalatHiba("már létezik, --felulir írja felül: " + UtvonalSzoveg(p_.ki));
    }

    const std::vector<std::string>& szavak_;
    std::size_t hely_ = 0;
    bool csakNevek_ = false;
    std::vector<std::string> utak_;
    std::optional<TFormatum> be_, ki_;
    TParancs p_;
};

}  // namespace

TParancs ParancsErtelmezes(const std::vector<std::string>& szavak) {
    return TErtelmezo(szavak).ertelmez();
}

std::string_view SugoSzoveg() {
    return R"(Használat: korvend-adat [kapcsolók] MIBŐL MIBE

Képletfájlok (.kvh) átalakítása AAF, CSV és JSON fájllá és vissza. MIBŐL és MIBE a nevének végződése szerint
mappa képletfájlokkal (MIBŐL egyetlen .kvh fájl is lehet), .aaf, .csv, .json (tömb) vagy .jsonl (soronként egy
objektum) fájl.

  --be kvh|aaf|csv|json   a forrás formátuma, ha a neve nem árulja el
  --ki kvh|aaf|csv|json   a cél formátuma, ha a neve nem árulja el
  --be-kodlap 1250|1252   így olvassa az AAF és a CSV nem UTF-8 sorait (AAF: 1252, ha nincs megadva)
  --ki-kodlap 1250        az AAF fájlt 1250-es kódlappal írja, nem UTF-8-cal
  --excel                 a CSV pontosvesszővel és bájtsorrendjellel, a magyar Excelnek
  --felulir               a létező fájlokat felülírja
  --help, --version       ez a szöveg; a program változata

A standard hibakimenetre írja, ami nem ment át: a hibás rekordokat (hiba), az elveszett mezőket (veszteség), és
azt, ami a program tábláinak ellentmond, de marad (eltérés).
Kilépési kód: 0 minden rendben, 1 volt hiba vagy veszteség, 2 hibás használat.
)";
}
