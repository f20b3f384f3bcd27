#pragma once

#include <QComboBox>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "windows/kesobbiablak.h"

/// Choice of the symbol font among the font files whose names begin with "Astro".
class TForm9 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm9(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// Lists the fonts, shows the dialog at the right end of the main window and waits for its end.
    void megmutat();

private slots:
    void Button_Rendben1Click();
    void Button_Megsem1Click();

private:
    void epites() override;
    Allapot& allapot_;
    QWidget* fo_;
    QComboBox* comboBox1_ = nullptr;
};
