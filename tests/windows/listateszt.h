#pragma once

#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QWindow>

#include "ablakteszt.h"
#include "eletesemenyteszt.h"

/// The lists, driven as a user would.

/// Lines of a list.
inline QStringList sorok(const QWidget& ablak, const char* memo) {
    const QString szoveg = vezerlo<QPlainTextEdit>(ablak, memo)->toPlainText();
    return szoveg.isEmpty() ? QStringList() : szoveg.split('\n');
}

/// Texts of a menu's items; a disabled one in brackets.
inline QStringList pontok(const QMenu& menu) {
    QStringList lista;
    for (const QAction* pont : menu.actions())
        lista << (pont->isEnabled() ? pont->text() : "(" + pont->text() + ")");
    return lista;
}

/// Clicks an item of an open menu.
inline void pontraKattint(QMenu& menu, const QString& felirat) {
    for (QAction* pont : menu.actions()) {
        if (pont->text() != felirat) continue;
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(pont).center());
        return;
    }
    qFatal("no menu item %s", qPrintable(felirat));
}

/// Presses the right mouse button at a place of a widget; the answer gets the menu that opens.
inline void helyiMenu(QWidget& hol, const QPoint& hely, std::function<void(QMenu&)> teendo) {
    bool nyilt = false;
    QTimer::singleShot(0, [&nyilt, teendo = std::move(teendo)] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) return;
        nyilt = true;
        teendo(*menu);
        while (QApplication::activePopupWidget() != nullptr) QApplication::activePopupWidget()->close();
    });
    QWidget& ablak = *hol.window();
    QTest::mouseClick(ablak.windowHandle(), Qt::RightButton, {}, hol.mapTo(&ablak, hely));
    QApplication::processEvents();
    if (!nyilt) qFatal("no context menu is open");
}

/// Picks an item of a widget's context menu.
inline void helyiMenuPont(QWidget& hol, const QString& felirat) {
    helyiMenu(hol, QPoint(20, 10), [&](QMenu& menu) { pontraKattint(menu, felirat); });
}

/// Drags the mouse over lines of a list, numbers from 0.
inline void sorokKijelolese(QPlainTextEdit& memo, int elso, int utolso) {
    const auto kozepe = [&](int sor, int oszlop) {
        QTextCursor kurzor(memo.document()->findBlockByNumber(sor));
        kurzor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, oszlop);
        return memo.cursorRect(kurzor).center();
    };
    QWidget* lap = memo.viewport();
    QTest::mousePress(lap, Qt::LeftButton, {}, kozepe(elso, 2));
    QTest::mouseMove(lap, kozepe(utolso, 4));
    QMouseEvent huzas(QEvent::MouseMove, QPointF(kozepe(utolso, 4)),
                      lap->mapToGlobal(QPointF(kozepe(utolso, 4))), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(lap, &huzas);
    QTest::mouseRelease(lap, Qt::LeftButton, {}, kozepe(utolso, 4));
}

/// A typed chart with events, and the clock running.
inline void esemenyesKeplet(TFrissAblakok& a) {
    ujKeplet(a, [](QWidget& d) {
        esemenyGepelese(d, "Esküvő", "5,7", "1996");
        esemenyGepelese(d, "Költözés Őrbottyánba, új lakásba", "4", "2004");
        esemenyGepelese(d, "Állás", "6", "2011");
        kattint(d, "Button_Rendben2");
    });
}

/// Opens the rectification by directions over a widened window.
inline void pontositas(TFrissAblakok& a) {
    menu(a.form1, "Primer1");
    kattint(a.form12, "Button_Pontositas1");
    gepel(a.form13, "SpinEdit1", "60");
    QApplication::processEvents();
}
