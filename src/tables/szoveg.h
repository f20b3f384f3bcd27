#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

/// UTF-8 text counted, cut and rotated by character, and the program's number formats.

/// Length in bytes of the character at the start of a non-empty text. Stray continuation bytes belong to the
/// character before them; at the start of a text they are one with their first byte.
inline std::size_t karakterHossz(std::string_view szoveg) {
    std::size_t hossz = 1;
    while (hossz < szoveg.size() && (static_cast<unsigned char>(szoveg[hossz]) & 0xC0U) == 0x80U) ++hossz;
    return hossz;
}

/// Whether a text is UTF-8 throughout: no stray, missing or overlong bytes, no half of a surrogate pair,
/// nothing above U+10FFFF.
inline bool ervenyesUtf8(std::string_view szoveg) {
    while (!szoveg.empty()) {
        const auto elso = static_cast<unsigned char>(szoveg[0]);
        const std::size_t hossz = karakterHossz(szoveg);
        const std::size_t kell = elso < 0x80 ? 1 : elso < 0xC2 ? 0 : elso < 0xE0 ? 2 : elso < 0xF0 ? 3 : 4;
        if (elso > 0xF4 || hossz != kell) return false;
        const auto masodik = static_cast<unsigned char>(hossz > 1 ? szoveg[1] : '\0');
        if ((elso == 0xE0 && masodik < 0xA0) || (elso == 0xED && masodik > 0x9F) ||
            (elso == 0xF0 && masodik < 0x90) || (elso == 0xF4 && masodik > 0x8F))
            return false;
        szoveg.remove_prefix(hossz);
    }
    return true;
}

/// A letter of English as a small one; anything else as it is.
inline char kisbetu(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The text with the letters of English in small; accented ones stay.
inline std::string kisbetus(std::string_view szoveg) {
    std::string ki(szoveg);
    std::transform(ki.begin(), ki.end(), ki.begin(), kisbetu);
    return ki;
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

/// The number that a text is; nothing if anything but digits and a minus sign is in it, or if it is too
/// large.
template <typename T = std::int32_t>
std::optional<T> szamErtek(std::string_view szoveg) {
    T szam = 0;
    const auto [vege, hiba] = std::from_chars(szoveg.data(), szoveg.data() + szoveg.size(), szam);
    if (hiba != std::errc{} || vege != szoveg.data() + szoveg.size()) return std::nullopt;
    return szam;
}

/// A number with a leading "0" below 10.
inline std::string ketJegy(int szam) {
    return (szam < 10 ? "0" : "") + std::to_string(szam);
}
