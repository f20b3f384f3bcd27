#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "engine/mundanlanc.h"

/// House analogies: every house read as a mundane house (the sign of its number) and as a horizon house (the
/// one behind its cusp), and what each reading is connected with.

/// The verdict on a trial chart.
struct TAnalogiak {
    std::string HazEgyezes;      ///< '1' for each house whose two readings share a sign, else '0'
    char AnalogiaAllapot = '0';  ///< '0' a house fails, '1' all agree, '2' all agree but no axis by decan
};

/// @note A later '2' leaves `HazEgyezes` as it was.
TAnalogiak Analogiak(const TMundanLanc& lanc);

inline constexpr std::size_t analogiaSorok = 15;

/// One label row: caption, then the values of the first and of the second ruler.
struct TAnalogiaSor {
    std::string oszlop1, oszlop2, oszlop3;
};

/// The label rows of a house: seven of the mundane house, an empty one, seven of the horizon house. Each
/// value is followed by four blanks; in the row of the rulers the one that a sign lacks is itself a blank.
/// @param haz  1..12
std::array<TAnalogiaSor, analogiaSorok> AnalogiaSorok(const TMundanLanc& lanc, int haz);

/// Whether a label row shows house labels, which stand in the text font.
constexpr bool hazCimkesSor(std::size_t sor) {
    return sor == 3 || sor == 11;
}

enum class VerdiktSzin { piros, kek };

/// What the verdict shows.
struct TAnalogiaVerdikt {
    std::string_view szoveg1, szoveg2;
    VerdiktSzin szin;
};

/// @param AnalogiaAllapot  '0', '1' or '2'
const TAnalogiaVerdikt& AnalogiaVerdikt(char AnalogiaAllapot);
