#pragma once

#include <string>
#include <vector>

#include <QStringList>

/// Folders where symbol fonts are looked for, each with its closing separator: the program's own, then the
/// platform's.
std::vector<std::string> betuMappak();

/// Makes the fonts of the program's own folder usable.
void sajatBetukBetoltese();

/// Base names, which stand for face names, of the files Astro*.ttf in these folders, each once.
QStringList szimbolumFontok();
