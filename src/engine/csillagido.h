#pragma once

#include <cstdint>

/// Local sidereal time and GMT day fraction of a clock moment.
/// @param ora,perc,mperc     zone clock time
/// @param[out] napresz       fraction of the GMT day; above 1 for a zone west of Greenwich late in the day
/// @param[in,out] julianszam day of the clock in, day in GMT out (one less where the clock less zone and
///                           summer time falls below 0; there is no carry at 24)
/// @param hosszusag          geographic longitude, arcseconds, east positive
/// @param[out] armcMperc,armcPerc,armcOra  local sidereal second with fraction, minute, hour; only one 24 is
///                           taken off, and a negative time keeps its truncated, negative parts
/// @param nyariIdo           0 or 1, hours to take off
/// @param idozona            hours, east positive
/// @note The sidereal gain of 236.555 s a day is the step between the rows of `Efemerida`.
/// Does not fail: values beyond the dialogs' ranges give figures without meaning.
void CsillagIdo(std::int32_t ora, std::int32_t perc, std::int32_t mperc, double& napresz,
                std::int32_t& julianszam, std::int32_t hosszusag, double& armcMperc, std::int32_t& armcPerc,
                std::int32_t& armcOra, std::int32_t nyariIdo, std::int32_t idozona);

/// The same with its results together.
struct TCsillagIdo {
    std::int32_t julianszam = 0;  ///< day in GMT
    double napresz = 0;           ///< fraction of that day
    std::int32_t armcOra = 0, armcPerc = 0;
    double armcMperc = 0;
};

/// @param julianszam  day of the clock, which stays as it is: the Greenwich day comes out beside it
TCsillagIdo CsillagIdo(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc,
                       std::int32_t hosszusag, std::int32_t nyariIdo, std::int32_t idozona);
