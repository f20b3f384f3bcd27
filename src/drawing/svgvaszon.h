#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "drawing/vaszon.h"

/// A text as shapes, so that whoever shows it needs no font.
struct TKorvonal {
    std::string utvonal;  ///< path commands, from the left end of the base line; empty where nothing is drawn
    double szelesseg = 0;  ///< pixels
    double alapvonal = 0;  ///< from the cell's top down to the base line
};

/// Writes the drawing as an SVG document: black on white, texts as outlines. It is laid out for its natural
/// size, one pixel to a unit, in which horizontal and vertical lines stand on whole pixels as on a screen.
class SvgVaszon : public Vaszon {
public:
    using TKorvonalForras =
        std::function<TKorvonal(std::string_view betu, int magassag, std::string_view szoveg)>;

    /// @param cim      title of the document
    /// @param forras   draws the texts; asked with a height above 0 only
    SvgVaszon(int szelesseg, int magassag, std::string_view cim, TKorvonalForras forras);

    void Ellipse(int x1, int y1, int x2, int y2) override;
    void MoveTo(int x, int y) override;
    void LineTo(int x, int y) override;
    void TextOut(int x, int y, std::string_view szoveg) override;
    int TextWidth(std::string_view szoveg) override;
    /// A hairline is one pixel.
    void TollSzelesseg(int szelesseg) override { toll_ = szelesseg > 0 ? szelesseg : 1; }
    void Stilus(TollStilus stilus) override { stilus_ = stilus; }
    void Betu(std::string_view nev, int magassag) override;

    /// The whole document.
    std::string svg() const { return rajz_ + "</svg>\n"; }

private:
    std::string toll(bool kerekVeg) const;

    std::string rajz_;
    TKorvonalForras forras_;
    int x_ = 0, y_ = 0;
    int toll_ = 1;
    TollStilus stilus_ = TollStilus::folytonos;
    std::string betutipus_;
    int magassag_ = 0;
};

/// A number as SVG wants it in any language: a point, two decimals at most, no needless zeros.
std::string svgSzam(double ertek);
