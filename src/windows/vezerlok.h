#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QString>

/// Named controls of the dialogs; a test or a reader finds each by its `objectName`.

/// A push button; the Enter key presses it only where it is made the default one.
QPushButton* ujGomb(QWidget* szulo, const QString& nev, const QString& felirat, const QRect& hely = {});

/// A number field for a range, ends included.
QSpinBox* ujSzamMezo(QWidget* szulo, const QString& nev, int also, int felso);
/// The same behind its caption at the end of a row; what the row has over comes behind.
QSpinBox* ujSzamMezo(QWidget* szulo, QHBoxLayout& sor, const QString& felirat, const QString& nev, int also,
                     int felso);

/// A line of text.
QLineEdit* ujSzovegMezo(QWidget* szulo, const QString& nev);

/// A caption, as large as its text.
QLabel* ujCimke(QWidget* szulo, const QString& felirat, const QPoint& hely);

/// Lets the wheel change a field only while it has the focus; else the turn goes on to the window. A wheel
/// turned over a dialog would change whatever field happens to lie under the pointer.
void gorgoCsakFokusszal(QWidget& mezo);

/// Least heights of buttons and fields, pixels, so that they are alike from window to window; larger letters
/// take more where a layout gives it.
inline constexpr int gombMagas = 28;
inline constexpr int mezoMagas = 26;

/// Characters that a chart file holds of a name, a place or an event's text, and of a note or analogies.
inline constexpr int rovidSzovegHossz = 32;
inline constexpr int hosszuSzovegHossz = 255;

/// The tooltip of a field of limited length.
QString hosszSugo(int hossz);

/// Limits a field to so many characters and says so in its tooltip.
void hosszKorlat(QLineEdit& mezo, int hossz);
