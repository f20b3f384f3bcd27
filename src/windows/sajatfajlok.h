#pragma once

#include <QString>
#include <QStringList>

/// What the program brings with it, beside itself in the build tree and under share/ and lib/ when installed.

/// Folders of the program's own fonts.
QStringList sajatBetuMappak();

/// Folders of the program's modules, without their closing separators.
QStringList sajatModulMappak();

/// The handbook; empty if it is not there.
QString kezikonyvFajl();
