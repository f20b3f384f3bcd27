// The canvas on QPainter, judged by the pixels that it leaves.

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <string_view>

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QTest>
#include <QTransform>

#include "windows/betukeszlet.h"
#include "windows/betumappak.h"
#include "windows/qtvaszon.h"

namespace {

using TRajzolas = std::function<void(QtVaszon&)>;

/// A picture of a drawing; its size is in units of the canvas.
QImage rajz(const QSize& meret, double arany, QColor alap, const TRajzolas& rajzolas,
            const QRegion& resz = {}, TLap lap = TLap::barmilyen) {
    QImage kep(meret * arany, QImage::Format_RGB32);
    kep.setDevicePixelRatio(arany);
    kep.fill(alap);
    QPainter festo(&kep);
    if (!resz.isEmpty()) festo.setClipRegion(resz);
    QtVaszon vaszon(festo, lap);
    rajzolas(vaszon);
    return kep;
}

int szurke(const QImage& kep, int x, int y) {
    return qGray(kep.pixel(x, y));
}

/// Number of pixels neither black nor white.
int szurkek(const QImage& kep) {
    int szam = 0;
    for (int y = 0; y < kep.height(); ++y)
        for (int x = 0; x < kep.width(); ++x) szam += szurke(kep, x, y) != 0 && szurke(kep, x, y) != 255;
    return szam;
}

/// All the black of a picture on white, in pixels.
double feketeseg(const QImage& kep) {
    double osszeg = 0;
    for (int y = 0; y < kep.height(); ++y)
        for (int x = 0; x < kep.width(); ++x) osszeg += (255 - szurke(kep, x, y)) / 255.0;
    return osszeg;
}

/// The box of the pixels that a condition holds for.
QRect hatarok(const QImage& kep, const std::function<bool(int)>& feltetel) {
    QRect doboz;
    for (int y = 0; y < kep.height(); ++y)
        for (int x = 0; x < kep.width(); ++x)
            if (feltetel(szurke(kep, x, y))) doboz |= QRect(x, y, 1, 1);
    return doboz;
}
QRect tinta(const QImage& kep) {
    return hatarok(kep, [](int g) { return g < 128; });
}
/// What a text has painted white on a black ground.
QRect feherDoboz(const QImage& kep) {
    return hatarok(kep, [](int g) { return g == 255; });
}

/// Lengths of the black runs of a row.
QList<int> szakaszok(const QImage& kep, int y) {
    QList<int> hosszak;
    bool bent = false;
    for (int x = 0; x < kep.width(); ++x) {
        const bool fekete = szurke(kep, x, y) < 128;
        if (fekete && !bent) hosszak << 0;
        if (fekete) ++hosszak.last();
        bent = fekete;
    }
    return hosszak;
}

constexpr std::array stilusok{TollStilus::folytonos, TollStilus::szaggatott, TollStilus::pontozott,
                              TollStilus::pontVonal, TollStilus::pontPontVonal};

/// Lines both ways and sloped, and a circle.
void mindenfele(QtVaszon& v) {
    v.MoveTo(5, 5);
    v.LineTo(70, 5);
    v.LineTo(70, 60);
    v.LineTo(12, 44);
    v.Ellipse(20, 12, 60, 52);
}

/// What may stand where a circle is drawn next: nothing, lines, a text, circles about other middles.
QList<TRajzolas> mindenElobbi() {
    return {
        [](QtVaszon&) {},
        [](QtVaszon& v) {
            v.MoveTo(35, 60);
            v.LineTo(60, 62);
        },
        [](QtVaszon& v) {
            v.MoveTo(110, 57);
            v.LineTo(10, 66);
        },
        [](QtVaszon& v) {
            v.Betu("Liberation Sans", 14);
            v.TextOut(40, 52, "Mm");
        },
        [](QtVaszon& v) { v.Ellipse(20, 55, 66, 65); },
        [](QtVaszon& v) { v.Ellipse(10, 50, 50, 90); },
    };
}

const QString szimbolumBetu = "Astro Symbols";

/// Where the ink of a text is due, in units below the top of its cell, when ascent and descent together are
/// so high.
struct TTintaMagassag {
    double teteje, alja;
};
TTintaMagassag vartTinta(const QString& nev, const QString& szoveg, double magassag) {
    QFont betu(nev);
    betu.setHintingPreference(QFont::PreferNoHinting);
    betu.setPixelSize(1000);
    const QFontMetricsF m(betu);
    const QRectF doboz = m.tightBoundingRect(szoveg);
    const double arany = magassag / (m.ascent() + m.descent());
    return {(m.ascent() + doboz.top()) * arany, (m.ascent() + doboz.bottom()) * arany};
}

}  // namespace

