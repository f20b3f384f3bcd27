#include <QApplication>
#include <QInputDialog>
#include <QLibraryInfo>
#include <QTranslator>

#include "windows/ablakok.h"
#include "windows/betumappak.h"
#include "windows/parbeszed.h"
#include "windows/tform11_jelszo.h"
#include "windows/tform1_foablak.h"

int main(int argc, char** argv) {
    QApplication program(argc, argv);
    QApplication::setApplicationName("Korvend");
    QApplication::setDesktopFileName("korvend");
    QTranslator gombok;
    if (gombok.load("qtbase_hu", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&gombok);
    sajatBetukBetoltese();

    TAblakok ablakok;
    if (ablakok.form11.elsoFutas()) {
        bool ok = false;
        const QString jelszo = QInputDialog::getText(
            nullptr, "Korvend",
            "Jelszó megadása:\nKis betűket használjon.\nHa nem akar jelszót használni, hagyja üresen.",
            QLineEdit::Normal, {}, &ok);
        if (ok && !ablakok.form11.ujJelszo(jelszo))
            ablakok.form1.parbeszed().uzenet(nullptr, "A jelszó nem menthető.");
    }
    ablakok.form1.show();
    return QApplication::exec();
}
