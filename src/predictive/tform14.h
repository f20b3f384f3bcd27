#pragma once

#include <QDialog>

#include "shell/allapot.h"
#include "shell/foablak.h"

/// List of returns and Sun transits.
class TForm14 : public QDialog {
    Q_OBJECT

public:
    TForm14(Allapot& allapot, FoAblak& ablak, QWidget* fo);

private:
    Allapot& allapot_;
    FoAblak& ablak_;
};
