#include "chart/statuszsor.h"

#include <array>
#include <cstdlib>
#include <string_view>

#include "tables/szamtan.h"
#include "tables/szoveg.h"

std::string datumSzoveg(const TPillanat& p) {
    return std::to_string(p.ev)
        .append(".")
        .append(ketJegy(p.ho))
        .append(".")
        .append(ketJegy(p.nap))
        .append(".");
}

std::string idopontSzoveg(const TPillanat& p) {
    return datumSzoveg(p)
        .append(" ")
        .append(ketJegy(p.ora))
        .append(":")
        .append(ketJegy(p.perc))
        .append(":")
        .append(ketJegy(p.mperc));
}

namespace {

/// Degrees and minutes of the absolute value: the letter tells the side.
std::string fokPerc(std::int32_t ivmasodperc) {
    const std::int64_t abszolut = std::abs(std::int64_t{ivmasodperc});
    return std::to_string(abszolut / 3600) + "°" + std::to_string(abszolut % 3600 / 60) + "'";
}

std::string_view oldal(std::int32_t ertek, std::string_view pozitiv, std::string_view negativ) {
    if (ertek == 0) return {};
    return ertek > 0 ? pozitiv : negativ;
}

}  // namespace

std::string koordinataSzoveg(std::int32_t hosszusag, std::int32_t szelesseg) {
    return fokPerc(hosszusag).append(oldal(hosszusag, "K  ", "Ny  ")) +
           fokPerc(szelesseg).append(oldal(szelesseg, "É", "D"));
}

std::string armcSzoveg(const TKeplet& keplet) {
    return "ARMC:  " + ketJegy(keplet.armcOra) + ":" + ketJegy(keplet.armcPerc) + ":" +
           ketJegy(egesz(keplet.armcMperc));
}

void IrStatuszSor(Allapot& allapot, const TPillanat& pillanat, TIdoTipus idoTipus) {
    auto& panelek = allapot.Feliratok.statusz;
    const TKeplet& keplet = allapot.Keplet;
    panelek[panelIdo] = idopontSzoveg(pillanat).append(" ").append(idoTipusSzoveg(idoTipus));
    panelek[panelHely] = keplet.helyseg;
    panelek[panelKoordinata] = koordinataSzoveg(keplet.hosszusag, keplet.szelesseg);
    panelek[panelArmc] = armcSzoveg(keplet);
}

void LeptetoCimIras(TFeliratok& feliratok) {
    constexpr int cimHossz = 20;  // characters: date and time
    feliratok.leptetoCim = elsoKarakterek(feliratok.statusz[panelIdo], cimHossz);
}
