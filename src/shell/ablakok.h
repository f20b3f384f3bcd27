#pragma once

#include "display/tform6.h"
#include "display/tform9.h"
#include "events/tform10.h"
#include "predictive/tform12.h"
#include "predictive/tform14.h"
#include "predictive/tform3.h"
#include "predictive/tform4.h"
#include "rectify/tform13.h"
#include "rectify/tform8.h"
#include "shell/tform1.h"
#include "shell/tform11.h"
#include "shell/tform2.h"
#include "shell/tform5.h"
#include "shell/tform7.h"

/// All windows, created in the order of their numbers with the main window first. They live as long as the
/// program runs and are only shown and hidden.
struct TAblakok {
    TAblakok();

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
