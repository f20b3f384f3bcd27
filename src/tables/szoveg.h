#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8 text counted, cut and rotated by character, and the program's number formats.

/// Length in bytes of the character at the start of a non-empty text; a stray byte counts as one character.
inline std::size_t karakterHossz(std::string_view szoveg) {
    std::size_t hossz = 1;
    while (hossz < szoveg.size() && (static_cast<unsigned char>(szoveg[hossz]) & 0xC0U) == 0x80U) ++hossz;
    return hossz;
}

/// Number of characters.
inline int karakterSzam(std::string_view szoveg) {
    int szam = 0;
    for (; !szoveg.empty(); szoveg.remove_prefix(karakterHossz(szoveg))) ++szam;
    return szam;
}

/// The first `db` characters, or the whole text if it is shorter.
inline std::string_view elsoKarakterek(std::string_view szoveg, int db) {
    std::size_t hossz = 0;
    while (db-- > 0 && hossz < szoveg.size()) hossz += karakterHossz(szoveg.substr(hossz));
    return szoveg.substr(0, hossz);
}

/// One scrolling step: the first character moves to the end. An empty text stays.
inline void gordit(std::string& szoveg) {
    if (szoveg.empty()) return;
    std::rotate(szoveg.begin(), szoveg.begin() + static_cast<std::ptrdiff_t>(karakterHossz(szoveg)),
                szoveg.end());
}

/// A number with a leading "0" below 10.
inline std::string ketJegy(int szam) {
    return (szam < 10 ? "0" : "") + std::to_string(szam);
}
