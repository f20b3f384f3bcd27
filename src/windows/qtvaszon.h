#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <QFont>
#include <QPainter>
#include <QPen>
#include <QString>

#include "drawing/vaszon.h"

struct TMeretezettBetu;

/// What is known of a surface before it is drawn on.
enum class TLap { barmilyen, feher };

/// The canvas on a QPainter: black antialiased lines, white fillings, one pixel being one unit of the
/// painter. A coordinate is the middle of its pixel; horizontal and vertical lines and the boxes of texts
/// stand on whole device pixels. Pens wider than one pixel draw solid, the styles are for hairlines.
class QtVaszon : public Vaszon {
public:
    /// @param festo  active; it must outlive the canvas
    /// @param lap  a white surface saves the fillings of circles where nothing is drawn yet
    explicit QtVaszon(QPainter& festo, TLap lap = TLap::barmilyen);

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
    /// The pen's width in units of the painter.
    double vonalSzelesseg() const;
    /// The pen is so narrow that round ends can't be told from square ones.
    bool szogletes() const;
    /// How far the pen reaches from its line at most, antialiasing included.
    double tollFele() const;
    void korRajz(const QRectF& doboz, bool kitoltve);
    bool pixelesRaszter() const;
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
