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

}  // namespace

THazHely HazHely(std::int32_t armcOra, std::int32_t armcPerc, double armcMperc) {
    const std::int64_t m = std::int64_t{armcOra} * 60 + std::int64_t{armcPerc} / 4 * 4;
    const std::int64_t egesz = std::int64_t{armcOra} * 3600 + std::int64_t{armcPerc} * 60 - m * 60;
    return {kormaradek(m / 4, 360), static_cast<double>(egesz) + armcMperc};
}

THazSor HazSor(int i, std::int32_t szelesseg) {
    const int j = i + 1 == 360 ? 0 : i + 1;
    THazSor s{};
    s.mc = McTabla[static_cast<std::size_t>(i)];
    const int mcKovetkezo = McTabla[static_cast<std::size_t>(j)];
    s.mcLepes = s.mc > mcKovetkezo ? mcKovetkezo - s.mc + korIvmasodperc : mcKovetkezo - s.mc;

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
        s.a[c] = szelessegre(i);
        s.b[c] = szelessegre(j);
        if (s.b[c] < s.a[c]) s.b[c] += korIvperc;
    }
    return s;
}

void HazakSorban(const THazSor& s, double dt, THazcsucsok& Hazcsucsok) {
    Hazcsucsok[10] = (s.mcLepes * dt / racsMasodperc + s.mc) / 3600;
    for (std::size_t c = 0; c < taroltHazak.size(); ++c)
        Hazcsucsok[taroltHazak[c]] = ((s.b[c] - s.a[c]) * dt / racsMasodperc + s.a[c]) / 60;
    for (const int haz : {10, 11, 12}) Hazcsucsok[haz - 6] = szemkozt(Hazcsucsok[haz]);
    for (const int haz : {1, 2, 3}) Hazcsucsok[haz + 6] = szemkozt(Hazcsucsok[haz]);
}

void Hazak(std::int32_t armcOra, std::int32_t armcPerc, double armcMperc, THazcsucsok& Hazcsucsok,
           std::int32_t szelesseg) {
    const THazHely hely = HazHely(armcOra, armcPerc, armcMperc);
    HazakSorban(HazSor(hely.sor, szelesseg), hely.dt, Hazcsucsok);
}