class QtVaszonTeszt : public QObject {
    Q_OBJECT

private slots:
    void aVaszonBetujeMarad_HaKozbenSokMasMeretKell() {
        QImage kep(100, 100, QImage::Format_RGB32);
        const auto rajz = [&](bool kozben) {
            kep.fill(Qt::white);
            QPainter festo(&kep);
            QtVaszon vaszon(festo);
            vaszon.Betu("Astro Symbols", 40);
            vaszon.TextOut(5, 5, "A");
            for (int meret = 10; kozben && meret < 200; ++meret) szovegAlak("Astro Symbols", meret, "B");
            vaszon.TextOut(50, 5, "C");
            festo.end();
            return kep.copy();
        };
        QCOMPARE(rajz(true), rajz(false));
    }

    void initTestCase() { sajatBetukBetoltese(); }

    void azEgyenesVonalEgeszPixeleketFed_data() {
        QTest::addColumn<int>("szelesseg");
        QTest::addColumn<double>("arany");
        QTest::addColumn<bool>("fuggoleges");
        for (const double arany : {1.0, 1.25, 1.5, 1.75, 2.0})
            for (int szelesseg = 1; szelesseg <= 4; ++szelesseg)
                for (const bool fuggoleges : {false, true})
                    QTest::addRow("%d x%.2f %s", szelesseg, arany, fuggoleges ? "fuggo" : "viz")
                        << szelesseg << arany << fuggoleges;
    }
    void azEgyenesVonalEgeszPixeleketFed() {
        QFETCH(int, szelesseg);
        QFETCH(double, arany);
        QFETCH(bool, fuggoleges);
        const int vastagsag = static_cast<int>(std::round(szelesseg * arany));
        for (int hely = 14; hely < 46; ++hely) {
            QImage kep = rajz({60, 60}, arany, Qt::white, [&](QtVaszon& v) {
                v.TollSzelesseg(szelesseg);
                v.MoveTo(fuggoleges ? hely : 10, fuggoleges ? 10 : hely);
                v.LineTo(fuggoleges ? hely : 49, fuggoleges ? 49 : hely);
            });
            if (fuggoleges) kep = kep.transformed(QTransform(0, 1, 1, 0, 0, 0));
            QCOMPARE(szurkek(kep), 0);
            const QRect vonal = tinta(kep);
            QCOMPARE(vonal.height(), vastagsag);
            QVERIFY(std::abs(vonal.y() + vonal.height() / 2.0 - (hely + 0.5) * arany) <= 0.75);
            // From pixel 10 to pixel 49, with the half width beyond that every end has.
            QVERIFY(std::abs(vonal.x() - (10.5 - szelesseg / 2.0) * arany) <= 0.5);
            QVERIFY(std::abs(vonal.x() + vonal.width() - (49.5 + szelesseg / 2.0) * arany) <= 1);
        }
    }

    void azEgyenesVonalUtanIsSimaAFerde() {
        const auto ferde = [](QtVaszon& v) {
            v.MoveTo(5, 30);
            v.LineTo(50, 41);
            v.Ellipse(10, 45, 40, 75);
        };
        const QImage magaban = rajz({60, 80}, 1, Qt::white, ferde);
        const QImage utana = rajz({60, 80}, 1, Qt::white, [&](QtVaszon& v) {
            v.MoveTo(5, 5);
            v.LineTo(50, 5);
            v.Betu("Ariel", 12);
            v.TextOut(5, 8, "12");
            ferde(v);
        });
        QVERIFY(szurkek(magaban) > 50);
        QCOMPARE(utana.copy(0, 25, 60, 55), magaban.copy(0, 25, 60, 55));
    }

    void aSzaggatottHajszalSemSzurke() {
        for (const int arany : {1, 2, 3})
            for (const int szelesseg : {0, 1})
                for (const TollStilus stilus : stilusok) {
                    const QImage kep = rajz({60, 60}, arany, Qt::white, [&](QtVaszon& v) {
                        v.TollSzelesseg(szelesseg);
                        v.Stilus(stilus);
                        v.MoveTo(5, 3);
                        v.LineTo(50, 3);
                        v.MoveTo(3, 50);
                        v.LineTo(3, 5);
                    });
                    QVERIFY(!tinta(kep).isEmpty());
                    QCOMPARE(szurkek(kep), 0);
                }
    }

