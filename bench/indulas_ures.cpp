// The same for an empty main window: what the toolkit itself costs.

#include <QApplication>
#include <QMainWindow>

#include "elsofestes.h"

int main(int argc, char** argv) {
    const QApplication program(argc, argv);
    QMainWindow ablak;
    ablak.resize(995, 717);
    const TElsoFestes vege(ablak);
    ablak.show();
    return QApplication::exec();
}
