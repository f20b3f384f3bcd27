#include "windows/kepernyo.h"

#include <QScreen>

namespace {

const QSize keretHelye(16, 40);  // pixels

}  // namespace

QSize KepernyonElfero(const QSize& meret, const QSize& elerheto) {
    return meret.boundedTo(elerheto - keretHelye);
}

void kepernyohozIgazit(QWidget& ablak) {
    ablak.resize(KepernyonElfero(ablak.size(), ablak.screen()->availableSize()));
}
