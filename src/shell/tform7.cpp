#include "shell/tform7.h"

TForm7::TForm7(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm7");
    setWindowTitle("Léptet");
}
