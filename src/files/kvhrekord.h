#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "tables/pillanat.h"

/// The record of a chart file: 628 bytes, little endian, texts in code page 1250 with a length byte before
/// them.

inline constexpr std::size_t kvhRekordHossz = 628;
using TKvhBajtok = std::array<std::uint8_t, kvhRekordHossz>;

struct TKvhRekord {
    std::string nev;     ///< at most 32 characters; of an event: its text
    TPillanat pillanat;  ///< zone clock time
    std::int32_t idozona = 1;
    std::int32_t nyariIdo = 0;
    std::string helyseg;         ///< at most 32 characters
    std::int32_t hosszusag = 0;  ///< arcseconds
    std::int32_t szelesseg = 0;
    std::string jegyzet;           ///< at most 255 characters; of an event: its house analogies
    std::int32_t esemenySzam = 0;  ///< number of events; of an event: its index from 1
    std::string hang;              ///< sound mark; of an event: the Sun's house as a decimal number

    friend bool operator==(const TKvhRekord&, const TKvhRekord&) = default;
};

/// Texts that are too long are cut; the bytes behind a text are zero.
TKvhBajtok KvhKodolas(const TKvhRekord& rekord);

/// A length byte above a field's size counts as the field's size. No value is checked.
TKvhRekord KvhDekodolas(std::span<const std::uint8_t, kvhRekordHossz> bajtok);
