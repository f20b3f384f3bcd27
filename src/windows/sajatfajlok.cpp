#include "windows/sajatfajlok.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

/// A path beside the program, then the one where it is installed.
QStringList helyek(const QString& mellette, const QString& telepitve) {
    const QString alap = QCoreApplication::applicationDirPath();
    return {alap + "/" + mellette, alap + "/../share/" + telepitve};
}

}  // namespace

QStringList sajatBetuMappak() {
    return helyek("fonts", "korvend/fonts");
}

QStringList sajatModulMappak() {
    const QString alap = QCoreApplication::applicationDirPath();
    return {alap, alap + "/" KORVEND_MODULOK};
}

QString kezikonyvFajl() {
    for (const QString& mappa : helyek("doc", "doc/korvend"))
        if (QString fajl = mappa + "/kezikonyv.html"; QFileInfo::exists(fajl)) return fajl;
    return {};
}
