#pragma once

#include <string>

/// What the commands need of the main window. Commands change `Allapot` and call these; so they run, and are
/// tested, without a window too.
class FoAblak {
public:
    virtual ~FoAblak() = default;

    /// Erases the window and lets it paint itself at once; while `TeljesTorles` is set it stays erased.
    virtual void Ujrafest() = 0;
    /// Asks for a paint on the next turn of the message loop.
    virtual void Ervenytelenit() = 0;
    /// Window geometry, then the drawing of the current view.
    virtual void RajzolKeplet() = 0;
    /// Shows the texts of `Allapot::Feliratok` on the controls.
    virtual void Mutat() = 0;

    /// The computer's date in its short form, and its time as hours:minutes:seconds.
    virtual std::string RendszerDatum() = 0;
    virtual std::string RendszerIdo() = 0;

    /// Work of the small windows that the tick carries out.
    virtual void MundanFrissit() = 0;
    virtual void PontositasFuttat() = 0;
    virtual void PrimerFuttat() = 0;
};
