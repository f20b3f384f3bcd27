#include "drawing/rogzitovaszon.h"

#include "tables/szoveg.h"

void RogzitoVaszon::Ellipse(int x1, int y1, int x2, int y2) {
    muveletek_.emplace_back(TKorMuvelet{(x1 + x2) / 2, (y1 + y2) / 2, (x2 - x1) / 2, toll_, stilus_});
}

void RogzitoVaszon::MoveTo(int x, int y) {
    x_ = x;
    y_ = y;
}

void RogzitoVaszon::LineTo(int x, int y) {
    muveletek_.emplace_back(TVonalMuvelet{x_, y_, x, y, toll_, stilus_});
    MoveTo(x, y);
}

void RogzitoVaszon::TextOut(int x, int y, std::string_view szoveg) {
    muveletek_.emplace_back(TSzovegMuvelet{x, y, std::string(szoveg), betutipus_, magassag_});
}

int RogzitoVaszon::TextWidth(std::string_view szoveg) {
    return karakterSzam(szoveg) * magassag_ / 2;
}

void RogzitoVaszon::Betu(std::string_view nev, int magassag) {
    betutipus_ = nev;
    magassag_ = magassag;
}
