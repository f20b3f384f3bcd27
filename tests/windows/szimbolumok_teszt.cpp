// The symbol font's file: every letter that the program writes with it is drawn, and stands where the wheel
// and the lists expect it.

#include <cmath>
#include <string>
#include <string_view>

#include <QPainterPath>
#include <QRawFont>
#include <QTest>

#include "tables/szotar.h"
#include "windows/qszoveg.h"

namespace {

constexpr std::string_view szamjegyek = "0123456789";
/// Separators of the lists: between the hits of a search, in dates, clock times and rows of hits.
constexpr std::string_view elvalasztok = "Q.,:;()";

template <typename TTabla>
std::string egybe(const TTabla& betuk) {
    std::string ki;
    for (const auto& betu : betuk) ki += betu;
    return ki;
}

/// The letter that a failure names.
QByteArray nev(char betu) {
    return {1, betu};
}

std::string szimbolumok() {
    return egybe(bolygoJel) + egybe(jegyJel) + egybe(fenyszogJel);
}

}  // namespace

class SzimbolumokTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QRawFont elso(QStringLiteral(SZIMBOLUM_FAJL), 100, QFont::PreferNoHinting);
        QVERIFY(elso.isValid());
        em_ = elso.unitsPerEm();
        betu_ = QRawFont(QStringLiteral(SZIMBOLUM_FAJL), em_, QFont::PreferNoHinting);  // a unit is a pixel
        QVERIFY(betu_.isValid());
        QCOMPARE(betu_.familyName(), qszoveg(sajatSzimbolumFont));
    }

    void mindenIrtBetunekVanRajza() {
        const std::string betuk = szimbolumok() + egybe(FenyszogPontJel) + egybe(HazCimkeSzimbolum) +
                                  std::string(szamjegyek) + std::string(elvalasztok);
        for (const char betu : betuk) {
            QVERIFY2(glifa(betu) != 0, nev(betu).constData());
            const QRectF keret = rajz(betu);
            QVERIFY2(keret.width() > 0 && keret.height() > 0, nev(betu).constData());
        }
    }

    void aSzokoznekCsakSzelessegeVan() {
        QVERIFY(glifa(' ') != 0);
        QVERIFY(betu_.pathForGlyph(glifa(' ')).isEmpty());
        QCOMPARE(szelesseg(' '), szelesseg('0'));  // columns of the lists are made with blanks
    }

    void aSzimbolumokEgyformaSzelesekEsKozepenAllnak() {
        const double turesHatar = 0.02 * em_;
        for (const char betu : szimbolumok()) {
            QCOMPARE(szelesseg(betu), szelesseg('A'));
            const QRectF keret = rajz(betu);
            const double bal = keret.left();
            const double jobb = szelesseg(betu) - keret.right();
            QVERIFY2(std::abs(bal - jobb) <= turesHatar, nev(betu).constData());
            QVERIFY2(bal > 0 && jobb > 0, nev(betu).constData());
        }
    }

    void aSzimbolumokACellajukbanMaradnak() {
        QCOMPARE(betu_.ascent() + betu_.descent(), em_);
        QCOMPARE(betu_.leading(), 0.0);
        for (const char betu : szimbolumok()) {
            const QRectF keret = rajz(betu);  // y grows downwards from the baseline
            QVERIFY2(-keret.top() <= betu_.ascent(), nev(betu).constData());
            QVERIFY2(keret.bottom() <= betu_.descent(), nev(betu).constData());
        }
    }

    void aSzamjegyekEgyformaSzelesek() {
        for (const char betu : szamjegyek) QCOMPARE(szelesseg(betu), szelesseg('0'));
    }

private:
    quint32 glifa(char betu) const {
        const auto szamok = betu_.glyphIndexesForString(QString(QLatin1Char(betu)));
        return szamok.size() == 1 ? szamok[0] : 0;
    }
    QRectF rajz(char betu) const { return betu_.pathForGlyph(glifa(betu)).boundingRect(); }
    double szelesseg(char betu) const { return betu_.advancesForGlyphIndexes({glifa(betu)}).value(0).x(); }

    QRawFont betu_;
    double em_ = 0;
};

QTEST_MAIN(SzimbolumokTeszt)
#include "szimbolumok_teszt.moc"
