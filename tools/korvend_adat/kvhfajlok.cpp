#include "kvhfajlok.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>
#include <sstream>
#include <system_error>
#include <utility>

#include "commands/kvhfajl.h"
#include "fajlok.h"
#include "files/bajtszoveg.h"
#include "files/kvhrekord.h"
#include "tables/szoveg.h"

namespace fs = std::filesystem;

std::optional<std::vector<fs::path>> KvhFajlok(const fs::path& ut) {
    std::error_code hiba;
    if (!fs::is_directory(ut, hiba)) return std::vector{ut};
    std::vector<fs::path> fajlok;
    for (fs::directory_iterator elem(ut, hiba), vege; !hiba && elem != vege; elem.increment(hiba))
        if (std::error_code nincs; Vegzodes(elem->path()) == ".kvh" && elem->is_regular_file(nincs))
            fajlok.push_back(elem->path());
    if (hiba) return std::nullopt;
    std::sort(fajlok.begin(), fajlok.end(), [](const fs::path& a, const fs::path& b) {
        return std::pair(SzamozottNev(UtvonalSzoveg(a.stem())), a) <
               std::pair(SzamozottNev(UtvonalSzoveg(b.stem())), b);
    });
    return fajlok;
}

namespace {

constexpr std::size_t legtobbBajt = kvhRekordHossz * (adatEsemenyek + 1);

std::string_view rekordBajtok(std::string_view bajtok, std::size_t hanyadik) {
    return bajtok.substr(hanyadik * kvhRekordHossz, kvhRekordHossz);
}

TKvhRekord rekord(std::string_view bajtok, std::size_t hanyadik) {
    TKvhBajtok tar{};
    const std::string_view reszlet = rekordBajtok(bajtok, hanyadik);
    std::copy(reszlet.begin(), reszlet.end(), tar.begin());
    return KvhDekodolas(tar);
}

/// Why the program does not read the file.
std::string rosszOka(std::string_view bajtok, const std::string& uzenet) {
    if (bajtok.size() < kvhRekordHossz)
        return "csonka, " + std::to_string(bajtok.size()) + " bájt; egy rekord " +
               std::to_string(kvhRekordHossz);
    const std::int32_t szam = rekord(bajtok, 0).esemenySzam;
    if (szam < 0 || szam > static_cast<std::int32_t>(adatEsemenyek))
        return "az események száma " + std::to_string(szam) + ", 0 és 20 között kell lennie";
    const std::size_t teljes = bajtok.size() / kvhRekordHossz - 1;
    if (teljes < static_cast<std::size_t>(szam))
        return "csonka, " + std::to_string(szam) + " eseményből " + std::to_string(teljes) + " van meg";
    for (std::size_t i = 1; i <= static_cast<std::size_t>(szam); ++i)
        if (const std::string hang = rekord(bajtok, i).hang; !szamErtek(hang))
            return std::to_string(i) + ". esemény: a Nap háza nem szám, " + Idezve(hang);
    return uzenet;
}

/// A text field of a record: its place and size.
struct TSzovegHely {
    std::size_t hely;
    std::size_t meret;
    TMezo mezo;
};
constexpr TSzovegHely szovegHelyek[]{
    {0, 32, TMezo::nev}, {68, 32, TMezo::helyseg}, {112, 255, TMezo::jegyzet}, {372, 255, TMezo::hang}};

/// What a record holds that is not carried on.
void rekordJelentes(std::string_view bajtok, int esemeny, const TKvhRekord& keplet, TJelentesek& ki) {
    const std::string cimke = RekordCimke(keplet, esemeny) + ": ";
    for (const TSzovegHely& h : szovegHelyek) {
        const TMezoLeiras& leiras = adatMezok[static_cast<std::size_t>(h.mezo)];
        const std::string nev(esemeny == 0 ? leiras.nev : leiras.esemenyNev);
        const auto hossz = static_cast<std::size_t>(static_cast<unsigned char>(bajtok[h.hely]));
        if (hossz > h.meret)
            ki.push_back({TJelentesFajta::elteres, 0,
                          cimke + nev + ": a hosszbájt " + std::to_string(hossz) + ", a program " +
                              std::to_string(h.meret) + " bájtot olvas"});
        int hianyok = 0;
        KodlapSzoveg(bajtok.substr(h.hely + 1, std::min(hossz, h.meret)), TKodlap::cp1250, hianyok);
        if (hianyok > 0)
            ki.push_back(
                {TJelentesFajta::veszteseg, 0,
                 cimke + nev + ": " + std::to_string(hianyok) + " bájt nem karakter, „?” áll helyette"});
    }
}

TAdatRekord esemenyRekord(std::string_view bajtok, int szam, const TKvhRekord& keplet, TJelentesek& ki) {
    TAdatRekord e;
    e.adat = rekord(bajtok, static_cast<std::size_t>(szam));
    rekordJelentes(rekordBajtok(bajtok, static_cast<std::size_t>(szam)), szam, keplet, ki);
    const std::string cimke = RekordCimke(keplet, szam) + ": ";
    if (e.adat.esemenySzam != szam)
        ki.push_back({TJelentesFajta::elteres, 0,
                      cimke + "a sorszáma " + std::to_string(e.adat.esemenySzam) + " volt"});
    const std::string haz = std::to_string(szamErtek(e.adat.hang).value_or(0));
    if (haz != e.adat.hang)
        ki.push_back(
            {TJelentesFajta::elteres, 0, cimke + "solarNap: " + Idezve(e.adat.hang) + ", azaz " + haz});
    e.adat.hang = haz;
    e.adat.esemenySzam = 0;
    return e;
}

}  // namespace

