#include "commands/datumosdirekcio.h"

#include <algorithm>
#include <utility>

#include "chart/statuszsor.h"
#include "predictive/ingresszio.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"

void DatumAtfordulas(TPillanat& d) {
    constexpr int elsoEv = 1900;
    constexpr int utolsoEv = 2068;
    if (d.nap == 32) {
        d.nap = 1;
        ++d.ho;
    } else if (d.nap == 0) {
        d.nap = 31;
        --d.ho;
    }
    if (d.ho == 13) {
        d.ho = 1;
        d.ev = std::min(d.ev + 1, utolsoEv);
    } else if (d.ho == 0) {
        d.ho = 12;
        d.ev = std::max(d.ev - 1, elsoEv);
    }
}

namespace {

/// Gives the chart on screen its clock moment, day number and place back; the work arrays stay as a search
/// leaves them.
void kepletVissza(TKeplet& k, TKeplet eredeti) {
    eredeti.Bolygok = k.Bolygok;
    eredeti.Mozgasok = k.Mozgasok;
    eredeti.BolygoHazak = k.BolygoHazak;
    eredeti.Hazcsucsok = k.Hazcsucsok;
    k = std::move(eredeti);
}

}  // namespace

std::string DatumosKereses(Allapot& a, const TPillanat& datum, int orbisNap) {
    const std::string hely = a.VisszaMod ? a.helysegMentett : a.Keplet.helyseg;
    TKeplet eredeti = a.Keplet;
    std::string talalatok = a.TercierAblak
                                ? TercierKeres(a, a.SzuletesiPillanat, datum, hely, orbisNap).TercierSzoveg
                                : IngresszioKeres(a, a.SzuletesiPillanat, datum, hely);
    kepletVissza(a.Keplet, std::move(eredeti));
    return talalatok;
}

const TVerdikt& DatumosVerdikt(const Allapot& allapot) {
    return allapot.TercierAblak ? tercierVerdikt : ingresszioVerdikt;
}

void DatumosRendben(Allapot& allapot, const TPillanat& datum, int orbisNap) {
    allapot.TercierDatum = datum;
    JulianszambolDatum(napSzama(datum), allapot.TercierDatum);
    allapot.TercierOrbisNap = orbisNap;
    allapot.Megsem3 = false;
}

void DatumosKiiras(Vaszon& vaszon, const Allapot& allapot, const std::string& talalatok) {
    constexpr int magassag = 24;  // pixels
    constexpr int datumX = 55;
    constexpr int talalatX = 175;
    constexpr int y = 7;
    vaszon.Betu(szovegFont, magassag);
    vaszon.TextOut(datumX, y, datumSzoveg(allapot.TercierDatum).append(" "));
    if (talalatok.empty()) {
        vaszon.TextOut(talalatX, y, DatumosVerdikt(allapot).uresKep);
        return;
    }
    vaszon.Betu(allapot.Rajz.szimbolumFont, magassag);
    vaszon.TextOut(talalatX, y, talalatok);
}
