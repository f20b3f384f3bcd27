#pragma once

#include <string>

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "tables/pillanat.h"
#include "windows/jelszoveg.h"
#include "windows/kesobbiablak.h"
#include "windows/listamuveletek.h"

/// Date dialog of the tertiary directions and of the solar ingress; `TercierAblak` of the state tells which.
class TForm3 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm3(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// Sets the dialog up for the technique in force, with the last confirmed date, searches once, shows it
    /// and waits.
    void megmutat();

    /// The text of the last search.
    const std::string& eredmeny() const { return eredmeny_; }

private slots:
    void Button_Rendben1Click();
    void Button_Megsem1Click();
    void DatumChange();
    void SpinEditOrbis1Change();

private:
    void epites() override;
    void datumSor();
    void keres();
    void elrendezes(int szovegMagassag);
    TListaSzoveg lista() const;
    TPillanat datum() const;
    int orbis() const;
    void datumMutatas(const TPillanat& datum);

    Allapot& allapot_;
    QWidget* fo_;
    QSpinBox* ev_ = nullptr;
    QSpinBox* ho_ = nullptr;
    QSpinBox* nap_ = nullptr;
    QLabel* orbisFelirat_ = nullptr;
    QSpinBox* orbis_ = nullptr;
    QLabel* direkcio1_ = nullptr;
    TJelSzoveg* direkcio2_ = nullptr;
    QPushButton* rendben_ = nullptr;
    QPushButton* megsem_ = nullptr;
    std::string eredmeny_;
};
