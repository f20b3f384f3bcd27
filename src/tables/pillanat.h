#pragma once

#include <cstdint>

/// Date and time in zone clock time, with its way to the day number and back.
struct TPillanat {
    std::int32_t ev = 1900;
    std::int32_t ho = 1;
    std::int32_t nap = 1;
    std::int32_t ora = 0;
    std::int32_t perc = 0;
    std::int32_t mperc = 0;

    friend bool operator==(const TPillanat&, const TPillanat&) = default;
};

/// Day number of the date; the date's clamps are written back.
int DatumbolJulianszam(TPillanat& pillanat);

/// Day number of the date, which stays as it is.
int napSzama(TPillanat pillanat);

/// Writes the date of a day number; the time stays.
void JulianszambolDatum(std::int32_t julianszam, TPillanat& pillanat);

/// 1 if the clock moment lies in summer time, else 0; a date that does not exist counts on from its month.
int NyariIdoE(const TPillanat& pillanat);

/// Moves the clock time by whole hours, a zone or summer time; at most one day is carried, the date stays.
/// @return the day carried: -1, 0 or 1
int oraEltolas(TPillanat& pillanat, std::int64_t orak);
