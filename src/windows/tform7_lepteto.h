#pragma once

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "windows/kesobbiablak.h"

/// Stepper: sixteen buttons beside the main window, made from the table of steps.
class TForm7 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm7(Allapot& allapot, FoAblak& ablak, QWidget* fo);

private:
    void epites() override;

    Allapot& allapot_;
};
