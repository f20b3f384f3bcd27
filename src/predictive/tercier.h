#pragma once

#include <string>

#include "chart/allapot.h"
#include "predictive/orbisablak.h"
#include "tables/pillanat.h"

/// Degrees that the bodies are turned back for each day of life.
inline constexpr long double TercierKulcs = 0.013888706365503L;

/// Whether a directed place lies in the window, both ends included. A window that spans 0 includes its lower
/// end too, while `PontTalalat` of the primary directions leaves it out; what lies outside the circle meets
/// no such window.
bool TercierTalalat(double d, const TOrbisAblak& ablak);

struct TTercier {
    std::string TercierSzoveg;     ///< the hits in letters of the symbol font, bodies joined by 'Q'
    std::string TercierHazSzoveg;  ///< the houses of the same bodies; shown nowhere
};

/// Tertiary directions of a date: which natal body, turned back by its arc, stands conjunct or opposite
/// another. Leaves the natal moment, `Hazcsucsok`, `Bolygok`, `BolygoHazak` and the work `Elteresek`
/// computed.
/// @param szuletes   birth date and time, zone clock
/// @param esemeny    the date; its time plays no part
/// @param orbisNap   orb in days
TTercier TercierKeres(Allapot& allapot, const TPillanat& szuletes, const TPillanat& esemeny,
                      const std::string& helyseg, double orbisNap);

/// What the dialog and the wheel say of a result.
struct TVerdikt {
    const char* van;
    const char* nincs;
    const char* uresKep;  ///< on the wheel in place of an empty text
};
inline constexpr TVerdikt tercierVerdikt{"Van direkció!", "Nincs direkció!", "Nincs tercier direkció!"};
inline constexpr TVerdikt ingresszioVerdikt{"Van inresszió!", "Nincs ingresszió!",
                                            "Nincs szolár-ingresszió!"};
