#include "drawing/kerek.h"

#include <cmath>
#include <numbers>

#include "tables/szamtan.h"

using std::numbers::pi;

double vaszonSzog(double fok) {
    return pi * fok / 180;
}

double TKerek::szog(double hossz) const {
    return 2 * pi - pi * hossz / 180 + forgatas_ + pi;
}

TKerek::TPont TKerek::pont(double sugar, double szog) const {
    return {kerekit(sugar * std::cos(szog)) + kozpontX_, kerekit(sugar * std::sin(szog)) + kozpontY_};
}

void TKerek::kor(int sugar) const {
    vaszon_.Ellipse(kozpontX_ - sugar, kozpontY_ - sugar, kozpontX_ + sugar, kozpontY_ + sugar);
}

void TKerek::vonal(double sugar1, double szog1, double sugar2, double szog2) const {
    const TPont a = pont(sugar1, szog1);
    const TPont b = pont(sugar2, szog2);
    vaszon_.MoveTo(a.x, a.y);
    vaszon_.LineTo(b.x, b.y);
}

void TKerek::szoveg(double sugar, double szog, int eltolas, std::string_view szoveg) const {
    const TPont p = pont(sugar, szog);
    vaszon_.TextOut(p.x - eltolas, p.y - eltolas, szoveg);
}

void TKerek::szovegKozepre(double sugar1, double szog1, double sugar2, double szog2, int eltolas,
                           std::string_view szoveg) const {
    const double bx = sugar2 * std::cos(szog2);
    const double by = sugar2 * std::sin(szog2);
    const double x = (sugar1 * std::cos(szog1) - bx) / 2 + bx + kozpontX_ - eltolas;
    const double y = (sugar1 * std::sin(szog1) - by) / 2 + by + kozpontY_ - eltolas;
    vaszon_.TextOut(kerekit(x), kerekit(y), szoveg);
}
