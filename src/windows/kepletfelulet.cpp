#include "windows/kepletfelulet.h"

#include <QPaintEvent>
#include <QPainter>

#include "windows/qtvaszon.h"

KepletFelulet::KepletFelulet(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void KepletFelulet::rajzol(const std::function<void(QtVaszon&)>& rajzolas) {
    if (kep_.isNull()) return;
    QPainter festo(&kep_);
    QtVaszon vaszon(festo);
    rajzolas(vaszon);
}

void KepletFelulet::torol() {
    if (!kep_.isNull()) kep_.fill(Qt::white);
}

void KepletFelulet::torol(const QRegion& resz) {
    if (kep_.isNull()) return;
    QPainter festo(&kep_);
    for (const QRect& doboz : resz) festo.fillRect(doboz, Qt::white);
}

void KepletFelulet::megmutat() {
    sajatMutatas_ = true;
    repaint();
    sajatMutatas_ = false;
    if (ervenytelen_) update();
}

void KepletFelulet::ervenytelenit() {
    ervenytelen_ = true;
    update();
}

void KepletFelulet::paintEvent(QPaintEvent* esemeny) {
    if (!sajatMutatas_) {
        ervenytelen_ = false;
        emit festesKeres(esemeny->region());
    }
    QPainter festo(this);
    festo.drawPixmap(0, 0, kep_);
}

void KepletFelulet::resizeEvent(QResizeEvent* esemeny) {
    QWidget::resizeEvent(esemeny);
    kep_ = QPixmap(size() * devicePixelRatioF());
    kep_.setDevicePixelRatio(devicePixelRatioF());
    torol();
    emit meretValtozott();
}
