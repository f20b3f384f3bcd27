#pragma once

#include <QStringList>

/// The program's run in an application object that is there already: its look, its windows, the question of
/// the first run, the message loop. With "--uj-jelszo" among the arguments it only renews the password.
/// @return exit code; of a renewal 0 if the new password is stored, else 1
int ProgramFutas(const QStringList& argumentumok);