TAdatlapok KvhOlvasas(std::string_view bajtok) {
    TAdatlapok ki;
    Allapot allapot;
    std::istringstream be{std::string(bajtok)};
    if (const TKvhHiba uzenet = KepletBeolvasas(allapot, be)) {
        ki.jelentesek.push_back({TJelentesFajta::hiba, 0, rosszOka(bajtok, *uzenet) + "; kimarad"});
        return ki;
    }
    TAdatlap lap;
    lap.keplet.adat = rekord(bajtok, 0);
    const int esemenyek = lap.keplet.adat.esemenySzam;
    lap.keplet.adat.esemenySzam = 0;
    rekordJelentes(rekordBajtok(bajtok, 0), 0, lap.keplet.adat, ki.jelentesek);
    for (int i = 1; i <= esemenyek; ++i)
        lap.esemenyek.push_back(esemenyRekord(bajtok, i, lap.keplet.adat, ki.jelentesek));
    if (bajtok.size() > kvhRekordHossz * static_cast<std::size_t>(esemenyek + 1))
        ki.jelentesek.push_back({TJelentesFajta::veszteseg, 0,
                                 RekordCimke(lap.keplet.adat) + ": bájtok a rekordok után, kimaradnak"});
    ki.lapok.push_back(std::move(lap));
    return ki;
}

TAdatlapok KvhFajlOlvasas(const fs::path& ut) {
    const auto bajtok = FajlBajtok(ut, legtobbBajt + 1);
    if (bajtok) return KvhOlvasas(*bajtok);
    return {{}, {{TJelentesFajta::hiba, 0, "nem olvasható; kimarad"}}};
}

std::string KvhFajlIras(const TAdatlap& lap, const fs::path& ut) {
    const TKvhRekord& r = lap.keplet.adat;
    Allapot allapot;
    allapot.Szemely.nev = r.nev;
    // More than the field holds would only be coded in vain.
    allapot.Szemely.jegyzet = elsoKarakterek(r.jegyzet, 256);
    allapot.Szemely.hangJel = elsoKarakterek(r.hang, 256);
    allapot.Keplet.pillanat = r.pillanat;
    allapot.Keplet.idozona = r.idozona;
    allapot.Keplet.nyariIdo = r.nyariIdo;
    allapot.Keplet.helyseg = r.helyseg;
    allapot.Keplet.hosszusag = r.hosszusag;
    allapot.Keplet.szelesseg = r.szelesseg;
    for (const TAdatRekord& esemeny : lap.esemenyek) {
        if (allapot.Esemenyek.EsemenyDb == esemenyHelyek) break;
        allapot.Esemenyek.esemenyek[++allapot.Esemenyek.EsemenyDb] =
            EsemenyOlvasas(esemeny.adat).value_or(TEletesemeny{});
    }
    return KepletMentes(allapot, UtvonalSzoveg(ut)).value_or("");
}
