#include "windows/modalisfelul.h"

#include <algorithm>

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

bool vanMindigFelso(const QWidget& dialogus) {
    const QWidgetList ablakok = QApplication::topLevelWidgets();
    return std::any_of(ablakok.begin(), ablakok.end(), [&](const QWidget* ablak) {
        return ablak != &dialogus && ablak->isVisible() && ablak->windowFlags() & Qt::WindowStaysOnTopHint;
    });
}

void kepernyore(QWidget& dialogus) {
    const QRect hely = dialogus.screen()->availableGeometry();
    const QRect keret = dialogus.frameGeometry();
    const auto beljebb = [](int kezdet, int hossz, int also, int felso) {
        return std::max(also, std::min(kezdet, felso - hossz));
    };
    const QPoint uj(beljebb(keret.x(), keret.width(), hely.left(), hely.right() + 1),
                    beljebb(keret.y(), keret.height(), hely.top(), hely.bottom() + 1));
    if (uj != keret.topLeft()) dialogus.move(uj);
}

}  // namespace

TModalisFelul::TModalisFelul(QObject* szulo) : QObject(szulo) {
    qApp->installEventFilter(this);
}

bool TModalisFelul::eventFilter(QObject* targy, QEvent* esemeny) {
    // The event comes when the window exists but is not yet on the screen.
    if (esemeny->type() == QEvent::Show && targy->isWidgetType()) {
        auto& ablak = static_cast<QWidget&>(*targy);
        if (ablak.isWindow() && ablak.isModal() && ablak.windowHandle() != nullptr) {
            const bool sajat = ablak.windowFlags() & Qt::WindowStaysOnTopHint;
            ablak.windowHandle()->setFlag(Qt::WindowStaysOnTopHint, sajat || vanMindigFelso(ablak));
            kepernyore(ablak);
        }
    }
    return QObject::eventFilter(targy, esemeny);
}
