#include "windows/qtvaszon.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QFontMetrics>
#include <QLineF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QTransform>

#include "windows/betukeszlet.h"
#include "windows/korkeszlet.h"
#include "windows/qszoveg.h"

namespace {

constexpr double pixelKozep = 0.5;

/// Widest line, in device pixels, whose round ends can't be told from square ones.
constexpr double legszelesebbSzogletes = 8;

/// A box moved to the nearest whole device pixel; one that is half a pixel off goes towards the top left.
QRectF egeszPixelre(QRectF doboz, double arany) {
    const auto egesz = [arany](double hely) { return std::ceil(hely * arany - pixelKozep) / arany; };
    doboz.moveTo(egesz(doboz.left()), egesz(doboz.top()));
    return doboz;
}

QPointF pixelKozepe(const QPoint& hely) {
    return QPointF(hely) + QPointF(pixelKozep, pixelKozep);
}

/// Distance of a point from a line's nearest point.
double tavolsag(const QPointF& pont, const QLineF& vonal) {
    const QPointF irany = vonal.p2() - vonal.p1();
    const double hossz2 = QPointF::dotProduct(irany, irany);
    const double t = hossz2 > 0 ? QPointF::dotProduct(pont - vonal.p1(), irany) / hossz2 : 0;
    return QLineF(pont, vonal.pointAt(std::clamp(t, 0.0, 1.0))).length();
}

/// Distance of a point from a box, 0 inside.
double tavolsag(const QPointF& pont, const QRectF& doboz) {
    const QPointF legkozelebb(std::clamp(pont.x(), doboz.left(), doboz.right()),
                              std::clamp(pont.y(), doboz.top(), doboz.bottom()));
    return QLineF(pont, legkozelebb).length();
}

/// The middle line of a strip, in the direction of its drawing: a pattern begins where its line begins.
QLineF kozepvonal(const QRectF& sav, const QPoint& irany) {
    const QPointF kozep = sav.center();
    const QLineF vonal = irany.y() != 0 ? QLineF(kozep.x(), sav.top(), kozep.x(), sav.bottom())
                                        : QLineF(sav.left(), kozep.y(), sav.right(), kozep.y());
    return irany.x() + irany.y() < 0 ? QLineF(vonal.p2(), vonal.p1()) : vonal;
}

}  // namespace

QtVaszon::QtVaszon(QPainter& festo, TLap lap) : festo_(festo), toll_(Qt::black, 1) {
    if (lap == TLap::feher) feherSugar_ = std::numeric_limits<double>::infinity();
    festo_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    festo_.setBrush(Qt::white);
    tollBeallitas();
}

void QtVaszon::tollBeallitas() {
    const bool vastag = toll_.widthF() > 1;
    toll_.setStyle(vastag ? Qt::SolidLine : stilus_);
    toll_.setCapStyle(!vastag ? Qt::FlatCap : szogletes() ? Qt::SquareCap : Qt::RoundCap);
    festo_.setPen(toll_);
}

/// With square ends a sloped line is drawn ten times faster than with round ones.
bool QtVaszon::szogletes() const {
    return vonalSzelesseg() * keparany() <= legszelesebbSzogletes;
}

double QtVaszon::vonalSzelesseg() const {
    return toll_.isCosmetic() ? 1 / keparany() : toll_.widthF();
}

/// A circle's filling is left out where its place is known to be white already.
void QtVaszon::Ellipse(int x1, int y1, int x2, int y2) {
    const QRectF doboz = QRectF(pixelKozepe({x1, y1}), pixelKozepe({x2, y2})).normalized();
    const bool kor = doboz.width() == doboz.height();
    const double sugar = doboz.width() / 2;
    const bool feher = kor && (std::isinf(feherSugar_) || doboz.center() == feherKozep_) &&
                       sugar + tollFele() <= feherSugar_;
    korRajz(doboz, !feher);
    feherKozep_ = doboz.center();
    feherSugar_ = kor ? sugar - tollFele() : -1;
}

/// Both ways begin at the same place of the painter: its lines are rounded by where they are, and a kept
/// circle must not differ from one drawn.
void QtVaszon::korRajz(const QRectF& doboz, bool kitoltve) {
    const QPointF hely = doboz.topLeft() - QPointF(pixelKozep, pixelKozep);
    festo_.translate(hely);
    if (const auto* darabok =
            pixelesRaszter() ? korDarabok(doboz.size().toSize(), toll_, kitoltve) : nullptr) {
        for (const TKorDarab& darab : *darabok) festo_.drawImage(darab.hely, darab.kep);
    } else {
        festo_.setBrush(kitoltve ? QBrush(Qt::white) : QBrush());
        festo_.drawEllipse(doboz.translated(-hely));
    }
    festo_.translate(-hely);
}

