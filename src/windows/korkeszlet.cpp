#include "windows/korkeszlet.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include <QBrush>
#include <QPainter>
#include <QRect>

namespace {

/// Side of a part up to which it is not worth parting further, in pixels.
constexpr int kicsi = 24;

/// Pixels of one circle's parts, and of all that are kept: 4 MB; those of a wheel are a tenth of it.
constexpr std::size_t legnagyobbKor = std::size_t{1} << 17;
constexpr std::size_t legtobbPixel = std::size_t{1} << 20;

/// Circles known; a wheel has a dozen, each size of the window others.
constexpr std::size_t legtobbKor = 200;

using TKulcs = std::tuple<int, int, int, Qt::PenStyle, bool>;

/// Requests from which on a circle is kept: one drawing of the wheel asks for some circles twice.
constexpr int megmarad = 3;

struct TKor {
    std::optional<std::vector<TKorDarab>> darabok;
    int keresek = 1;
    bool nagy = false;
};

/// The box of the pixels of a part that are not empty.
QRect tinta(const QImage& kep, const QRect& resz) {
    QRect doboz;
    for (int y = resz.top(); y <= resz.bottom(); ++y) {
        const auto* sor = reinterpret_cast<const QRgb*>(kep.constScanLine(y));
        int bal = resz.left(), jobb = resz.right();
        while (bal <= jobb && sor[bal] == 0) ++bal;
        while (jobb >= bal && sor[jobb] == 0) --jobb;
        if (bal <= jobb) doboz |= QRect(QPoint(bal, y), QPoint(jobb, y));
    }
    return doboz;
}

/// Halves a part until no more than small ones are left, without the empty room about them.
void darabol(const QImage& kep, const QRect& resz, std::vector<TKorDarab>& darabok) {
    const QRect doboz = tinta(kep, resz);
    if (doboz.isEmpty()) return;
    if (doboz.width() <= kicsi && doboz.height() <= kicsi) {
        darabok.push_back({doboz.topLeft(), kep.copy(doboz)});
        return;
    }
    QRect egyik = doboz, masik = doboz;
    if (doboz.width() > doboz.height()) {
        egyik.setWidth(doboz.width() / 2);
        masik.setLeft(egyik.right() + 1);
    } else {
        egyik.setHeight(doboz.height() / 2);
        masik.setTop(egyik.bottom() + 1);
    }
    darabol(kep, egyik, darabok);
    darabol(kep, masik, darabok);
}

/// The parts of an ellipse drawn with that pen and brush.
void reteg(const QSize& meret, const QPen& toll, const QBrush& ecset, std::vector<TKorDarab>& darabok) {
    const int szegely = toll.width() / 2 + 2;  // half the line, and what antialiasing adds
    QImage kep(meret + QSize(2 * szegely + 1, 2 * szegely + 1), QImage::Format_ARGB32_Premultiplied);
    kep.fill(Qt::transparent);
    QPainter festo(&kep);
    festo.setRenderHint(QPainter::Antialiasing);
    festo.setPen(toll);
    festo.setBrush(ecset);
    constexpr double pixelKozep = 0.5;
    festo.translate(szegely, szegely);
    festo.drawEllipse(QRectF(QPointF(pixelKozep, pixelKozep), meret));
    festo.end();
    const std::size_t elso = darabok.size();
    darabol(kep, kep.rect(), darabok);
    for (std::size_t i = elso; i < darabok.size(); ++i) darabok[i].hely -= QPoint(szegely, szegely);
}

/// The filling and the line in two layers: mixed into one, the grey of the edge would be rounded otherwise.
std::vector<TKorDarab> darabok(const QSize& meret, const QPen& toll, bool feher) {
    std::vector<TKorDarab> ki;
    if (feher) reteg(meret, QPen(Qt::NoPen), Qt::white, ki);
    reteg(meret, toll, {}, ki);
    return ki;
}

std::size_t pixelek(const std::vector<TKorDarab>& darabok) {
    std::size_t szam = 0;
    for (const TKorDarab& darab : darabok)
        szam += static_cast<std::size_t>(darab.kep.width()) * static_cast<std::size_t>(darab.kep.height());
    return szam;
}

}  // namespace

const std::vector<TKorDarab>* korDarabok(const QSize& meret, const QPen& toll, bool feher) {
    static std::map<TKulcs, TKor> korok;
    static std::size_t osszesPixel = 0;
    const TKulcs kulcs{meret.width(), meret.height(), toll.width(), toll.style(), feher};
    const auto ismert = korok.find(kulcs);
    if (ismert == korok.end()) {
        if (korok.size() >= legtobbKor || osszesPixel > legtobbPixel) {
            korok.clear();
            osszesPixel = 0;
        }
        korok[kulcs];
        return nullptr;
    }
    TKor& kor = ismert->second;
    kor.keresek = std::min(kor.keresek + 1, megmarad);
    if (kor.keresek == megmarad && !kor.darabok && !kor.nagy) {
        std::vector<TKorDarab> uj = darabok(meret, toll, feher);
        kor.nagy = pixelek(uj) > legnagyobbKor;
        if (!kor.nagy) {
            osszesPixel += pixelek(uj);
            kor.darabok = std::move(uj);
        }
    }
    return kor.darabok ? &*kor.darabok : nullptr;
}
