#include "rectify/mundankereses.h"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include "chart/kepletciklus.h"
#include "chart/statuszsor.h"
#include "commands/lepteto.h"
#include "engine/fenyszogek.h"
#include "rectify/mundankoveto.h"
#include "tables/efemerida.h"
#include "tables/helyhatarok.h"
#include "tables/pillanat.h"
#include "tables/telepulesek.h"

namespace {

constexpr int durvaLepes = 30;   ///< seconds
constexpr int visszaUgras = 31;  ///< from the change back, so that one step of 1 gives the last coarse moment
constexpr int utolsoKeresettNap = utolsoNap - 1;  ///< a chart reads the row of the next day too
constexpr int kivulKeresettNapok = 30;

void ertekeles(std::int32_t nap, const TPillanat& p, const TMundanHely& hely, const TOrbisTabla& orbis,
               TMundanErtekeles& e) {
    MundanLanc(nap, p.ora, p.perc, p.mperc, hely, orbis, e.lanc);
    e.analogiak = Analogiak(e.lanc);
}

}  // namespace

TMundanHely MundanHely(const TKeplet& k) {
    const TTelepules& t = TelepulesKeres(k.helyseg);
    const bool tablabol = t.idozona == k.idozona && t.szelesseg == k.szelesseg &&
                          t.hosszusag == k.hosszusag && k.nyariIdo == NyariIdoE(k.pillanat);
    TMundanHely hely{k.idozona, k.szelesseg, k.hosszusag};
    if (!tablabol) hely.nyariIdo = k.nyariIdo;
    return hely;
}

TKeresesKeret MundanKeret(const TMundanHely& hely) {
    TKeresesKeret keret;
    if (!HelyenKivul(hely.idozona, hely.nyariIdo.value_or(0), hely.hosszusag, hely.szelesseg).empty())
        keret.legfeljebb = kivulKeresettNapok;
    return keret;
}

TMundanErtekeles MundanErtekeles(const Allapot& allapot, const TMundanHely& hely) {
    TMundanErtekeles e;
    const TPillanat p = allapot.Keplet.pillanat;
    ertekeles(napSzama(p), p, hely, allapot.OrbisTabla, e);
    return e;
}

void MundanNyitas(Allapot& allapot) {
    LeptetoCimIras(allapot.Feliratok);
    allapot.AktivHaz = 1;
    allapot.MhpKezdoPillanat = allapot.Keplet.pillanat;
    allapot.MundanAblakNyitva = true;
}

namespace {

/// The moving moment of a search.
struct TKeresoIdo {
    TPillanat p;
    std::int32_t nap;
    int irany;

    void lep(int masodperc) {
        nap += IdoLeptetes(p, LepesMezo::mperc, irany * masodperc);
        JulianszambolDatum(nap, p);
    }
    bool tablanKivul() const { return nap < elsoNap || nap > utolsoKeresettNap; }
};

}  // namespace

TMundanErtekeles MundanKereses(Allapot& allapot, const TMundanHely& hely, int irany,
                               const TKeresesKeret& keret) {
    TKeplet& k = allapot.Keplet;
    TKeresoIdo t{k.pillanat, napSzama(k.pillanat), irany};
    const std::int32_t kezdoNap = t.nap;
    std::int32_t jelentettNap = t.nap;
    TMundanKoveto koveto(hely, allapot.OrbisTabla);
    const auto verdikt = [&] { return koveto.allapot(t.nap, t.p.ora, t.p.perc, t.p.mperc); };

    int lepes = durvaLepes;
    const char kezdo = verdikt();
    bool vege = !allapot.KeresesVolt;
    allapot.KeresesVolt = true;
    while (!vege) {
        t.lep(lepes);
        const bool valtozott = verdikt() != kezdo;
        vege = t.tablanKivul() || std::abs(t.nap - kezdoNap) > keret.legfeljebb;
        if (!vege && t.nap != jelentettNap) {
            jelentettNap = t.nap;
            vege = keret.tovabb && !keret.tovabb(t.p);
        }
        if (vege || !valtozott) continue;
        if (lepes == 1) {
            vege = true;
        } else {
            lepes = 1;
            t.lep(-visszaUgras);
        }
    }
    k.pillanat = t.p;
    k.julianszam = t.nap;
    allapot.MundanFrissites = true;
    allapot.Feliratok.leptetoCim.clear();
    TMundanErtekeles e;
    ertekeles(t.nap, t.p, hely, allapot.OrbisTabla, e);
    return e;
}

void MundanVissza(Allapot& allapot) {
    allapot.Keplet.pillanat = allapot.MhpKezdoPillanat;
    DatumRendezes(allapot.Keplet);
    allapot.MundanFrissites = true;
}
