#pragma once

#include <QDialog>
#include <QSpinBox>

#include "chart/allapot.h"
#include "chart/foablak.h"

/// No command shows it. Its two minute fields keep the value 1: the arcminute by which a derived chart is
/// cast east and north of its place.
class TForm4 : public QDialog {
    Q_OBJECT

public:
    TForm4(Allapot& allapot, FoAblak& ablak, QWidget* fo);
};
