#pragma once

#include <QDialog>

#include "chart/allapot.h"
#include "chart/foablak.h"

/// Stepper: sixteen buttons beside the main window, made from the table of steps.
class TForm7 : public QDialog {
    Q_OBJECT

public:
    TForm7(Allapot& allapot, FoAblak& ablak, QWidget* fo);
};
