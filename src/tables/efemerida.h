#pragma once

#include <array>
#include <cstdint>

/// One day of the ephemeris at 0h GMT, 72 bytes, little endian.
/// Longitudes are apparent geocentric ecliptic longitudes of the equinox of date in arcseconds,
/// 0..1295999: the Sun to the arcsecond, the others to the arcminute (multiples of 60).
struct TEfemeridaNap {
    std::int32_t ev;          ///< 1900..2079
    std::int32_t ho;          ///< 1..12
    std::int32_t nap;         ///< day of the month
    std::int32_t csillagOra;  ///< Greenwich sidereal time at 0h GMT, 0..23
    std::int32_t csillagPerc;
    std::int32_t csillagMasodperc;
    std::int32_t nap_hossz;
    std::int32_t hold_hossz;
    std::int32_t merkur_hossz;
    std::int32_t venusz_hossz;
    std::int32_t mars_hossz;
    std::int32_t jupiter_hossz;
    std::int32_t szaturnusz_hossz;
    std::int32_t uranusz_hossz;
    std::int32_t neptun_hossz;
    std::int32_t pluto_hossz;
    std::array<char, 8> mozgas;  ///< Mercury to Pluto: 'D' direct, 'R' retrograde, 'S' stationary
};
static_assert(sizeof(TEfemeridaNap) == 72);

/// The longitude columns in body order, Sun to Pluto.
inline constexpr std::array<std::int32_t TEfemeridaNap::*, 10> efemeridaOszlopok{
    &TEfemeridaNap::nap_hossz,        &TEfemeridaNap::hold_hossz,    &TEfemeridaNap::merkur_hossz,
    &TEfemeridaNap::venusz_hossz,     &TEfemeridaNap::mars_hossz,    &TEfemeridaNap::jupiter_hossz,
    &TEfemeridaNap::szaturnusz_hossz, &TEfemeridaNap::uranusz_hossz, &TEfemeridaNap::neptun_hossz,
    &TEfemeridaNap::pluto_hossz};

inline constexpr int efemeridaSorok = 65536;

/// `julianszam` less `napsorszam`: 2415020 is 1900-01-01, row 1.
inline constexpr int julianszamAlap = 2415019;

/// First and last day of the table.
inline constexpr int elsoNap = julianszamAlap + 1;
inline constexpr int utolsoNap = julianszamAlap + efemeridaSorok;

/// The daily table, rows 1 (1900-01-01) to 65536 (2079-06-06).
/// Row 0 and row 65537 are copies of rows 1 and 65536, and so is every row beyond them,
/// since charts at the table's ends read one row past it.
struct EfemeridaTabla {
    const TEfemeridaNap& operator[](std::int64_t napsorszam) const;
};
inline constexpr EfemeridaTabla Efemerida{};

/// The row of a day number.
inline const TEfemeridaNap& efemeridaNap(std::int64_t julianszam) {
    return Efemerida[julianszam - julianszamAlap];
}

/// Calendar date to day number. The date need not exist: 30 February counts on from the first
/// of the month, so with `JulianszambolDatum` a day, a month or a year is carried over its end.
/// @param[in,out] ev  held to 1900..2078
/// @param[in,out] ho  held to 1..12
/// @param[in,out] nap held to 1..32
/// @return 2415020 for 1900-01-01 and on
int DatumbolJulianszam(std::int32_t& ev, std::int32_t& ho, std::int32_t& nap);

/// Day number to calendar date, read from the table's row; a day outside the table gives its nearest end.
void JulianszambolDatum(std::int32_t julianszam, std::int32_t& ev, std::int32_t& ho, std::int32_t& nap);
