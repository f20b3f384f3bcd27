#include "engine/bolygohelyek.h"

#include <array>
#include <cstddef>

#include "tables/efemerida.h"
#include "tables/szamtan.h"

int KoztesLepes(std::int32_t x0, std::int32_t x1, char mozgas) {
    const int d = x1 - x0;
    if (mozgas == 'R') return d > 0 ? d - korIvmasodperc : d;
    return d < 0 ? d + korIvmasodperc : d;
}

double KoztesHossz(std::int32_t x0, std::int32_t x1, double napresz, char mozgas) {
    const double v = KoztesLepes(x0, x1, mozgas) * napresz + x0;
    if (mozgas == 'R') return v <= 0 ? v + korIvmasodperc : v;
    return v >= korIvmasodperc ? v - korIvmasodperc : v;
}

void BolygoHelyek(std::int32_t julianszam, double napresz, TBolygok& Bolygok, TMozgasok& Mozgasok) {
    const TEfemeridaNap& ma = efemeridaNap(julianszam);
    const TEfemeridaNap& holnap = efemeridaNap(std::int64_t{julianszam} + 1);
    for (int i = 1; i <= 10; ++i) {
        const auto oszlop = efemeridaOszlopok[static_cast<std::size_t>(i - 1)];
        const char mozgas = i <= 2 ? 'D' : ma.mozgas[static_cast<std::size_t>(i - 3)];
        Bolygok[i] = KoztesHossz(ma.*oszlop, holnap.*oszlop, napresz, mozgas) / 3600;
        Mozgasok[i] = mozgas;
    }
}
