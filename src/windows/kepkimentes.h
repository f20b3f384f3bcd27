#pragma once

#include <QByteArray>
#include <QImage>

#include "chart/allapot.h"
#include "commands/kepatadas.h"

/// The picture on screen as other programs take it. All are black on white and of one size where their
/// program heeds it.

/// Pixels of a picture in a pixel of the screen: enough for paper.
inline constexpr int kepSuruseg = 3;

QImage kepletKep(const Allapot& allapot, const TKepletKep& kep);

/// Whole files; empty if they can't be made.
QByteArray kepletPng(const Allapot& allapot, const TKepletKep& kep);
QByteArray kepletSvg(const Allapot& allapot, const TKepletKep& kep);
QByteArray kepletPdf(const Allapot& allapot, const TKepletKep& kep);
