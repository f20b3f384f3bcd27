#include "windows/betukeszlet.h"

#include <utility>

#include <QFontMetricsF>
#include <QList>

#include "windows/betumappak.h"
#include "windows/qszoveg.h"

namespace {

/// A face as the system finds it, and the height of its character cell for a font of one pixel.
struct TBetukeszlet {
    QRawFont alap;
    double cellaArany;
};

const TBetukeszlet& betukeszlet(const std::string& nev) {
    static std::map<std::string, TBetukeszlet> keszletek;
    const auto megvan = keszletek.find(nev);
    if (megvan != keszletek.end()) return megvan->second;
    constexpr int proba = 1000;  // pixels: large enough to be free of hinting
    QFont betu(betuCsalad(nev));
    betu.setHintingPreference(QFont::PreferNoHinting);
    betu.setPixelSize(proba);
    const QRawFont nyers = QRawFont::fromFont(betu);
    const double arany = (nyers.ascent() + nyers.descent()) / proba;
    return keszletek.insert({nev, {nyers, arany > 0 ? arany : 1.0}}).first->second;
}

TJelSor jelSor(const QRawFont& betu, const QString& szoveg) {
    const QList<quint32> jelek = betu.glyphIndexesForString(szoveg);
    if (jelek.contains(0)) return {};
    TJelSor sor;
    QList<QPointF> helyek;
    for (const QPointF& lepes : betu.advancesForGlyphIndexes(jelek)) {
        helyek << QPointF(sor.szelesseg, 0);
        sor.szelesseg += lepes.x();
    }
    sor.futam.setRawFont(betu);
    sor.futam.setGlyphIndexes(jelek);
    sor.futam.setPositions(helyek);
    sor.megvan = true;
    return sor;
}

/// Texts kept for one font; those of the wheel are far fewer.
constexpr std::size_t legtobbSor = 500;

/// Faces in one size kept; a window that is drawn at many sizes goes through hundreds, each needs nine.
constexpr std::size_t legtobbBetu = 60;

}  // namespace

const TJelSor& TMeretezettBetu::sor(std::string_view szoveg) {
    if (const auto megvan = sorok.find(szoveg); megvan != sorok.end()) return megvan->second;
    if (sorok.size() >= legtobbSor) sorok.clear();
    return sorok.emplace(szoveg, jelSor(betu, qszoveg(szoveg))).first->second;
}

std::shared_ptr<TMeretezettBetu> meretezettBetu(const std::string& nev, int magassag) {
    static std::map<std::pair<std::string, int>, std::shared_ptr<TMeretezettBetu>> betuk;
    if (const auto megvan = betuk.find({nev, magassag}); megvan != betuk.end()) return megvan->second;
    if (betuk.size() >= legtobbBetu) betuk.clear();
    const TBetukeszlet& keszlet = betukeszlet(nev);
    const auto uj = std::make_shared<TMeretezettBetu>();
    uj->betu = keszlet.alap;
    uj->betu.setPixelSize(magassag / keszlet.cellaArany);
    return betuk.insert({{nev, magassag}, uj}).first->second;
}

QFont cellaMagassaguBetu(const QString& nev, int magassag, int dpi) {
    constexpr double pontHuvelyk = 72;
    const std::string kulcs = szoveg(nev);
    QFont betu(nev);
    betu.setHintingPreference(QFont::PreferNoHinting);
    betu.setPointSizeF(magassag / betukeszlet(kulcs).cellaArany * pontHuvelyk / dpi);
    return betu;
}

TSzovegAlak szovegAlak(const QString& betu, int magassag, const QString& szoveg) {
    const std::shared_ptr<TMeretezettBetu> keszlet = meretezettBetu(::szoveg(betu), magassag);
    const TJelSor& sor = keszlet->sor(::szoveg(szoveg));
    TSzovegAlak ki{{}, sor.szelesseg, keszlet->betu.ascent()};
    const QList<quint32> jelek = sor.futam.glyphIndexes();
    const QList<QPointF> helyek = sor.futam.positions();
    for (qsizetype i = 0; i < jelek.size(); ++i)
        ki.alak.addPath(keszlet->betu.pathForGlyph(jelek[i]).translated(helyek[i]));
    if (sor.megvan) return ki;
    constexpr int pixelPont = 72;  // at this resolution a point is a pixel
    const QFont tartalek = cellaMagassaguBetu(betu, magassag, pixelPont);
    QFont pixeles = tartalek;
    pixeles.setPixelSize(qMax(1, qRound(tartalek.pointSizeF())));
    ki.alak.addText(0, 0, pixeles, szoveg);
    ki.szelesseg = QFontMetricsF(pixeles).horizontalAdvance(szoveg);
    return ki;
}
