// The same for a window with a menu bar and one label: what the toolkit itself costs, menus and fonts
// included.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

#include "elsofestes.h"

int main(int argc, char** argv) {
    const QApplication program(argc, argv);
    QMainWindow ablak;
    ablak.resize(995, 717);
    ablak.menuBar()->addMenu("&Horoszkóp")->addAction("&Kilépés");
    auto* felirat = new QLabel("Korvend", &ablak);
    ablak.setCentralWidget(felirat);
    const TElsoFestes vege(*felirat);
    ablak.show();
    return QApplication::exec();
}
