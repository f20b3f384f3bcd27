#include "display/tform6.h"

TForm6::TForm6(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm6");
    setWindowTitle("Orbis beállítása");
}
