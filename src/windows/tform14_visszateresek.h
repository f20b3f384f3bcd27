#pragma once

#include <array>
#include <string>
#include <vector>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "predictive/visszateresek.h"
#include "windows/helysegmezo.h"
#include "windows/kesobbiablak.h"

/// List of returns or Sun transits. Only the list's row and the place are read; the rest is display, to be
/// read and copied but not changed.
class TForm14 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm14(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// Fills the dialog for a kind: captions, start date, the chart's place and coordinates; the list is
    /// empty.
    void kitoltes(const TVisszateresFajta& fajta, const TPillanat& kezdo);
    /// Shows the rows and waits for the user's choice.
    void megmutat(const std::vector<std::string>& sorok);

    int sor() const { return sor_; }  ///< from 1
    std::string helyseg() const;

private slots:
    void Button_Rendben1Click();
    void Button_Megsem1Click();
    void ListBox1Click();
    void ComboBoxHelyseg1Change();

private:
    void epites() override;
    void listaEpitese();
    void maiNaphoz();
    QGridLayout* mezok();
    void koordinataMezok(QGridLayout& racs);
    void koordinatak(std::int32_t hosszusag, std::int32_t szelesseg);

    Allapot& allapot_;
    FoAblak& ablak_;
    QWidget* fo_;
    QLabel* label1_ = nullptr;
    QLabel* datumBekero1_ = nullptr;
    std::array<QSpinBox*, 3> datum_{};
    std::array<QLineEdit*, 3> edit_{};
    std::array<QSpinBox*, 4> koordinata_{};
    HelysegMezo* helyseg_ = nullptr;
    QListWidget* listBox1_ = nullptr;
    int sor_ = 1;
};
