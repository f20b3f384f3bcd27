#include "windows/kepletfelulet.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QPaintEvent>
#include <QPainter>
#include <QTransform>

KepletFelulet::KepletFelulet(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

namespace {

std::vector<TMuvelet> rogzites(const std::function<void(Vaszon&)>& rajz) {
    RogzitoVaszon vaszon;
    rajz(vaszon);
    return vaszon.muveletek();
}

/// How far beyond the pixel's edge, in device pixels: texts are placed by truncated 64ths, and an edge that
/// is less by the rounding of a double would move them by a pixel.
constexpr double raadas = 1e-9;

/// Moves the origin to a whole device pixel, where a picture of the surface's own would stand: with a pixel
/// ratio of 1.5 the surface may begin half a pixel below one, and all that is sharp would be blurred.
void egeszPixelre(QPainter& festo) {
    const QTransform t = festo.deviceTransform();
    const double arany = festo.device()->devicePixelRatioF();
    const auto elteres = [arany](double hely) {
        const double kell = std::round(hely) - hely;
        return kell == 0 ? 0 : (kell + raadas) / arany;
    };
    festo.translate(elteres(t.dx()), elteres(t.dy()));
}

}  // namespace

void KepletFelulet::rajzol(const std::function<void(Vaszon&)>& rajz) {
    retegek_.push_back({rect(), TLap::barmilyen, rogzites(rajz)});
}

void KepletFelulet::ujrarajzol(const QRegion& resz, const std::function<void(Vaszon&)>& rajz) {
    torol(resz);
    const QRegion helye = rejtettekkel(resz);
    std::vector<TMuvelet> uj = rogzites(rajz);
    // A drawing that comes back where it stood joins its other parts: edges that are drawn in a part only are
    // rounded differently.
    const auto resze =
        std::ranges::find_if(retegek_, [&](const TReteg& r) { return r.lap == TLap::feher && r.rajz == uj; });
    if (resze != retegek_.end())
        resze->resz += helye;
    else
        retegek_.push_back({helye, TLap::feher, std::move(uj)});
}

QRegion KepletFelulet::rejtettekkel(const QRegion& resz) const {
    const bool minden = QRegion(rect()).subtracted(resz).subtracted(childrenRegion()).isEmpty();
    return minden ? QRegion(rect()) : resz;
}

void KepletFelulet::torol() {
    retegek_.clear();
}

void KepletFelulet::torol(const QRegion& resz) {
    const QRegion helye = rejtettekkel(resz);
    for (TReteg& reteg : retegek_) reteg.resz -= helye;
    std::erase_if(retegek_, [](const TReteg& reteg) { return reteg.resz.isEmpty(); });
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
    arany_ = devicePixelRatioF();
    torol();
    emit meretValtozott();
}

void KepletFelulet::aranyKovetes() {
    if (!qFuzzyCompare(arany_, devicePixelRatioF())) ujKep();
}

void KepletFelulet::fest(QPainter& festo) const {
    festo.fillRect(rect(), Qt::white);
    egeszPixelre(festo);
    for (const TReteg& reteg : retegek_) {
        festo.setClipRegion(reteg.resz);
        QtVaszon vaszon(festo, reteg.lap);
        RajzolMuveletek(reteg.rajz, vaszon);
    }
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
    fest(festo);
}

void KepletFelulet::resizeEvent(QResizeEvent*) {
    ujKep();
}
