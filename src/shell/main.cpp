#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "shell/ablakok.h"
#include "shell/betumappak.h"

int main(int argc, char** argv) {
    QApplication program(argc, argv);
    QApplication::setApplicationName("Korvend");
    QTranslator gombok;
    if (gombok.load("qtbase_hu", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&gombok);
    sajatBetukBetoltese();

    TAblakok ablakok;
    ablakok.form1.show();
    return QApplication::exec();
}
