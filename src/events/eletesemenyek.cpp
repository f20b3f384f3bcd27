#include "events/eletesemenyek.h"

#include <string_view>

#include "engine/bolygohelyek.h"
#include "engine/csillagido.h"
#include "engine/keszlet.h"
#include "engine/uralkodok.h"
#include "predictive/solarkereses.h"
#include "tables/efemerida.h"
#include "tables/fokperc.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"
#include "tables/szoveg.h"
#include "tables/tomb.h"

namespace {

/// The event's clock in Greenwich time and the day number that it falls on.
std::int32_t gmtNap(const TEletesemeny& e, TPillanat& p) {
    p = e.pillanat;
    const int nap = DatumbolJulianszam(p);
    return nap + oraEltolas(p, -std::int64_t{e.idozona} - e.nyariIdo);
}

}  // namespace

TPillanat EsemenyGmt(const TEletesemeny& e) {
    TPillanat p;
    const std::int32_t nap = gmtNap(e, p);
    JulianszambolDatum(nap, p);
    return p;
}

namespace {

/// Longitude of the natal Sun, arcseconds.
double natalisNap(const TSzuletes& sz) {
    const TPillanat& p = sz.pillanat;
    const TCsillagIdo ido =
        CsillagIdo(napSzama(p), p.ora, p.perc, p.mperc, sz.hosszusag, sz.nyariIdo, sz.idozona);
    TBolygok bolygok;
    TMozgasok mozgasok;
    BolygoHelyek(ido.julianszam, ido.napresz, bolygok, mozgasok);
    return bolygok[1] * 3600;
}

}  // namespace

std::int32_t EsemenySolarNap(const TSzuletes& szuletes, const TEletesemeny& esemeny) {
    TPillanat gmt;
    const TSolar solar = SolarKereses(natalisNap(szuletes), gmtNap(esemeny, gmt) - julianszamAlap);
    const TSolarKeplet keplet = SolarKeplet(solar, ivmasodpercre(esemeny.hosszFok, esemeny.hosszPerc),
                                            ivmasodpercre(esemeny.szelFok, esemeny.szelPerc));
    TBolygok bolygok;
    TMozgasok mozgasok;
    BolygoHelyek(keplet.ido.julianszam, keplet.ido.napresz, bolygok, mozgasok);
    TBolygoHazak hazak;
    HazBesorolas(bolygok, keplet.csucsok, hazak);
    return hazak[1];
}

int EsemenyHelyNyariIdo(TIdoTipus idoTipus, const TPillanat& pillanat) {
    return idoTipus == TIdoTipus::ZN ? NyariIdoE(pillanat) : 0;
}

TEletesemeny EsemenyKezdoMezok(const TEsemenyTar& tar, const TEletesemeny& szuletes) {
    const TEletesemeny& ido = tar.EsemenyDb > 0 ? tar.esemenyek[tar.EsemenyDb] : szuletes;
    TEletesemeny e = ido.helyseg.empty() ? szuletes : ido;
    e.pillanat = ido.pillanat;
    e.esemeny.clear();
    e.analogia.clear();
    e.solarNap = 0;
    e.nyariIdo = NyariIdoE(e.pillanat);
    return e;
}

bool EsemenyListaAzonos(const TEsemenyTar& egyik, const TEsemenyTar& masik) {
    if (egyik.EsemenyDb != masik.EsemenyDb) return false;
    for (int i = 1; i <= egyik.EsemenyDb; ++i)
        if (!(egyik.esemenyek[i] == masik.esemenyek[i])) return false;
    return true;
}

bool EsemenyFelvetel(TEsemenyTar& tar, int& kijelolt, const TEletesemeny& esemeny) {
    if (tar.EsemenyDb >= esemenyHelyek || esemeny.esemeny.empty()) return false;
    tar.esemenyek[kijelolt != 0 ? kijelolt : ++tar.EsemenyDb] = esemeny;
    kijelolt = 0;
    return true;
}

void EsemenyTorles(TEsemenyTar& tar, int& kijelolt) {
    if (kijelolt < 1 || kijelolt > tar.EsemenyDb) return;
    for (int i = kijelolt; i < tar.EsemenyDb; ++i) tar.esemenyek[i] = tar.esemenyek[i + 1];
    --tar.EsemenyDb;
    kijelolt = 0;
}

int EsemenyKijeloles(const TEsemenyTar& tar, const std::string& felirat) {
    if (felirat.empty()) return 0;
    for (int i = tar.EsemenyDb; i >= 1; --i) {
        const TEletesemeny& e = tar.esemenyek[i];
        if (felirat == std::to_string(i) || felirat == e.esemeny || felirat == e.analogia) return i;
    }
    return 0;
}

std::array<std::string, esemenyOszlopok> EsemenySor(const TEsemenyTar& tar, int sor) {
    if (sor > tar.EsemenyDb) return {};
    const TEletesemeny& e = tar.esemenyek[sor];
    const TPillanat p = EsemenyGmt(e);
    return {std::to_string(sor),
            e.esemeny,
            e.analogia,
            std::to_string(p.ev) + ".",
            ketJegy(p.ho) + ".",
            ketJegy(p.nap),
            ketJegy(p.ora) + ":",
            ketJegy(p.perc) + ":",
            ketJegy(p.mperc),
            e.helyseg,
            std::to_string(e.hosszFok) + "°",
            std::to_string(e.hosszPerc) + "'",
            std::to_string(e.szelFok) + "°",
            std::to_string(e.szelPerc) + "'",
            std::string(HazCimke(e.solarNap))};
}
