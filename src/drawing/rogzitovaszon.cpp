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

namespace {

/// Sets the pen and the font only where they change: a canvas may look a font up at each call.
class TVisszajatszo {
public:
    explicit TVisszajatszo(Vaszon& vaszon) : vaszon_(vaszon) {}

    void operator()(const TKorMuvelet& m) {
        toll(m.toll, m.stilus);
        vaszon_.Ellipse(m.x - m.r, m.y - m.r, m.x + m.r, m.y + m.r);
    }
    void operator()(const TVonalMuvelet& m) {
        toll(m.toll, m.stilus);
        vaszon_.MoveTo(m.x1, m.y1);
        vaszon_.LineTo(m.x2, m.y2);
    }
    void operator()(const TSzovegMuvelet& m) {
        if (betu_ == nullptr || betu_->magassag != m.magassag || betu_->betutipus != m.betutipus)
            vaszon_.Betu(m.betutipus, m.magassag);
        betu_ = &m;
        vaszon_.TextOut(m.x, m.y, m.szoveg);
    }

private:
    void toll(int szelesseg, int stilus) {
        if (szelesseg != toll_) vaszon_.TollSzelesseg(szelesseg);
        if (stilus != stilus_) vaszon_.Stilus(static_cast<TollStilus>(stilus));
        toll_ = szelesseg;
        stilus_ = stilus;
    }

    Vaszon& vaszon_;
    int toll_ = -1, stilus_ = -1;           ///< none set yet
    const TSzovegMuvelet* betu_ = nullptr;  ///< the text whose font is set
};

}  // namespace

void RajzolMuveletek(const std::vector<TMuvelet>& muveletek, Vaszon& vaszon) {
    TVisszajatszo visszajatszo(vaszon);
    for (const TMuvelet& muvelet : muveletek) std::visit(visszajatszo, muvelet);
}
