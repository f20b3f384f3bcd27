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
        if (esemeny->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QApplication::quit);
        return false;
    }
};
