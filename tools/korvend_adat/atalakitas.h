#pragma once

#include "jelento.h"
#include "parancs.h"

/// What a run has done.
struct TEredmeny {
    std::size_t olvasott = 0;  ///< charts found in the source
    std::size_t irt = 0;       ///< charts written
};

/// Reads the source, checks each chart by the program's tables, writes the target, reads that back and
/// reports each field that came back different.
TEredmeny Atalakitas(const TParancs& parancs, TJelento& jelento);
