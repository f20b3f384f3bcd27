#include "windows/ablakelhelyezes.h"

#include <algorithm>

namespace {

constexpr int szokasosFelsoTav = 30;  // pixels

/// Place along one axis: middle of the main window less the half of the window, capped by the main one's
/// half.
int kozepHely(int foHely, int foMeret, int meret) {
    return foHely + foMeret / 2 - std::min(meret / 2, foMeret / 2);
}

}  // namespace

void kozepre(QWidget& ablak, const QWidget& fo) {
    ablak.move(kozepHely(fo.x(), fo.width(), ablak.width()), kozepHely(fo.y(), fo.height(), ablak.height()));
}

void felulKozepre(QWidget& ablak, const QWidget& fo) {
    ablak.move(kozepHely(fo.x(), fo.width(), ablak.width()), fo.y() + szokasosFelsoTav);
}

void jobbraFent(QWidget& ablak, const QWidget& fo, int felsoTav) {
    ablak.move(fo.x() + fo.width() - std::min(ablak.width(), fo.width()), fo.y() + felsoTav);
}

void jobbraLent(QWidget& ablak, const QWidget& fo, int alsoTav) {
    jobbraFent(ablak, fo, fo.height() - alsoTav - std::min(ablak.height(), fo.height()));
}
