#include "engine/csillagido.h"

#include "tables/efemerida.h"
#include "tables/szamtan.h"

namespace {
/// Sidereal seconds gained per second of mean time.
constexpr long double csillagNyereseg = 0.0027379050925925926L;
}  // namespace

void CsillagIdo(std::int32_t ora, std::int32_t perc, std::int32_t mperc, double& napresz,
                std::int32_t& julianszam, std::int32_t hosszusag, double& armcMperc, std::int32_t& armcPerc,
                std::int32_t& armcOra, std::int32_t nyariIdo, std::int32_t idozona) {
    std::int64_t g = std::int64_t{ora} - idozona - nyariIdo;
    if (g < 0) {
        g += 24;
        julianszam = alsoBitek(std::int64_t{julianszam} - 1);
    }
    const std::int64_t t = idoMasodperc(g, perc, mperc);
    napresz = static_cast<double>(t) / napMasodperc;

    const long double k = static_cast<long double>(t) * csillagNyereseg;
    const auto ki = static_cast<std::int64_t>(k);
    const auto kf = static_cast<double>(k - static_cast<long double>(ki));

    const std::int64_t hosszIdo = std::int64_t{hosszusag} * 4;  // sixtieths of a second of time
    const std::int64_t lm = hosszIdo / 3600;
    const std::int64_t ls = hosszIdo % 3600 / 60;

    const TEfemeridaNap& sor = efemeridaNap(julianszam);
    const std::int64_t s = (g + sor.csillagOra) * 3600 + (std::int64_t{perc} + sor.csillagPerc + lm) * 60 +
                           (std::int64_t{mperc} + sor.csillagMasodperc + ls + ki);
    armcOra = alsoBitek(s / 3600);
    armcPerc = static_cast<std::int32_t>(s % 3600 / 60);
    armcMperc = static_cast<double>(s % 60) + kf;
    if (armcOra > 23) armcOra -= 24;
}

TCsillagIdo CsillagIdo(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc,
                       std::int32_t hosszusag, std::int32_t nyariIdo, std::int32_t idozona) {
    TCsillagIdo ido;
    ido.julianszam = julianszam;
    CsillagIdo(ora, perc, mperc, ido.napresz, ido.julianszam, hosszusag, ido.armcMperc, ido.armcPerc,
               ido.armcOra, nyariIdo, idozona);
    return ido;
}
