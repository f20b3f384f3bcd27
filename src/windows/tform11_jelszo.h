#pragma once

#include <functional>

#include <QLineEdit>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "windows/jelszotar.h"
#include "windows/kesobbiablak.h"
#include "windows/parbeszed.h"

/// Password prompt. It has no button: it closes by itself on the last right letter.
class TForm11 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm11(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    /// The first thing that every command does: asks for the password if it has not been given in this run,
    /// and ends the program if it is not given then. While the prompt is open, a second question does
    /// nothing.
    /// @return false if the command may not run
    bool JelszoKeres();

    /// Takes the user's new password, nothing or a blank for none.
    /// @return false if it can't be stored; the next start asks again
    bool ujJelszo(const QString& jelszo);
    bool elsoFutas() const { return tar_.allas() == TJelszoTar::Allas::nincsTar; }

    /// Asks the user for a new password, twice since it is hidden, and stores it.
    /// @return false after a cancel or if it can't be stored
    bool ujJelszoKeres(TParbeszed& parbeszed);
    /// The same, once the old password has been given.
    bool jelszoCsere(TParbeszed& parbeszed);

    /// How the program ends; a test may put its own in place.
    std::function<void()> programVege;

private slots:
    void Edit1Change();

private:
    void epites() override;
    void kerdez();

    Allapot& allapot_;
    QWidget* fo_;
    TJelszoTar tar_;
    QLineEdit* edit1_ = nullptr;
};
