#pragma once

#include <string>
#include <string_view>

#include "tables/pillanat.h"

/// The lists in names instead of letters of the symbol font, for who reads them without that font: on paper,
/// in a text file, in another program.
///
/// Where a line is not of its list's form (the user may write into the candidate times), what can't be read
/// stands as it is.

/// Name of a body 'A'..'J', of a sign 'a'..'l' or of an aspect; any other letter stands for itself.
std::string JelNev(char jel);

/// Bodies with their aspects, as "CRBM": "Merkúr 90°, Hold együttállás".
std::string OlvashatoParok(std::string_view jelek);

/// A line of the primary list: date, house of the Sun in the solar chart, the column's name, its hits.
std::string OlvashatoPrimer(std::string_view sor);

/// A line of the rectification's hits, by its event's number, since the line itself bears none.
std::string OlvashatoTalalatok(int esemeny, std::string_view sor);

/// A line of the rectification's candidate times of birth.
std::string OlvashatoIdok(std::string_view sor);

/// The hits of a tertiary search: the directed body with its sign, then what it meets.
std::string OlvashatoTercier(std::string_view jelek);

/// The pairs of a solar ingress.
std::string OlvashatoIngresszio(std::string_view jelek);

/// The result of either search with its date, or that there is none.
/// @param datum    as its fields stand; a date that does not exist counts on
/// @param tercier  tertiary directions, else the solar ingress
std::string OlvashatoDatumos(const TPillanat& datum, std::string_view jelek, bool tercier);

/// Heading of a list on paper and in a file: what it is, whose, of which moment.
std::string ListaCim(std::string_view lista, std::string_view nev, const TPillanat& pillanat);
