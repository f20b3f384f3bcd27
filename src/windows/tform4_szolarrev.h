#pragma once

#include <QSpinBox>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "windows/kesobbiablak.h"

/// No command shows it. Its two minute fields keep the value 1: the arcminute by which a derived chart is
/// cast east and north of its place.
class TForm4 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm4(Allapot& allapot, FoAblak& ablak, QWidget* fo);

private:
    void epites() override;
};
