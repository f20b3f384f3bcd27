#include "windows/qtvaszon.h"

#include <cmath>
#include <utility>

#include <QFontMetrics>
#include <QGlyphRun>
#include <QHash>
#include <QLineF>
#include <QList>
#include <QPaintDevice>

#include "windows/qszoveg.h"

namespace {

/// A face as the system finds it, and the height of its character cell for a font of one pixel.
struct TBetukeszlet {
    QRawFont alap;
    double cellaArany;
};

const TBetukeszlet& betukeszlet(const QString& nev) {
    static QHash<QString, TBetukeszlet> keszletek;
    const auto megvan = keszletek.constFind(nev);
    if (megvan != keszletek.constEnd()) return *megvan;
    constexpr int proba = 1000;  // pixels: large enough to be free of hinting
    QFont betu(nev);
    betu.setHintingPreference(QFont::PreferNoHinting);
    betu.setPixelSize(proba);
    const QRawFont nyers = QRawFont::fromFont(betu);
    const double arany = (nyers.ascent() + nyers.descent()) / proba;
    return *keszletek.insert(nev, {nyers, arany > 0 ? arany : 1.0});
}

/// The face in one size; kept, since its glyph pictures go with it.
const QRawFont& meretezettBetu(const QString& nev, int magassag) {
    static QHash<std::pair<QString, int>, QRawFont> betuk;
    const auto kulcs = std::pair(nev, magassag);
    const auto megvan = betuk.constFind(kulcs);
    if (megvan != betuk.constEnd()) return *megvan;
    const TBetukeszlet& keszlet = betukeszlet(nev);
    QRawFont betu = keszlet.alap;
    betu.setPixelSize(magassag / keszlet.cellaArany);
    return *betuk.insert(kulcs, betu);
}

/// Glyphs of a text in a row; empty if the face lacks one of its characters.
struct TJelSor {
    QList<quint32> jelek;
    QList<QPointF> helyek;
    double szelesseg = 0;
};

TJelSor jelSor(const QRawFont& betu, const QString& szoveg) {
    TJelSor sor;
    sor.jelek = betu.glyphIndexesForString(szoveg);
    if (sor.jelek.contains(0)) return {};
    for (const QPointF& lepes : betu.advancesForGlyphIndexes(sor.jelek)) {
        sor.helyek << QPointF(sor.szelesseg, 0);
        sor.szelesseg += lepes.x();
    }
    return sor;
}

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

/// The middle line of a strip, in the direction of its drawing: a pattern begins where its line begins.
QLineF kozepvonal(const QRectF& sav, const QPoint& irany) {
    const QPointF kozep = sav.center();
    const QLineF vonal = irany.y() != 0 ? QLineF(kozep.x(), sav.top(), kozep.x(), sav.bottom())
                                        : QLineF(sav.left(), kozep.y(), sav.right(), kozep.y());
    return irany.x() + irany.y() < 0 ? QLineF(vonal.p2(), vonal.p1()) : vonal;
}

}  // namespace

QFont cellaMagassaguBetu(const QString& nev, int magassag, int dpi) {
    constexpr double pontHuvelyk = 72;
    QFont betu(nev);
    betu.setHintingPreference(QFont::PreferNoHinting);
    betu.setPointSizeF(magassag / betukeszlet(nev).cellaArany * pontHuvelyk / dpi);
    return betu;
}

TSzovegAlak szovegAlak(const QString& betu, int magassag, const QString& szoveg) {
    const QRawFont& nyers = meretezettBetu(betu, magassag);
    const TJelSor sor = jelSor(nyers, szoveg);
    TSzovegAlak ki{{}, sor.szelesseg, nyers.ascent()};
    for (qsizetype i = 0; i < sor.jelek.size(); ++i)
        ki.alak.addPath(nyers.pathForGlyph(sor.jelek[i]).translated(sor.helyek[i]));
    if (!sor.jelek.isEmpty()) return ki;
    constexpr int pixelPont = 72;  // at this resolution a point is a pixel
    const QFont tartalek = cellaMagassaguBetu(betu, magassag, pixelPont);
    QFont pixeles = tartalek;
    pixeles.setPixelSize(qMax(1, qRound(tartalek.pointSizeF())));
    ki.alak.addText(0, 0, pixeles, szoveg);
    ki.szelesseg = QFontMetricsF(pixeles).horizontalAdvance(szoveg);
    return ki;
}

QtVaszon::QtVaszon(QPainter& festo) : festo_(festo), toll_(Qt::black, 1) {
    festo_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    festo_.setBrush(Qt::white);
    tollBeallitas();
}

void QtVaszon::tollBeallitas() {
    const bool vastag = toll_.widthF() > 1;
    toll_.setStyle(vastag ? Qt::SolidLine : stilus_);
    toll_.setCapStyle(vastag ? Qt::RoundCap : Qt::FlatCap);
    festo_.setPen(toll_);
}

void QtVaszon::Ellipse(int x1, int y1, int x2, int y2) {
    festo_.drawEllipse(QRectF(pixelKozepe({x1, y1}), pixelKozepe({x2, y2})).normalized());
}

void QtVaszon::LineTo(int x, int y) {
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
    const double szelesseg = toll_.isCosmetic() ? 1 / arany : toll_.widthF();
    const double fel = szelesseg / 2;
    const QRectF helye = QRectF(pixelKozepe(hely_), pixelKozepe(vege)).normalized();
    const QRectF sav = egeszPixelre(helye.adjusted(-fel, -fel, fel, fel), arany);
    if (szelesseg * arany > legszelesebbSzogletes)
        festo_.drawLine(pixelKozepe(hely_), pixelKozepe(vege));
    else if (toll_.style() == Qt::SolidLine)
        kitoltes(sav, toll_.color());
    else
        festo_.drawLine(kozepvonal(sav, vege - hely_));
}

void QtVaszon::TextOut(int x, int y, std::string_view szoveg) {
    if (szoveg.empty() || magassag_ <= 0) return;
    const QString qsz = qszoveg(szoveg);
    const TJelSor sor = jelSor(betu_, qsz);
    const double szelesseg = sor.jelek.isEmpty() ? TextWidth(szoveg) : sor.szelesseg;
    kitoltes(egeszPixelre({x * 1.0, y * 1.0, szelesseg, magassag_ * 1.0}, keparany()), Qt::white);
    const QPointF alapvonal(x, y + betu_.ascent());
    if (sor.jelek.isEmpty()) {
        festo_.setFont(tartalekBetu());
        festo_.drawText(alapvonal, qsz);
        return;
    }
    QGlyphRun futam;
    futam.setRawFont(betu_);
    futam.setGlyphIndexes(sor.jelek);
    futam.setPositions(sor.helyek);
    festo_.drawGlyphRun(alapvonal, futam);
}

QFont QtVaszon::tartalekBetu() const {
    return cellaMagassaguBetu(betuNev_, magassag_, festo_.device()->logicalDpiY());
}

int QtVaszon::TextWidth(std::string_view szoveg) {
    if (magassag_ <= 0) return 0;
    const QString qsz = qszoveg(szoveg);
    const TJelSor sor = jelSor(betu_, qsz);
    if (sor.jelek.isEmpty()) return QFontMetrics(tartalekBetu(), festo_.device()).horizontalAdvance(qsz);
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

void QtVaszon::Betu(std::string_view nev, int magassag) {
    magassag_ = magassag;
    betuNev_ = qszoveg(nev);
    if (magassag > 0) betu_ = meretezettBetu(betuNev_, magassag);
}
