#pragma once

#include <QDialog>

#include "shell/allapot.h"
#include "shell/foablak.h"

/// Stepper.
class TForm7 : public QDialog {
    Q_OBJECT

public:
    TForm7(Allapot& allapot, FoAblak& ablak, QWidget* fo);

private:
    Allapot& allapot_;
    FoAblak& ablak_;
};
