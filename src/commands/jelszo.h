#pragma once

#include <string_view>

#include "chart/allapot.h"

inline constexpr int jelszoHossz = 15;       ///< characters at most
inline constexpr int jelszoValtozasok = 30;  ///< changes of the field at which the program ends

/// Whether what the user gave as a password means that they want none: nothing, or a single blank.
bool NincsJelszo(std::string_view jelszo);

enum class JelszoValasz { tovabb, jo, vege };

/// One change of the prompt's field. Each letter typed counts as a try, and the count comes first: the
/// thirtieth change ends the program even if it would have completed the password.
/// @param egyezik  whether the field holds the password
JelszoValasz JelszoValtozas(Allapot& allapot, bool egyezik);
