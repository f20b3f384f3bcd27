#include "predictive/tform4.h"

TForm4::TForm4(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm4");
    setWindowTitle("Szolárrev");
}
