#pragma once

#include <QDialog>

#include "shell/allapot.h"
#include "shell/foablak.h"

/// Password prompt.
class TForm11 : public QDialog {
    Q_OBJECT

public:
    TForm11(Allapot& allapot, FoAblak& ablak, QWidget* fo);

private:
    Allapot& allapot_;
    FoAblak& ablak_;
};
