#pragma once

#include <functional>

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include "chart/foablak.h"
#include "commands/szemelyiadatok.h"
#include "windows/helysegmezo.h"
#include "windows/jegyzetmezo.h"
#include "windows/kesobbiablak.h"

/// Personal data: the one dialog where a chart is typed in.
class TForm2 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm2(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// Fills the fields for a new chart or for the one in hand. The list of places grows by the whole
    /// gazetteer at each filling; a longer list finds the same places.
    void kitoltes(bool ujKeplet);

    /// The fields as they stand; they have to be made.
    TSzemelyiAdatok mezok() const;

    /// What the button "Életesemények" opens.
    std::function<void()> eletesemenyek;

private slots:
    void Button_Rendben1Click();
    void Button_Megsem1Click();
    void Button_Eletesemenyek1Click();
    void ComboBoxHelyseg1Change();
    void RadioGroupIdovalaszto1Click(int index);

private:
    void epites() override;
    void mezokEpitese();
    QGroupBox* idoValaszto();
    QHBoxLayout* gombSor();
    void mutat(const TSzemelyiAdatok& mezok);
    void idoTipusMutatas(int index);
    void nyariIdoJeloles();
    void esemenySzamMutatas();

    Allapot& allapot_;
    QLineEdit* editNev1_ = nullptr;
    QSpinBox *spinEditEv1_ = nullptr, *spinEditHo1_ = nullptr, *spinEditNap1_ = nullptr;
    QSpinBox *spinEditOra1_ = nullptr, *spinEditPerc1_ = nullptr, *spinEditMperc1_ = nullptr;
    HelysegMezo* comboBoxHelyseg1_ = nullptr;
    QSpinBox *spinEditIdozona1_ = nullptr, *spinEditNyariidosz1_ = nullptr;
    QSpinBox *spinEditHosszFok1_ = nullptr, *spinEditHosszPerc1_ = nullptr;
    QSpinBox *spinEditSzelFok1_ = nullptr, *spinEditSzelPerc1_ = nullptr;
    QButtonGroup* idovalaszto_ = nullptr;
    QPushButton* eletesemenyekGomb_ = nullptr;
    JegyzetMezo* memo_Jegyzet1_ = nullptr;
};
