#include "predictive/olvashato.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "chart/statuszsor.h"
#include "predictive/primer.h"
#include "predictive/tercier.h"
#include "tables/szotar.h"
#include "tables/tomb.h"

namespace {

constexpr Tomb<std::string_view, 10> bolygoNevek{
    {"Nap", "Hold", "Merkúr", "Vénusz", "Mars", "Jupiter", "Szaturnusz", "Uránusz", "Neptun", "Plutó"}};
constexpr Tomb<std::string_view, 12> jegyNevek{{"Kos", "Bika", "Ikrek", "Rák", "Oroszlán", "Szűz", "Mérleg",
                                                "Skorpió", "Nyilas", "Bak", "Vízöntő", "Halak"}};
constexpr Tomb<std::string_view, 9> fenyszogNevek{
    {"együttállás", "30°", "45°", "60°", "90°", "120°", "135°", "150°", "szembenállás"}};

constexpr std::array<std::string_view, iranyOszlopok> primerFejek{"dMC", "cMC", "dAsc", "cAsc"};
constexpr std::array<std::string_view, iranyOszlopok> pontositasFejek{"dMc", "cMc", "dAsc", "cAsc"};
constexpr std::string_view semmi = "–";

/// Name of a letter in its table, empty if it is not there.
template <std::size_t N>
std::string_view nev(const Tomb<char, N>& jelek, const Tomb<std::string_view, N>& nevek, char jel) {
    const auto hely = std::find(jelek.begin(), jelek.end(), jel);
    return hely == jelek.end() ? std::string_view{} : *(nevek.begin() + (hely - jelek.begin()));
}
std::string_view bolygoNev(char jel) {
    return nev(bolygoJel, bolygoNevek, jel);
}
std::string_view fenyszogNev(char jel) {
    return nev(fenyszogJel, fenyszogNevek, jel);
}

/// Takes what stands before a sign off the front of a text, the sign too; all of it if the sign is missing.
std::string_view levesz(std::string_view& szoveg, char jelig) {
    const std::size_t hossz = std::min(szoveg.find(jelig), szoveg.size());
    const std::string_view eleje = szoveg.substr(0, hossz);
    szoveg.remove_prefix(std::min(hossz + 1, szoveg.size()));
    return eleje;
}

/// Takes leading blanks off. @return how many
std::size_t kozokLe(std::string_view& szoveg) {
    const std::size_t kozok = std::min(szoveg.find_first_not_of(' '), szoveg.size());
    szoveg.remove_prefix(kozok);
    return kozok;
}

/// House label written with the font's Roman figures.
std::string hazSzoveg(std::string_view jelek) {
    constexpr std::string_view betuk = "wvx";
    constexpr std::string_view romaiak = "IVX";
    std::string haz(jelek.empty() ? semmi : jelek);
    for (char& c : haz)
        if (const std::size_t hely = betuk.find(c); hely != betuk.npos) c = romaiak[hely];
    return haz;
}

bool parokbolAll(std::string_view jelek) {
    if (jelek.empty() || jelek.size() % 2 != 0) return false;
    for (std::size_t i = 0; i < jelek.size(); i += 2)
        if (bolygoNev(jelek[i]).empty() || fenyszogNev(jelek[i + 1]).empty()) return false;
    return true;
}

std::string felsorolas(const std::vector<std::string>& tetelek, std::string_view koz) {
    std::string szoveg;
    for (const std::string& tetel : tetelek) szoveg.append(szoveg.empty() ? "" : koz).append(tetel);
    return szoveg;
}

}  // namespace

std::string JelNev(char jel) {
    for (const std::string_view talalt : {bolygoNev(jel), nev(jegyJel, jegyNevek, jel), fenyszogNev(jel)})
        if (!talalt.empty()) return std::string(talalt);
    return std::string(1, jel);
}

std::string OlvashatoParok(std::string_view jelek) {
    if (!parokbolAll(jelek)) return std::string(jelek);
    std::vector<std::string> parok;
    for (std::size_t i = 0; i < jelek.size(); i += 2)
        parok.push_back(JelNev(jelek[i]) + " " + JelNev(jelek[i + 1]));
    return felsorolas(parok, ", ");
}