    void aParatlanSzelessegAPixelekKozepenAll() {
        const QImage kep = rajz({40, 40}, 1, Qt::white, [](QtVaszon& v) {
            v.TollSzelesseg(3);
            v.MoveTo(10, 20);
            v.LineTo(30, 20);
        });
        QCOMPARE(tinta(kep), QRect(9, 19, 23, 3));
    }

    void aNullasTollEgyEszkozpixel() {
        for (const int arany : {1, 2, 3}) {
            const QImage vonal = rajz({40, 40}, arany, Qt::white, [](QtVaszon& v) {
                v.TollSzelesseg(0);
                v.MoveTo(10, 20);
                v.LineTo(30, 20);
            });
            QCOMPARE(szurkek(vonal), 0);
            QCOMPARE(tinta(vonal).height(), 1);
            // A ray from the middle of a circle crosses about one device pixel of black, not one unit.
            const QImage kor = rajz({40, 40}, arany, Qt::white, [](QtVaszon& v) {
                v.TollSzelesseg(0);
                v.Ellipse(5, 5, 35, 35);
            });
            int fekete = 0;
            for (int x = 20 * arany; x < 40 * arany; ++x) fekete += 255 - szurke(kor, x, 20 * arany);
            QVERIFY2(fekete > 128 && fekete < 384, qPrintable(QString::number(fekete)));
        }
    }

    void aFerdeVonalEsAKorAPixelekKozepenMarad() {
        // The middle of the line is the middle of pixel (25, 11): what it darkens above it darkens below.
        const QImage vonal = rajz({50, 30}, 1, Qt::white, [](QtVaszon& v) {
            v.TollSzelesseg(2);
            v.MoveTo(5, 10);
            v.LineTo(45, 12);
        });
        QCOMPARE(szurke(vonal, 25, 11), 0);
        QVERIFY(szurke(vonal, 25, 10) > 64 && szurke(vonal, 25, 10) < 192);
        QVERIFY(std::abs(szurke(vonal, 25, 10) - szurke(vonal, 25, 12)) < 8);
        const QImage kor = rajz({50, 50}, 1, Qt::white, [](QtVaszon& v) {
            v.TollSzelesseg(2);
            v.Ellipse(5, 5, 45, 45);
        });
        for (const auto& [be, kozep, ki] : {std::array{6, 5, 4}, std::array{44, 45, 46}}) {
            QCOMPARE(szurke(kor, kozep, 25), 0);
            for (const int szel : {be, ki})
                QVERIFY(szurke(kor, szel, 25) > 64 && szurke(kor, szel, 25) < 208);
        }
    }

    void aVonalAzElozoVegetolFolytatodik() {
        const QImage kep = rajz({40, 40}, 1, Qt::white, [](QtVaszon& v) {
            v.MoveTo(5, 5);
            v.LineTo(30, 5);
            v.LineTo(30, 30);
        });
        QCOMPARE(szurke(kep, 15, 5), 0);
        QCOMPARE(szurke(kep, 30, 15), 0);
        QCOMPARE(szurke(kep, 15, 15), 255);
    }

    /// The toolkit's patterns in pen widths, black and white in turn: 4 2, 1 2, 4 2 1 2, 4 2 1 2 1 2; a line
    /// of 108 pixels holds each a whole number of times.
    void azOtTollStilusSzakaszai() {
        const std::array<QList<int>, 5> mintak{{{108}, {4}, {1}, {4, 1}, {4, 1, 1}}};
        const std::array<int, 5> darab{1, 18, 36, 24, 27};
        for (const int arany : {1, 2}) {
            for (std::size_t i = 0; i < stilusok.size(); ++i) {
                const auto vonalak = [&](QtVaszon& v) {
                    v.TollSzelesseg(1);
                    v.Stilus(stilusok[i]);
                    v.MoveTo(2, 3);
                    v.LineTo(109, 3);
                    v.MoveTo(109, 7);
                    v.LineTo(2, 7);
                    v.MoveTo(3, 12);
                    v.LineTo(3, 119);
                };
                const QImage kep = rajz({130, 125}, arany, Qt::white, vonalak);
                QCOMPARE(szurkek(kep), 0);
                const QList<int> jobbra = szakaszok(kep, 3 * arany);
                QCOMPARE(jobbra.size(), darab[i]);
                for (qsizetype n = 0; n < jobbra.size(); ++n)
                    QCOMPARE(jobbra[n], mintak[i][n % mintak[i].size()] * arany);
                QList<int> balra = szakaszok(kep, 7 * arany);
                std::reverse(balra.begin(), balra.end());
                QCOMPARE(balra, jobbra);
                const QImage fordult = kep.copy(0, 10 * arany, 10 * arany, 115 * arany)
                                           .transformed(QTransform(0, 1, 1, 0, 0, 0));
                QCOMPARE(szakaszok(fordult, 3 * arany), jobbra);
            }
        }
    }

