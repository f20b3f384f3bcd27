#include "windows/jelzoszin.h"

namespace {

constexpr int sotetHatar = 128;  // lightness
constexpr QRgb kekSotetHatteren = 0xFF8CB4FF;
constexpr QRgb pirosSotetHatteren = 0xFFFF9A8C;

}  // namespace

QColor jelzoSzin(VerdiktSzin szin, const QPalette& szinek) {
    const bool kek = szin == VerdiktSzin::kek;
    if (szinek.color(QPalette::Window).lightness() < sotetHatar)
        return QColor(kek ? kekSotetHatteren : pirosSotetHatteren);
    return kek ? Qt::blue : Qt::red;
}
