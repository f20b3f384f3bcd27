#pragma once

#include <array>
#include <string_view>

#include "tables/szotar.h"
#include "tables/tomb.h"

/// Fixed tables of the mundane houses: who rules which sign, and what a hard aspect links.

/// Rulers of each sign as body letters; a blank where there is one ruler only.
inline constexpr Tomb<std::string_view, 12> JegyUrai{
    {"E ", "D ", "C ", "B ", "A ", "C ", "D ", "EJ", "F ", "G ", "GH", "FI"}};

/// Signs of the same rulers.
inline constexpr Tomb<std::string_view, 12> JegyTarsak{
    {"ah", "bg", "cf", "d", "e", "cf", "bg", "ah", "il", "jk", "jk", "il"}};

/// Signs that each body rules.
inline constexpr Tomb<std::string_view, 10> BolygoJegyei{
    {"e", "d", "cf", "bg", "ah", "il", "jk", "k", "l", "h"}};

/// What a square or an opposition from below links a body to.
struct TFenyszogPar {
    std::string_view betuk;   ///< partner bodies
    std::string_view jegyek;  ///< partner signs
};

/// By the body whose row the aspect stands in, Sun to Neptune.
inline constexpr Tomb<TFenyszogPar, 9> FenyszogParok{{{{"BE", "dah"},
                                                       {"AD", "ebg"},
                                                       {"F", "il"},
                                                       {"BE", "dah"},
                                                       {"AD", "ebg"},
                                                       {"C", "cf"},
                                                       {"H", "jk"},
                                                       {"G", "jk"},
                                                       {"C", "cf"}}}};

/// Pluto has no row, only its aspects to Venus and to Mars.
struct TPlutoPar {
    int masik;
    TFenyszogPar par;
};
inline constexpr int plutoSor = 10;
inline constexpr std::array<TPlutoPar, 2> plutoParok{{{4, {"E", "ah"}}, {5, {"D", "bg"}}}};

/// The angular houses.
inline constexpr std::array<int, 4> sarokHazak{1, 4, 7, 10};

/// Set of signs: bit n - 1 is sign n.
using TJegyHalmaz = unsigned;

constexpr TJegyHalmaz jegyHalmaz(std::string_view betuk) {
    TJegyHalmaz halmaz = 0;
    for (const char betu : betuk) halmaz |= 1U << (betu - 'a');
    return halmaz;
}

/// The letters of a table as sets.
template <std::size_t N>
constexpr Tomb<TJegyHalmaz, N> jegyHalmazok(const Tomb<std::string_view, N>& szovegek) {
    Tomb<TJegyHalmaz, N> halmazok;
    for (int i = 1; i <= static_cast<int>(N); ++i) halmazok[i] = jegyHalmaz(szovegek[i]);
    return halmazok;
}
inline constexpr Tomb<TJegyHalmaz, 12> jegyTarsakHalmaza = jegyHalmazok(JegyTarsak);
inline constexpr Tomb<TJegyHalmaz, 10> bolygoJegyeiHalmaza = jegyHalmazok(BolygoJegyei);

/// `JegyTarsak` as a set; a number outside 1..12 has none.
constexpr TJegyHalmaz jegyTarsai(int jegy) {
    return jegy >= 1 && jegy <= 12 ? jegyTarsakHalmaza[jegy] : 0;
}

/// Body of a ruler letter, 0 for a blank.
constexpr int betuBolygo(char betu) {
    return betu == ' ' ? 0 : betu - 'A' + 1;
}
