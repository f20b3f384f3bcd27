#include "files/adatlap.h"

#include <cstdio>
#include <cstdlib>

#include "tables/szoveg.h"

namespace {

constexpr std::int32_t fokban(std::int32_t fok) {
    return fok * 3600;
}

using F = TMezoFajta;
using R = TKvhRekord;
using P = TPillanat;

}  // namespace

const std::array<TMezoLeiras, mezoSzam> adatMezok{{
    {TMezo::nev, "nev", "esemeny", F::szoveg, &R::nev},
    {TMezo::ev, "ev", "ev", F::szam, nullptr, nullptr, &P::ev, 1900, 2078},
    {TMezo::ho, "ho", "ho", F::szam, nullptr, nullptr, &P::ho, 1, 12},
    {TMezo::nap, "nap", "nap", F::szam, nullptr, nullptr, &P::nap, 1, 31},
    {TMezo::ora, "ora", "ora", F::szam, nullptr, nullptr, &P::ora, 0, 23},
    {TMezo::perc, "perc", "perc", F::szam, nullptr, nullptr, &P::perc, 0, 59},
    {TMezo::mperc, "mperc", "mperc", F::szam, nullptr, nullptr, &P::mperc, 0, 59},
    {TMezo::idozona, "idozona", "idozona", F::szam, nullptr, &R::idozona, nullptr, -12, 12},
    {TMezo::nyariIdo, "nyariIdo", "nyariIdo", F::szam, nullptr, &R::nyariIdo, nullptr, 0, 1},
    {TMezo::helyseg, "helyseg", "helyseg", F::szoveg, &R::helyseg},
    {TMezo::hosszusag, "hosszusag", "hosszusag", F::hosszusag, nullptr, &R::hosszusag, nullptr, fokban(-180),
     fokban(180)},
    {TMezo::szelesseg, "szelesseg", "szelesseg", F::szelesseg, nullptr, &R::szelesseg, nullptr, fokban(-90),
     fokban(90)},
    {TMezo::jegyzet, "jegyzet", "analogia", F::szoveg, &R::jegyzet},
    {TMezo::hang, "hang", "solarNap", F::szoveg, &R::hang},
}};

std::int32_t& MezoSzam(TKvhRekord& rekord, const TMezoLeiras& leiras) {
    return leiras.pillanat ? rekord.pillanat.*leiras.pillanat : rekord.*leiras.szam;
}

std::int32_t MezoSzam(const TKvhRekord& rekord, const TMezoLeiras& leiras) {
    return leiras.pillanat ? rekord.pillanat.*leiras.pillanat : rekord.*leiras.szam;
}

