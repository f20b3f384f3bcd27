#pragma once

/// Window of an orb around a place of the circle, degrees, each end brought into the circle; `also` lies
/// above `felso` where the window spans 0.
struct TOrbisAblak {
    double also, felso;
};

constexpr TOrbisAblak OrbisAblak(double hely, double orb) {
    const double also = hely - orb;
    const double felso = hely + orb;
    return {also < 0 ? also + 360 : also, felso >= 360 ? felso - 360 : felso};
}
