#pragma once

#include <array>
#include <functional>

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "windows/kesobbiablak.h"
#include "windows/listamuveletek.h"

/// List of primary directions. It stays open beside the main window and follows the chart while `PrimerFut`
/// is set.
class TForm12 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm12(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// Prepares the fields for a start year and shows the window at the main window's lower right.
    void megmutat(int kezdoEv);
    /// Runs the list with the fields as they stand.
    void futtat();

    /// What "Pontosítás" opens.
    std::function<void()> pontositas;

private slots:
    void Button_Rendben1Click();
    void Button_Megsem1Click();

private:
    void epites() override;
    QPushButton* gomb(const char* nev, const char* felirat);
    QHBoxLayout* felsoSor();
    QWidget* fejSav();
    QHBoxLayout* alsoSor();
    void betukEsFejek();
    TListaSzoveg lista() const;

    Allapot& allapot_;
    QWidget* fo_;
    QSpinBox* ev_ = nullptr;
    QSpinBox* ho_ = nullptr;
    QSpinBox* nap_ = nullptr;
    QLabel* label8_ = nullptr;
    std::array<QLabel*, 4> fejek_{};
    QPlainTextEdit* memo1_ = nullptr;
    QLabel* vege_ = nullptr;  ///< tells that the list may have been cut
};
