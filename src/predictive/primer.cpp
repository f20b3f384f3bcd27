#include "predictive/primer.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "chart/statuszsor.h"
#include "engine/fenyszogpontok.h"
#include "engine/uralkodok.h"
#include "predictive/solarkereses.h"
#include "tables/efemerida.h"
#include "tables/haztablak.h"
#include "tables/pillanat.h"
#include "tables/szamtan.h"
#include "tables/szotar.h"
#include "tables/tomb.h"

namespace {

/// Reads a table of ten-minute steps.
double tizpercesTabla(const std::array<std::int32_t, 2161>& tabla, double x) {
    const int i = std::clamp(egesz(std::floor(x / 10)), 0, 2159);
    const double a = i * 10;
    const double also = tabla[static_cast<std::size_t>(i)];
    const double felso = tabla[static_cast<std::size_t>(i) + 1];
    return also + (x - a) * (felso - also) / 10;
}

}  // namespace

double EklToRekt(double x) {
    return tizpercesTabla(RektaszcenzioTabla, x);
}
double RektToEkl(double x) {
    return tizpercesTabla(HosszusagTabla, x);
}

TFerdeTabla FerdeSor(std::int32_t szelesseg) {
    const int fok = std::clamp(szelesseg / 3600, legkisebbSzelesseg, legnagyobbSzelesseg - 1);
    const double f = szelesseg / 3600.0;
    const auto also = static_cast<std::size_t>(fok - legkisebbSzelesseg);
    TFerdeTabla tabla{};
    for (std::size_t c = 0; c < tabla.size(); ++c) {
        const int felsoErtek = FerdeAszcenzioTabla[also + 1][c];
        const int alsoErtek = FerdeAszcenzioTabla[also][c];
        tabla[c] = felsoErtek - (fok + 1 - f) * (felsoErtek - alsoErtek);
    }
    return tabla;
}

double FerdeToEkl(const TFerdeTabla& FerdeTabla, double t, int utolsoOszlop) {
    int c = 0;
    while (c <= utolsoOszlop && FerdeTabla[static_cast<std::size_t>(c)] < t) ++c;
    if (c == 0) return 0;
    const double felso = c <= utolsoOszlop ? FerdeTabla[static_cast<std::size_t>(c)] : 0;
    const double also = FerdeTabla[static_cast<std::size_t>(c - 1)];
    return 60.0 * (c - 1) + 60 * (t - also) / (felso - also);
}

bool PontTalalat(double p, const TOrbisAblak& h) {
    if (h.also <= h.felso) return h.also <= p && p <= h.felso;
    return !(h.felso <= p && p <= h.also);
}

std::array<double, iranyOszlopok> IranyitottPontok(double rektMC, double iv, const TFerdeTabla& FerdeTabla,
                                                   int utolsoOszlop) {
    const auto aszcendens = [&](double rekt) {
        const double t = rekt + 5400 >= korIvperc ? rekt - 16200 : rekt + 5400;
        return FerdeToEkl(FerdeTabla, t, utolsoOszlop) / 60;
    };
    const double direkt = rektKorbe(rektMC + iv);
    const double konverz = rektKorbe(rektMC - iv);
    return {RektToEkl(direkt) / 60, RektToEkl(konverz) / 60, aszcendens(direkt), aszcendens(konverz)};
}

int SolarHaz(const TBolygok& bolygok, std::int32_t julianszam, std::int32_t hosszusag,
             std::int32_t szelesseg) {
    const TSolar solar = SolarKereses(bolygok[1] * 3600, julianszam - julianszamAlap);
    TBolygoHazak hazak;
    HazBesorolas(bolygok, SolarKeplet(solar, hosszusag, szelesseg).csucsok, hazak);
    return hazak[1];
}

namespace {

constexpr int futasNapjai = 3661;

/// Points of one column that lie in the window, as letter pairs.
std::string oszlopSzoveg(const TFenyszogPontok& pontok, const TOrbisAblak& hatar) {
    std::string szoveg;
    for (int i = 1; i <= 10; ++i)
        for (int j = 1; j <= 16; ++j)
            if (PontTalalat(pontok[i][j], hatar)) szoveg += {bolygoJel[i], FenyszogPontJel[j]};
    return szoveg;
}

std::string sorSzoveg(const TKeplet& k, std::int32_t julianszam, std::size_t oszlop,
                      const std::string& szoveg) {
    TPillanat p;
    JulianszambolDatum(julianszam, p);
    const int haz = SolarHaz(k.bolygo, julianszam, k.hosszusag, k.szelesseg);
    const std::string_view jel = haz >= 1 && haz <= 12 ? HazCimkeSzimbolum[haz] : std::string_view{};
    return datumSzoveg(p).append("   ").append(jel).append(PrimerOszlopKoz[oszlop], ' ').append(szoveg);
}

}  // namespace

std::vector<std::string> PrimerFutas(const Allapot& allapot, const TPillanat& kezdo) {
    const TKeplet& k = allapot.Keplet;
    const int elso = napSzama(kezdo) - k.julianszam;
    const double rektMC = EklToRekt(k.hazCsucs[10] * 60);
    const TFerdeTabla ferde = FerdeSor(k.szelesseg);
    constexpr double felSzelesseg = PrimerKulcs / 7200 + 0.001;  // degrees

    std::vector<std::string> sorok;
    std::array<std::string, iranyOszlopok> utolso;
    for (int d = elso; d < elso + futasNapjai; ++d) {
        const auto pontok = IranyitottPontok(rektMC, d * PrimerKulcs / 60, ferde, 359);
        for (std::size_t oszlop = 0; oszlop < pontok.size(); ++oszlop) {
            std::string szoveg =
                oszlopSzoveg(allapot.Rajz.FenyszogPontok, OrbisAblak(pontok[oszlop], felSzelesseg));
            if (szoveg.empty() || szoveg == utolso[oszlop]) continue;
            sorok.push_back(sorSzoveg(k, k.julianszam + d, oszlop, szoveg));
            utolso[oszlop] = std::move(szoveg);
            if (sorok.size() == primerLegtobbSor) return sorok;
        }
    }
    return sorok;
}
