#pragma once

#include "mintakeplet.h"

/// A birth chart with all that the searches read.
inline Allapot mintaKeplet() {
    return szuletesiKeplet({1975, 3, 21, 6, 4, 9});
}
