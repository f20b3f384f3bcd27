#pragma once

#include <vector>

#include <QPushButton>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "engine/fenyszogek.h"
#include "windows/kesobbiablak.h"

/// Orb settings: a button for each cell of `OrbisTabla` that can be edited. A click adds the step.
class TForm6 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm6(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// Builds the grid, shows the dialog and waits for its end.
    void megmutat();

private slots:
    void Button_plusz1Click();
    void Button_minusz2Click();
    void Button_vissza3Click();
    void Button_vissza4Click();
    void Button_Rendben1Click();
    void Button_Megsem1Click();

private:
    void epites() override;
    void racsEpites();
    void racsLebontas();
    void cimkeEpites(const QString& szoveg, const QString& betutipus, int x, int y);
    void cellakMutatasa(const TOrbisTabla& tabla);
    void BOrbisClick(QPushButton* gomb);
    void done(int eredmeny) override;

    struct TCella {
        int sor, oszlop;
        QPushButton* gomb;
    };

    Allapot& allapot_;
    QWidget* fo_;
    QPushButton* plusz_ = nullptr;
    QPushButton* minusz_ = nullptr;
    std::vector<TCella> cellak_;
    std::vector<QWidget*> cimkek_;
    double lepes_ = 0.5;  ///< degrees a click; outlives the closing of the dialog
};
