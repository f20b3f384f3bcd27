#pragma once

#include <cstdio>

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

/// Ends the program when a widget has been painted for the first time; with KORVEND_MEMORIA set it writes
/// the process's private memory, in kB, a little later.
class TElsoFestes : public QObject {
public:
    explicit TElsoFestes(QWidget& ablak) { ablak.installEventFilter(this); }

private:
    bool eventFilter(QObject*, QEvent* esemeny) override {
        // Not quit(): that asks the windows first, and the main window asks the user.
        if (esemeny->type() == QEvent::Paint) QTimer::singleShot(varakozas(), qApp, [] { vege(); });
        return false;
    }

    static bool memoria() { return qEnvironmentVariableIsSet("KORVEND_MEMORIA"); }

    /// Milliseconds: until the X server has taken the picture over, its pages count as the program's own.
    static int varakozas() { return memoria() ? 100 : 0; }

    static void vege() {
        if (memoria()) std::printf("%lld\n", sajatMemoria());
        QApplication::exit();
    }

    static long long sajatMemoria() {
        QFile terkep("/proc/self/smaps_rollup");
        long long osszes = 0;
        if (!terkep.open(QIODevice::ReadOnly)) return osszes;
        const QList<QByteArray> sorok = terkep.readAll().split('\n');
        for (const QByteArray& sor : sorok)
            if (sor.startsWith("Private_Dirty")) osszes += sor.simplified().split(' ').value(1).toLongLong();
        return osszes;
    }
};
