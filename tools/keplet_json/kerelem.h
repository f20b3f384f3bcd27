#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "chart/allapot.h"

/// Reading of requests and shaping of answers, shared by all operations.

/// An answer keeps its keys in the order in which they are set; of a request they are looked up.
using TJson = nlohmann::ordered_json;
using TKerelem = nlohmann::json;

/// A request that can't be answered; its text is the answer.
struct THiba : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The field, or THiba if it is missing or of another kind.
const TKerelem& mezo(const TKerelem& kerelem, const char* nev);
std::int32_t egeszMezo(const TKerelem& kerelem, const char* nev);
std::int32_t egeszMezo(const TKerelem& kerelem, const char* nev, std::int32_t also, std::int32_t felso);
double valosMezo(const TKerelem& kerelem, const char* nev);
bool logikaiMezo(const TKerelem& kerelem, const char* nev);
std::string szovegMezo(const TKerelem& kerelem, const char* nev);
/// A file name: a text without a NUL, at which the system would cut it.
std::string fajlMezo(const TKerelem& kerelem, const char* nev);
/// Array of exactly N int32 numbers.
template <std::size_t N>
std::array<std::int32_t, N> egeszTomb(const TKerelem& kerelem, const char* nev);

/// Clock moment with its date put right through the day number, in `Keplet`.
void pillanatMezo(const TKerelem& kerelem, Allapot& allapot);
/// Place: by name from the tables, or with the given values. Needs the moment set.
void helyMezo(const TKerelem& kerelem, Allapot& allapot);
/// A fresh state with moment, place, orbs and the sidereal step of a request.
Allapot allapotKerelembol(const TKerelem& kerelem);

/// The birth chart of a request on screen, its moment being the Radix and birth moment.
Allapot szuletesiAllapot(const TKerelem& kerelem);

/// The whole chart of the state, its cycle done.
TJson kepletValasz(Allapot& allapot);

/// An event record of a request; a field that is not there keeps its default.
TEletesemeny esemenyErtek(const TKerelem& ertek);
/// The array of event records of a field, at most twenty.
void esemenyekMezo(const TKerelem& kerelem, TEsemenyTar& tar);
TJson esemenyValasz(const TEletesemeny& esemeny);

TJson pillanatTomb(const TPillanat& pillanat);

template <typename TTomb>
TJson tombValasz(const TTomb& tomb) {
    TJson valasz = TJson::array();
    for (const auto& elem : tomb) valasz.push_back(elem);
    return valasz;
}

/// One line of JSON; doubles with 17 significant digits.
void irJson(std::string& ki, const TJson& ertek);

std::int32_t egeszErtek(const TKerelem& ertek, const char* nev);

template <std::size_t N>
std::array<std::int32_t, N> egeszTomb(const TKerelem& kerelem, const char* nev) {
    const TKerelem& tomb = mezo(kerelem, nev);
    if (!tomb.is_array() || tomb.size() != N)
        throw THiba(std::string(nev) + ": " + std::to_string(N) + " egész szám kell");
    std::array<std::int32_t, N> szamok{};
    for (std::size_t i = 0; i < N; ++i) szamok[i] = egeszErtek(tomb[i], nev);
    return szamok;
}
