#include "engine/hazak.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

#include "tables/haztablak.h"
#include "tables/szamtan.h"

namespace {

constexpr int racsMasodperc = 240;  // seconds of sidereal time to a degree of RAMC

/// Houses of the five stored columns.
constexpr std::array<int, 5> taroltHazak{1, 2, 3, 11, 12};

/// The opposite of a cusp, inside the circle also where the cusp stands a little above it.
constexpr double szemkozt(double csucs) {
    return csucs - 180 < 0 ? csucs + 180 : csucs - 180;
}

double kozepEg(int i, int j, double dt) {
    const int a = McTabla[static_cast<std::size_t>(i)];
    const int b = McTabla[static_cast<std::size_t>(j)];
    const int lepes = a > b ? b - a + korIvmasodperc : b - a;
    return (lepes * dt / racsMasodperc + a) / 3600;
}

}  // namespace

void Hazak(std::int32_t armcOra, std::int32_t armcPerc, double armcMperc, THazcsucsok& Hazcsucsok,
           std::int32_t szelesseg) {
    const std::int64_t m = std::int64_t{armcOra} * 60 + armcPerc / 4 * 4;
    const int i = kormaradek(m / 4, 360);
    const int j = i + 1 == 360 ? 0 : i + 1;
    const double dt =
        static_cast<double>(std::int64_t{armcOra} * 3600 + std::int64_t{armcPerc} * 60 - m * 60) + armcMperc;

    Hazcsucsok[10] = kozepEg(i, j, dt);

    const int sz = std::clamp(szelesseg, legkisebbSzelesseg * 3600, legnagyobbSzelesseg * 3600);
    const int mp = sz % 3600;
    const auto also = static_cast<std::size_t>(sz / 3600 - legkisebbSzelesseg);
    const std::size_t felso = std::min<std::size_t>(also + 1, szelessegBlokkok - 1);  // at 60 degrees mp is 0

    for (std::size_t c = 0; c < taroltHazak.size(); ++c) {
        const auto szelessegre = [&](int sor) {
            const int x = HazTabla[also][static_cast<std::size_t>(sor)][c];
            const int y = HazTabla[felso][static_cast<std::size_t>(sor)][c];
            return static_cast<double>((y - x) * mp) / 3600 + x;
        };
        const double a = szelessegre(i);
        double b = szelessegre(j);
        if (b < a) b += korIvperc;
        Hazcsucsok[taroltHazak[c]] = ((b - a) * dt / racsMasodperc + a) / 60;
    }

    for (const int haz : {10, 11, 12}) Hazcsucsok[haz - 6] = szemkozt(Hazcsucsok[haz]);
    for (const int haz : {1, 2, 3}) Hazcsucsok[haz + 6] = szemkozt(Hazcsucsok[haz]);
}
