// Starts the program as it is, and ends when its picture has been painted.

#include <QApplication>
#include <QTimer>

#include "shell/ablakok.h"
#include "shell/betumappak.h"

int main(int argc, char** argv) {
    const QApplication program(argc, argv);
    sajatBetukBetoltese();
    TAblakok ablakok;
    ablakok.form1.show();
    QTimer::singleShot(0, &program, &QApplication::quit);
    return QApplication::exec();
}
