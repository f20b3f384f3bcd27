#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QString>

#include "drawing/vaszon.h"

struct TMeretezettBetu;

/// The canvas on a QPainter: black antialiased lines, white fillings, one pixel being one unit of the
/// painter. A coordinate is the middle of its pixel; horizontal and vertical lines and the boxes of texts
/// stand on whole device pixels. Pens wider than one pixel draw solid, the styles are for hairlines.
class QtVaszon : public Vaszon {
public:
    /// @param festo  active; it must outlive the canvas
    explicit QtVaszon(QPainter& festo);

    void Ellipse(int x1, int y1, int x2, int y2) override;
    void MoveTo(int x, int y) override { hely_ = {x, y}; }
    void LineTo(int x, int y) override;
    void TextOut(int x, int y, std::string_view szoveg) override;
    int TextWidth(std::string_view szoveg) override;
    void TollSzelesseg(int szelesseg) override;
    void Stilus(TollStilus stilus) override;
    /// A height of 0 or less draws no text.
    void Betu(std::string_view nev, int magassag) override;

private:
    void tollBeallitas();
    void egyenesVonal(const QPoint& vege);
    /// How far the pen reaches from its line at most, antialiasing included.
    double tollFele() const;
    void nemFeher(double tavolsag);
    TMeretezettBetu& meretezett();
    void kitoltes(const QRectF& doboz, const QColor& szin);
    /// Device pixels in a unit of the painter.
    double keparany() const { return festo_.device()->devicePixelRatioF(); }
    /// For texts with characters that the face lacks.
    QFont tartalekBetu() const;

    QPainter& festo_;
    QPoint hely_;
    QPen toll_;
    Qt::PenStyle stilus_ = Qt::SolidLine;
    int magassag_ = 0;
    std::string betuNev_;
    std::shared_ptr<TMeretezettBetu> betu_;  ///< looked for at the first text
    QPointF feherKozep_;                     ///< about this point all is white
    double feherSugar_ = -1;                 ///< so far; nothing is known where it is not above 0
};

/// A text as it is drawn, in shapes: from the left end of its base line; its width, and its cell's top to the
/// base line.
struct TSzovegAlak {
    QPainterPath alak;
    double szelesseg = 0;
    double alapvonal = 0;
};

/// @param magassag  of the character cell, above 0
TSzovegAlak szovegAlak(const QString& betu, int magassag, const QString& szoveg);

/// A font whose character cell, ascent and descent together, is so many pixels high.
/// @param dpi  resolution of the device that it is used on
QFont cellaMagassaguBetu(const QString& nev, int magassag, int dpi);
