#pragma once

#include <array>
#include <functional>
#include <span>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "events/eletesemenyek.h"
#include "tables/pillanat.h"
#include "windows/helysegmezo.h"
#include "windows/kesobbiablak.h"
#include "windows/parbeszed.h"

/// Life events: the list of up to twenty, and the fields of the one that is typed or selected.
class TForm10 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm10(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    void parbeszedBeallitasa(TParbeszed& parbeszed) { parbeszed_ = &parbeszed; }

    /// Fills the list from the store, keeps a second set for "Mégsem", shows the dialog and waits for its
    /// end. Nothing is left of a former use.
    /// @param szuletes   gives the birth data as they stand in the personal-data dialog
    /// @param kezdoHely  moment and place that the fields start with where no event is listed
    void megmutat(std::function<TSzuletes()> szuletes, const TEletesemeny& kezdoHely);

private slots:
    void Button_Rendben1Click();
    void Button_Torol1Click();
    void Button_Rendben2Click();
    void Button_Megsem2Click();
    void ComboBoxHelyseg1Change();
    void SpinEditEv1Change();

private:
    void epites() override;
    /// A number field with its caption, if it has one of its own.
    struct TSzamMezo {
        const char* felirat;
        const char* nev;
        int also, felso;
        QSpinBox* TForm10::*mezo;
    };
    QHBoxLayout* felirattal(const char* felirat, QWidget* mezo);
    QHBoxLayout* szamMezok(std::span<const TSzamMezo> leirasok);
    QGridLayout* mezokEpitese();
    void mezokBeallitasa();
    QHBoxLayout* gombok();
    void listaEpitese();
    void LEletesClick(const QString& felirat);
    void betoltes(int sor);
    void keyPressEvent(QKeyEvent* esemeny) override;
    TPillanat pillanat() const;
    void listaMutatasa();
    void mezokMutatasa(const TEletesemeny& e);
    TEletesemeny mezok() const;
    bool eventFilter(QObject* targy, QEvent* esemeny) override;
    void kijeloles(int sor);
    void szovegekUritese();
    bool gepelt() const;
    void reject() override;

    Allapot& allapot_;
    QWidget* fo_;
    TParbeszed* parbeszed_ = nullptr;
    TEsemenyTar masodik_;     ///< the events at the opening
    int kijelolt_ = 0;        ///< 1..20, 0 for none
    TEletesemeny alapMezok_;  ///< the fields before anything was typed into them
    std::function<TSzuletes()> szuletes_;

    std::array<std::array<QLabel*, esemenyOszlopok>, esemenyHelyek> sorok_{};
    QLineEdit *esemeny_ = nullptr, *analogia_ = nullptr;
    QSpinBox *ev_ = nullptr, *ho_ = nullptr, *nap_ = nullptr, *ora_ = nullptr, *perc_ = nullptr,
             *mperc_ = nullptr;
    HelysegMezo* helyseg_ = nullptr;
    QSpinBox *idozona_ = nullptr, *nyariIdo_ = nullptr;
    QSpinBox *hosszFok_ = nullptr, *hosszPerc_ = nullptr, *szelFok_ = nullptr, *szelPerc_ = nullptr;
    QLabel* solarNap_ = nullptr;
};
