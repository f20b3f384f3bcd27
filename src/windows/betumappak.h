#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <QStringList>

/// Folders where symbol fonts are looked for, each with its closing separator: the program's own, then the
/// platform's.
std::vector<std::string> betuMappak();

/// The face that the system has for a name: the name itself, or the first of its stand-ins that is there. A
/// name that has to be looked for costs a whole search of the system's fonts at each size.
QString betuCsalad(std::string_view nev);

/// Makes the fonts of the program's own folder usable.
void sajatBetukBetoltese();

/// Base names, which stand for face names, of the files Astro*.ttf in these folders, each once.
QStringList szimbolumFontok();
