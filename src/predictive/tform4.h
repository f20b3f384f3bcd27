#pragma once

#include <QDialog>

#include "shell/allapot.h"
#include "shell/foablak.h"

/// Never shown; its two minute fields keep the value that returns add to the coordinates.
class TForm4 : public QDialog {
    Q_OBJECT

public:
    TForm4(Allapot& allapot, FoAblak& ablak, QWidget* fo);

private:
    Allapot& allapot_;
    FoAblak& ablak_;
};
