#pragma once

#include <string>

#include <QString>
#include <QWidget>

/// Shared by all windows.

inline QString qszoveg(const std::string& szoveg) {
    return QString::fromStdString(szoveg);
}
inline std::string szoveg(const QString& qszoveg) {
    return qszoveg.toStdString();
}

/// Centres a window on the main window; its half size counts as at most the main window's half.
void kozepre(QWidget& ablak, const QWidget& fo);

/// Its right edge at the main window's, its bottom so many pixels above it; both sizes count as at most the
/// main window's.
void jobbraLent(QWidget& ablak, const QWidget& fo, int alsoTav);

/// Centres it across, its top 30 pixels under the main window's top.
void felulKozepre(QWidget& ablak, const QWidget& fo);
