#include "windows/betumappak.h"

#include <algorithm>

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QStandardPaths>

#include "tables/szotar.h"
#include "windows/qszoveg.h"
#include "windows/sajatfajlok.h"

std::vector<std::string> betuMappak() {
    QStringList mappak = sajatBetuMappak();
    mappak << QStandardPaths::standardLocations(QStandardPaths::FontsLocation) << "/usr/share/fonts"
           << "/usr/local/share/fonts";
    std::vector<std::string> nevek;
    for (const QString& mappa : mappak) nevek.push_back((mappa + "/").toStdString());
    return nevek;
}

namespace {

#ifdef Q_OS_WIN

/// The face that the program brings comes first, so that texts are as wide as everywhere.
const QStringList talpatlan{"Liberation Sans", "Arial"};

/// The faces and the look of the windows, which are laid out for these; the system's own are others with each
/// of its versions.
void rendszerBetuk() {
    constexpr int pont = 9;
    QApplication::setStyle("Fusion");
    QApplication::setFont(QFont("DejaVu Sans", pont));
}

#else

const QStringList talpatlan{"Arial", "Liberation Sans"};

/// The desktop brings the faces and the look.
void rendszerBetuk() {}

#endif

/// What stands in for a face that is on no system, or not on this one. The labels of the wheel are laid out
/// for faces of these widths.
const QStringList& helyettesek(std::string_view nev) {
    static const QStringList talpas{"Liberation Serif"};
    static const QStringList nincs;
    return nev == szovegFont ? talpatlan : nev == mozgasFont ? talpas : nincs;
}

}  // namespace

/// The list of all families is asked once: a question for one of them looks through the system's aliases.
QString betuCsalad(std::string_view nev) {
    static const QStringList csaladok = QFontDatabase::families();
    QString sajat = qszoveg(nev);
    const QStringList& sor = helyettesek(nev);
    if (sor.isEmpty() || csaladok.contains(sajat)) return sajat;
    const auto megvan =
        std::find_if(sor.begin(), sor.end(), [](const QString& h) { return csaladok.contains(h); });
    return megvan != sor.end() ? *megvan : sajat;
}

void sajatBetukBetoltese() {
    for (const QString& mappa : sajatBetuMappak())
        for (const QFileInfo& fajl : QDir(mappa).entryInfoList({"*.ttf"}, QDir::Files))
            QFontDatabase::addApplicationFont(fajl.absoluteFilePath());
    // For fonts that are made by the name: where no stand-in is there the system's default takes its place.
    for (const std::string_view nev : {szovegFont, mozgasFont})
        QFont::insertSubstitutions(qszoveg(nev), helyettesek(nev));
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
