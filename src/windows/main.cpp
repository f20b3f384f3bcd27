#include <QApplication>

#include "windows/program.h"

int main(int argc, char** argv) {
    QApplication program(argc, argv);
    return ProgramFutas(QApplication::arguments());
}
