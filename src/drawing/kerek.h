#pragma once

#include <string_view>

#include "drawing/geometria.h"
#include "drawing/vaszon.h"

/// Polar drawing around a wheel's centre.
class TKerek {
public:
    /// @param forgatas  radians; 0 puts 0 degrees of Aries at the left
    TKerek(Vaszon& vaszon, int kozpontX, int kozpontY, double forgatas)
        : vaszon_(vaszon), kozpontX_(kozpontX), kozpontY_(kozpontY), forgatas_(forgatas) {}

    /// Canvas angle of a longitude in degrees; longitudes grow counter-clockwise.
    double szog(double hossz) const;

    struct TPont {
        int x, y;
    };
    TPont pont(double sugar, double szog) const;

    void kor(int sugar) const;
    void vonal(double sugar1, double szog1, double sugar2, double szog2) const;
    /// Text with its top-left corner at the point less `eltolas` on both axes.
    void szoveg(double sugar, double szog, int eltolas, std::string_view szoveg) const;
    /// Text in the middle between two points, rounded only at the end.
    void szovegKozepre(double sugar1, double szog1, double sugar2, double szog2, int eltolas,
                       std::string_view szoveg) const;

    Vaszon& vaszon() const { return vaszon_; }

private:
    Vaszon& vaszon_;
    int kozpontX_, kozpontY_;
    double forgatas_;
};

/// Canvas angle in radians of a plain angle in degrees, clockwise from the right.
double vaszonSzog(double fok);
