#include <optional>

#include <QApplication>

#include "windows/kijelzo.h"
#include "windows/program.h"

int main(int argc, char** argv) {
    std::optional<TKijelzoOr> kijelzo(std::in_place);
    QApplication program(argc, argv);
    kijelzo.reset();
    return ProgramFutas(QApplication::arguments());
}
