#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

/// The compact file of the ephemeris. Rows run from 120 before the table's first to 120 after its last, so
/// that the motion letters at both ends have context.
///
/// Layout, little endian: sidereal seconds of the first row (int32); a bit a row after it, least significant
/// first, 1 for a step of 237 s and 0 for 236 s; then for each of the ten bodies its first value and first
/// step (int32 each) and the second differences of the others (int16). Longitudes are in units of
/// `hosszEgyseg`; every difference is taken the short way round.

inline constexpr int kornyezet = 120;
inline constexpr int elsoSor = 1 - kornyezet;
inline constexpr int utolsoSor = 65536 + kornyezet;
inline constexpr std::size_t sorokSzama = utolsoSor - elsoSor + 1;
inline constexpr int korIvmasodperc = 1296000;

/// Arcseconds to a unit of a body's column (0..9): the Sun to the second, the others to the minute.
constexpr int hosszEgyseg(std::size_t bolygo) {
    return bolygo == 0 ? 1 : 60;
}

struct TEfemeridaAdat {
    std::int32_t csillagido;                   ///< seconds, 0..86399
    std::array<std::int32_t, 10> hosszusagok;  ///< arcseconds, 0..1295999
    friend bool operator==(const TEfemeridaAdat&, const TEfemeridaAdat&) = default;
};

/// One row as eleven little-endian int32.
void nyersIras(std::ostream& ki, const TEfemeridaAdat& sor);

/// Reads such rows; throws std::runtime_error if there are none.
std::vector<TEfemeridaAdat> nyersBeolvasas(const std::vector<std::string>& fajlok);

/// Writes and reads the compact file; both throw std::runtime_error on failure.
void efemeridaIras(const std::string& fajl, const std::vector<TEfemeridaAdat>& sorok);
std::vector<TEfemeridaAdat> efemeridaBeolvasas(const std::string& fajl);
