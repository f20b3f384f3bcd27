#include "predictive/tform3.h"

TForm3::TForm3(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm3");
    setWindowTitle("Tercier direkció");
}
