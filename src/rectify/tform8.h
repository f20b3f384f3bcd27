#pragma once

#include <QDialog>

#include "shell/allapot.h"
#include "shell/foablak.h"

/// Rectification by mundane houses.
class TForm8 : public QDialog {
    Q_OBJECT

public:
    TForm8(Allapot& allapot, FoAblak& ablak, QWidget* fo);

private:
    Allapot& allapot_;
    FoAblak& ablak_;
};
