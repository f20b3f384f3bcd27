// The store of the password.

#include <QFile>
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
        QCOMPARE(
            be.permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
            QFile::Permissions());
        const TJelszoTar ujra(tarFajl());
        QVERIFY(ujra.egyezik("titok"));
        QVERIFY(!ujra.egyezik("titkos"));
        QVERIFY(!ujra.egyezik(""));
    }

    void ketUgyanolyanJelszoTaraKulonbozik() {
        const auto tartalom = [] {
            TJelszoTar(tarFajl()).ment("titok");
            QFile be(tarFajl());
            return be.open(QIODevice::ReadOnly) ? be.readAll() : QByteArray();
        };
        QVERIFY(tartalom() != tartalom());
    }
};

QTEST_GUILESS_MAIN(JelszotarTeszt)
#include "jelszotar_teszt.moc"
