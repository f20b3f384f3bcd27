#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "files/aafmezok.h"
#include "tables/pillanat.h"

/// What an AAF record tells of its moment; each part may be unknown.
struct TAafIdopont {
    std::optional<TAafDatum> datum;
    std::optional<std::int32_t> ido;  ///< seconds of the clock's day
    std::optional<TAafJulian> julian;
    std::optional<std::int32_t> zona;  ///< seconds, east positive
    std::optional<TAafNyariIdo> nyariIdo;
    std::int32_t hosszusag = 0;  ///< arcseconds
    bool hazai = false;          ///< in the country whose zone and summer-time table the program has
};

/// The same as a chart holds it: a zone clock of whole hours, summer time 0 or 1.
struct TAafPillanat {
    TPillanat pillanat;
    std::int32_t idozona = 0;
    std::int32_t nyariIdo = 0;
};

/// Puts date, clock, zone and Julian day together. Where the Julian day and the clock differ by more than the
/// last digit can tell, the Julian day wins. Local mean time and zones with minutes become a clock of whole
/// zone hours, double summer time one zone further east; the moment stays.
/// @param[out] kozlesek  what was supposed or put right
/// @param[out] hiba      why there is no moment
std::optional<TAafPillanat> AafPillanat(const TAafIdopont& idopont, std::vector<std::string>& kozlesek,
                                        std::string& hiba);
