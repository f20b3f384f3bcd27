#include "windows/qtvaszon.h"

#include <utility>

#include <QFontMetrics>
#include <QGlyphRun>
#include <QHash>
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

}  // namespace

QFont cellaMagassaguBetu(const QString& nev, int magassag, int dpi) {
    constexpr double pontHuvelyk = 72;
    QFont betu(nev);
    betu.setHintingPreference(QFont::PreferNoHinting);
    betu.setPointSizeF(magassag / betukeszlet(nev).cellaArany * pontHuvelyk / dpi);
    return betu;
}

QtVaszon::QtVaszon(QPainter& festo) : festo_(festo), toll_(Qt::black, 1) {
    festo_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    festo_.setBrush(Qt::white);
    tollBeallitas();
}

void QtVaszon::tollBeallitas() {
    const bool vastag = toll_.style() == Qt::SolidLine && toll_.widthF() > 1;
    toll_.setCapStyle(vastag ? Qt::RoundCap : Qt::FlatCap);
    festo_.setPen(toll_);
}

void QtVaszon::Ellipse(int x1, int y1, int x2, int y2) {
    const QRectF doboz(QPointF(x1 + pixelKozep, y1 + pixelKozep), QPointF(x2 + pixelKozep, y2 + pixelKozep));
    festo_.drawEllipse(doboz.normalized());
}

void QtVaszon::LineTo(int x, int y) {
    const QPointF eltolas(pixelKozep, pixelKozep);
    festo_.drawLine(QPointF(hely_) + eltolas, QPointF(x, y) + eltolas);
    hely_ = {x, y};
}

void QtVaszon::TextOut(int x, int y, std::string_view szoveg) {
    if (szoveg.empty() || magassag_ <= 0) return;
    const QString qsz = qszoveg(szoveg);
    const TJelSor sor = jelSor(betu_, qsz);
    const double szelesseg = sor.jelek.isEmpty() ? TextWidth(szoveg) : sor.szelesseg;
    festo_.fillRect(QRectF(x, y, szelesseg, magassag_), Qt::white);
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
            toll_.setStyle(Qt::SolidLine);
            break;
        case TollStilus::szaggatott:
            toll_.setStyle(Qt::DashLine);
            break;
        case TollStilus::pontozott:
            toll_.setStyle(Qt::DotLine);
            break;
        case TollStilus::pontVonal:
            toll_.setStyle(Qt::DashDotLine);
            break;
        case TollStilus::pontPontVonal:
            toll_.setStyle(Qt::DashDotDotLine);
            break;
    }
    tollBeallitas();
}

void QtVaszon::Betu(std::string_view nev, int magassag) {
    magassag_ = magassag;
    betuNev_ = qszoveg(nev);
    if (magassag > 0) betu_ = meretezettBetu(betuNev_, magassag);
}
