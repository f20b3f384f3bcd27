#include "windows/programikon.h"

#include <cmath>
#include <numbers>

#include <QPainter>
#include <QPolygonF>

namespace {

constexpr double lap = 128;  ///< sides of the sheet that the figure is laid out on
constexpr QPointF kozep(lap / 2, lap / 2);

/// A point about the middle, angles in degrees from the right, upward.
QPointF pont(double sugar, double fok) {
    const double szog = fok * std::numbers::pi / 180;
    return kozep + QPointF(sugar * std::cos(szog), -sugar * std::sin(szog));
}

void kor(QPainter& festo, double sugar, double toll, const QBrush& kitoltes) {
    festo.setPen(QPen(Qt::black, toll));
    festo.setBrush(kitoltes);
    festo.drawEllipse(kozep, sugar, sugar);
}

void vonal(QPainter& festo, const QPolygonF& pontok, double toll) {
    festo.setPen(QPen(Qt::black, toll, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    festo.drawPolyline(pontok);
}

}  // namespace

QPixmap programIkonKep(int meret) {
    QPixmap kep(meret, meret);
    kep.fill(Qt::transparent);
    QPainter festo(&kep);
    festo.setRenderHint(QPainter::Antialiasing);
    festo.scale(meret / lap, meret / lap);

    kor(festo, 52, 6, Qt::white);
    kor(festo, 40, 3, Qt::NoBrush);
    for (int fok = 15; fok < 360; fok += 30) vonal(festo, {pont(52, fok), pont(40, fok)}, 3);
    QPen szaggatott(Qt::black, 2, Qt::CustomDashLine, Qt::RoundCap, Qt::MiterJoin);
    szaggatott.setDashPattern({3, 1.5});
    festo.setPen(szaggatott);
    festo.drawPolygon(QPolygonF{pont(40, 90), pont(40, 210), pont(40, 330)});
    vonal(festo, {{4, 64}, {124, 64}}, 5);
    vonal(festo, {{14, 56}, {4, 64}, {14, 72}}, 4);
    kor(festo, 12, 4, Qt::white);
    kor(festo, 2.5, 3, Qt::black);
    return kep;
}

QIcon programIkon() {
    QIcon ikon;
    for (const int meret : {16, 24, 32, 48, 64, 128}) ikon.addPixmap(programIkonKep(meret));
    return ikon;
}
