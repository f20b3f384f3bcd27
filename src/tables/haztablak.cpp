#include "tables/haztablak.h"

// Made by tools/tablak/haztabla_keszito, which names the cells set by hand.

const std::array<std::int32_t, 361> McTabla{
#include "tables/data/mctabla.inc"
};

const std::array<std::array<std::array<std::int32_t, 5>, 361>, szelessegBlokkok> HazTabla{
#include "tables/data/haztabla.inc"
};

const std::array<std::array<std::int32_t, 361>, szelessegBlokkok> FerdeAszcenzioTabla{
#include "tables/data/ferde.inc"
};

const std::array<std::int32_t, 2161> RektaszcenzioTabla{
#include "tables/data/rekt.inc"
};

const std::array<std::int32_t, 2161> HosszusagTabla{
#include "tables/data/hossz.inc"
};
