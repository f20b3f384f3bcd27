#include "windows/mezojeloles.h"

#include <QColor>
#include <QEvent>
#include <QPalette>

#include "windows/sugok.h"

namespace {

constexpr QRgb vilagosHatteren = 0xFFA80000;
constexpr QRgb sotetHatteren = 0xFFFFB070;

}  // namespace

void mezoJeloles(QWidget& mezo, const QString& miert) {
    auto* jeloles = mezo.findChild<TMezoJeloles*>(QString(), Qt::FindDirectChildrenOnly);
    if (jeloles == nullptr) {
        if (miert.isEmpty()) return;
        jeloles = new TMezoJeloles(mezo);
    }
    jeloles->allit(miert);
}

TMezoJeloles::TMezoJeloles(QWidget& mezo) : QObject(&mezo), mezo_(mezo), sor_(*mezo.findChild<QLineEdit*>()) {
    sor_.installEventFilter(this);
}

void TMezoJeloles::allit(const QString& miert) {
    const bool uj = !miert.isEmpty();
    // A field may be marked before its first showing gives it its tooltip.
    if (uj && !jelolt_) sajatSugo_ = mezo_.toolTip().isEmpty() ? Sugo(mezo_) : mezo_.toolTip();
    if (uj || jelolt_) mezo_.setToolTip(uj ? miert : sajatSugo_);
    if (uj == jelolt_) return;
    jelolt_ = uj;
    szinez();
}

void TMezoJeloles::szinez() {
    QPalette szinek;
    if (jelolt_) {
        const bool sotet = sor_.palette().color(QPalette::Base).lightness() < 128;
        const QColor szin(sotet ? sotetHatteren : vilagosHatteren);
        if (sor_.palette().color(QPalette::Text) == szin) return;
        szinek.setColor(QPalette::Text, szin);
    }
    sor_.setPalette(szinek);
}

bool TMezoJeloles::eventFilter(QObject* targy, QEvent* esemeny) {
    if (esemeny->type() == QEvent::PaletteChange && jelolt_) szinez();
    return QObject::eventFilter(targy, esemeny);
}
