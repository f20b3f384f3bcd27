#include "rectify/tform8.h"

TForm8::TForm8(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm8");
    setWindowTitle("Mundánházas pontosítás");
}
