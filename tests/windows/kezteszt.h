#pragma once

#include <QApplication>
#include <QCompleter>
#include <QTest>
#include <QWheelEvent>

#include "ablakteszt.h"

/// Keys and wheel as a user's hand gives them: a key goes to the list that has opened, else to what has the
/// focus; the wheel to what lies under the pointer.

/// Waits until the keys come to a window: one that is just opening gets the focus from the window system a
/// turn later.
inline void fokuszig(const QWidget& ablak) {
    const auto nala = [&] {
        const QWidget* fokusz = QApplication::focusWidget();
        return ablak.isActiveWindow() && fokusz != nullptr && ablak.isAncestorOf(fokusz);
    };
    if (!QTest::qWaitFor(nala)) qFatal("the window does not get the focus");
}

inline QWidget& billentyuzetnel() {
    if (QWidget* lista = QApplication::activePopupWidget()) return *lista;
    if (const QWidget* dialogus = QApplication::activeModalWidget()) fokuszig(*dialogus);
    if (QApplication::focusWidget() == nullptr) qFatal("nothing has the focus");
    return *QApplication::focusWidget();
}

inline void leut(Qt::Key billentyu, Qt::KeyboardModifiers modositok = Qt::NoModifier) {
    QTest::keyClick(&billentyuzetnel(), billentyu, modositok);
}

inline void beut(const char* szoveg) {
    for (const QChar c : QString::fromUtf8(szoveg))
        QTest::sendKeyEvent(QTest::Click, &billentyuzetnel(), Qt::Key_unknown, QString(c), Qt::NoModifier);
}

/// As `valasz`, and hides the dialog at the end, so that a test that failed in it goes on.
inline void dialogusban(std::function<void(QWidget&)> teendo) {
    valasz([teendo = std::move(teendo)](QWidget& d) {
        teendo(d);
        d.hide();
    });
}

/// Goes to a field with the mouse and marks its text there.
inline void belelep(QWidget& ablak, const char* mezo) {
    auto* sor = vezerlo<QWidget>(ablak, mezo)->findChild<QLineEdit*>();
    if (sor == nullptr) sor = vezerlo<QLineEdit>(ablak, mezo);
    QTest::mouseClick(sor, Qt::LeftButton);
    leut(Qt::Key_A, Qt::ControlModifier);
}

/// One notch of the wheel over a widget.
inline void gorget(QWidget& felett, int fogak) {
    const QPoint hely = felett.rect().center();
    QWidget* cel = felett.childAt(hely);
    if (cel == nullptr) cel = &felett;
    const QPointF belul = cel->mapFrom(&felett, hely);
    QWheelEvent esemeny(belul, cel->mapToGlobal(belul), {}, {0, 120 * fogak}, Qt::NoButton, Qt::NoModifier,
                        Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&esemeny);
    qApp->notify(cel, &esemeny);
}

/// Closes a window as its frame's button does.
inline void keretenCsuk(QWidget& ablak) {
    ablak.close();
}
