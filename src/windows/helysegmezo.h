#pragma once

#include <QComboBox>

/// The combo box of place names that several dialogs have.

/// An editable combo box that offers the gazetteer's names while one types.
QComboBox* ujHelysegMezo(QWidget* szulo, const char* nev);

/// Appends all names in table order; what the list holds stays.
void helysegekHozzaadasa(QComboBox& mezo);
