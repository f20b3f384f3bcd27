#include "rectify/tform13.h"

TForm13::TForm13(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm13");
    setWindowTitle("Pontosítás");
}
