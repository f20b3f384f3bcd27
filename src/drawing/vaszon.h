#pragma once

#include <string_view>

/// Pen styles by number.
enum class TollStilus { folytonos = 0, szaggatott = 1, pontozott = 2, pontVonal = 3, pontPontVonal = 4 };

/// The surface that a wheel is drawn on. Everything is black on white: circles are filled white, and
/// `TextOut` paints its cell white first. Coordinates are pixels, growing downward.
class Vaszon {
public:
    virtual ~Vaszon() = default;

    /// Filled circle or ellipse in a box.
    virtual void Ellipse(int x1, int y1, int x2, int y2) = 0;
    virtual void MoveTo(int x, int y) = 0;
    /// A line from the place of the last `MoveTo` or `LineTo`.
    virtual void LineTo(int x, int y) = 0;
    /// Text with its top-left corner at the point.
    virtual void TextOut(int x, int y, std::string_view szoveg) = 0;
    virtual int TextWidth(std::string_view szoveg) = 0;

    /// Pen width in pixels; 0 is one device pixel.
    virtual void TollSzelesseg(int szelesseg) = 0;
    virtual void Stilus(TollStilus stilus) = 0;
    /// Face and height of the character cell (ascent + descent) in pixels.
    virtual void Betu(std::string_view nev, int magassag) = 0;
};
