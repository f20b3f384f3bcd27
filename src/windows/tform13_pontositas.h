#pragma once

#include <array>
#include <functional>

#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSpinBox>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "windows/listamuveletek.h"

/// Rectification by directions: events, hits and candidate times of birth side by side. It stays open beside
/// the main window and follows the chart while `PontositasFut` is set.
class TForm13 : public QDialog {
    Q_OBJECT

public:
    TForm13(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// Takes over from the list of primary directions, runs and shows the window.
    /// @param leptetoMagassag  height of the stepper, under which the window stands, pixels
    void megmutat(int leptetoMagassag);
    /// Puts the kept reach into its field and runs the lists.
    void futtat();

    /// What "Életesemények" opens.
    std::function<void()> eletesemenyek;

private slots:
    void SpinEdit1Change();
    void Button_Rendben1Click();
    void Button_Megsem1Click();

private:
    void hatotavSor();
    void memokEpitese();
    void gombok();
    void lathatatlanVezerlok();
    void betuk();
    void elrendezes();
    int memo1Szelesseg() const;
    void listaMuvelet(QPlainTextEdit& memo, const char* cim,
                      std::string (*olvashato)(int szam, std::string_view sor));
    void resizeEvent(QResizeEvent* esemeny) override;
    void done(int eredmeny) override;

    Allapot& allapot_;
    QWidget* fo_;
    QSpinBox* spinEdit1_;
    QPlainTextEdit* memo1_;
    QPlainTextEdit* memo2_;
    QPlainTextEdit* memo3_;
    std::array<QLabel*, 4> fejek_{};  ///< over the hits
};
