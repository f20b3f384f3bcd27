#include "windows/tform4_szolarrev.h"

TForm4::TForm4(Allapot&, FoAblak&, QWidget* fo) : QDialog(fo) {
    setObjectName("TForm4");
    setWindowTitle("Szolárrev");
    for (const char* nev : {"SpinEditHosszPerc1", "SpinEditSzelPerc1"}) {
        auto* mezo = new QSpinBox(this);
        mezo->setObjectName(nev);
        mezo->setValue(1);
    }
}
