#pragma once

#include <functional>

#include <QDialog>
#include <QLineEdit>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "windows/jelszotar.h"

/// Password prompt. It has no button: it closes by itself on the last right letter.
class TForm11 : public QDialog {
    Q_OBJECT

public:
    TForm11(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// The first thing that every command does: asks for the password if it has not been given in this run.
    /// @return false if the program ends, since it was not given
    bool JelszoKeres();

    /// At the first run: takes the user's new password, empty for none.
    /// @return false if it can't be stored; the next start asks again
    bool ujJelszo(const QString& jelszo);
    bool elsoFutas() const { return tar_.allas() == TJelszoTar::Allas::nincsTar; }

    /// How the program ends; a test may put its own in place.
    std::function<void()> programVege;

private slots:
    void Edit1Change();

private:
    Allapot& allapot_;
    QWidget* fo_;
    TJelszoTar tar_;
    QLineEdit* edit1_;
};
