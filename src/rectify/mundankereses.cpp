#include "rectify/mundankereses.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "chart/kepletciklus.h"
#include "chart/statuszsor.h"
#include "commands/lepteto.h"
#include "engine/fenyszogek.h"
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

/// First and last day of a search. Within the tables a verdict changes in hours or days and the search may
/// run to the table's end; figures from a zone, a summer time or coordinates outside them may never change
/// it.
struct THatar {
    std::int32_t elso, utolso;
};

THatar keresesHatara(const TMundanHely& hely, std::int32_t nap) {
    const bool kivul =
        !HelyenKivul(hely.idozona, hely.nyariIdo.value_or(0), hely.hosszusag, hely.szelesseg).empty();
    if (!kivul) return {elsoNap, utolsoKeresettNap};
    return {std::max(elsoNap, nap - kivulKeresettNapok),
            std::min(utolsoKeresettNap, nap + kivulKeresettNapok)};
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

TMundanErtekeles MundanKereses(Allapot& allapot, const TMundanHely& hely, int irany) {
    TKeplet& k = allapot.Keplet;
    TPillanat p = k.pillanat;
    std::int32_t nap = napSzama(p);
    const auto lep = [&](int masodperc) {
        nap += IdoLeptetes(p, LepesMezo::mperc, irany * masodperc);
        JulianszambolDatum(nap, p);
    };

    const THatar hatar = keresesHatara(hely, nap);
    TMundanErtekeles e;
    int lepes = durvaLepes;
    ertekeles(nap, p, hely, allapot.OrbisTabla, e);
    const char kezdo = e.analogiak.AnalogiaAllapot;
    bool vege = !allapot.KeresesVolt;
    allapot.KeresesVolt = true;
    while (!vege) {
        lep(lepes);
        ertekeles(nap, p, hely, allapot.OrbisTabla, e);
        vege = nap < hatar.elso || nap > hatar.utolso;
        if (vege || e.analogiak.AnalogiaAllapot == kezdo) continue;
        if (lepes == 1) {
            vege = true;
        } else {
            lepes = 1;
            lep(-visszaUgras);
        }
    }
    k.pillanat = p;
    k.julianszam = nap;
    allapot.MundanFrissites = true;
    allapot.Feliratok.leptetoCim.clear();
    return e;
}

void MundanVissza(Allapot& allapot) {
    allapot.Keplet.pillanat = allapot.MhpKezdoPillanat;
    DatumRendezes(allapot.Keplet);
    allapot.MundanFrissites = true;
}