namespace {

/// A byte that would spoil a message, as programmers write it.
std::string kodolt(char c) {
    switch (c) {
        case '\n':
            return "\\n";
        case '\r':
            return "\\r";
        case '\t':
            return "\\t";
        default:
            break;
    }
    char szoveg[8];
    std::snprintf(szoveg, sizeof szoveg, "\\x%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
    return szoveg;
}

bool vezerlo(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

}  // namespace

std::string Idezve(std::string_view szoveg) {
    constexpr int leghosszabb = 60;
    std::string ki = "„";
    std::string_view eleje = elsoKarakterek(szoveg, leghosszabb);
    const bool vagott = eleje.size() < szoveg.size();
    while (!eleje.empty()) {
        const std::string_view karakter = eleje.substr(0, karakterHossz(eleje));
        if (!vezerlo(karakter[0]) && ervenyesUtf8(karakter))
            ki += karakter;
        else
            for (const char c : karakter) ki += kodolt(c);
        eleje.remove_prefix(karakter.size());
    }
    return ki + (vagott ? "…”" : "”");
}

std::string RekordCimke(const TKvhRekord& keplet, int esemeny) {
    std::string cimke = keplet.nev.empty() ? "névtelen" : Idezve(keplet.nev);
    if (esemeny > 0) cimke += ", " + std::to_string(esemeny) + ". esemény";
    return cimke;
}

std::string FokSzoveg(std::int32_t ivmasodperc, bool szelesseg) {
    const std::int64_t nagysag = std::abs(std::int64_t{ivmasodperc});
    const auto perc = static_cast<int>(nagysag / 60 % 60);
    const auto masodperc = static_cast<int>(nagysag % 60);
    std::string ki = std::to_string(nagysag / 3600) + "°" + ketJegy(perc) + "'";
    if (masodperc != 0) ki += ketJegy(masodperc) + "\"";
    if (szelesseg) return ki + (ivmasodperc < 0 ? "D" : "É");
    return ki + (ivmasodperc < 0 ? "Ny" : "K");
}

namespace {

/// How a text came back different: with question marks in place of characters, cut, or otherwise.
class TSzovegKulonbseg {
public:
    TSzovegKulonbseg(std::string_view eredeti, std::string_view vissza) : eredeti_(eredeti), vissza_(vissza) {
        std::string_view a = eredeti;
        std::string_view b = vissza;
        while (!a.empty() && !b.empty()) {
            const std::string_view x = a.substr(0, karakterHossz(a));
            const std::string_view y = b.substr(0, karakterHossz(b));
            a.remove_prefix(x.size());
            b.remove_prefix(y.size());
            if (x != y) kulonbozik(x, y);
        }
        levagva_ = !a.empty();
        mas_ = mas_ || !b.empty();
    }

    std::string szoveg() const {
        if (mas_) return Idezve(eredeti_) + " helyett " + Idezve(vissza_);
        std::string ki;
        if (cserek_ > 0)
            ki = std::to_string(cserek_) + " karakter helyén „?” áll, mert a kódlapból hiányzik: " + cserelt_;
        if (levagva_)
            ki += (ki.empty() ? "" : "; ") + std::string("levágva, ") +
                  std::to_string(karakterSzam(eredeti_)) + " karakterből " +
                  std::to_string(karakterSzam(vissza_)) + " maradt";
        return ki;
    }

private:
    void kulonbozik(std::string_view x, std::string_view y) {
        constexpr int mutatott = 5;
        if (y != "?") {
            mas_ = true;
            return;
        }
        if (++cserek_ <= mutatott) cserelt_ += (cserelt_.empty() ? "" : ", ") + Idezve(x);
        if (cserek_ == mutatott + 1) cserelt_ += ", …";
    }

    std::string_view eredeti_, vissza_;
    int cserek_ = 0;
    std::string cserelt_;
    bool levagva_ = false;
    bool mas_ = false;
};

std::string szamSzoveg(std::int32_t szam, TMezoFajta fajta) {
    if (fajta == TMezoFajta::szam) return std::to_string(szam);
    return FokSzoveg(szam, fajta == TMezoFajta::szelesseg);
}

void rekordElteresek(const TKvhRekord& eredeti, const TKvhRekord& vissza, int esemeny,
                     std::vector<std::string>& ki) {
    const std::string eleje = esemeny == 0 ? "" : std::to_string(esemeny) + ". esemény: ";
    for (const TMezoLeiras& leiras : adatMezok) {
        const std::string nev = eleje + std::string(esemeny == 0 ? leiras.nev : leiras.esemenyNev) + ": ";
        if (leiras.szoveg) {
            const std::string& a = eredeti.*leiras.szoveg;
            const std::string& b = vissza.*leiras.szoveg;
            if (a != b) ki.push_back(nev + TSzovegKulonbseg(a, b).szoveg());
        } else if (const auto a = MezoSzam(eredeti, leiras), b = MezoSzam(vissza, leiras); a != b) {
            ki.push_back(nev + szamSzoveg(a, leiras.fajta) + " helyett " + szamSzoveg(b, leiras.fajta));
        }
    }
}

bool azonosak(const TKvhRekord& a, const TKvhRekord& b) {
    std::vector<std::string> elteresek;
    rekordElteresek(a, b, 0, elteresek);
    return elteresek.empty();
}

}  // namespace

std::vector<std::string> MezoElteresek(const TAdatlap& eredeti, const TAdatlap& vissza) {
    std::vector<std::string> ki;
    rekordElteresek(eredeti.keplet.adat, vissza.keplet.adat, 0, ki);
    std::size_t hany = 0;  // events of `vissza` that have found their pair
    for (std::size_t i = 0; i < eredeti.esemenyek.size(); ++i) {
        const TKvhRekord& esemeny = eredeti.esemenyek[i].adat;
        const auto szam = static_cast<int>(i + 1);
        // As long as some are missing only an equal one is the pair.
        const bool elfogyott = hany == vissza.esemenyek.size();
        const bool hianyos = eredeti.esemenyek.size() - i > vissza.esemenyek.size() - hany;
        if (elfogyott || (hianyos && !azonosak(esemeny, vissza.esemenyek[hany].adat)))
            ki.push_back(std::to_string(szam) + ". esemény: " + Idezve(esemeny.nev) + " kimarad");
        else
            rekordElteresek(esemeny, vissza.esemenyek[hany++].adat, szam, ki);
    }
    return ki;
}
