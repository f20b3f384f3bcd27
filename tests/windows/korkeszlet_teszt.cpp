// Which circles are kept, and in what parts; that they look as drawn ones do is the canvas's test.

#include <QPainter>

#include "kezteszt.h"
#include "windows/korkeszlet.h"

namespace {

const std::vector<TKorDarab>* keres(const QSize& meret, bool feher = false) {
    return korDarabok(meret, QPen(Qt::black, 1), feher);
}

const std::vector<TKorDarab>* harmadszor(const QSize& meret, bool feher = false) {
    keres(meret, feher);
    keres(meret, feher);
    return keres(meret, feher);
}

int pixelek(const std::vector<TKorDarab>& darabok) {
    int szam = 0;
    for (const TKorDarab& darab : darabok) szam += darab.kep.width() * darab.kep.height();
    return szam;
}

}  // namespace

class KorKeszletTeszt : public QObject {
    Q_OBJECT

private slots:
    /// One drawing of the wheel asks for some circles twice, and the start draws it once.
    void aHarmadikKerestolMegvan() {
        const QSize meret(61, 47);
        QVERIFY(keres(meret) == nullptr);
        QVERIFY(keres(meret) == nullptr);
        QVERIFY(keres(QSize(47, 61)) == nullptr);  // another one
        for (int i = 0; i < 3; ++i) {
            const auto* darabok = keres(meret);
            QVERIFY(darabok != nullptr);
            QVERIFY(!darabok->empty());
        }
    }

    /// Small parts about the line, without the room inside it: of a large circle a narrow band is copied.
    void aDarabokKicsikEsUresHelyNelkul() {
        const auto* darabok = harmadszor(QSize(701, 701));
        QVERIFY(darabok != nullptr);
        for (const TKorDarab& darab : *darabok) {
            QVERIFY(darab.kep.width() <= 24 && darab.kep.height() <= 24);
            for (const bool elol : {true, false}) {
                int sorban = 0, oszlopban = 0;
                for (int x = 0; x < darab.kep.width(); ++x)
                    sorban += qAlpha(darab.kep.pixel(x, elol ? 0 : darab.kep.height() - 1));
                for (int y = 0; y < darab.kep.height(); ++y)
                    oszlopban += qAlpha(darab.kep.pixel(elol ? 0 : darab.kep.width() - 1, y));
                QVERIFY(sorban > 0 && oszlopban > 0);
            }
        }
        QVERIFY(pixelek(*darabok) < 701 * 701 / 10);
        QVERIFY(pixelek(*darabok) > 701 * 3);
    }

    /// To copy the whole disk takes longer than to fill it.
    void aNagyKitoltottNemMaradMeg() {
        for (int i = 0; i < 5; ++i) QVERIFY(keres(QSize(500, 500), true) == nullptr);
        QVERIFY(harmadszor(QSize(120, 120), true) != nullptr);
        QVERIFY(harmadszor(QSize(500, 500), false) != nullptr);
    }

    /// While the window is being resized each drawing asks for other circles: the store begins anew from time
    /// to time.
    void aKeszletNemNoOrokke() {
        const QSize elso(33, 33);
        QVERIFY(harmadszor(elso) != nullptr);
        for (int i = 0; i < 250; ++i) keres(QSize(40 + i, 40));
        QVERIFY(keres(elso) == nullptr);
        QVERIFY(harmadszor(elso) != nullptr);
        // The same by the room that they take: a million pixels, 4 MB, and the circle that goes beyond.
        int legtobb = 0, most = 0;
        QSize elozo = elso;
        for (int i = 0; i < 100; ++i) {
            const QSize meret(330, 200 + i);
            const auto* darabok = harmadszor(meret, true);
            QVERIFY(darabok != nullptr);
            const int pixel = pixelek(*darabok);
            const bool ujra = i > 0 && keres(elozo, true) == nullptr;
            most = ujra ? pixel : most + pixel;
            legtobb = qMax(legtobb, most);
            elozo = meret;
        }
        QVERIFY2(legtobb <= (1 << 20) + (1 << 17), qPrintable(QString::number(legtobb)));
    }
};

QTEST_MAIN(KorKeszletTeszt)
#include "korkeszlet_teszt.moc"
