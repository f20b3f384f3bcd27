#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "tables/tomb.h"

/// The fixed vocabulary: letters of the symbol font, house labels, titles. Nothing changes it at run time.

/// Bodies 1..10, Sun to Pluto.
inline constexpr Tomb<char, 10> bolygoJel{{'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H', 'I', 'J'}};

/// Signs 1..12, Aries to Pisces.
inline constexpr Tomb<char, 12> jegyJel{{'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 'i', 'j', 'k', 'l'}};

/// Aspect angles in degrees and their letters.
inline constexpr Tomb<double, 9> fenyszogSzog{{0, 30, 45, 60, 90, 120, 135, 150, 180}};
inline constexpr Tomb<char, 9> fenyszogJel{{'M', 'N', 'O', 'P', 'R', 'S', 'T', 'V', 'W'}};

/// The sixteen points at which another body has an aspect to a body: offsets in degrees, and their letters.
inline constexpr Tomb<double, 16> FenyszogEltolasok{
    {0, 30, -30, 45, -45, 60, -60, 90, -90, 120, -120, 135, -135, 150, -150, 180}};
inline constexpr Tomb<char, 16> FenyszogPontJel{
    {'M', 'N', 'N', 'O', 'O', 'P', 'P', 'R', 'R', 'S', 'S', 'T', 'T', 'V', 'V', 'W'}};

/// House labels of fixed width: the angular houses in Roman figures. Index 0 stands for "no house".
inline constexpr std::string_view hazCimkeNulla = " 0";
inline constexpr Tomb<std::string_view, 12> hazCimkek{
    {" I", " 2", " 3", "IV", " 5", " 6", "VII", " 8", " 9", " X", "11", "12"}};

/// The same without padding, and in letters of the symbol font ('w', 'v', 'x' are its I, V, X).
inline constexpr Tomb<std::string_view, 12> HazCimkeRovid{
    {"I", "2", "3", "IV", "5", "6", "VII", "8", "9", "X", "11", "12"}};
inline constexpr Tomb<std::string_view, 12> HazCimkeSzimbolum{
    {"w", "2", "3", "wv", "5", "6", "vww", "8", "9", "x", "11", "12"}};

/// House label of 0..12; a number outside has none.
constexpr std::string_view HazCimke(int haz) {
    if (haz == 0) return hazCimkeNulla;
    return haz >= 1 && haz <= 12 ? hazCimkek[haz] : std::string_view{};
}

/// Letter of a sign number as text; a number outside 1..12 has none.
constexpr std::string_view jegyBetu(int jegy) {
    return jegy >= 1 && jegy <= 12 ? std::string_view(&jegyJel[jegy], 1) : std::string_view{};
}

struct TCim {
    std::string_view hosszu;
    std::string_view rovid;
};

inline constexpr Tomb<TCim, 11> personarCimek{{{{"Asc personar", "Asc pers"},
                                                {"Mc personar", "Mc pers"},
                                                {"Hold personar", "Hold pers"},
                                                {"Merkúr personar", "Merk pers"},
                                                {"Vénusz personar", "Venu pers"},
                                                {"Mars personar", "Mars pers"},
                                                {"Jupiter personar", "Jupi pers"},
                                                {"Szaturnusz personar", "Satu pers"},
                                                {"Uránusz personar", "Uran pers"},
                                                {"Neptun personar", "Nept pers"},
                                                {"Plutó personar", "Pluto pers"}}}};

inline constexpr Tomb<TCim, 7> revolucioCimek{{{{"Szolár", "Szolár"},
                                                {"Lunár", "Lunár"},
                                                {"Merkúr revolució", "Merk rev"},
                                                {"Vénusz revolució", "Venu rev"},
                                                {"Mars revolució", "Mars rev"},
                                                {"Jupiter revolució", "Jupi rev"},
                                                {"Szaturnusz revolució", "Satu rev"}}}};

/// Kinds of clock: zone time, local mean time, Greenwich mean time; in the order of the dialogs.
enum class TIdoTipus { ZN, LMT, GMT };
inline constexpr std::array<std::string_view, 3> idoTipusok{"ZN", "LMT", "GMT"};
constexpr std::string_view idoTipusSzoveg(TIdoTipus tipus) {
    return idoTipusok[static_cast<std::size_t>(tipus)];
}

/// Faces. A symbol font file's base name is its face name.
inline constexpr std::string_view sajatSzimbolumFont = "Astro Symbols";
inline constexpr std::string_view potSzimbolumFont = "AstroMidget Bold";
/// Spelled so: no system has a face of this name, so each falls back to the one that it puts in its place.
inline constexpr std::string_view szovegFont = "Ariel";
inline constexpr std::string_view mozgasFont = "Times New Roman";

/// The program's contact line: title in the Dekád view, foot of the printed page.
inline constexpr std::string_view kapcsolatSor = "Korvend – asztrológiai képletrajzoló";