std::string OlvashatoPrimer(std::string_view sor) {
    constexpr std::size_t datumUtaniKozok = 3;
    std::string_view maradek = sor;
    const std::string_view datum = levesz(maradek, ' ');
    maradek.remove_prefix(std::min(datumUtaniKozok - 1, maradek.size()));
    const std::string_view haz = maradek.substr(0, maradek.find(' '));
    maradek.remove_prefix(haz.size());
    const auto oszlop = std::find(PrimerOszlopKoz.begin(), PrimerOszlopKoz.end(), kozokLe(maradek));
    if (oszlop == PrimerOszlopKoz.end()) return std::string(sor);
    const std::string_view fej = primerFejek[static_cast<std::size_t>(oszlop - PrimerOszlopKoz.begin())];
    return std::string(datum)
        .append("  Solar-Nap: ")
        .append(hazSzoveg(haz))
        .append("  ")
        .append(fej)
        .append(": ")
        .append(OlvashatoParok(maradek));
}

std::string OlvashatoTalalatok(int esemeny, std::string_view sor) {
    std::string szoveg = std::to_string(esemeny) + ". Solar-Nap: " + hazSzoveg(levesz(sor, ' '));
    for (const std::string_view fej : pontositasFejek) {
        kozokLe(sor);
        const std::string_view talalatok = levesz(sor, ';');
        szoveg.append("; ").append(fej).append(": ");
        szoveg.append(talalatok == "..." ? std::string(semmi) : OlvashatoParok(talalatok));
    }
    return szoveg;
}

std::string OlvashatoIdok(std::string_view sor) {
    const std::size_t sorszam = std::min(sor.find_first_not_of("0123456789. "), sor.size());
    std::string szoveg(sor.substr(0, sorszam));
    sor.remove_prefix(sorszam);
    if (sor.empty() && !szoveg.empty()) return szoveg.append(semmi);
    bool ido = false;
    for (std::string_view koz; !sor.empty(); koz = ido ? "; " : " ") {
        const std::string_view tetel = levesz(sor, ' ');
        const std::string_view parok = tetel.substr(0, tetel.find('('));
        ido = parokbolAll(parok);
        szoveg.append(koz).append(OlvashatoParok(parok)).append(ido ? " " : "");
        szoveg.append(tetel.substr(parok.size()));
    }
    return szoveg;
}

namespace {

/// Takes a body with its sign off the front, as "eA": "Nap (Oroszlán)".
std::string jegyesBolygo(std::string_view& jelek) {
    std::string jegy;
    if (!jelek.empty() && bolygoNev(jelek[0]).empty()) {
        jegy = " (" + JelNev(jelek[0]) + ")";
        jelek.remove_prefix(1);
    }
    if (jelek.empty()) return jegy;
    const std::string bolygo = JelNev(jelek[0]);
    jelek.remove_prefix(1);
    return bolygo + jegy;
}

std::string tercierTetel(std::string_view jelek) {
    std::string szoveg = jegyesBolygo(jelek);
    while (!jelek.empty()) {
        szoveg.append(" ").append(JelNev(jelek[0])).append(" ");
        jelek.remove_prefix(1);
        szoveg += jegyesBolygo(jelek);
    }
    return szoveg;
}

std::string ingresszioPar(std::string_view jelek) {
    std::string szoveg;
    for (const char jel : jelek) szoveg.append(szoveg.empty() ? "" : " ").append(JelNev(jel));
    return szoveg;
}

}  // namespace

std::string OlvashatoTercier(std::string_view jelek) {
    std::vector<std::string> tetelek;
    while (!jelek.empty()) tetelek.push_back(tercierTetel(levesz(jelek, 'Q')));
    return felsorolas(tetelek, ", ");
}

std::string OlvashatoIngresszio(std::string_view jelek) {
    std::vector<std::string> parok;
    while (kozokLe(jelek), !jelek.empty()) parok.push_back(ingresszioPar(levesz(jelek, ' ')));
    return felsorolas(parok, ", ");
}

std::string OlvashatoDatumos(const TPillanat& datum, std::string_view jelek, bool tercier) {
    TPillanat valodi = datum;
    JulianszambolDatum(napSzama(datum), valodi);
    const std::string eleje = datumSzoveg(valodi) + " ";
    if (jelek.empty()) return eleje + (tercier ? tercierVerdikt : ingresszioVerdikt).uresKep;
    return eleje + (tercier ? OlvashatoTercier(jelek) : OlvashatoIngresszio(jelek));
}

std::string ListaCim(std::string_view lista, std::string_view nev, const TPillanat& pillanat) {
    std::string cim = std::string(lista) + " – ";
    if (!nev.empty()) cim.append(nev).append(", ");
    return cim + idopontSzoveg(pillanat);
}
