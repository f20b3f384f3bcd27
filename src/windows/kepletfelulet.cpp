#include "windows/kepletfelulet.h"

#include <QPaintEvent>
#include <QPainter>

#include "windows/qtvaszon.h"

KepletFelulet::KepletFelulet(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

namespace {

void rajzolas(QPixmap& kep, TLap lap, const std::function<void(QtVaszon&)>& rajz) {
    QPainter festo(&kep);
    QtVaszon vaszon(festo, lap);
    rajz(vaszon);
}

/// Copies the pixels that a region touches.
/// @param arany  device pixels in a unit of the region
void masolas(QPixmap& hova, QPixmap& honnan, const QRegion& resz, double arany) {
    hova.setDevicePixelRatio(1);
    honnan.setDevicePixelRatio(1);
    QPainter festo(&hova);
    for (const QRect& r : resz) {
        const QRectF pixelek(r.x() * arany, r.y() * arany, r.width() * arany, r.height() * arany);
        const QRect egesz = pixelek.toAlignedRect().intersected(hova.rect());
        festo.drawPixmap(egesz, honnan, egesz);
    }
    festo.end();
    hova.setDevicePixelRatio(arany);
}

}  // namespace

void KepletFelulet::rajzol(const std::function<void(QtVaszon&)>& rajz) {
    if (!kep_.isNull()) rajzolas(kep_, TLap::barmilyen, rajz);
}

void KepletFelulet::ujrarajzol(const QRegion& resz, const std::function<void(QtVaszon&)>& rajz) {
    if (kep_.isNull()) return;
    if (QRegion(rect()).subtracted(resz).subtracted(childrenRegion()).isEmpty()) {
        torol();
        rajzolas(kep_, TLap::feher, rajz);
        return;
    }
    // Drawn elsewhere and copied: what is drawn in a part only has its antialiased edges rounded differently.
    QPixmap uj(kep_.size());
    uj.setDevicePixelRatio(kep_.devicePixelRatio());
    uj.fill(Qt::white);
    rajzolas(uj, TLap::feher, rajz);
    masolas(kep_, uj, resz, kep_.devicePixelRatio());
}

void KepletFelulet::torol() {
    if (!kep_.isNull()) kep_.fill(Qt::white);
}

void KepletFelulet::torol(const QRegion& resz) {
    ujrarajzol(resz, [](QtVaszon&) {});
}

void KepletFelulet::megmutat() {
    if (festes_) return;
    sajatMutatas_ = true;
    repaint();
    sajatMutatas_ = false;
    if (ervenytelen_) update();
}

void KepletFelulet::ervenytelenit() {
    ervenytelen_ = true;
    update();
}

void KepletFelulet::ujKep() {
    kep_ = QPixmap(size() * devicePixelRatioF());
    kep_.setDevicePixelRatio(devicePixelRatioF());
    torol();
    emit meretValtozott();
}

void KepletFelulet::aranyKovetes() {
    if (!kep_.isNull() && !qFuzzyCompare(kep_.devicePixelRatio(), devicePixelRatioF())) ujKep();
}

void KepletFelulet::paintEvent(QPaintEvent* esemeny) {
    festes_ = true;
    aranyKovetes();
    if (!sajatMutatas_) {
        ervenytelen_ = false;
        emit festesKeres(esemeny->region());
    }
    festes_ = false;
    QPainter festo(this);
    festo.drawPixmap(0, 0, kep_);
}

void KepletFelulet::resizeEvent(QResizeEvent* esemeny) {
    QWidget::resizeEvent(esemeny);
    ujKep();
}
