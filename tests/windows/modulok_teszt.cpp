// The modules that are loaded at need.

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include "windows/modulok.h"

namespace {

/// The shared libraries that the process holds; without them where the system does not tell.
QByteArray konyvtarak() {
#ifdef Q_OS_WIN
    return {};
#else
    QFile terkep("/proc/self/maps");
    return terkep.open(QIODevice::ReadOnly) ? terkep.readAll() : QByteArray();
#endif
}

QByteArray azonosKulcs(const char* jelszo, const char* so, int ismetlesek) {
    return kulcsModul()->kulcs(jelszo, so, ismetlesek, 64).toHex();
}

}  // namespace

class ModulokTeszt : public QObject {
    Q_OBJECT

private slots:
    /// First, before anything is loaded.
    void aNagyKonyvtarakCsakAModullalJonnek() {
        const QByteArray indulaskor = konyvtarak();
        if (indulaskor.isEmpty()) QSKIP("the system does not tell its libraries");
        for (const char* nev : {"libQt6Multimedia", "libQt6Network", "libcrypto"})
            QVERIFY2(!indulaskor.contains(nev), nev);
        QVERIFY(kulcsModul() != nullptr);
        QVERIFY(konyvtarak().contains("libcrypto"));
        QVERIFY(!konyvtarak().contains("libQt6Multimedia"));
        QVERIFY(hangModul() != nullptr);
        QVERIFY(konyvtarak().contains("libQt6Multimedia"));
    }

    void aModulEgyszerToltodikBe() {
        QCOMPARE(modulBetoltes("korvend_kulcs"), modulBetoltes("korvend_kulcs"));
    }

    void aHianyzoModulNincs() { QCOMPARE(modulBetoltes("korvend_nincs"), nullptr); }

    /// Known answers of the published test vectors (RFC 7914, section 11).
    void aKulcsAzIsmertErtek() {
        QCOMPARE(azonosKulcs("passwd", "salt", 1),
                 QByteArray("55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc"
                            "49ca9cccf179b645991664b39d77ef317c71b845b1e30bd509112041d3a19783"));
        QCOMPARE(azonosKulcs("Password", "NaCl", 80000),
                 QByteArray("4ddcd8f60b98be21830cee5ef22701f9641a4418d04c0414aeff08876b34ab56"
                            "a1d425a1225833549adb841b51c9b3176a272bdebba1d078478f62b397f33c8d"));
    }

    void kulcsokCsakTeljesEgyezeskorAzonosak() {
        TKulcsModul& modul = *kulcsModul();
        const QByteArray kulcs = QByteArray::fromHex("00ff10");
        QVERIFY(modul.azonos(kulcs, QByteArray::fromHex("00ff10")));
        for (const char* mas : {"01ff10", "00fe10", "00ff11", "00ff", "00ff1000", ""})
            QVERIFY2(!modul.azonos(kulcs, QByteArray::fromHex(mas)), mas);
    }
};

QTEST_GUILESS_MAIN(ModulokTeszt)
#include "modulok_teszt.moc"
