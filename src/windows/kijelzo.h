#pragma once

#include <QString>

/// Why no window can be opened, in one sentence.
/// @param waylandHianyzik  the session wants Wayland and the toolkit has no plugin for it
QString kijelzoHiba(bool waylandHianyzik);

/// Stands around the making of the application object: where no display can be reached the toolkit would
/// abort; with this the program says why in one sentence and ends with 1. What the toolkit tells of the
/// platforms that it tries on the way is not passed on.
class TKijelzoOr {
public:
    TKijelzoOr();
    ~TKijelzoOr();
    TKijelzoOr(const TKijelzoOr&) = delete;
    TKijelzoOr& operator=(const TKijelzoOr&) = delete;
};
