#include "drawing/rendezett.h"

#include <cmath>
#include <utility>

#include "tables/szamtan.h"
#include "tables/szotar.h"
#include "tables/tomb.h"

void RendezettEpites(TRendezett& Rendezett, const TBolygok& bolygo, const TMozgasok& mozgas) {
    for (int i = 1; i <= 10; ++i) {
        const double hossz = bolygo[i];
        const double fok = hossz - 30.0 * egesz(hossz / 30);
        Rendezett[i] = {hossz, bolygoJel[i], mozgas[i], fok, (fok - egesz(fok)) * 60};
    }
}

namespace {

constexpr int legkisebbKoz = 6;  ///< degrees between neighbours
constexpr double szetlepes = 2;  ///< degrees that each row of a close pair moves

/// Exchange sort of whole rows. Rows of one longitude keep their order unless an exchange passes over them:
/// longitudes 50, 50, 10 of the bodies A, B, C come out as C, B, A. Which of two such bodies moves up and
/// which down follows from it, so no stable sort may take its place.
void rendezes(TRendezett& sorok) {
    for (int a = 1; a <= 10; ++a)
        for (int b = a; b <= 10; ++b)
            if (sorok[a].rendHossz > sorok[b].rendHossz) std::swap(sorok[a], sorok[b]);
}

void visszahajtas(TRendezett& sorok) {
    for (TRendezettSor& sor : sorok)
        if (sor.rendHossz > 360) sor.rendHossz -= 360;
}

/// Moves the first neighbours closer than the threshold apart. At the wrap the 360 goes to the row itself.
bool elsoParSzetlep(TRendezett& sorok, int kuszob) {
    for (int a = 1; a <= 10; ++a) {
        const int b = a == 10 ? 1 : a + 1;
        if (sorok[a].rendHossz > sorok[b].rendHossz) sorok[b].rendHossz += 360;
        if (kuszob > sorok[b].rendHossz - sorok[a].rendHossz) {
            sorok[a].rendHossz -= szetlepes;
            sorok[b].rendHossz += szetlepes;
            return true;
        }
    }
    return false;
}

/// A moment far outside the tables extrapolates to many times the circle; the spreading would take a pass for
/// each.
void tavoliakBehajtasa(TRendezett& sorok) {
    constexpr double szelso = 3600;  // degrees
    for (TRendezettSor& sor : sorok)
        if (std::abs(sor.rendHossz) > szelso) sor.rendHossz = std::fmod(sor.rendHossz, 360);
}

}  // namespace

void Szetteritas(TRendezett& Rendezett) {
    tavoliakBehajtasa(Rendezett);
    int kuszob = 1;
    while (kuszob <= legkisebbKoz) {
        rendezes(Rendezett);
        kuszob = elsoParSzetlep(Rendezett, kuszob) ? 1 : kuszob + 1;
        visszahajtas(Rendezett);
    }
}