    void aStilusAFerdeVonalatEsAKortIsSzaggatja() {
        QList<double> feketek;
        for (const TollStilus stilus : stilusok)
            feketek << feketeseg(rajz({80, 70}, 1, Qt::white, [stilus](QtVaszon& v) {
                v.Stilus(stilus);
                v.MoveTo(70, 60);
                v.LineTo(12, 44);
                v.Ellipse(20, 12, 60, 52);
            }));
        // Shares of black in the patterns.
        const std::array<double, 5> reszek{1, 4.0 / 6, 1.0 / 3, 5.0 / 9, 6.0 / 12};
        for (std::size_t i = 0; i < reszek.size(); ++i) {
            const double resz = feketek[static_cast<qsizetype>(i)] / feketek[0];
            QVERIFY2(std::abs(resz - reszek[i]) < 0.05, qPrintable(QString::number(resz)));
        }
    }

    void aVastagTollMindenStilussalFolytonos() {
        for (const int szelesseg : {2, 3, 4, 12}) {
            const QImage folytonos = rajz({80, 70}, 1, Qt::white, [&](QtVaszon& v) {
                v.TollSzelesseg(szelesseg);
                mindenfele(v);
            });
            for (const TollStilus stilus : stilusok) {
                const auto elobbStilus = [&](QtVaszon& v) {
                    v.Stilus(stilus);
                    v.TollSzelesseg(szelesseg);
                    mindenfele(v);
                };
                const auto elobbSzelesseg = [&](QtVaszon& v) {
                    v.TollSzelesseg(szelesseg);
                    v.Stilus(stilus);
                    mindenfele(v);
                };
                QCOMPARE(rajz({80, 70}, 1, Qt::white, elobbStilus), folytonos);
                QCOMPARE(rajz({80, 70}, 1, Qt::white, elobbSzelesseg), folytonos);
            }
        }
    }

    void aVekonyTollVisszakapjaAStilust() {
        const auto vonal = [](QtVaszon& v, int y) {
            v.MoveTo(0, y);
            v.LineTo(59, y);
        };
        for (const int vekony : {0, 1}) {
            const QImage kep = rajz({60, 15}, 1, Qt::white, [&](QtVaszon& v) {
                v.Stilus(TollStilus::szaggatott);
                v.TollSzelesseg(3);
                vonal(v, 5);
                v.TollSzelesseg(vekony);
                vonal(v, 10);
            });
            QCOMPARE(szakaszok(kep, 5), QList<int>{60});
            QCOMPARE(szakaszok(kep, 10).size(), 10);
        }
    }

    void aSzelesVonalVegeKerek() {
        const QImage kep = rajz({80, 40}, 1, Qt::white, [](QtVaszon& v) {
            v.TollSzelesseg(13);
            v.MoveTo(20, 20);
            v.LineTo(60, 20);
        });
        QCOMPARE(tinta(kep), QRect(14, 14, 53, 13));
        QCOMPARE(szurke(kep, 14, 14), 255);
        QCOMPARE(szurke(kep, 66, 26), 255);
        QCOMPARE(szurke(kep, 40, 14), 0);
    }

    void aKorBelsejeFeher() {
        const QImage kep =
            rajz({60, 60}, 1, QColor(90, 90, 90), [](QtVaszon& v) { v.Ellipse(10, 10, 50, 50); });
        QCOMPARE(szurke(kep, 30, 30), 255);
        QCOMPARE(szurke(kep, 12, 30), 255);
        QCOMPARE(szurke(kep, 48, 30), 255);
        QVERIFY(szurke(kep, 30, 10) < 64);
        QVERIFY(szurke(kep, 50, 30) < 64);
        QCOMPARE(szurke(kep, 12, 12), 90);
    }

