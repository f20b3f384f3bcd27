#include "shell/tform11.h"

TForm11::TForm11(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm11");
    setWindowTitle("Kérem a jelszót!");
}
