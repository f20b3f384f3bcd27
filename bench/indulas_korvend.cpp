// Starts the program as it is, and ends when its picture has been painted.

#include <QApplication>

#include "elsofestes.h"
#include "windows/ablakok.h"
#include "windows/betumappak.h"

int main(int argc, char** argv) {
    const QApplication program(argc, argv);
    sajatBetukBetoltese();
    TAblakok ablakok;
    const TElsoFestes vege(*ablakok.form1.centralWidget());
    ablakok.form1.show();
    return QApplication::exec();
}
