#pragma once

#include "windows/sugok.h"
#include "windows/tform10_eletesemenyek.h"
#include "windows/tform11_jelszo.h"
#include "windows/tform12_primer.h"
#include "windows/tform13_pontositas.h"
#include "windows/tform14_visszateresek.h"
#include "windows/tform1_foablak.h"
#include "windows/tform2_szemelyiadatok.h"
#include "windows/tform3_tercier.h"
#include "windows/tform4_szolarrev.h"
#include "windows/tform5_hanglejatszo.h"
#include "windows/tform6_orbisok.h"
#include "windows/tform7_lepteto.h"
#include "windows/tform8_mundanhazak.h"
#include "windows/tform9_szimbolumok.h"

/// All windows, created in the order of their numbers with the main window first. They live as long as the
/// program runs and are only shown and hidden.
struct TAblakok {
    TAblakok();

    TSugok sugok;  ///< of all that follow

    TForm1 form1;
    TForm2 form2{form1.allapot(), form1, &form1};
    TForm3 form3{form1.allapot(), form1, &form1};
    TForm4 form4{form1.allapot(), form1, &form1};
    TForm5 form5{form1.allapot(), form1, &form1};
    TForm6 form6{form1.allapot(), form1, &form1};
    TForm7 form7{form1.allapot(), form1, &form1};
    TForm8 form8{form1.allapot(), form1, &form1};
    TForm9 form9{form1.allapot(), form1, &form1};
    TForm10 form10{form1.allapot(), form1, &form1};
    TForm11 form11{form1.allapot(), form1, &form1};
    TForm12 form12{form1.allapot(), form1, &form1};
    TForm13 form13{form1.allapot(), form1, &form1};
    TForm14 form14{form1.allapot(), form1, &form1};
};
