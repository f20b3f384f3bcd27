#include "predictive/ingresszio.h"

#include "engine/bolygohelyek.h"
#include "engine/fenyszogek.h"
#include "engine/keszlet.h"
#include "predictive/natalis.h"
#include "predictive/solarkereses.h"
#include "tables/efemerida.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"
#include "tables/tomb.h"

namespace {

/// Angle of a date in the solar year, 0..180 degrees.
double evSzoge(int napok) {
    const double g = napok * 360 / 365.0;
    return g > 180 ? 360 - g : g;
}

}  // namespace

std::string IngresszioParok(const TSzogMatrix& Elteresek, double szog) {
    const auto also = static_cast<double>(szog - IngresszioTures);
    const auto felso = static_cast<double>(IngresszioTures + szog);
    std::string ki;
    for (int i = 1; i <= 10; ++i)
        for (int j = i; j <= 10; ++j)
            if (also < Elteresek[i][j] && Elteresek[i][j] < felso)
                ki += {' ', bolygoJel[i], 'M', bolygoJel[j]};
    return ki;
}

std::string IngresszioKeres(Allapot& allapot, const TPillanat& szuletes, const TPillanat& esemeny,
                            const std::string& helyseg) {
    NatalisBolygok(allapot, szuletes, helyseg);
    TKeplet& k = allapot.Keplet;
    const int esemenyNap = napSzama(esemeny);
    const TSolar solar = SolarKereses(k.Bolygok[1] * 3600, esemenyNap - julianszamAlap);
    const int solarNap = solar.napsorszam + julianszamAlap;

    TBolygok solarBolygok;
    TMozgasok mozgasok;
    BolygoHelyek(solarNap, solar.napresz, solarBolygok, mozgasok);
    ElteresSzamitas(solarBolygok, allapot.Munka);
    return IngresszioParok(allapot.Munka.Elteresek, evSzoge(esemenyNap - solarNap));
}
