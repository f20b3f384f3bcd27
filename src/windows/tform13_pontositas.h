#pragma once

#include <functional>

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QSpacerItem>
#include <QSpinBox>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "windows/kesobbiablak.h"
#include "windows/listamuveletek.h"

/// Rectification by directions: events, hits and candidate times of birth side by side. It stays open beside
/// the main window and follows the chart while `PontositasFut` is set.
class TForm13 : public TKesobbiAblak {
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
    void epites() override;
    QHBoxLayout* hatotavSor();
    void memokEpitese();
    void fejekEpitese();
    QHBoxLayout* gombok();
    void betuk();
    void elrendezes();
    int memo1Szelesseg() const;
    void listaMuvelet(QPlainTextEdit& memo, const char* cim,
                      std::string (*olvashato)(int szam, std::string_view sor));
    bool event(QEvent* esemeny) override;
    void done(int eredmeny) override;

    Allapot& allapot_;
    QWidget* fo_;
    QSpinBox* spinEdit1_ = nullptr;
    QPlainTextEdit* memo1_ = nullptr;
    QPlainTextEdit* memo2_ = nullptr;
    QPlainTextEdit* memo3_ = nullptr;
    QWidget* fejek_ = nullptr;            ///< over the hits
    QSpacerItem* listakHelye_ = nullptr;  ///< of the heads and the lists, as far as the window shows them
};
