#include "windows/jelszotar.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QStandardPaths>

#include "windows/modulok.h"

namespace {

constexpr int soHossz = 16;        // bytes
constexpr int kulcsHossz = 32;     // bytes
constexpr int ismetlesek = 20000;  // some hundredths of a second a try

const QByteArray nincsSor = "nincs";

QByteArray kulcsSzamitas(const QString& jelszo, const QByteArray& so) {
    TKulcsModul* modul = kulcsModul();
    return modul == nullptr ? QByteArray() : modul->kulcs(jelszo.toUtf8(), so, ismetlesek, kulcsHossz);
}

QByteArray ujSo() {
    QByteArray so(soHossz, Qt::Uninitialized);
    for (char& c : so) c = static_cast<char>(QRandomGenerator::system()->bounded(256));
    return so;
}

}  // namespace

TJelszoTar::TJelszoTar(QString fajl) : fajl_(std::move(fajl)) {
    olvas();
}

QString TJelszoTar::alapFajl() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/jelszo";
}

void TJelszoTar::olvas() {
    QFile be(fajl_);
    if (!be.exists()) return;
    allas_ = Allas::olvashatatlan;
    if (!be.open(QIODevice::ReadOnly)) return;
    const QList<QByteArray> reszek = be.read(4096).trimmed().split(' ');
    if (reszek.size() == 1 && reszek[0] == nincsSor) {
        allas_ = Allas::nincsJelszo;
    } else if (reszek.size() == 2) {
        so_ = QByteArray::fromHex(reszek[0]);
        kulcs_ = QByteArray::fromHex(reszek[1]);
        if (so_.size() == soHossz && kulcs_.size() == kulcsHossz) allas_ = Allas::vanJelszo;
    }
}

bool TJelszoTar::ment(const QString& jelszo) {
    so_ = ujSo();
    kulcs_ = jelszo.isEmpty() ? QByteArray() : kulcsSzamitas(jelszo, so_);
    if (!jelszo.isEmpty() && kulcs_.isEmpty()) return false;
    QDir().mkpath(QFileInfo(fajl_).absolutePath());
    QSaveFile ki(fajl_);
    if (!ki.open(QIODevice::WriteOnly)) return false;
    ki.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    ki.write(jelszo.isEmpty() ? nincsSor : so_.toHex() + ' ' + kulcs_.toHex());
    ki.write("\n");
    if (!ki.commit()) return false;
    allas_ = jelszo.isEmpty() ? Allas::nincsJelszo : Allas::vanJelszo;
    return true;
}

bool TJelszoTar::egyezik(const QString& jelszo) const {
    TKulcsModul* modul = allas_ == Allas::vanJelszo ? kulcsModul() : nullptr;
    return modul != nullptr && modul->azonos(kulcsSzamitas(jelszo, so_), kulcs_);
}
