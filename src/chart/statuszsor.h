#pragma once

#include <cstdint>
#include <string>

#include "chart/allapot.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"

/// Panels of the status bar.
enum StatuszPanel {
    panelTipus = 0,
    panelArmc = 1,
    panelNev = 2,
    panelIdo = 3,
    panelHely = 4,
    panelKoordinata = 5
};

/// Date as in "2024.03.05."; the year has no padding.
std::string datumSzoveg(const TPillanat& pillanat);

/// Date and time as in "2024.03.05. 08:15:00".
std::string idopontSzoveg(const TPillanat& pillanat);

/// Longitude, then latitude, as in "19°4'K  47°30'É"; a coordinate of 0 has no letter.
/// @param hosszusag,szelesseg  arcseconds, east and north positive
std::string koordinataSzoveg(std::int32_t hosszusag, std::int32_t szelesseg);

/// "ARMC:  " with the sidereal time, its seconds truncated.
std::string armcSzoveg(const TKeplet& keplet);

/// Writes panels 1, 3, 4 and 5.
/// @param pillanat,idoTipus  what panel 3 shows: the caller chooses the chart's moment or the typed one
void IrStatuszSor(Allapot& allapot, const TPillanat& pillanat, TIdoTipus idoTipus);

/// The stepper's title: the date and time of panel 3.
void LeptetoCimIras(TFeliratok& feliratok);
