#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QWidget>

#include "tables/pillanat.h"

/// Keeps the windows alive while a long search runs: they repaint and the clock ticks, but no key, click or
/// close reaches them. Escape ends the search. The window's title tells the date that the search has come to.
class TKeresesFigyelo : public QObject {
    Q_OBJECT

public:
    /// @param ablak  whose title tells the date; it gets its own back at the end
    explicit TKeresesFigyelo(QWidget& ablak);
    ~TKeresesFigyelo() override;

    /// To be asked often. @return false when the search shall end
    bool tovabb(const TPillanat& pillanat);

private:
    bool eventFilter(QObject* targy, QEvent* esemeny) override;

    QWidget& ablak_;
    QString cim_;
    QElapsedTimer mutatva_;
    bool megszakitva_ = false;
};
