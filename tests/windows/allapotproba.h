#pragma once

#include <cmath>

#include <QStringList>

#include "chart/allapot.h"
#include "commands/lepteto.h"
#include "tables/szoveg.h"

/// What holds of the program's state after any event whatever.

/// @param hiheto  all charts opened so far had figures as the dialogs take them; what comes of others is told
///   nowhere, as long as it is a number
/// @return what does not hold, empty if all is well
inline QStringList allapotHibai(const Allapot& a, bool hiheto) {
    QStringList hibak;
    const auto kell = [&hibak](bool igaz, const char* mi) {
        if (!igaz) hibak << mi;
    };
    const auto kozte = [](auto ertek, auto also, auto felso) { return ertek >= also && ertek <= felso; };
    const auto fokok = [&](const auto& sor, double also, double felso) {
        return std::all_of(sor.begin(), sor.end(),
                           [&](double x) { return std::isfinite(x) && (!hiheto || kozte(x, also, felso)); });
    };
    const TKeplet& k = a.Keplet;
    kell(fokok(k.bolygo, 0, 360), "longitudes of the bodies");
    // Far in the west the sidereal time of the small hours is negative: they read the table's first row
    // backwards.
    constexpr double sor = 15;
    kell(fokok(k.hazCsucs, -sor, 360 + sor), "cusps");
    kell(std::all_of(k.mozgas.begin(), k.mozgas.end(),
                     [](char c) { return c == 'D' || c == 'R' || c == 'S'; }),
         "letters of motion");
    for (const auto& pontok : a.Rajz.FenyszogPontok) kell(fokok(pontok, 0, 360), "aspect points");
    for (const auto& orbisok : a.OrbisTabla) kell(fokok(orbisok, 0, 360), "orbs");
    kell(kozte(static_cast<int>(a.KepletTipus), 1, 3), "view");
    kell(!hiheto || (kozte(k.pillanat.ora, 0, 23) && kozte(k.pillanat.perc, 0, 59) &&
                     kozte(k.pillanat.mperc, 0, 59)),
         "clock time");
    kell(kozte(a.Szemely.idoTipusIndex, -1, 2), "kind of time");
    kell(kozte(a.FeliratIndex, 0, feliratHelyek), "number of the title text");
    kell(kozte(a.AktivHaz, 1, 12), "house of the rectification");
    kell(kozte(a.Esemenyek.EsemenyDb, 0, esemenyHelyek), "number of events");
    kell(kozte(a.Visszateresek.szamlalo, 0, 1000), "number of returns");
    kell(kozte(a.VisszateresKep.sor, 1, 1000), "row of the derived chart");
    kell(kozte(a.TercierOrbisNap, 1.0, 99.0), "orb of the tertiary directions");
    kell(kozte(a.PontositasHatotav, 0, 3000), "range of the rectification");
    const TFeliratok& f = a.Feliratok;
    for (const std::string& panel : f.statusz) kell(ervenyesUtf8(panel), "text of the status bar");
    kell(ervenyesUtf8(f.cim) && ervenyesUtf8(f.hangCim) && ervenyesUtf8(f.memo), "text of a title");
    kell(ervenyesUtf8(a.Szemely.nev) && ervenyesUtf8(a.Szemely.jegyzet), "text of the person");
    return hibak;
}
