#pragma once

#include <array>
#include <memory>
#include <vector>

#include <QLabel>
#include <QPushButton>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "rectify/analogiak.h"
#include "rectify/mundankereses.h"
#include "windows/kesobbiablak.h"
#include "windows/listamuveletek.h"

/// Rectification by mundane houses. It stays open beside the main window and follows the chart with every
/// tick.
class TForm8 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm8(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// Builds the houses' controls, evaluates the chart and shows the window at the main window's lower
    /// right.
    void megmutat();
    /// Evaluates the chart's moment again and writes the labels; does nothing while the window is closed.
    void frissit();

private slots:
    void Button1KeresesmClick() { kereses(-1); }
    void Button2KeresespClick() { kereses(1); }
    void Button3VisszaClick();
    void Button4BezarClick();

private:
    void epites() override;
    void allandoVezerlok();
    void hazGombok();
    void cimkeRacs();
    void BMundanClick(const QString& felirat);
    void kereses(int irany);
    TListaSzoveg lista(bool mindenHaz) const;
    void mutat(const TMundanErtekeles& ertekeles);
    void verdiktMutatasa(char AnalogiaAllapot);
    void done(int eredmeny) override;

    Allapot& allapot_;
    FoAblak& ablak_;
    QWidget* fo_;
    QLabel* label1Haz_ = nullptr;
    QLabel* label2Rendben_ = nullptr;
    QLabel* label3szoveg1_ = nullptr;
    QLabel* label4szoveg2_ = nullptr;

    // Made at each opening, gone when the window closes.
    std::array<std::unique_ptr<QPushButton>, 12> hazGombok_;
    std::array<std::array<std::unique_ptr<QLabel>, 3>, analogiaSorok> cimkek_;
};
