#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

/// Ends the program when a widget has been painted for the first time.
class TElsoFestes : public QObject {
public:
    explicit TElsoFestes(QWidget& ablak) { ablak.installEventFilter(this); }

private:
    bool eventFilter(QObject*, QEvent* esemeny) override {
        // Not quit(): that asks the windows first, and the main window asks the user.
        if (esemeny->type() == QEvent::Paint) QTimer::singleShot(0, qApp, [] { QApplication::exit(); });
        return false;
    }
};
