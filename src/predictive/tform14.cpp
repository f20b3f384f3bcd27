#include "predictive/tform14.h"

TForm14::TForm14(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm14");
    setWindowTitle("Nap-áthaladások");
}
