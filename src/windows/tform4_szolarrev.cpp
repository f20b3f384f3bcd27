#include "windows/tform4_szolarrev.h"

#include "windows/vezerlok.h"

TForm4::TForm4(Allapot&, FoAblak&, QWidget* fo) : TKesobbiAblak(fo) {
    setObjectName("TForm4");
    setWindowTitle("Szolárrev");
}

void TForm4::epites() {
    for (const char* nev : {"SpinEditHosszPerc1", "SpinEditSzelPerc1"}) {
        auto* mezo = ujSzamMezo(this, nev, 0, 99);
        mezo->setValue(1);
    }
}
