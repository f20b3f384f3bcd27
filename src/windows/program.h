#pragma once

#include <QStringList>

/// The program's run in an application object that is there already: its look, its windows, the question of
/// the first run, the message loop. With "--uj-jelszo" among the arguments it only renews the password; a
/// file among them is opened once the window is there.
/// @param argumentumok  the program's own name first
/// @return exit code; of a renewal 0 if the new password is stored, else 1; 2 for a wrong command line
int ProgramFutas(const QStringList& argumentumok);
