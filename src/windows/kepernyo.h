#pragma once

#include <QSize>
#include <QWidget>

/// Size of a window that is shown with its frame within a screen: its own, shrunk to what the screen has.
/// @param elerheto  of the screen, without the desktop's own panels
QSize KepernyonElfero(const QSize& meret, const QSize& elerheto);

/// Shrinks a window that is not shown yet to the screen that it will appear on. Its frame is not there to be
/// measured, so room for a usual one is left.
void kepernyohozIgazit(QWidget& ablak);
