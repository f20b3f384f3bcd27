#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "drawing/vaszon.h"

/// Canvas calls as data, with the pen and font in force.
struct TKorMuvelet {
    int x, y, r, toll, stilus;
    friend bool operator==(const TKorMuvelet&, const TKorMuvelet&) = default;
};
struct TVonalMuvelet {
    int x1, y1, x2, y2, toll, stilus;
    friend bool operator==(const TVonalMuvelet&, const TVonalMuvelet&) = default;
};
struct TSzovegMuvelet {
    int x, y;
    std::string szoveg, betutipus;
    int magassag;
    friend bool operator==(const TSzovegMuvelet&, const TSzovegMuvelet&) = default;
};
using TMuvelet = std::variant<TKorMuvelet, TVonalMuvelet, TSzovegMuvelet>;

/// Records the drawing instead of painting it. A text is as wide as half its height a character.
class RogzitoVaszon : public Vaszon {
public:
    void Ellipse(int x1, int y1, int x2, int y2) override;
    void MoveTo(int x, int y) override;
    void LineTo(int x, int y) override;
    void TextOut(int x, int y, std::string_view szoveg) override;
    int TextWidth(std::string_view szoveg) override;
    void TollSzelesseg(int szelesseg) override { toll_ = szelesseg; }
    void Stilus(TollStilus stilus) override { stilus_ = static_cast<int>(stilus); }
    void Betu(std::string_view nev, int magassag) override;

    const std::vector<TMuvelet>& muveletek() const { return muveletek_; }

private:
    std::vector<TMuvelet> muveletek_;
    int x_ = 0, y_ = 0;
    int toll_ = 1, stilus_ = 0;
    std::string betutipus_;
    int magassag_ = 0;
};

/// Draws a recording on another canvas.
void RajzolMuveletek(const std::vector<TMuvelet>& muveletek, Vaszon& vaszon);
