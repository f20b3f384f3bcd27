#include "shell/betumappak.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QStandardPaths>

namespace {

QStringList sajatMappak() {
    const QString alap = QCoreApplication::applicationDirPath();
    return {alap + "/fonts", alap + "/../share/korvend/fonts"};
}

}  // namespace

std::vector<std::string> betuMappak() {
    QStringList mappak = sajatMappak();
    mappak << QStandardPaths::standardLocations(QStandardPaths::FontsLocation) << "/usr/share/fonts"
           << "/usr/local/share/fonts";
    std::vector<std::string> nevek;
    for (const QString& mappa : mappak) nevek.push_back((mappa + "/").toStdString());
    return nevek;
}

void sajatBetukBetoltese() {
    for (const QString& mappa : sajatMappak())
        for (const QFileInfo& fajl : QDir(mappa).entryInfoList({"*.ttf"}, QDir::Files))
            QFontDatabase::addApplicationFont(fajl.absoluteFilePath());
}
