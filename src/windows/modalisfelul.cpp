#include "windows/modalisfelul.h"

#include <algorithm>

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWindow>

namespace {

/// What the window was made for; its system window may stand otherwise for a while.
bool mindigFelso(const QWidget& ablak) {
    return ablak.windowFlags() & Qt::WindowStaysOnTopHint;
}

bool modalisAblak(const QWidget& ablak) {
    return ablak.isWindow() && ablak.isModal() && ablak.windowHandle() != nullptr;
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

void TModalisFelul::rendez() {
    const QWidgetList ablakok = QApplication::topLevelWidgets();
    const bool vanMindigFelso = std::any_of(ablakok.begin(), ablakok.end(), [](const QWidget* ablak) {
        return ablak->isVisible() && mindigFelso(*ablak);
    });
    for (const QWidget* ablak : ablakok) {
        QWindow* rendszerablak = ablak->windowHandle();
        if (rendszerablak == nullptr) continue;
        const bool felul =
            nyitva_.isEmpty() ? mindigFelso(*ablak) : ablak == nyitva_.last() && vanMindigFelso;
        if (rendszerablak->flags().testFlag(Qt::WindowStaysOnTopHint) != felul)
            rendszerablak->setFlag(Qt::WindowStaysOnTopHint, felul);
    }
}

void TModalisFelul::megnyilt(QWidget& dialogus) {
    // The window manager keeps a dialog above the window that it belongs to: a dialog of a dialog above that.
    const QWidget* tulajdonos = nyitva_.isEmpty() ? dialogus.parentWidget() : nyitva_.last();
    dialogus.windowHandle()->setTransientParent(tulajdonos == nullptr ? nullptr
                                                                      : tulajdonos->window()->windowHandle());
    nyitva_ << &dialogus;
    rendez();
    kepernyore(dialogus);
}

bool TModalisFelul::eventFilter(QObject* targy, QEvent* esemeny) {
    // The events come when the window exists but is not yet, or no more, on the screen.
    if (esemeny->type() == QEvent::Show && targy->isWidgetType()) {
        auto& ablak = static_cast<QWidget&>(*targy);
        if (modalisAblak(ablak) && !nyitva_.contains(&ablak)) megnyilt(ablak);
    }
    if (esemeny->type() == QEvent::Hide && !esemeny->spontaneous() &&
        nyitva_.removeIf([targy](const QWidget* ablak) { return ablak == targy; }) > 0)
        rendez();
    return QObject::eventFilter(targy, esemeny);
}
