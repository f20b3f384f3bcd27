#pragma once

#include "kerelem.h"

/// The operations: each takes a request and returns its answer, or throws THiba.

TJson datumMuvelet(const TJson& kerelem);
TJson nyariIdoMuvelet(const TJson& kerelem);
TJson telepulesMuvelet(const TJson& kerelem);
TJson idoMuvelet(const TJson& kerelem);
TJson kepletMuvelet(const TJson& kerelem);
TJson rajzMuvelet(const TJson& kerelem);

TJson lepesMuvelet(const TJson& kerelem);
TJson kvhOlvasMuvelet(const TJson& kerelem);
TJson kvhIrMuvelet(const TJson& kerelem);
TJson analogiaMuvelet(const TJson& kerelem);
TJson eletesemenyMuvelet(const TJson& kerelem);

TJson revolucioMuvelet(const TJson& kerelem);
TJson personarMuvelet(const TJson& kerelem);
TJson tercierMuvelet(const TJson& kerelem);
TJson ingresszioMuvelet(const TJson& kerelem);
TJson primerMuvelet(const TJson& kerelem);
TJson solarHazMuvelet(const TJson& kerelem);

TJson mundanMuvelet(const TJson& kerelem);
TJson mundanKeresesMuvelet(const TJson& kerelem);
TJson pontositasMuvelet(const TJson& kerelem);