    /// Whatever stands in a white circle is gone when a smaller one is drawn about the same middle.
    void aBelsoKorElfediAmiBenneVan() {
        for (const int toll : {0, 1, 5}) {
            for (const TRajzolas& belso : mindenElobbi()) {
                const QImage kep = rajz({120, 120}, 1.5, Qt::red, [&](QtVaszon& v) {
                    v.Ellipse(10, 10, 110, 110);
                    belso(v);
                    v.TollSzelesseg(toll);
                    v.Ellipse(30, 30, 90, 90);
                });
                const QImage minta = rajz({120, 120}, 1.5, Qt::white, [&](QtVaszon& v) {
                    v.TollSzelesseg(toll);
                    v.Ellipse(30, 30, 90, 90);
                });
                const QRect benne(70, 70, 40, 40);  // a square in the inner circle, device pixels
                QCOMPARE(kep.copy(benne), minta.copy(benne));
                QCOMPARE(szurke(kep, 60, 91), 255);
            }
        }
    }

    /// A flat ellipse is white along its axis only, so that what is drawn over it is filled anew.
    void azEllipszisNemFeherKor() {
        for (const QRect& masodik : {QRect(30, 30, 60, 60), QRect(30, 20, 60, 80)}) {
            const QImage kep = rajz({120, 120}, 1, Qt::red, [&](QtVaszon& v) {
                v.Ellipse(10, 50, 110, 70);
                v.Ellipse(masodik.x(), masodik.y(), masodik.x() + masodik.width(),
                          masodik.y() + masodik.height());
            });
            for (const int y : {35, 45, 60, 75, 85}) QCOMPARE(szurke(kep, 60, y), 255);
        }
    }

    /// On a surface known to be white the first circle needs no filling; the picture is the same, whatever
    /// has been drawn before the circle.
    void aFeherLaponUgyanazARajz() {
        for (const int toll : {0, 1, 5}) {
            for (const TRajzolas& elso : mindenElobbi()) {
                const auto kep = [&](TLap lap) {
                    const auto korok = [&](QtVaszon& v) {
                        elso(v);
                        v.TollSzelesseg(toll);
                        v.Ellipse(30, 30, 90, 90);
                        v.Ellipse(40, 40, 80, 80);
                        mindenfele(v);
                    };
                    return rajz({120, 120}, 1.5, Qt::white, korok, {}, lap);
                };
                QCOMPARE(kep(TLap::feher), kep(TLap::barmilyen));
            }
        }
    }

    /// A circle that comes back is copied from the parts that the third drawing has kept; no pixel tells it.
    void aVisszateroKorUgyanaz() {
        for (const int toll : {0, 1, 4, 5}) {
            for (const TollStilus stilus : stilusok) {
                for (const QSize& meret : {QSize(131, 131), QSize(17, 17), QSize(2, 2), QSize(150, 61)}) {
                    const auto kep = [&](const QPoint& hely) {
                        return rajz({900, 300}, 1, Qt::white, [&](QtVaszon& v) {
                            v.TollSzelesseg(toll);
                            v.Stilus(stilus);
                            v.Ellipse(hely.x(), hely.y(), hely.x() + meret.width(),
                                      hely.y() + meret.height());
                        });
                    };
                    const QPoint egyik(13, 7), masik(737, 121);
                    const QImage elso = kep(egyik), masodik = kep(masik);
                    for (int i = 0; i < 2; ++i) {
                        QCOMPARE(kep(egyik), elso);
                        QCOMPARE(kep(masik), masodik);
                    }
                }
            }
        }
    }

    /// Its filling covers what is under it, and only that; without one nothing is touched inside.
    void aVisszateroKorIsKitolt() {
        const auto korok = [](QtVaszon& v) {
            v.TollSzelesseg(3);
            for (const int sugar : {50, 33}) v.Ellipse(60 - sugar, 60 - sugar, 60 + sugar, 60 + sugar);
        };
        const QImage elso = rajz({120, 120}, 1, Qt::red, korok);
        for (int i = 0; i < 3; ++i) {
            const QImage kep = rajz({120, 120}, 1, Qt::red, korok);
            QCOMPARE(kep, elso);
            QCOMPARE(kep.pixel(60, 60), qRgb(255, 255, 255));
            QCOMPARE(kep.pixel(3, 3), qRgb(255, 0, 0));
        }
    }

