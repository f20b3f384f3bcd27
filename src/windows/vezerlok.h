#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QString>

/// Named controls of the dialogs; a test or a reader finds each by its `objectName`.

/// A push button; the Enter key presses it only where it is made the default one.
QPushButton* ujGomb(QWidget* szulo, const QString& nev, const QString& felirat, const QRect& hely = {});

/// A number field for a range, ends included.
QSpinBox* ujSzamMezo(QWidget* szulo, const QString& nev, int also, int felso, const QRect& hely = {});

/// A line of text.
QLineEdit* ujSzovegMezo(QWidget* szulo, const QString& nev, const QRect& hely = {});

/// A caption.
QLabel* ujCimke(QWidget* szulo, const QString& felirat, const QPoint& hely);
