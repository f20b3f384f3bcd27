#include "shell/tform5.h"

TForm5::TForm5(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : QDialog(fo), allapot_(allapot), ablak_(ablak) {
    setObjectName("TForm5");
    setWindowTitle("Hanglejátszás");
}
