#include <iostream>
#include <optional>

#include <QApplication>

#include "commands/parancssor.h"
#include "windows/kijelzo.h"
#include "windows/program.h"

int main(int argc, char** argv) {
    // Before the toolkit starts: help and a mistyped option need no display.
    const TParancssor parancs = ParancssorOlvas({argv + (argc > 0), argv + argc});
    if (const auto kod = ParancssorValasz(parancs, std::cout, std::cerr)) return *kod;
    std::optional<TKijelzoOr> kijelzo(std::in_place);
    QApplication program(argc, argv);
    kijelzo.reset();
    return ProgramFutas(QApplication::arguments());
}
