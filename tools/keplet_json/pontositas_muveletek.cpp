#include <limits>

#include "muveletek.h"
#include "rectify/mundankereses.h"
#include "rectify/pontositas.h"

namespace {

/// A place by name asks for summer time at each moment, typed values stand.
TMundanHely mundanHely(const TKerelem& kerelem, const TKeplet& k) {
    TMundanHely hely{k.idozona, k.szelesseg, k.hosszusag};
    if (mezo(kerelem, "hely").size() > 1) hely.nyariIdo = k.nyariIdo;
    return hely;
}

TJson hazValasz(const TMundanLanc& lanc, int haz) {
    TJson sorok = TJson::array();
    for (const auto& [oszlop1, oszlop2, oszlop3] : AnalogiaSorok(lanc, haz))
        sorok.push_back(TJson::array({oszlop1, oszlop2, oszlop3}));
    return sorok;
}

}  // namespace

TJson mundanMuvelet(const TKerelem& kerelem) {
    const Allapot allapot = allapotKerelembol(kerelem);
    const TMundanErtekeles e = MundanErtekeles(allapot, mundanHely(kerelem, allapot.Keplet));
    TJson hazak = TJson::array();
    for (int haz = 1; haz <= 12; ++haz) hazak.push_back(hazValasz(e.lanc, haz));
    return {{"MundanEredmeny", std::string(1, e.lanc.MundanEredmeny)},
            {"HazEgyezes", e.analogiak.HazEgyezes},
            {"AnalogiaAllapot", std::string(1, e.analogiak.AnalogiaAllapot)},
            {"hazak", hazak}};
}

TJson mundanKeresesMuvelet(const TKerelem& kerelem) {
    Allapot allapot = allapotKerelembol(kerelem);
    allapot.KeresesVolt = logikaiMezo(kerelem, "KeresesVolt");
    const std::int32_t irany = egeszMezo(kerelem, "irany", -1, 1);
    if (irany == 0) throw THiba("irany: 1 vagy -1");
    TKeresesKeret keret;
    if (kerelem.contains("legfeljebb"))
        keret.legfeljebb = egeszMezo(kerelem, "legfeljebb", 0, std::numeric_limits<std::int32_t>::max());
    const TMundanErtekeles e = MundanKereses(allapot, mundanHely(kerelem, allapot.Keplet), irany, keret);
    return {{"pillanat", pillanatTomb(allapot.Keplet.pillanat)},
            {"AnalogiaAllapot", std::string(1, e.analogiak.AnalogiaAllapot)},
            {"KeresesVolt", allapot.KeresesVolt}};
}

TJson pontositasMuvelet(const TKerelem& kerelem) {
    Allapot allapot = szuletesiAllapot(kerelem);
    allapot.PontositasHatotav = egeszMezo(kerelem, "hatotav");
    esemenyekMezo(kerelem, allapot.Esemenyek);
    const TPontositas lista = PontositasFutas(allapot);
    return {{"memo1", lista.Memo1}, {"memo2", lista.Memo2}, {"memo3", lista.Memo3}};
}
