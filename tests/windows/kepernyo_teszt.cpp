#include <QScreen>

#include "ablakteszt.h"
#include "windows/kepernyo.h"

class KepernyoTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aTervezettMeretOttMaradAholElfer() {
        QCOMPARE(KepernyonElfero({995, 717}, {1920, 1080}), QSize(995, 717));
        QCOMPARE(KepernyonElfero({995, 717}, {1366, 768}), QSize(995, 717));
    }

    void aKisKepernyonKeretestulElfer() {
        // 1920 x 1080 at a scale of 1.5; 1366 x 768 and 1024 x 600 with a desktop's panel below.
        for (const QSize& elerheto :
             {QSize(1280, 720), QSize(1366, 728), QSize(1024, 560), QSize(800, 480)}) {
            const QSize uj = KepernyonElfero({995, 717}, elerheto);
            QVERIFY(uj.width() <= 995 && uj.height() <= 717);
            QVERIFY(uj.width() + 2 * 8 <= elerheto.width());
            QVERIFY(uj.height() + 40 <= elerheto.height());
        }
        QCOMPARE(KepernyonElfero({995, 717}, {1280, 720}).width(), 995);  // no smaller than need be
    }

    void aFoablakAKepernyojenElferEsTeljesenLatszik() {
        if (QGuiApplication::platformName() == "windows") QSKIP("a real screen may be large");
        TAblakok a;
        const QSize elerheto = a.form1.screen()->availableSize();
        QVERIFY(elerheto.width() < 995);  // else there is nothing to see here
        kepernyohozIgazit(a.form1);
        a.form1.show();
        QTest::qWait(tobbOrajel);
        QVERIFY(a.form1.width() < elerheto.width() && a.form1.height() < elerheto.height());
        const auto* sav = vezerlo<QWidget>(a.form1, "StatusBar1");
        QVERIFY(a.form1.rect().contains(sav->geometry()));
        QVERIFY(sav->height() > 10);
    }
};

QTEST_MAIN(KepernyoTeszt)
#include "kepernyo_teszt.moc"
