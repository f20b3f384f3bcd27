#include "windows/kijelzo.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <QMessageLogContext>
#include <QtGlobal>

namespace {

QtMessageHandler regi = nullptr;
bool nincsWayland = false;

void uzenet(QtMsgType fajta, const QMessageLogContext& hol, const QString& szoveg) {
    if (fajta == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(kijelzoHiba(nincsWayland)));
        std::_Exit(1);
    }
    const std::string_view targy = hol.category != nullptr ? hol.category : "";
    if (targy.starts_with("qt.qpa"))
        nincsWayland |= szoveg.startsWith("Could not find the Qt platform plugin \"wayland");
    else
        regi(fajta, hol, szoveg);
}

}  // namespace

QString kijelzoHiba(bool waylandHianyzik) {
    return waylandHianyzik ? "A Korvend nem tud ablakot nyitni: a Wayland-munkamenethez a qt6-wayland csomag "
                             "hiányzik."
                           : "A Korvend nem tud ablakot nyitni: nem érhető el kijelző.";
}

TKijelzoOr::TKijelzoOr() {
    regi = qInstallMessageHandler(uzenet);
}

TKijelzoOr::~TKijelzoOr() {
    qInstallMessageHandler(regi);
}
