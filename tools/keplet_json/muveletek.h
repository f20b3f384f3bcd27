#pragma once

#include "kerelem.h"

/// The operations: each takes a request and returns its answer, or throws THiba.

TJson datumMuvelet(const TKerelem& kerelem);
TJson nyariIdoMuvelet(const TKerelem& kerelem);
TJson telepulesMuvelet(const TKerelem& kerelem);
TJson idoMuvelet(const TKerelem& kerelem);
TJson kepletMuvelet(const TKerelem& kerelem);
TJson rajzMuvelet(const TKerelem& kerelem);

TJson lepesMuvelet(const TKerelem& kerelem);
TJson kvhOlvasMuvelet(const TKerelem& kerelem);
TJson kvhIrMuvelet(const TKerelem& kerelem);
TJson analogiaMuvelet(const TKerelem& kerelem);
TJson eletesemenyMuvelet(const TKerelem& kerelem);

TJson revolucioMuvelet(const TKerelem& kerelem);
TJson personarMuvelet(const TKerelem& kerelem);
TJson tercierMuvelet(const TKerelem& kerelem);
TJson ingresszioMuvelet(const TKerelem& kerelem);
TJson primerMuvelet(const TKerelem& kerelem);
TJson solarHazMuvelet(const TKerelem& kerelem);

TJson mundanMuvelet(const TKerelem& kerelem);
TJson mundanKeresesMuvelet(const TKerelem& kerelem);
TJson pontositasMuvelet(const TKerelem& kerelem);
