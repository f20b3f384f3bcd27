#pragma once

#include <string>
#include <string_view>
#include <vector>

/// House analogies of a life event, parsed from what the user typed.
struct TAnalogia {
    std::string szoveg;       ///< house numerals joined by commas
    std::vector<int> szamok;  ///< the same houses as numbers, ascending, each once
};

/// Reads Arabic numbers 1..12 and the Roman forms of the angular houses I, IV, VII, X; all other characters
/// separate. A '1' that is the very last character is not taken; of "VI" nothing is read, and a
/// Roman nine reads as 1 and 10: the saved analogies of charts came of this reading, and it gives the same
/// again.
TAnalogia AnalogiaElemzes(std::string_view szoveg);