/// The device has pixels, and they are the units that are drawn in.
bool QtVaszon::pixelesRaszter() const {
    const QTransform& t = festo_.deviceTransform();
    return festo_.paintEngine()->type() == QPaintEngine::Raster && t.type() <= QTransform::TxTranslate &&
           t.dx() == std::round(t.dx()) && t.dy() == std::round(t.dy());
}

double QtVaszon::tollFele() const {
    return std::max(1.0, toll_.widthF()) / 2 + 1;
}

/// Something is drawn at that distance from the middle of the white circle, which ends before it.
void QtVaszon::nemFeher(double tavolsag) {
    feherSugar_ = std::min(feherSugar_, tavolsag);
}

void QtVaszon::LineTo(int x, int y) {
    if (feherSugar_ > 0)
        nemFeher(tavolsag(feherKozep_, QLineF(pixelKozepe(hely_), pixelKozepe({x, y}))) - tollFele());
    const bool fuggoleges = x == hely_.x();
    const bool vizszintes = y == hely_.y();
    if (fuggoleges != vizszintes)
        egyenesVonal({x, y});
    else
        festo_.drawLine(pixelKozepe(hely_), pixelKozepe({x, y}));
    hely_ = {x, y};
}

/// A box that begins on a whole device pixel; without antialiasing it ends on one too.
void QtVaszon::kitoltes(const QRectF& doboz, const QColor& szin) {
    festo_.setRenderHint(QPainter::Antialiasing, false);
    festo_.fillRect(doboz, szin);
    festo_.setRenderHint(QPainter::Antialiasing);
}

/// A horizontal or vertical line covers whole device pixels: about the middle of its pixel a line of an
/// even width would be grey along both edges.
void QtVaszon::egyenesVonal(const QPoint& vege) {
    const double arany = keparany();
    const double fel = vonalSzelesseg() / 2;
    const QRectF helye = QRectF(pixelKozepe(hely_), pixelKozepe(vege)).normalized();
    const QRectF sav = egeszPixelre(helye.adjusted(-fel, -fel, fel, fel), arany);
    if (!szogletes())
        festo_.drawLine(pixelKozepe(hely_), pixelKozepe(vege));
    else if (toll_.style() == Qt::SolidLine)
        kitoltes(sav, toll_.color());
    else
        festo_.drawLine(kozepvonal(sav, vege - hely_));
}

void QtVaszon::TextOut(int x, int y, std::string_view szoveg) {
    if (szoveg.empty() || magassag_ <= 0) return;
    TMeretezettBetu& betu = meretezett();
    const TJelSor& sor = betu.sor(szoveg);
    const double szelesseg = sor.megvan ? sor.szelesseg : TextWidth(szoveg);
    const QRectF cella(x, y, szelesseg, magassag_);
    // A glyph may reach out of its cell, but not by the height of the font.
    if (feherSugar_ > 0)
        nemFeher(tavolsag(feherKozep_, cella.adjusted(-magassag_, -magassag_, magassag_, magassag_)));
    kitoltes(egeszPixelre(cella, keparany()), Qt::white);
    const QPointF alapvonal(x, y + betu.betu.ascent());
    if (sor.megvan) {
        festo_.drawGlyphRun(alapvonal, sor.futam);
        return;
    }
    festo_.setFont(tartalekBetu());
    festo_.drawText(alapvonal, qszoveg(szoveg));
}

QFont QtVaszon::tartalekBetu() const {
    return cellaMagassaguBetu(qszoveg(betuNev_), magassag_, festo_.device()->logicalDpiY());
}

int QtVaszon::TextWidth(std::string_view szoveg) {
    if (magassag_ <= 0) return 0;
    const TJelSor& sor = meretezett().sor(szoveg);
    if (!sor.megvan) return QFontMetrics(tartalekBetu(), festo_.device()).horizontalAdvance(qszoveg(szoveg));
    return qRound(sor.szelesseg);
}

void QtVaszon::TollSzelesseg(int szelesseg) {
    toll_.setCosmetic(szelesseg <= 0);
    toll_.setWidth(szelesseg > 0 ? szelesseg : 1);
    tollBeallitas();
}

void QtVaszon::Stilus(TollStilus stilus) {
    switch (stilus) {
        case TollStilus::folytonos:
            stilus_ = Qt::SolidLine;
            break;
        case TollStilus::szaggatott:
            stilus_ = Qt::DashLine;
            break;
        case TollStilus::pontozott:
            stilus_ = Qt::DotLine;
            break;
        case TollStilus::pontVonal:
            stilus_ = Qt::DashDotLine;
            break;
        case TollStilus::pontPontVonal:
            stilus_ = Qt::DashDotDotLine;
            break;
    }
    tollBeallitas();
}

/// The face is looked for when a text is drawn with it.
void QtVaszon::Betu(std::string_view nev, int magassag) {
    magassag_ = magassag;
    betuNev_ = nev;
    betu_ = nullptr;
}

TMeretezettBetu& QtVaszon::meretezett() {
    if (betu_ == nullptr) betu_ = meretezettBetu(betuNev_, magassag_);
    return *betu_;
}
