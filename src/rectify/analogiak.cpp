#include "rectify/analogiak.h"

#include <algorithm>
#include <utility>

#include "engine/keszlet.h"
#include "engine/mundantablak.h"
#include "engine/uralkodok.h"
#include "tables/szamtan.h"
#include "tables/szotar.h"
#include "tables/tomb.h"

namespace {

/// Cells that keep no partner although their rows have one.
struct TCella {
    int sor, oszlop;
};
constexpr std::array<TCella, 5> kihagyottCellak{{{3, 6}, {6, 3}, {7, 8}, {8, 7}, {9, 3}}};

constexpr bool kihagyott(int i, int k) {
    return std::any_of(kihagyottCellak.begin(), kihagyottCellak.end(),
                       [&](const TCella& c) { return c.sor == i && c.oszlop == k; });
}

/// Partners in a cell, or nothing. Pluto's two cells come last and win over the rows of Venus and Mars.
const TFenyszogPar* parCella(const TMundanLanc& lanc, int i, int k) {
    if (k == plutoSor)
        for (const auto& [masik, par] : plutoParok)
            if (i == masik && kemenyFenyszog(lanc, plutoSor, masik)) return &par;
    if (i == plutoSor || !kemenyFenyszog(lanc, i, k) || kihagyott(i, k)) return nullptr;
    return &FenyszogParok[i];
}

/// Partner signs that each body gets: the cells of its column.
Tomb<TJegyHalmaz, 10> oszlopJegyek(const TMundanLanc& lanc) {
    Tomb<TJegyHalmaz, 10> jegyek;
    for (int i = 1; i <= 10; ++i)
        for (int k = 1; k <= 10; ++k)
            if (const TFenyszogPar* par = parCella(lanc, i, k)) jegyek[k] |= jegyHalmaz(par->jegyek);
    return jegyek;
}

}  // namespace

TAnalogiak Analogiak(const TMundanLanc& lanc) {
    const TMundanKeszletek k = MundanKeszletek(lanc, oszlopJegyek(lanc));
    const auto mundan = [&](int n) { return jegyTarsai(n) | k.jegyben[n] | k.urak[n]; };

    TAnalogiak eredmeny;
    for (int n = 1; n <= 12; ++n) {
        const int jegy = csucsJegye(lanc.Hazcsucsok[n]);
        const TJegyHalmaz horizont = jegyTarsai(jegy) | k.hazban[n] | k.csucsUrai(jegy);
        eredmeny.HazEgyezes += (mundan(n) & horizont) != 0 ? '1' : '0';
    }
    if (eredmeny.HazEgyezes.find('0') != std::string::npos) return eredmeny;

    const bool tengely = std::any_of(sarokHazak.begin(), sarokHazak.end(), [&](int n) {
        const int dekad = egesz(DekadHazSzamitas(lanc.Hazcsucsok[n]));
        return (mundan(n) & jegyTarsai(dekad)) != 0;
    });
    eredmeny.AnalogiaAllapot = tengely ? '1' : '2';
    return eredmeny;
}

namespace {

constexpr std::array<std::string_view, 6> sorFeliratok{
    "Ház ura:", "Házura jegyben:", "Házura házban:", "Házura együttáll:", "Házban állnak:", "Fényszögpárok:"};

constexpr std::size_t horizontKezdet = 8;  ///< its first row, counted from 0

/// Body letters of the conjunctions of a body, after one blank.
std::string egyuttallok(const TMundanLanc& lanc, int bolygo) {
    std::string szoveg = " ";
    for (int k = 1; k <= 10; ++k)
        if (lanc.EgyuttallasMatrix[bolygo][k] == 'M') szoveg += bolygoJel[k];
    return szoveg;
}

std::string fenyszogParok(const TMundanLanc& lanc, int bolygo) {
    std::string szoveg;
    for (int i = 1; i <= 10; ++i)
        if (const TFenyszogPar* par = parCella(lanc, i, bolygo)) szoveg += par->betuk;
    return szoveg;
}

/// The items of one ruler, in the order of the captions; the fifth is not the ruler's.
std::array<std::string, sorFeliratok.size()> uralkodoOszlop(const TMundanLanc& lanc, char betu) {
    const int b = betuBolygo(betu);
    if (b == 0) return {" "};
    const int haz = lanc.BolygoHazak[b];
    return {std::string(1, betu),
            std::string(jegyBetu(lanc.JegySzam[b])),
            haz >= 1 ? std::string(HazCimkeRovid[haz]) : std::string(),
            egyuttallok(lanc, b),
            "",
            fenyszogParok(lanc, b)};
}

/// One half of the rows.
/// @param jegy    sign whose rulers are shown
/// @param allnak  bodies standing in the house
void felFeltoltes(std::array<TAnalogiaSor, analogiaSorok>& sorok, std::size_t kezdet, const TMundanLanc& lanc,
                  std::string cim, int jegy, std::string allnak) {
    const std::string_view urak = jegy >= 1 && jegy <= 12 ? JegyUrai[jegy] : std::string_view("  ");
    auto elso = uralkodoOszlop(lanc, urak[0]);
    auto masodik = uralkodoOszlop(lanc, urak[1]);
    elso[4] = std::move(allnak);
    sorok[kezdet] = {std::move(cim), std::string(jegyBetu(jegy)), ""};
    for (std::size_t i = 0; i < sorFeliratok.size(); ++i)
        sorok[kezdet + 1 + i] = {std::string(sorFeliratok[i]), std::move(elso[i]), std::move(masodik[i])};
    for (std::size_t i = kezdet; i <= kezdet + sorFeliratok.size(); ++i) {
        sorok[i].oszlop2 += "    ";
        sorok[i].oszlop3 += "    ";
    }
}

/// Letters of the bodies whose place is the house, after one blank.
std::string allok(const Tomb<int, 10>& helyek, int haz) {
    std::string szoveg = " ";
    for (int b = 1; b <= 10; ++b)
        if (helyek[b] == haz) szoveg += bolygoJel[b];
    return szoveg;
}

}  // namespace

std::array<TAnalogiaSor, analogiaSorok> AnalogiaSorok(const TMundanLanc& lanc, int haz) {
    std::array<TAnalogiaSor, analogiaSorok> sorok;
    const std::string cimke(HazCimke(haz));
    felFeltoltes(sorok, 0, lanc, cimke + "-es Mundánház:  ", haz, allok(lanc.JegySzam, haz));
    felFeltoltes(sorok, horizontKezdet, lanc, cimke + "-es Horizontház:  ", csucsJegye(lanc.Hazcsucsok[haz]),
                 allok(lanc.BolygoHazak, haz));
    return sorok;
}

const TAnalogiaVerdikt& AnalogiaVerdikt(char AnalogiaAllapot) {
    static constexpr std::array<TAnalogiaVerdikt, 3> verdiktek{
        {{"Mundánházak és horizontházak", "analógiái NEM egyeznek!", VerdiktSzin::piros},
         {"Mundánházak és horizontházak", "analógiái egyeznek.", VerdiktSzin::kek},
         {"Egyik tengely sem egyezik dekádban!", "", VerdiktSzin::piros}}};
    return verdiktek[static_cast<std::size_t>(std::clamp(AnalogiaAllapot - '0', 0, 2))];
}
