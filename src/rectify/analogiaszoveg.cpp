#include "rectify/analogiaszoveg.h"

#include <cstddef>
#include <string_view>

#include "predictive/olvashato.h"
#include "tables/szotar.h"

namespace {

constexpr std::string_view semmi = "–";

std::string_view korulvag(std::string_view szoveg) {
    const std::size_t eleje = szoveg.find_first_not_of(' ');
    if (eleje == szoveg.npos) return {};
    return szoveg.substr(eleje, szoveg.find_last_not_of(' ') - eleje + 1);
}

/// A value of the labels: a house label as it is, letters as names.
std::string ertek(std::string_view jelek, bool hazCimke) {
    jelek = korulvag(jelek);
    if (jelek.empty()) return std::string(semmi);
    if (hazCimke) return std::string(jelek);
    std::string nevek;
    for (const char jel : jelek) nevek.append(nevek.empty() ? "" : ", ").append(JelNev(jel));
    return nevek;
}

/// Rows of a half, counted from its first one.
constexpr std::size_t urakSora = 1;
constexpr std::size_t allnakSora = 5;  ///< of the house, not of a ruler
constexpr std::size_t felSorai = 7;

void felSzovege(const std::array<TAnalogiaSor, analogiaSorok>& sorok, std::size_t kezdet,
                std::vector<std::string>& ki) {
    const bool ketUr = !korulvag(sorok[kezdet + urakSora].oszlop3).empty();
    for (std::size_t i = 0; i < felSorai; ++i) {
        const TAnalogiaSor& sor = sorok[kezdet + i];
        const bool hazCimke = hazCimkesSor(kezdet + i);
        std::string szoveg = std::string(korulvag(sor.oszlop1)) + " " + ertek(sor.oszlop2, hazCimke);
        if (ketUr && i >= urakSora && i != allnakSora)
            szoveg.append("; ").append(ertek(sor.oszlop3, hazCimke));
        ki.push_back(std::move(szoveg));
    }
}

}  // namespace

std::vector<std::string> AnalogiaOlvashato(const TMundanErtekeles& ertekeles, int haz) {
    const auto sorok = AnalogiaSorok(ertekeles.lanc, haz);
    const bool egyezik = ertekeles.analogiak.HazEgyezes[static_cast<std::size_t>(haz - 1)] == '1';
    std::vector<std::string> szoveg;
    szoveg.push_back(std::string(HazCimkeRovid[haz]) + ". Házak" + (egyezik ? ": Rendben" : ""));
    constexpr std::size_t horizontKezdet = analogiaSorok - felSorai;
    felSzovege(sorok, 0, szoveg);
    felSzovege(sorok, horizontKezdet, szoveg);
    return szoveg;
}

std::vector<std::string> MindenAnalogiaOlvashato(const TMundanErtekeles& ertekeles) {
    const TAnalogiaVerdikt& verdikt = AnalogiaVerdikt(ertekeles.analogiak.AnalogiaAllapot);
    std::vector<std::string> szoveg{
        std::string(korulvag(std::string(verdikt.szoveg1).append(" ").append(verdikt.szoveg2)))};
    for (int haz = 1; haz <= 12; ++haz) {
        szoveg.emplace_back();
        const auto hazSorai = AnalogiaOlvashato(ertekeles, haz);
        szoveg.insert(szoveg.end(), hazSorai.begin(), hazSorai.end());
    }
    return szoveg;
}