    /// Each look of a box's ellipse is kept by itself: pens, heights, filled or not.
    void aVisszateroKorNemKeveredikMassal() {
        struct TFajta {
            int toll, magassag;
            TLap lap;  // what is known to be white is not filled
        };
        for (int kor = 0; kor < 4; ++kor) {
            for (const TFajta& f : {TFajta{1, 71, TLap::barmilyen}, TFajta{1, 71, TLap::feher},
                                    TFajta{3, 71, TLap::feher}, TFajta{1, 35, TLap::barmilyen}}) {
                const auto rajzolas = [&](QtVaszon& v) {
                    v.TollSzelesseg(f.toll);
                    v.Ellipse(10, 10, 81, 10 + f.magassag);
                };
                const QImage kep = rajz({100, 100}, 1, Qt::red, rajzolas, {}, f.lap);
                const bool kitoltve = f.lap == TLap::barmilyen;
                QCOMPARE(kep.pixel(45, 10 + f.magassag / 2),
                         kitoltve ? qRgb(255, 255, 255) : qRgb(255, 0, 0));
                QCOMPARE(hatarok(kep, [](int g) { return g < 20; }).height(), f.magassag + f.toll);
                QCOMPARE(qRed(kep.pixel(45, 12)) < 20, false);
                QCOMPARE(qRed(kep.pixel(45, 11)) < 20, f.toll == 3);
            }
        }
    }

    /// Where a unit is no pixel, or lies between two, a circle is drawn anew each time.
    void aVisszateroKorElteresselIsHelyenVan() {
        const auto kor = [](QtVaszon& v) { v.Ellipse(11, 11, 52, 52); };
        const auto kep = [&](const QTransform& t) {
            QImage lap(140, 140, QImage::Format_RGB32);
            lap.fill(Qt::white);
            QPainter festo(&lap);
            festo.setTransform(t);
            QtVaszon vaszon(festo);
            kor(vaszon);
            return lap;
        };
        for (int i = 0; i < 3; ++i) kep({});
        QCOMPARE(tinta(kep(QTransform::fromTranslate(30, 20))), QRect(41, 31, 42, 42));
        QCOMPARE(tinta(kep(QTransform::fromScale(2, 2))), QRect(22, 22, 84, 84));
        // Half a pixel off, the line about the pixel's middle is two pixels about half grey.
        const QImage fel = kep(QTransform::fromTranslate(0.5, 0));
        for (const int x : {11, 12}) QVERIFY(std::abs(szurke(fel, x, 32) - 128) < 20);
    }

    /// No difference that an eye would see: what square ends have more than round ones is a pixel or two.
    void aKeskenyFerdeVonalVegeSzogletes() {
        const auto ferde = [](QtVaszon& v, int toll) {
            v.TollSzelesseg(toll);
            v.MoveTo(20, 20);
            v.LineTo(44, 38);  // 30 units long
        };
        for (const int toll : {2, 4, 8}) {
            const double kapott =
                feketeseg(rajz({70, 60}, 1, Qt::white, [&](QtVaszon& v) { ferde(v, toll); }));
            QVERIFY2(std::abs(kapott - toll * (30.0 + toll)) < 1.5, qPrintable(QString::number(kapott)));
        }
        constexpr int szeles = 9;  // wider than eight device pixels: half a circle at each end
        const double kerek = feketeseg(rajz({70, 60}, 1, Qt::white, [&](QtVaszon& v) { ferde(v, szeles); }));
        QVERIFY(std::abs(kerek - (szeles * 30 + M_PI * szeles * szeles / 4)) < 1.5);
        // Twice as many device pixels: five units are wide already.
        const double ketszer = feketeseg(rajz({70, 60}, 2, Qt::white, [&](QtVaszon& v) { ferde(v, 5); })) / 4;
        QVERIFY(std::abs(ketszer - (5 * 30 + M_PI * 25 / 4)) < 1);
    }

