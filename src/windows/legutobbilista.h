#pragma once

#include <QFileDialog>
#include <QStringList>

/// Shows the latest charts at the side of a file dialog: a click puts one into the dialog's field, a double
/// click or Enter opens it. The dialog must be the toolkit's own, a desktop's has no room for them.
/// @param fajlok  at least one
void legutobbiLista(QFileDialog& dialogus, const QStringList& fajlok);
