#pragma once

#include <QComboBox>
#include <QStringListModel>

#include "windows/helysegmodell.h"

/// The combo box of place names that several dialogs have: it takes free text, offers the gazetteer's names
/// while one types, and marks a name that the gazetteer does not hold.
class HelysegMezo : public QComboBox {
    Q_OBJECT

public:
    HelysegMezo(QWidget* szulo, const char* nev);

    /// The gazetteer's names once more at the end of the list, in table order; what the list holds stays.
    void listaNovelese();

    /// Puts a name into the field; the list stands at its row, if it has one.
    void helysegBeallitasa(const QString& nev);

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent* esemeny) override;

private:
    void kiegeszitoEpitese();
    void szovegValtozott(const QString& szoveg);
    bool kiegeszites();
    bool elsoTalalatra();

    HelysegModell* modell_;
    QStringListModel* talalatok_;  ///< what the typed text may mean
};

/// A place field whose list holds the gazetteer so many times.
HelysegMezo* ujHelysegMezo(QWidget* szulo, const char* nev, int ismetlesek = 1);
