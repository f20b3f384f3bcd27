#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The fields of AAF records, as text and as values. A reader gives nothing for a text that is no such field.

/// Without the white space around it.
std::string_view AafVagott(std::string_view szoveg);

/// Empty or a star: unknown.
bool AafIsmeretlen(std::string_view mezo);

struct TAafDatum {
    std::int32_t ev = 0, ho = 0, nap = 0;
    bool julianNaptar = false;  ///< of the Julian calendar, whose days are not ours
};

/// D.M.YYYY, a letter of the calendar behind it; the day need not exist in its month.
std::optional<TAafDatum> AafDatum(std::string_view mezo);

/// H:MM or H:MM:SS, seconds of the day.
std::optional<std::int32_t> AafIdo(std::string_view mezo);
std::string AafIdoSzoveg(std::int32_t ora, std::int32_t perc, std::int32_t mperc);

/// 47n30, 47n30:15 or 47n, arcseconds, north and east positive.
std::optional<std::int32_t> AafSzelesseg(std::string_view mezo);
std::optional<std::int32_t> AafHosszusag(std::string_view mezo);
std::string AafSzelessegSzoveg(std::int32_t ivmasodperc);
std::string AafHosszusagSzoveg(std::int32_t ivmasodperc);

/// 1he00, 1he00:00 or 1he, seconds, east positive.
std::optional<std::int32_t> AafZona(std::string_view mezo);
std::string AafZonaSzoveg(std::int32_t orak);

/// Summer time in hours, or local mean time.
struct TAafNyariIdo {
    std::int32_t orak = 0;
    bool helyiKozepido = false;
};
std::optional<TAafNyariIdo> AafNyariIdo(std::string_view mezo);

/// A Julian day in seconds since 0h of day number 0, in the counting of days that the program uses: its day
/// begins half a day after the Julian one.
struct TAafJulian {
    std::int64_t masodperc = 0;
    double pontossag = 0;  ///< seconds that one unit of the last digit is worth
};
std::optional<TAafJulian> AafJulian(std::string_view mezo);
std::string AafJulianSzoveg(std::int64_t masodperc);

/// Day number of a date of the Gregorian calendar, also outside the ephemeris; a day beyond the month's end
/// counts on. And the way back.
std::int64_t AafNapSzam(std::int32_t ev, std::int32_t ho, std::int32_t nap);
TAafDatum AafNapDatuma(std::int64_t julianszam);
