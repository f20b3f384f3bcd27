#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// A settlement of the gazetteer.
struct TTelepules {
    std::string_view nev;    ///< UTF-8
    std::int32_t idozona;    ///< hours, east positive
    std::int32_t szelesseg;  ///< arcseconds, north positive
    std::int32_t hosszusag;  ///< arcseconds, east positive
    char szelessegJel;       ///< stored with the place; no computation reads it
    char hosszusagJel;
};

/// In Hungarian alphabetical order, all names distinct.
extern const std::array<TTelepules, 3138> Telepulesek;

/// Zone and coordinates of a place.
/// @param nev  compared byte by byte, so case and accents matter
/// An unknown name gives the values of Budapest: zone 1, 171000, 68640, 'N', 'E'.
void TelepulesKeres(std::string_view nev, std::int32_t& idozona, std::int32_t& szelesseg, char& hosszusagJel,
                    char& szelessegJel, std::int32_t& hosszusag);

/// The same as a record, under the name of the row found.
const TTelepules& TelepulesKeres(std::string_view nev);
