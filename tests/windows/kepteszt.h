#pragma once

#include <QImage>

/// Pictures of the same drawing by different means: edges may be rounded differently, shapes may not.

/// Greatest mean difference, in shades of 0 to 255, of two pictures of one size in a square of theirs.
inline double legnagyobbFolt(const QImage& a, const QImage& b, int oldal) {
    double legnagyobb = 0;
    for (int y = 0; y + oldal <= a.height(); y += oldal / 2)
        for (int x = 0; x + oldal <= a.width(); x += oldal / 2) {
            int osszeg = 0;
            for (int i = 0; i < oldal * oldal; ++i) {
                const QPoint hely(x + i % oldal, y + i / oldal);
                osszeg += qAbs(qGray(a.pixel(hely)) - qGray(b.pixel(hely)));
            }
            legnagyobb = qMax(legnagyobb, osszeg / static_cast<double>(oldal * oldal));
        }
    return legnagyobb;
}

/// Whether two pictures show the same but for the edges of large letters, which the toolkit may smooth
/// differently from one drawing to the next.
inline bool azonos(const QImage& a, const QImage& b) {
    return a.size() == b.size() && legnagyobbFolt(a, b, 16) < 16;
}
