#pragma once

#include <QPushButton>

/// A named push button; the Enter key presses it only where it is made the default one.
inline QPushButton* ujGomb(QWidget* szulo, const QString& nev, const QString& felirat,
                           const QRect& hely = {}) {
    auto* gomb = new QPushButton(felirat, szulo);
    gomb->setObjectName(nev);
    gomb->setAutoDefault(false);
    if (hely.isValid()) gomb->setGeometry(hely);
    return gomb;
}
