#pragma once

#include <functional>
#include <string>

#include <QPushButton>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "windows/kesobbiablak.h"
#include "windows/modulok.h"
#include "windows/parbeszed.h"

/// Sound player: play, pause and stop for the sound of a chart. It stays open until the user closes it.
class TForm5 : public TKesobbiAblak {
    Q_OBJECT

public:
    TForm5(Allapot& allapot, FoAblak& ablak, QWidget* fo);

    void parbeszedBeallitasa(TParbeszed& parbeszed) { parbeszed_ = &parbeszed; }

    /// Plays the chart's sound if its file has the mark and the sound file is found; otherwise nothing
    /// happens, and a sound that runs goes on.
    void HangLink();

    /// Where the sound module comes from; a test may put its own in place.
    std::function<THangModul*()> modul = hangModul;

private:
    void epites() override;
    /// The player, made at the first sound; nullptr where the sound library is missing, which it then says.
    TLejatszo* lejatszo();
    void gombra(void (TLejatszo::*muvelet)());
    void hiba(int kod, const QString& szoveg);
    /// However the window is closed, the sound ends with it.
    void hideEvent(QHideEvent* esemeny) override;

    Allapot& allapot_;
    QWidget* fo_;
    TParbeszed* parbeszed_ = nullptr;
    TLejatszo* lejatszo_ = nullptr;
    bool hibaJelezve_ = false;  ///< of the file that is open
};
