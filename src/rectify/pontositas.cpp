#include "rectify/pontositas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "chart/statuszsor.h"
#include "engine/fenyszogpontok.h"
#include "engine/keszlet.h"
#include "predictive/orbisablak.h"
#include "tables/efemerida.h"
#include "tables/fokperc.h"
#include "tables/haztablak.h"
#include "tables/pillanat.h"
#include "tables/szamtan.h"
#include "tables/szotar.h"
#include "tables/szoveg.h"
#include "tables/tomb.h"

namespace {

constexpr int utolsoFerdeOszlop = 360;

/// Oblique ascension in arcminutes of a longitude in degrees.
double ferdeAszcenzio(double p, const TFerdeTabla& FerdeTabla) {
    const auto f = static_cast<std::size_t>(std::clamp(egesz(std::floor(p)), 0, utolsoFerdeOszlop - 1));
    return FerdeTabla[f] + (p - static_cast<double>(f)) * (FerdeTabla[f + 1] - FerdeTabla[f]);
}

/// Right ascension of the Midheaven that the direction asks for, arcminutes.
double kellettRekt(IranyOszlop oszlop, double p, double iv, const TFerdeTabla& FerdeTabla) {
    const double elojel = oszlop == dMC || oszlop == dAsc ? -1 : 1;
    if (oszlop == dMC || oszlop == cMC) return rektKorbe(EklToRekt(p * 60) + elojel * iv);
    return rektKorbe(ferdeAszcenzio(p, FerdeTabla) + elojel * iv - 5400);
}

/// Sidereal time in seconds at which the Midheaven has a longitude in arcseconds.
double csillagidoMcbol(double m) {
    std::size_t n = 1;
    while (n + 1 < McTabla.size() && McTabla[n] <= m) ++n;
    const double also = McTabla[n - 1];
    return 240.0 * static_cast<double>(n - 1) + 240 * (m - also) / (McTabla[n] - also);
}

/// Sidereal time at 0h Greenwich of a day, seconds.
int csillagidoNullakor(std::int32_t julianszam) {
    const TEfemeridaNap& nap = efemeridaNap(julianszam);
    return nap.csillagOra * 3600 + nap.csillagPerc * 60 + nap.csillagMasodperc;
}

}  // namespace

double JeloltIdo(IranyOszlop oszlop, double p, double iv, const TFerdeTabla& FerdeTabla, const TKeplet& k) {
    double t = csillagidoMcbol(RektToEkl(kellettRekt(oszlop, p, iv, FerdeTabla)) * 60);
    t -= csillagidoNullakor(k.julianszam);
    t -= k.hosszusag * 4.0 / 60;
    t = static_cast<double>(static_cast<long double>(t) / CsillagNapArany);
    t += k.idozona * 3600.0 + k.nyariIdo * 3600.0;
    if (t < 0) return t + napMasodperc;
    return t >= napMasodperc ? t - napMasodperc : t;
}

std::string jeloltSzoveg(double t) {
    const double ora = std::floor(t / 3600);
    const double perc = std::floor((t - ora * 3600) / 60);
    return ketJegy(egesz(ora))
        .append(":")
        .append(ketJegy(egesz(perc)))
        .append(":")
        .append(ketJegy(kerekit(t) % 60));
}

namespace {

/// What stays the same for all events of a run.
struct TFutas {
    const Allapot& allapot;
    double rektMC;
    double hatotav;  ///< degrees
    TFerdeTabla FerdeTabla;
};

/// One column of one event: the cells of all hits, and behind each body's cells its candidate time.
/// @param[in,out] idok  the event's line of candidate times
std::string oszlop(const TFutas& futas, IranyOszlop nev, double x, double iv, std::string& idok) {
    const TOrbisAblak hatar = OrbisAblak(x, futas.hatotav);
    std::string talalatok;
    for (int i = 1; i <= 10; ++i) {
        std::string bt;
        double p = 0;  // of several points of a body the last one goes on
        for (int j = 1; j <= 16; ++j) {
            const double pont = futas.allapot.Rajz.FenyszogPontok[i][j];
            if (!PontTalalat(pont, hatar)) continue;
            bt += {bolygoJel[i], FenyszogPontJel[j]};
            p = pont;
        }
        if (bt.empty()) continue;
        const double t = JeloltIdo(nev, p, iv, futas.FerdeTabla, futas.allapot.Keplet);
        idok.append(bt).append("(").append(jeloltSzoveg(t)).append(") ");
        talalatok += bt;
    }
    return talalatok;
}

void esemenySorok(const TFutas& futas, int e, TPontositas& lista) {
    const TEletesemeny& esemeny = futas.allapot.Esemenyek.esemenyek[e];
    std::string sor1 = std::to_string(e);
    std::string sor3 = std::to_string(e).append(". ");
    sor1.append(". ").append(datumSzoveg(esemeny.pillanat)).append(" ").append(esemeny.esemeny);

    const TKeplet& k = futas.allapot.Keplet;
    const std::int32_t nap = napSzama(esemeny.pillanat);
    const int haz = SolarHaz(k.bolygo, nap, ivmasodpercre(esemeny.hosszFok, esemeny.hosszPerc),
                             ivmasodpercre(esemeny.szelFok, esemeny.szelPerc));
    std::string sor2(haz >= 1 ? HazCimkeSzimbolum[haz] : std::string_view{});
    sor2 += "   ";

    const double iv = (nap - k.julianszam) * PrimerKulcs / 60;
    const auto pontok = IranyitottPontok(futas.rektMC, iv, futas.FerdeTabla, utolsoFerdeOszlop);
    for (const IranyOszlop nev : {dMC, cMC, dAsc, cAsc}) {
        const std::string talalatok = oszlop(futas, nev, pontok[nev], iv, sor3);
        sor2.append(talalatok.empty() ? "...;  " : talalatok + "; ");
    }
    lista.Memo1.push_back(std::move(sor1));
    lista.Memo2.push_back(std::move(sor2));
    lista.Memo3.push_back(std::move(sor3));
}

}  // namespace

TPontositas PontositasFutas(const Allapot& allapot) {
    const TKeplet& k = allapot.Keplet;
    const TFutas futas{allapot, EklToRekt(k.hazCsucs[10] * 60), allapot.PontositasHatotav / 100.0,
                       FerdeSor(k.szelesseg)};
    TPontositas lista;
    for (int e = 1; e <= std::min(allapot.Esemenyek.EsemenyDb, esemenyHelyek); ++e) {
        if (allapot.Esemenyek.esemenyek[e].esemeny.empty()) break;
        esemenySorok(futas, e, lista);
    }
    return lista;
}
