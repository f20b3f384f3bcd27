#include "display/qtvaszon.h"

#include <QFontMetricsF>
#include <QHash>
#include <QPaintDevice>

namespace {

/// Height of a face's character cell for a font of one pixel.
double cellaArany(const QString& nev) {
    static QHash<QString, double> aranyok;
    const auto megvan = aranyok.constFind(nev);
    if (megvan != aranyok.constEnd()) return *megvan;
    constexpr int proba = 1000;  // pixels: large enough to be free of hinting
    QFont betu(nev);
    betu.setHintingPreference(QFont::PreferNoHinting);
    betu.setPixelSize(proba);
    const QFontMetricsF meretek(betu);
    const double arany = (meretek.ascent() + meretek.descent()) / proba;
    return *aranyok.insert(nev, arany > 0 ? arany : 1.0);
}

QString qszoveg(std::string_view szoveg) {
    return QString::fromUtf8(szoveg.data(), static_cast<qsizetype>(szoveg.size()));
}

constexpr double pixelKozep = 0.5;

}  // namespace

QFont cellaMagassaguBetu(const QString& nev, int magassag, int dpi) {
    constexpr double pontHuvelyk = 72;
    QFont betu(nev);
    betu.setHintingPreference(QFont::PreferNoHinting);
    betu.setPointSizeF(magassag / cellaArany(nev) * pontHuvelyk / dpi);
    return betu;
}

QtVaszon::QtVaszon(QPainter& festo) : festo_(festo), toll_(Qt::black, 1) {
    festo_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    festo_.setBrush(Qt::white);
    tollBeallitas();
}

void QtVaszon::tollBeallitas() {
    const bool folytonos = toll_.style() == Qt::SolidLine;
    toll_.setCapStyle(folytonos ? Qt::RoundCap : Qt::FlatCap);
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
    const double szelesseg = festo_.fontMetrics().horizontalAdvance(qsz);
    festo_.fillRect(QRectF(x, y, szelesseg, magassag_), Qt::white);
    festo_.drawText(QPointF(x, y + felsoResz_), qsz);
}

int QtVaszon::TextWidth(std::string_view szoveg) {
    return magassag_ <= 0 ? 0 : festo_.fontMetrics().horizontalAdvance(qszoveg(szoveg));
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
    if (magassag <= 0) return;
    festo_.setFont(cellaMagassaguBetu(qszoveg(nev), magassag, festo_.device()->logicalDpiY()));
    felsoResz_ = QFontMetricsF(festo_.font(), festo_.device()).ascent();
}
