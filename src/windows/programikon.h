#pragma once

#include <QIcon>
#include <QPixmap>

/// The program's icon, the same figure as the desktop entry's: so that a window has it without the files that
/// an installation brings.
QIcon programIkon();

/// One picture of it.
/// @param meret  pixels of its sides
QPixmap programIkonKep(int meret);
