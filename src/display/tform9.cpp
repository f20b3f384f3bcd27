#include "display/tform9.h"

TForm9::TForm9(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm9");
    setWindowTitle("Szimbólumok");
}
