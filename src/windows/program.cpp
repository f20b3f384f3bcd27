#include "windows/program.h"

#include <iostream>

#include <QApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>

#include "commands/parancssor.h"
#include "windows/ablakok.h"
#include "windows/betumappak.h"
#include "windows/kepernyo.h"
#include "windows/legutobbitar.h"
#include "windows/parbeszed.h"
#include "windows/programikon.h"
#include "windows/qszoveg.h"
#include "windows/tform11_jelszo.h"
#include "windows/tform1_foablak.h"

namespace {

TParancssor parancssor(const QStringList& argumentumok) {
    std::vector<std::string> sorok;
    for (const QString& a : argumentumok.mid(1)) sorok.push_back(szoveg(a));
    TParancssor parancs = ParancssorOlvas(sorok);
    if (!parancs.fajl.empty() && !QFileInfo(qszoveg(parancs.fajl)).isFile())
        return {TParancsFajta::hibas, {}, "Nincs ilyen képletfájl: " + parancs.fajl};
    return parancs;
}

}  // namespace

int ProgramFutas(const QStringList& argumentumok) {
    const TParancssor parancs = parancssor(argumentumok);
    if (const auto kod = ParancssorValasz(parancs, std::cout, std::cerr)) return *kod;
    QApplication::setApplicationName("Korvend");
    QApplication::setDesktopFileName("korvend");
    QTranslator gombok;
    if (gombok.load("qtbase_hu", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&gombok);
    sajatBetukBetoltese();

    TLegutobbiTar legutobbi(TLegutobbiTar::alapFajl());
    TAblakok ablakok;
    ablakok.form1.legutobbiBeallitasa(legutobbi);
    TParbeszed& parbeszed = ablakok.form1.parbeszed();
    if (parancs.fajta == TParancsFajta::ujJelszo) return ablakok.form11.jelszoCsere(parbeszed) ? 0 : 1;
    if (ablakok.form11.elsoFutas()) ablakok.form11.ujJelszoKeres(parbeszed);
    QApplication::setWindowIcon(programIkon());
    kepernyohozIgazit(ablakok.form1);
    ablakok.form1.show();
    if (!parancs.fajl.empty())
        QTimer::singleShot(0, &ablakok.form1,
                           [&] { ablakok.form1.KivulrolMegnyitas(qszoveg(parancs.fajl)); });
    return QApplication::exec();
}