    void azIsmeteltSzovegUgyanAz() {
        const TRajzolas szoveg = [](QtVaszon& v) {
            v.Betu("Liberation Sans", 20);
            v.TextOut(5, 5, "28°58'");
        };
        const QImage elso = rajz({100, 30}, 1.25, Qt::white, szoveg);
        QVERIFY(feketeseg(elso) > 100);
        QCOMPARE(rajz({100, 30}, 1.25, Qt::white, szoveg), elso);
        // The same text in another size and another face in between.
        const QImage mas = rajz({100, 30}, 1.25, Qt::white, [](QtVaszon& v) {
            v.Betu("Liberation Sans", 12);
            v.TextOut(5, 5, "28°58'");
        });
        QVERIFY(feketeseg(mas) < feketeseg(elso));
        QCOMPARE(rajz({100, 30}, 1.25, Qt::white, szoveg), elso);
    }

    void aSzovegFeherDobozaACella_data() {
        QTest::addColumn<QString>("nev");
        QTest::addColumn<QString>("szoveg");
        QTest::addRow("szimbolum") << szimbolumBetu << "ACg";
        QTest::addRow("szoveg") << "Ariel"
                                << "28°VII";
        QTest::addRow("talpas") << "Times New Roman"
                                << "R";
        QTest::addRow("nincs ilyen") << "Ilyen Betu Nincsen"
                                     << "Szeged";
        QTest::addRow("hianyzo jel") << szimbolumBetu << "Aő€";
    }
    void aSzovegFeherDobozaACella() {
        QFETCH(QString, nev);
        QFETCH(QString, szoveg);
        for (const int arany : {1, 2}) {
            for (const int magassag : {8, 15, 24, 41}) {
                int szelesseg = 0;
                const QImage kep = rajz({250, 60}, arany, Qt::black, [&](QtVaszon& v) {
                    v.Betu(nev.toStdString(), magassag);
                    v.TextOut(10, 7, szoveg.toStdString());
                    szelesseg = v.TextWidth(szoveg.toStdString());
                });
                const QRect doboz = feherDoboz(kep);
                QCOMPARE(doboz.topLeft(), QPoint(10, 7) * arany);
                QCOMPARE(doboz.height(), magassag * arany);
                QVERIFY(std::abs(doboz.width() - szelesseg * arany) <= arany);
            }
        }
    }

    void aTintaACellabanABetuMereteivelAll_data() {
        QTest::addColumn<QString>("nev");
        QTest::addColumn<QString>("szoveg");
        QTest::addRow("szimbolum") << szimbolumBetu << "A";
        QTest::addRow("jegy") << szimbolumBetu << "i";
        QTest::addRow("szoveg") << "Ariel"
                                << "Hg";
        QTest::addRow("talpas") << "Times New Roman"
                                << "Qy";
        QTest::addRow("nincs ilyen") << "Ilyen Betu Nincsen"
                                     << "Hg";
    }
    void aTintaACellabanABetuMereteivelAll() {
        QFETCH(QString, nev);
        QFETCH(QString, szoveg);
        for (const int arany : {1, 2}) {
            for (const int magassag : {15, 24, 60}) {
                const QImage kep = rajz({250, 100}, arany, Qt::white, [&](QtVaszon& v) {
                    v.Betu(nev.toStdString(), magassag);
                    v.TextOut(10, 7, szoveg.toStdString());
                });
                const TTintaMagassag vart = vartTinta(nev, szoveg, magassag);
                const QRect kapott = tinta(kep);
                QVERIFY(std::abs(kapott.y() - (7 + vart.teteje) * arany) <= 1.25);
                QVERIFY(std::abs(kapott.y() + kapott.height() - (7 + vart.alja) * arany) <= 1.25);
                QVERIFY(kapott.x() >= 9 * arany);
            }
        }
    }

    void aSzovegASzelessegebenAll() {
        for (const char* nev : {"Astro Symbols", "Ariel", "Times New Roman"}) {
            for (const int magassag : {12, 24, 60}) {
                const auto szelesseg = [&](std::string_view szoveg) {
                    int ertek = 0;
                    rajz({1, 1}, 1, Qt::white, [&](QtVaszon& v) {
                        v.Betu(nev, magassag);
                        ertek = v.TextWidth(szoveg);
                    });
                    return ertek;
                };
                const std::string_view sor = "AABBCCDDAABBCCDD";
                const QImage kep = rajz({1200, 100}, 1, Qt::white, [&](QtVaszon& v) {
                    v.Betu(nev, magassag);
                    v.TextOut(10, 7, sor);
                });
                const QRect t = tinta(kep);
                const int vege = 10 + szelesseg(sor);
                QVERIFY(t.x() + t.width() <= vege + 1);
                QVERIFY(t.x() + t.width() > vege - szelesseg("D") / 2);
                QVERIFY(std::abs(szelesseg(sor) - 2 * szelesseg("AABBCCDD")) <= 1);
            }
        }
    }

