// The store of the password.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

#include "windows/jelszotar.h"

namespace {

QString tarFajl() {
    return TJelszoTar::alapFajl();
}

}  // namespace

class JelszotarTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { QFile::remove(tarFajl()); }
    void cleanupTestCase() { QFile::remove(tarFajl()); }

    void aTarSosemTartalmazzaAJelszot() {
        QVERIFY(TJelszoTar(tarFajl()).ment("titok"));
        QFile be(tarFajl());
        QVERIFY(be.open(QIODevice::ReadOnly));
        const QByteArray tartalom = be.readAll();
        QVERIFY(!tartalom.contains("titok"));
        QVERIFY(!tartalom.contains(QByteArray("titok").toHex()));
        QVERIFY(!tartalom.contains(QByteArray("titok").toBase64()));
#ifndef Q_OS_WIN  // there the user's folder itself is closed to others
        QCOMPARE(
            be.permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
            QFile::Permissions());
#endif
        const TJelszoTar ujra(tarFajl());
        QVERIFY(ujra.egyezik("titok"));
        QVERIFY(!ujra.egyezik("titkos"));
        QVERIFY(!ujra.egyezik(""));
    }

    /// Salt and key as PBKDF2-SHA256 of 20000 rounds gives them by another implementation.
    void aRegiTarOlvashatoMarad() {
        const QByteArray so = "000102030405060708090a0b0c0d0e0f ";
        irj(so + "e56b29956dd8b07f2417d525765910fe7a121b7d8c20faf37e0f29e9a036a46a\n");
        QVERIFY(TJelszoTar(tarFajl()).egyezik("titok"));
        QVERIFY(!TJelszoTar(tarFajl()).egyezik("titol"));
        irj(so + "889039a314c58aeaf7eb108dbd629963fbd7ef98e82fa075c2c42d4da6b689e1\n");
        QVERIFY(TJelszoTar(tarFajl()).egyezik(u"árvíztűrő"_qs));
        QVERIFY(!TJelszoTar(tarFajl()).egyezik("titok"));
    }

    void ketUgyanolyanJelszoTaraKulonbozik() {
        const auto ujTar = [] {
            TJelszoTar(tarFajl()).ment("titok");
            return tartalom();
        };
        QVERIFY(ujTar() != ujTar());
    }

    void aJelszoNelkuliTarSzava() {
        // Other tools write this word too, so that the first run does not ask.
        QVERIFY(TJelszoTar(tarFajl()).ment(""));
        QCOMPARE(tartalom(), QByteArray("nincs\n"));
        for (const char* szo : {"nincs\n", "nincs"}) {
            irj(szo);
            QCOMPARE(TJelszoTar(tarFajl()).allas(), TJelszoTar::Allas::nincsJelszo);
        }
    }

    void masSzoOlvashatatlan() {
        for (const char* szo : {"", "\n", "van", "nincs x", "nincsen", "Nincs"}) {
            irj(szo);
            const TJelszoTar tar(tarFajl());
            QCOMPARE(tar.allas(), TJelszoTar::Allas::olvashatatlan);
            QVERIFY(!tar.egyezik(""));
        }
    }

    /// 16 bytes and 32 bytes; less or more is of a file that was cut or is another's.
    void aCsonkaSoEsKulcsOlvashatatlan() {
        const QByteArray so(32, 'a'), kulcs(64, 'b');
        irj(so + ' ' + kulcs);
        QCOMPARE(TJelszoTar(tarFajl()).allas(), TJelszoTar::Allas::vanJelszo);
        for (const QByteArray& tartalom :
             {so + ' ' + kulcs.chopped(2), so.chopped(2) + ' ' + kulcs, so + ' ' + kulcs + "bb",
              so + "aa " + kulcs, so + ' ' + kulcs + " x"}) {
            irj(tartalom);
            QCOMPARE(TJelszoTar(tarFajl()).allas(), TJelszoTar::Allas::olvashatatlan);
        }
    }

    void azUjJelszoARegitValtja() {
        TJelszoTar tar(tarFajl());
        QVERIFY(tar.ment("titok"));
        QVERIFY(tar.ment("uj"));
        for (const TJelszoTar& t : {tar, TJelszoTar(tarFajl())}) {
            QVERIFY(t.egyezik("uj"));
            QVERIFY(!t.egyezik("titok"));
        }
        QVERIFY(tar.ment(""));
        QCOMPARE(TJelszoTar(tarFajl()).allas(), TJelszoTar::Allas::nincsJelszo);
    }

private:
    static QByteArray tartalom() {
        QFile be(tarFajl());
        return be.open(QIODevice::ReadOnly) ? be.readAll() : QByteArray();
    }
    static void irj(const QByteArray& tartalom) {
        QVERIFY(QDir().mkpath(QFileInfo(tarFajl()).absolutePath()));
        QFile ki(tarFajl());
        QVERIFY(ki.open(QIODevice::WriteOnly));
        ki.write(tartalom);
    }
};

QTEST_GUILESS_MAIN(JelszotarTeszt)
#include "jelszotar_teszt.moc"
