#include "windows/program.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "windows/ablakok.h"
#include "windows/betumappak.h"
#include "windows/parbeszed.h"
#include "windows/tform11_jelszo.h"
#include "windows/tform1_foablak.h"

int ProgramFutas(const QStringList& argumentumok) {
    QApplication::setApplicationName("Korvend");
    QApplication::setDesktopFileName("korvend");
    QTranslator gombok;
    if (gombok.load("qtbase_hu", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&gombok);
    sajatBetukBetoltese();

    TAblakok ablakok;
    TParbeszed& parbeszed = ablakok.form1.parbeszed();
    if (argumentumok.contains("--uj-jelszo")) return ablakok.form11.jelszoCsere(parbeszed) ? 0 : 1;
    if (ablakok.form11.elsoFutas()) ablakok.form11.ujJelszoKeres(parbeszed);
    ablakok.form1.show();
    return QApplication::exec();
}
