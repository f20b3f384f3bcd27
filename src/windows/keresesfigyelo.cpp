#include "windows/keresesfigyelo.h"

#include <QApplication>
#include <QKeyEvent>

#include "chart/statuszsor.h"
#include "windows/qszoveg.h"

namespace {

constexpr int mutatasKoz = 50;  ///< milliseconds between two looks at the windows

/// What a user does to a window.
bool felhasznaloi(QEvent::Type fajta) {
    switch (fajta) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::DragEnter:
        case QEvent::Drop:
        case QEvent::Close:
            return true;
        default:
            return false;
    }
}

}  // namespace

TKeresesFigyelo::TKeresesFigyelo(QWidget& ablak) : ablak_(ablak), cim_(ablak.windowTitle()) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    qApp->installEventFilter(this);
    mutatva_.start();
}

TKeresesFigyelo::~TKeresesFigyelo() {
    ablak_.setWindowTitle(cim_);
    QGuiApplication::restoreOverrideCursor();
}

bool TKeresesFigyelo::tovabb(const TPillanat& pillanat) {
    if (mutatva_.elapsed() >= mutatasKoz) {
        ablak_.setWindowTitle(cim_ + " – " + qszoveg(datumSzoveg(pillanat)));
        QCoreApplication::processEvents();
        mutatva_.restart();
    }
    return !megszakitva_;
}

bool TKeresesFigyelo::eventFilter(QObject* targy, QEvent* esemeny) {
    if (!felhasznaloi(esemeny->type())) return QObject::eventFilter(targy, esemeny);
    if (esemeny->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(esemeny)->key() == Qt::Key_Escape)
        megszakitva_ = true;
    esemeny->setAccepted(esemeny->type() != QEvent::Close);
    return true;
}
