// Makes the ephemeris: apparent geocentric longitudes of the equinox of date at 0h UT and apparent sidereal
// time, from the series of libnova with the precession and nutation of the IAU 1976/1980 models.
//
//   efemerida_keszito ELSO UTOLSO FAJL   writes rows ELSO..UTOLSO as 11 little-endian int32 each:
//                                        sidereal seconds, then ten longitudes in arcseconds
//   efemerida_keszito --ellenoriz FAJL   compares a sample of rows with the finished data file
//   efemerida_keszito --nyers SOR        prints a row before rounding: Delta T, ten longitudes in arcseconds,
//                                        sidereal seconds
//
// libnova keeps its last results in static variables: run parts in parallel as processes, not as threads.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <erfa.h>
#include <fstream>
#include <iostream>
#include <libnova/earth.h>
#include <libnova/jupiter.h>
#include <libnova/lunar.h>
#include <libnova/mars.h>
#include <libnova/mercury.h>
#include <libnova/neptune.h>
#include <libnova/pluto.h>
#include <libnova/saturn.h>
#include <libnova/uranus.h>
#include <libnova/venus.h>
#include <numbers>
#include <string>
#include <string_view>

#include "efemeridafajl.h"

namespace {

constexpr double fokbol = std::numbers::pi / 180;
constexpr double ivmasodperc = fokbol / 3600;
constexpr double fenyidoEgyseg = 0.0057755183;  // days of light time per astronomical unit
constexpr double j2000 = 2451545;

/// Delta T in seconds on 1 January of 1900, 1901, ... 2024.
constexpr std::array deltaTErtekek{
    -2.72, -1.54, -0.02, 1.24,  2.64,  3.86,  5.37,  6.14,  7.75,  9.13,  10.46, 11.53, 13.36, 14.65,
    16.01, 17.20, 18.24, 19.06, 20.25, 20.95, 21.16, 22.25, 22.41, 23.03, 23.49, 23.62, 23.86, 24.49,
    24.34, 24.08, 24.02, 24.00, 23.87, 23.95, 23.86, 23.93, 23.73, 23.92, 23.96, 24.02, 24.33, 24.83,
    25.30, 25.70, 26.24, 26.77, 27.28, 27.78, 28.25, 28.71, 29.15, 29.57, 29.97, 30.36, 30.72, 31.07,
    31.35, 31.68, 32.18, 32.68, 33.15, 33.59, 34.00, 34.47, 35.03, 35.73, 36.54, 37.43, 38.29, 39.20,
    40.18, 41.17, 42.23, 43.37, 44.49, 45.48, 46.46, 47.52, 48.54, 49.59, 50.54, 51.38, 52.17, 52.96,
    53.79, 54.34, 54.87, 55.32, 55.82, 56.30, 56.86, 57.57, 58.31, 59.12, 59.99, 60.79, 61.63, 62.30,
    62.97, 63.47, 63.83, 64.09, 64.30, 64.47, 64.57, 64.69, 64.85, 65.15, 65.46, 65.78, 66.07, 66.33,
    66.60, 66.91, 67.28, 67.64, 68.10, 68.59, 68.97, 69.22, 69.36, 69.36, 69.29, 69.18, 69.18};
static_assert(deltaTErtekek.size() == 125);

double deltaT(double jdUt) {
    const double y = 2000 + (jdUt - 2451544.5) / 365.25;
    if (y >= 2024) {
        const auto parabola = [](double ev) { return -20 + 31 * std::pow((ev - 1820) / 100, 2); };
        return parabola(y) - (parabola(2024) - deltaTErtekek.back()) * (2124 - y) / 100;
    }
    const double hely = y - 1900;
    const auto i = static_cast<std::size_t>(hely < 0 ? 0 : std::min(hely, 123.0));
    return deltaTErtekek[i] + (hely - static_cast<double>(i)) * (deltaTErtekek[i + 1] - deltaTErtekek[i]);
}

struct TVektor {
    double x, y, z;
};

TVektor kulonbseg(const TVektor& a, const TVektor& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
double hossz(const TVektor& v) {
    return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
}

using TSorozat = void (*)(double, ln_helio_posn*);

/// Heliocentric vector in the ecliptic of J2000, AU; `javitas` is added to the longitude, arcseconds.
TVektor helio(TSorozat sorozat, double te, double javitas = 0) {
    ln_helio_posn h{};
    sorozat(te, &h);
    const double l = h.L * fokbol + javitas * ivmasodperc;
    const double b = h.B * fokbol;
    return {h.R * std::cos(b) * std::cos(l), h.R * std::cos(b) * std::sin(l), h.R * std::sin(b)};
}

struct TBolygo {
    TSorozat sorozat;
    double fenyido;                   // days, start of the iteration
    std::array<double, 3> javitas{};  // arcseconds, polynomial in Julian centuries from J2000
};

constexpr double hatvany2(const std::array<double, 3>& c, double t) {
    return c[0] + c[1] * t + c[2] * t * t;
}

/// The corrections bring the older series to newer ephemerides.
const std::array<TBolygo, 8> bolygok{{{ln_get_mercury_helio_coords, 0.006, {}},
                                      {ln_get_venus_helio_coords, 0.006, {}},
                                      {ln_get_mars_helio_coords, 0.009, {}},
                                      {ln_get_jupiter_helio_coords, 0.030, {}},
                                      {ln_get_saturn_helio_coords, 0.055, {}},
                                      {ln_get_uranus_helio_coords, 0.111, {}},
                                      {ln_get_neptune_helio_coords, 0.174, {-0.714, -1.574, -0.890}},
                                      {ln_get_pluto_helio_coords, 0.228, {-0.408, -1.352, -1.111}}}};
constexpr std::array<double, 3> holdJavitas{-0.126, -0.393, -0.956};

/// Turns vectors of the J2000 ecliptic into longitudes of the true equinox of date.
class TNapiEkliptika {
public:
    explicit TNapiEkliptika(double te) {
        double deps = 0;
        eraNut80(te, 0, &dpsi_, &deps);
        eraPmat76(te, 0, p_);
        ferdeseg_ = eraObl80(te, 0);
    }

    /// Arcseconds, not reduced.
    double hosszusag(const TVektor& v) {
        static const double e0 = eraObl80(j2000, 0);
        double q[3] = {v.x, v.y * std::cos(e0) - v.z * std::sin(e0), v.y * std::sin(e0) + v.z * std::cos(e0)};
        double u[3];
        eraRxp(p_, q, u);
        const double l = std::atan2(u[1] * std::cos(ferdeseg_) + u[2] * std::sin(ferdeseg_), u[0]);
        return (l + dpsi_) / ivmasodperc;
    }

private:
    double dpsi_ = 0;
    double ferdeseg_ = 0;
    double p_[3][3] = {};  // J2000 equator to mean equator of date
};

TVektor holdVektor(double te) {
    ln_rect_posn h{};
    ln_get_lunar_geo_posn(te - 1.282 / 86400, &h, 0);
    return {h.X, h.Y, h.Z};
}

TVektor napVektor(double te) {
    const double r = hossz(helio(ln_get_earth_helio_coords, te));
    const TVektor fold = helio(ln_get_earth_helio_coords, te - r * fenyidoEgyseg);
    return {-fold.x, -fold.y, -fold.z};
}

/// Planet and Earth both at the moment of emission, which brings in the aberration.
TVektor bolygoVektor(const TBolygo& bolygo, double te, double t) {
    const double javitas = hatvany2(bolygo.javitas, t);
    double fenyido = bolygo.fenyido;
    TVektor d{};
    for (int lepes = 0; lepes < 2; ++lepes) {
        d = kulonbseg(helio(bolygo.sorozat, te - fenyido, javitas),
                      helio(ln_get_earth_helio_coords, te - fenyido));
        fenyido = hossz(d) * fenyidoEgyseg;
    }
    return d;
}

double csillagidoMasodperc(double jdUt) {
    double dpsi = 0;
    double deps = 0;
    eraNut80(jdUt, 0, &dpsi, &deps);
    const double gast = eraGmst82(jdUt, 0) + dpsi * std::cos(eraObl80(jdUt, 0));
    return eraAnp(gast) / (2 * std::numbers::pi) * 86400;
}

std::int32_t kerekit(double ertek, int egyseg, int kor) {
    const auto n = static_cast<std::int64_t>(std::llround(ertek / egyseg)) * egyseg % kor;
    return static_cast<std::int32_t>(n < 0 ? n + kor : n);
}

struct TNyersSor {
    double csillagido;                   // seconds
    std::array<double, 10> hosszusagok;  // arcseconds
};

TNyersSor nyersSor(int sor) {
    const double jdUt = 2415019.5 + sor;
    const double te = jdUt + deltaT(jdUt) / 86400;
    const double t = (te - j2000) / 36525;
    TNapiEkliptika ekliptika(te);
    TNyersSor ki{};
    ki.csillagido = csillagidoMasodperc(jdUt);
    ki.hosszusagok[0] = ekliptika.hosszusag(napVektor(te));
    ki.hosszusagok[1] = ekliptika.hosszusag(holdVektor(te)) + hatvany2(holdJavitas, t);
    for (std::size_t i = 0; i < bolygok.size(); ++i)
        ki.hosszusagok[i + 2] = ekliptika.hosszusag(bolygoVektor(bolygok[i], te, t));
    return ki;
}

TEfemeridaAdat keszSor(int sor) {
    const TNyersSor nyers = nyersSor(sor);
    TEfemeridaAdat ki{};
    ki.csillagido = kerekit(nyers.csillagido, 1, 86400);
    for (std::size_t i = 0; i < ki.hosszusagok.size(); ++i)
        ki.hosszusagok[i] = kerekit(nyers.hosszusagok[i], hosszEgyseg(i), 1296000);
    return ki;
}

int ellenorzes(const std::string& fajl) {
    const auto sorok = efemeridaBeolvasas(fajl);
    int elteres = 0;
    int nezett = 0;
    for (int sor = elsoSor; sor <= utolsoSor; sor += 997, ++nezett)
        if (!(keszSor(sor) == sorok[static_cast<std::size_t>(sor - elsoSor)])) {
            std::cerr << "eltérés a " << sor << ". sorban\n";
            ++elteres;
        }
    std::cout << nezett << " sor, " << elteres << " eltérés\n";
    return elteres == 0 && nezett > 60 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string_view(argv[1]) == "--ellenoriz") return ellenorzes(argv[2]);
    if (argc == 3 && std::string_view(argv[1]) == "--nyers") {
        const TNyersSor s = nyersSor(std::atoi(argv[2]));
        std::printf("%.4f |", deltaT(2415019.5 + std::atoi(argv[2])));
        for (const double h : s.hosszusagok) std::printf(" %.3f", h < 0 ? h + 1296000 : h);
        std::printf(" | %.3f\n", s.csillagido);
        return 0;
    }
    if (argc != 4) {
        std::cerr << "Használat: efemerida_keszito ELSŐ UTOLSÓ FÁJL | --ellenoriz FÁJL | --nyers SOR\n";
        return 2;
    }
    std::ofstream ki(argv[3], std::ios::binary);
    for (int sor = std::atoi(argv[1]); sor <= std::atoi(argv[2]); ++sor) nyersIras(ki, keszSor(sor));
    return ki.flush() ? 0 : 1;
}
