#include "predictive/tform12.h"

TForm12::TForm12(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm12");
    setWindowTitle("Primer direkció");
}
