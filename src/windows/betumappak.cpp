#include "windows/betumappak.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QStandardPaths>

#include "tables/szotar.h"
#include "windows/qszoveg.h"
#include "windows/sajatfajlok.h"

namespace {

#ifdef Q_OS_WIN

/// The face that the program brings comes first, so that texts are as wide as everywhere.
const QStringList szovegHelyettesek{"Liberation Sans", "Arial"};

/// The faces and the look of the windows, which are laid out for these; the system's own are others with each
/// of its versions.
void rendszerBetuk() {
    constexpr int pont = 9;
    QFont::insertSubstitutions(qszoveg(mozgasFont), {"Liberation Serif"});
    QApplication::setStyle("Fusion");
    QApplication::setFont(QFont("DejaVu Sans", pont));
}

#else

const QStringList szovegHelyettesek{"Arial", "Liberation Sans"};

/// The desktop brings the faces and the look.
void rendszerBetuk() {}

#endif

}  // namespace

std::vector<std::string> betuMappak() {
    QStringList mappak = sajatBetuMappak();
    mappak << QStandardPaths::standardLocations(QStandardPaths::FontsLocation) << "/usr/share/fonts"
           << "/usr/local/share/fonts";
    std::vector<std::string> nevek;
    for (const QString& mappa : mappak) nevek.push_back((mappa + "/").toStdString());
    return nevek;
}

void sajatBetukBetoltese() {
    for (const QString& mappa : sajatBetuMappak())
        for (const QFileInfo& fajl : QDir(mappa).entryInfoList({"*.ttf"}, QDir::Files))
            QFontDatabase::addApplicationFont(fajl.absoluteFilePath());
    // The text face's name is on no system. The labels of the wheel are laid out for a face of these widths;
    // where none is there the system's default takes its place.
    QFont::insertSubstitutions(qszoveg(szovegFont), szovegHelyettesek);
    rendszerBetuk();
}

QStringList szimbolumFontok() {
    QStringList nevek;
    for (const std::string& mappa : betuMappak())
        for (const QFileInfo& fajl :
             QDir(QString::fromStdString(mappa)).entryInfoList({"Astro*.ttf"}, QDir::Files))
            nevek << fajl.completeBaseName();
    nevek.removeDuplicates();
    return nevek;
}
