#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "ablakteszt.h"

class TForm9Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aSzimbolumokAFelsoroltBetukkel() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            auto* lista = vezerlo<QComboBox>(d, "ComboBox1");
            QVERIFY(lista->findText("Astro Symbols") >= 0);
            gepel(d, "ComboBox1", "Valami");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Szimbolumok1");
        QCOMPARE(a.allapot().Rajz.szimbolumFont, std::string("Valami"));
        QCOMPARE(vezerlo<QLabel>(a.form1, "Label1")->font().family(), "Valami");
    }

#ifndef Q_OS_WIN
    void aTobbMappabanMeglevoBetuEgyszerSzerepel() {
        const QTemporaryDir adatok;
        const QByteArray regi = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", adatok.path().toUtf8());
        QVERIFY(QDir(adatok.path()).mkdir("fonts"));
        for (const char* nev : {"Astro Symbols.ttf", "Astro Próba.ttf", "Más.ttf", "Astro.txt"}) {
            QFile ki(adatok.filePath(QStringLiteral("fonts/") + nev));
            QVERIFY(ki.open(QIODevice::WriteOnly));
        }
        const QStringList nevek = szimbolumFontok();
        if (regi.isNull())
            qunsetenv("XDG_DATA_HOME");
        else
            qputenv("XDG_DATA_HOME", regi);
        QCOMPARE(nevek.count("Astro Symbols"), 1);
        QCOMPARE(nevek.count("Astro Próba"), 1);
        for (const QString& nev : nevek) QVERIFY2(nev.startsWith("Astro "), qPrintable(nev));
    }
#endif

    void uresenVagyMegsemmelMarad() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            vezerlo<QComboBox>(d, "ComboBox1")->setEditText("");
            kattint(d, "Button_Rendben1");
        });
        menu(a.form1, "Szimbolumok1");
        QCOMPARE(a.allapot().Rajz.szimbolumFont, std::string("Astro Symbols"));
        valasz([](QWidget& d) {
            gepel(d, "ComboBox1", "Valami");
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Szimbolumok1");
        QCOMPARE(a.allapot().Rajz.szimbolumFont, std::string("Astro Symbols"));
    }
};

QTEST_MAIN(TForm9Teszt)
#include "tform9_szimbolumok_teszt.moc"
