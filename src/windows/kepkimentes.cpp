#include "windows/kepkimentes.h"

#include <array>

#include <QBuffer>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>

#include "drawing/svgvaszon.h"
#include "windows/betukeszlet.h"
#include "windows/qszoveg.h"
#include "windows/qtvaszon.h"

namespace {

constexpr double huvelykMeterben = 0.0254;
constexpr int kepernyoFelbontas = 96;  ///< pixels of the screen in an inch, as desktops count them

bool festes(QPaintDevice& hova, const Allapot& allapot, const TKepletKep& kep) {
    QPainter festo;
    if (!festo.begin(&hova)) return false;
    QtVaszon vaszon(festo);
    KepRajz(vaszon, allapot, kep);
    return festo.end();
}

std::string svgUtvonal(const QPainterPath& alak) {
    constexpr std::array<const char*, 4> jelek{"M", "L", "C",
                                               " "};  // move, line, curve, a curve's further points
    std::string ut;
    for (int i = 0; i < alak.elementCount(); ++i) {
        const QPainterPath::Element e = alak.elementAt(i);
        ut += jelek[static_cast<std::size_t>(e.type)] + svgSzam(e.x) + " " + svgSzam(e.y);
    }
    return ut;
}

TKorvonal korvonal(std::string_view betu, int magassag, std::string_view szoveg) {
    const TSzovegAlak t = szovegAlak(qszoveg(betu), magassag, qszoveg(szoveg));
    return {svgUtvonal(t.alak), t.szelesseg, t.alapvonal};
}

}  // namespace

QImage kepletKep(const Allapot& allapot, const TKepletKep& kep) {
    QImage uj(kep.szelesseg * kepSuruseg, kep.magassag * kepSuruseg, QImage::Format_RGB32);
    if (uj.isNull()) return {};
    uj.fill(Qt::white);
    uj.setDevicePixelRatio(kepSuruseg);
    const int surusegMeteren = qRound(kepernyoFelbontas * kepSuruseg / huvelykMeterben);
    uj.setDotsPerMeterX(surusegMeteren);
    uj.setDotsPerMeterY(surusegMeteren);
    return festes(uj, allapot, kep) ? uj : QImage();
}

QByteArray kepletPng(const Allapot& allapot, const TKepletKep& kep) {
    QImage rajz = kepletKep(allapot, kep);
    rajz.setText("Title", qszoveg(KepCim(allapot)));
    rajz.setText("Software", "Korvend");
    QBuffer tar;
    tar.open(QIODevice::WriteOnly);
    return rajz.save(&tar, "PNG") ? tar.data() : QByteArray();
}

QByteArray kepletSvg(const Allapot& allapot, const TKepletKep& kep) {
    SvgVaszon vaszon(kep.szelesseg, kep.magassag, KepCim(allapot), &korvonal);
    KepRajz(vaszon, allapot, kep);
    return QByteArray::fromStdString(vaszon.svg());
}

QByteArray kepletPdf(const Allapot& allapot, const TKepletKep& kep) {
    const QSizeF huvelyk = QSizeF(kep.szelesseg, kep.magassag) / kepernyoFelbontas;
    QBuffer tar;
    tar.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&tar);
    pdf.setPageSize(QPageSize(huvelyk, QPageSize::Inch));
    pdf.setPageMargins(QMarginsF());
    pdf.setResolution(kepernyoFelbontas);
    pdf.setTitle(qszoveg(KepCim(allapot)));
    pdf.setCreator("Korvend");
    return festes(pdf, allapot, kep) ? tar.data() : QByteArray();
}
