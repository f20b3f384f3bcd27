#pragma once

#include <string>
#include <string_view>

#include "files/adatlap.h"

/// Charts as JSON, with the keys of the operation `kvh_olvas` of keplet-json.

/// Reads an array of objects, or objects one after another. `nev` and `pillanat` must be there, of an event
/// the date, hour and minute. A record that can't be read is reported and left out; where it is no JSON,
/// reading goes on at the next line that begins, as far from the margin, with a brace.
TAdatlapok JsonOlvasas(std::string_view bajtok);

/// One object on one line, without its end.
std::string JsonIras(const TAdatlap& lap);
