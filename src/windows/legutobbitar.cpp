#include "windows/legutobbitar.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include "windows/qszoveg.h"

TLegutobbiTar::TLegutobbiTar(QString fajl) : fajl_(std::move(fajl)) {
    olvas();
}

QString TLegutobbiTar::alapFajl() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/legutobbi";
}

void TLegutobbiTar::olvas() {
    constexpr qint64 legtobb = 1 << 17;
    QFile be(fajl_);
    if (QFileInfo(fajl_).isFile() && be.open(QIODevice::ReadOnly))
        legutobbiak_ = LegutobbiOlvas(be.read(legtobb).toStdString());
}

void TLegutobbiTar::ment() const {
    QDir().mkpath(QFileInfo(fajl_).absolutePath());
    QSaveFile ki(fajl_);
    if (!ki.open(QIODevice::WriteOnly)) return;
    ki.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    ki.write(QByteArray::fromStdString(LegutobbiSzoveg(legutobbiak_)));
    ki.commit();
}

QString TLegutobbiTar::mappa() const {
    const QString mappa = qszoveg(legutobbiak_.mappa);
    return !mappa.isEmpty() && QFileInfo(mappa).isDir() ? mappa : QDir::currentPath();
}

QStringList TLegutobbiTar::fajlok() const {
    QStringList fajlok;
    for (const std::string& fajl : legutobbiak_.fajlok)
        if (QFileInfo(qszoveg(fajl)).isFile()) fajlok << qszoveg(fajl);
    return fajlok;
}

void TLegutobbiTar::mappaba(const QString& mappa) {
    olvas();
    legutobbiak_.mappa = szoveg(mappa);
    ment();
}

void TLegutobbiTar::felvesz(const QString& fajl) {
    olvas();
    const QFileInfo teljes(fajl);
    LegutobbiFelvetel(legutobbiak_, szoveg(teljes.absoluteFilePath()));
    legutobbiak_.mappa = szoveg(teljes.absolutePath());
    ment();
}