    void aHianyzoJeleketMasBetuRajzolja() {
        const auto szoveg = [](const char* nev, const char* sz) {
            return rajz({200, 60}, 1, Qt::white, [=](QtVaszon& v) {
                v.Betu(nev, 24);
                v.TextOut(10, 7, sz);
            });
        };
        const QImage csakA = szoveg("Astro Symbols", "A");
        const QImage tobb = szoveg("Astro Symbols", "Aő");
        QVERIFY(tinta(tobb).width() > tinta(csakA).width());
        QVERIFY(tinta(tobb).height() <= 24 + 2);
        // Not the empty box of a missing character: two different ones look different.
        QVERIFY(tobb != szoveg("Astro Symbols", "Aű"));
        QVERIFY(!tinta(szoveg("Ilyen Betu Nincsen", "Szeged")).isEmpty());
    }

    void aSzovegMindenElottFeheretFest() {
        const QImage kep = rajz({100, 60}, 1, Qt::white, [](QtVaszon& v) {
            v.TollSzelesseg(3);
            for (int y = 5; y < 60; y += 6) {
                v.MoveTo(0, y);
                v.LineTo(99, y);
            }
            v.Betu("Ariel", 24);
            v.TextOut(30, 12, "I I");
        });
        const QImage tiszta = rajz({100, 60}, 1, Qt::white, [](QtVaszon& v) {
            v.Betu("Ariel", 24);
            v.TextOut(30, 12, "I I");
        });
        const QRect doboz(30, 12, tinta(tiszta).right() - 30, 24);
        QCOMPARE(kep.copy(doboz), tiszta.copy(doboz));
    }

    void nullaVagyKisebbMagassagNemRajzol() {
        for (const int magassag : {0, -1, -20}) {
            const QImage kep = rajz({100, 60}, 1, QColor(90, 90, 90), [magassag](QtVaszon& v) {
                v.Betu("Ariel", 24);
                v.Betu("Ariel", magassag);
                v.TextOut(10, 7, "Szeged");
                QCOMPARE(v.TextWidth("Szeged"), 0);
            });
            QCOMPARE(hatarok(kep, [](int g) { return g != 90; }), QRect());
        }
        const QImage ures = rajz({100, 60}, 1, QColor(90, 90, 90), [](QtVaszon& v) {
            v.Betu("Ariel", 24);
            v.TextOut(10, 7, "");
        });
        QCOMPARE(hatarok(ures, [](int g) { return g != 90; }), QRect());
    }

    void aKetszeresKeparanyKetszerAkkora() {
        for (const int arany : {1, 2, 3}) {
            const QImage kep =
                rajz({60, 60}, arany, Qt::white, [](QtVaszon& v) { v.Ellipse(10, 10, 49, 49); });
            // Outer edges of a ring one unit wide about the middles of pixels 10 and 49.
            QCOMPARE(tinta(kep), QRect(10 * arany, 10 * arany, 40 * arany, 40 * arany));
        }
    }

    void aReszlegesFestesMastNemErint() {
        const auto minden = [](QtVaszon& v) {
            v.TollSzelesseg(2);
            mindenfele(v);
            v.Betu("Astro Symbols", 24);
            v.TextOut(22, 20, "ABC");
        };
        for (const int arany : {1, 2}) {
            const QRect resz(30, 10, 20, 30);
            const QImage alap = rajz({80, 70}, arany, Qt::gray, [](QtVaszon&) {});
            const QImage egesz = rajz({80, 70}, arany, Qt::gray, minden);
            QImage vart = alap;
            for (int y = resz.top() * arany; y < (resz.bottom() + 1) * arany; ++y)
                for (int x = resz.left() * arany; x < (resz.right() + 1) * arany; ++x)
                    vart.setPixel(x, y, egesz.pixel(x, y));
            QCOMPARE(rajz({80, 70}, arany, Qt::gray, minden, resz), vart);
        }
    }
};

QTEST_MAIN(QtVaszonTeszt)
#include "qtvaszon_teszt.moc"
