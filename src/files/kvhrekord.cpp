#include "files/kvhrekord.h"

#include <algorithm>

#include "files/kodlap1250.h"

namespace {

/// A text field: one length byte, then so many bytes at most.
struct TSzovegMezo {
    std::size_t hely;
    std::size_t meret;
    std::string TKvhRekord::*mezo;
};
constexpr TSzovegMezo szovegMezok[]{{0, 32, &TKvhRekord::nev},
                                    {68, 32, &TKvhRekord::helyseg},
                                    {112, 255, &TKvhRekord::jegyzet},
                                    {372, 255, &TKvhRekord::hang}};

struct TSzamMezo {
    std::size_t hely;
    std::int32_t TKvhRekord::*mezo;
};
constexpr TSzamMezo szamMezok[]{{60, &TKvhRekord::idozona},
                                {64, &TKvhRekord::nyariIdo},
                                {104, &TKvhRekord::hosszusag},
                                {108, &TKvhRekord::szelesseg},
                                {368, &TKvhRekord::esemenySzam}};

struct TPillanatMezo {
    std::size_t hely;
    std::int32_t TPillanat::*mezo;
};
constexpr TPillanatMezo pillanatMezok[]{{36, &TPillanat::ev},   {40, &TPillanat::ho},
                                        {44, &TPillanat::nap},  {48, &TPillanat::ora},
                                        {52, &TPillanat::perc}, {56, &TPillanat::mperc}};

void irSzam(TKvhBajtok& bajtok, std::size_t hely, std::int32_t szam) {
    const auto u = static_cast<std::uint32_t>(szam);
    for (std::size_t i = 0; i < 4; ++i) bajtok[hely + i] = static_cast<std::uint8_t>(u >> (8 * i));
}

std::int32_t olvasSzam(std::span<const std::uint8_t, kvhRekordHossz> bajtok, std::size_t hely) {
    std::uint32_t u = 0;
    for (std::size_t i = 0; i < 4; ++i) u |= std::uint32_t{bajtok[hely + i]} << (8 * i);
    return static_cast<std::int32_t>(u);
}

}  // namespace

TKvhBajtok KvhKodolas(const TKvhRekord& rekord) {
    TKvhBajtok bajtok{};
    for (const auto& [hely, meret, mezo] : szovegMezok) {
        const std::string szoveg = kodlapra(rekord.*mezo).substr(0, meret);
        bajtok[hely] = static_cast<std::uint8_t>(szoveg.size());
        std::copy(szoveg.begin(), szoveg.end(), bajtok.begin() + static_cast<std::ptrdiff_t>(hely + 1));
    }
    for (const auto& [hely, mezo] : szamMezok) irSzam(bajtok, hely, rekord.*mezo);
    for (const auto& [hely, mezo] : pillanatMezok) irSzam(bajtok, hely, rekord.pillanat.*mezo);
    return bajtok;
}

TKvhRekord KvhDekodolas(std::span<const std::uint8_t, kvhRekordHossz> bajtok) {
    TKvhRekord rekord;
    for (const auto& [hely, meret, mezo] : szovegMezok) {
        const auto szoveg = bajtok.subspan(hely + 1, std::min<std::size_t>(bajtok[hely], meret));
        rekord.*mezo = kodlaprol(std::string(szoveg.begin(), szoveg.end()));
    }
    for (const auto& [hely, mezo] : szamMezok) rekord.*mezo = olvasSzam(bajtok, hely);
    for (const auto& [hely, mezo] : pillanatMezok) rekord.pillanat.*mezo = olvasSzam(bajtok, hely);
    return rekord;
}
