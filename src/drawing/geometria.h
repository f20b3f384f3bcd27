#pragma once

#include "chart/allapot.h"

/// Where the wheels stand and how big their rings are. All in pixels; rounding is to nearest, ties to even.

/// Geometry of a window: rotation by the first cusp, size, centre and radius of the large wheel. In a wide
/// window the wheel stands against the left side and leaves the right side to the small wheels.
void AblakGeometria(TRajz& rajz, double elsoCsucs, int szelesseg, int magassag);

/// Geometry of a printed page; the rotation stays. On an upright page the wheel stands at the top and the
/// small wheels below it.
void LapGeometria(TRajz& rajz, int szelesseg, int magassag);

/// Radius and centres of the two small wheels: stacked on the right, or side by side below when printing.
struct TKisKerekek {
    int kisSugar;
    int kis1X, kis1Y;
    int kis2X, kis2Y;
};
TKisKerekek KisKerekGeometria(const TRajz& rajz);

/// Small wheels below this radius are not drawn.
inline constexpr int legkisebbKisSugar = 45;

/// The six ring radii of a wheel: outer, scale, bodies, houses, inner, core. The fixed pixel terms make a
/// wheel that does not scale linearly; on a small one the rings may even cross.
struct TSugarak {
    int kulso, skala, bolygo, haz, belso, mag;
};
TSugarak GyuruSugarak(int kerekSugar, bool nyomtatas);

/// Pen width that grows with the wheel: round(egyseg * R / 300).
int TollVastagsag(int egyseg, int kerekSugar);
