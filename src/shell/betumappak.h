#pragma once

#include <string>
#include <vector>

/// Folders where symbol fonts are looked for, each with its closing separator: the program's own, then the
/// platform's.
std::vector<std::string> betuMappak();

/// Makes the fonts of the program's own folder usable.
void sajatBetukBetoltese();
