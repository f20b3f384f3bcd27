#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "chart/allapot.h"
#include "drawing/geometria.h"
#include "drawing/kepletrajz.h"
#include "drawing/rogzitovaszon.h"

/// A chart made by hand: bodies 36 degrees apart, houses of 30 degrees, no aspects.
inline Allapot probaKeplet(double elsoCsucs = 100) {
    Allapot a;
    for (int i = 1; i <= 10; ++i) {
        a.Keplet.bolygo[i] = 3 + 36 * (i - 1);
        a.Keplet.mozgas[i] = 'D';
        a.FenyszogRadix[i].tolt('.');
    }
    for (int i = 1; i <= 12; ++i) {
        const double csucs = elsoCsucs + 30 * (i - 1);
        a.Keplet.hazCsucs[i] = csucs >= 360 ? csucs - 360 : csucs;
    }
    a.OrbisTabla = {};  // no aspects to the angles either
    a.Rajz.szimbolumFont = "Jelek";
    return a;
}

/// Draws a view for a window of a size.
inline std::vector<TMuvelet> rajz(Allapot& a, int tipus = 1, int szelesseg = 987, int magassag = 644) {
    RogzitoVaszon vaszon;
    a.KepletTipus = static_cast<TKepletTipus>(tipus);
    AblakGeometria(a.Rajz, a.Keplet.hazCsucs[1], szelesseg, magassag);
    KepletRajz(vaszon, a);
    return vaszon.muveletek();
}

/// The same on a surface twenty times as large, where a divisor off by one shows in the pixels: the wheel of
/// radius 5152 at (6460, 6440), the small ones of radius 2396 at (16099, 3220) and (16099, 9660).
inline std::vector<TMuvelet> nagyRajz(Allapot& a, int tipus = 1) {
    return rajz(a, tipus, 19740, 12880);
}

template <typename T>
std::vector<T> csak(const std::vector<TMuvelet>& muveletek) {
    std::vector<T> kivalasztott;
    for (const TMuvelet& m : muveletek)
        if (const T* talalat = std::get_if<T>(&m)) kivalasztott.push_back(*talalat);
    return kivalasztott;
}

inline std::vector<TSzovegMuvelet> szovegek(const std::vector<TMuvelet>& muveletek,
                                            const std::string& szoveg) {
    std::vector<TSzovegMuvelet> talalatok;
    for (const TSzovegMuvelet& sz : csak<TSzovegMuvelet>(muveletek))
        if (sz.szoveg == szoveg) talalatok.push_back(sz);
    return talalatok;
}
