#pragma once

#include <QDialog>

#include "shell/allapot.h"
#include "shell/foablak.h"

/// Rectification by directions.
class TForm13 : public QDialog {
    Q_OBJECT

public:
    TForm13(Allapot& allapot, FoAblak& ablak, QWidget* fo);

private:
    Allapot& allapot_;
    FoAblak& ablak_;
};
