#include "events/tform10.h"

TForm10::TForm10(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm10");
    setWindowTitle("Életesemények");
}
