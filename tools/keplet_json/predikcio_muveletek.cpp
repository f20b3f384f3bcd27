#include "chart/foablak.h"
#include "chart/kepletciklus.h"
#include "muveletek.h"
#include "predictive/ingresszio.h"
#include "predictive/primer.h"
#include "predictive/tercier.h"
#include "predictive/visszateresek.h"
#include "tables/efemerida.h"

namespace {

/// A main window that shows nothing.
class TNemaAblak : public FoAblak {
public:
    void Ujrafest() override {}
    void Ervenytelenit() override {}
    void RajzolKeplet() override {}
    void Mutat() override {}
    std::string RendszerDatum() override { return {}; }
    std::string RendszerIdo() override { return {}; }
    void MundanFrissit() override {}
    void PontositasFuttat() override {}
    void PrimerFuttat() override {}
};

TPillanat datumMezo(const TKerelem& kerelem, const char* nev) {
    const auto [ev, ho, nap] = egeszTomb<3>(kerelem, nev);
    return {ev, ho, nap, 0, 0, 0};
}

TJson visszateresMuvelet(const TKerelem& kerelem, const TVisszateresFajta& fajta) {
    Allapot allapot = szuletesiAllapot(kerelem);
    const TPillanat kezdo = VisszateresKezdo(allapot);
    VisszateresKereses(allapot, fajta, VisszateresCel(allapot, fajta));

    TJson talalatok = TJson::array();
    for (int i = 1; i <= allapot.Visszateresek.szamlalo; ++i) {
        const TVisszateres& v = allapot.Visszateresek.sorok[i];
        TJson talalat = pillanatTomb(v.pillanat);
        if (fajta.mozgasJel) talalat.push_back(std::string(1, v.mozgas));
        talalatok.push_back(talalat);
    }
    TJson valasz{{"cim", fajta.cim.hosszu},
                 {"statusz", fajta.cim.rovid},
                 {"kezdo", TJson::array({kezdo.ev, kezdo.ho, kezdo.nap})},
                 {"sorok", VisszateresSorok(allapot, fajta)},
                 {"talalatok", talalatok}};
    if (kerelem.contains("sor")) {
        const std::int32_t sor = egeszMezo(kerelem, "sor", 1, TVisszateresek{}.sorok.meret());
        const std::string hely =
            kerelem.contains("ujhely") ? szovegMezo(kerelem, "ujhely") : allapot.Keplet.helyseg;
        TNemaAblak ablak;
        VisszateresKeplet(allapot, ablak, fajta, sor, hely);
        valasz["keplet"] = kepletValasz(allapot);
    }
    return valasz;
}

}  // namespace

TJson revolucioMuvelet(const TKerelem& kerelem) {
    return visszateresMuvelet(kerelem, RevolucioFajta(egeszMezo(kerelem, "fajta", 1, revolucioFajtak)));
}

TJson personarMuvelet(const TKerelem& kerelem) {
    return visszateresMuvelet(kerelem, PersonarFajta(egeszMezo(kerelem, "fajta", 1, personarFajtak)));
}

TJson tercierMuvelet(const TKerelem& kerelem) {
    Allapot allapot = allapotKerelembol(kerelem);
    const TTercier t = TercierKeres(allapot, allapot.Keplet.pillanat, datumMezo(kerelem, "esemeny"),
                                    allapot.Keplet.helyseg, valosMezo(kerelem, "orbis_nap"));
    return {{"TercierSzoveg", t.TercierSzoveg},
            {"TercierHazSzoveg", t.TercierHazSzoveg},
            {"verdikt", t.TercierSzoveg.empty() ? tercierVerdikt.nincs : tercierVerdikt.van}};
}

TJson ingresszioMuvelet(const TKerelem& kerelem) {
    Allapot allapot = allapotKerelembol(kerelem);
    const std::string szoveg = IngresszioKeres(allapot, allapot.Keplet.pillanat,
                                               datumMezo(kerelem, "esemeny"), allapot.Keplet.helyseg);
    return {{"IngresszioSzoveg", szoveg},
            {"verdikt", szoveg.empty() ? ingresszioVerdikt.nincs : ingresszioVerdikt.van}};
}

TJson primerMuvelet(const TKerelem& kerelem) {
    return {{"sorok", PrimerFutas(szuletesiAllapot(kerelem), datumMezo(kerelem, "kezdo"))}};
}

TJson solarHazMuvelet(const TKerelem& kerelem) {
    const Allapot allapot = szuletesiAllapot(kerelem);
    TPillanat p = datumMezo(kerelem, "datum");
    return {{"haz", SolarHaz(allapot.Keplet.bolygo, DatumbolJulianszam(p.ev, p.ho, p.nap),
                             egeszMezo(kerelem, "hosszusag"), egeszMezo(kerelem, "szelesseg"))}};
}
