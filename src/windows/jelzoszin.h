#pragma once

#include <QColor>
#include <QPalette>

#include "rectify/analogiak.h"

/// Colour of a verdict on a window's background: the toolkit's plain blue and red, which a dark background
/// would swallow, or their light relatives.
QColor jelzoSzin(VerdiktSzin szin, const QPalette& szinek);
