#pragma once

#include <QWidget>

/// Places of the small windows beside the main one.

/// Centres a window on the main window; its half size counts as at most the main window's half.
void kozepre(QWidget& ablak, const QWidget& fo);

/// Its right edge at the main window's, its width counted as at most the main window's, its top so many
/// pixels under the main window's top.
void jobbraFent(QWidget& ablak, const QWidget& fo, int felsoTav);

/// Its right edge at the main window's, its bottom so many pixels above it; both sizes count as at most the
/// main window's.
void jobbraLent(QWidget& ablak, const QWidget& fo, int alsoTav);

/// Centres it across, its top 30 pixels under the main window's top.
void felulKozepre(QWidget& ablak, const QWidget& fo);
