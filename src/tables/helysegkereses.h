#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a typed text may mean among the gazetteer's names, without regard to accents and case.

/// The text in small letters without the Hungarian accents: "Győr" and "GYOR" give "gyor". Other characters
/// stay.
std::string ekezetNelkul(std::string_view szoveg);

/// The names that a typed text may mean, best first: those equal to it but for case, those equal but for
/// accents too, those that begin with it, those that hold it; each group in table order. None for an empty
/// text.
std::vector<std::string_view> HelysegTalalatok(std::string_view beirt);

/// The one name that a typed text can mean: the only one of the best group that is not empty, as "gyor" means
/// Győr whatever else begins so. Empty if there is none, or more than one as for "komlo" (Komló, Kömlő).
std::string_view EgyetlenHelyseg(std::string_view beirt);

/// Row of a name in `Telepulesek`, from 0; -1 for a name that the table does not hold.
/// @param nev  compared byte by byte, so case and accents matter
int HelysegSor(std::string_view nev);
