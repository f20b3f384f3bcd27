#include "windows/modulok.h"

#include <QPluginLoader>

#include "windows/sajatfajlok.h"

QObject* modulBetoltes(const char* nev) {
    for (const QString& mappa : sajatModulMappak()) {
        QPluginLoader betolto(mappa + "/" + nev);
        if (QObject* modul = betolto.instance()) return modul;
    }
    return nullptr;
}
