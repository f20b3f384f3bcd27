#pragma once

#include <QDialog>

#include "shell/allapot.h"
#include "shell/foablak.h"

/// Date dialog of the tertiary directions and the solar ingress.
class TForm3 : public QDialog {
    Q_OBJECT

public:
    TForm3(Allapot& allapot, FoAblak& ablak, QWidget* fo);

private:
    Allapot& allapot_;
    FoAblak& ablak_;
};
