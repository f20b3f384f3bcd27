#pragma once

#include <array>
#include <cstdint>

#include "engine/csillagido.h"
#include "engine/hazak.h"
#include "engine/mundanlanc.h"

/// The verdict on one trial chart after another, each close in time to the one before: what cannot have
/// changed since is not worked out again.
///
/// Within a day of the ephemeris the bodies move evenly, so it is known for how many seconds no body changes
/// its sign, its decan, an aspect or a side. Besides, a verdict holds as long as no cusp leaves its decan and
/// no body comes to the boundary of a house. Each time one of the three runs out it is worked out anew with
/// the routines of `MundanLanc`, so every verdict is to the letter that of `Analogiak` on a chart of its own.
class TMundanKoveto {
public:
    /// @param hely,OrbisTabla  must outlive this
    TMundanKoveto(const TMundanHely& hely, const TOrbisTabla& OrbisTabla)
        : hely_(hely), OrbisTabla_(OrbisTabla) {}

    /// `AnalogiaAllapot` of a moment of the zone's clock.
    char allapot(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc);

    /// How often something was worked out anew so far.
    struct TSzamitasok {
        int fenyszogek = 0, hazak = 0, csucsjegyek = 0;
    };
    const TSzamitasok& szamitasok() const { return szamitasok_; }

private:
    int nyariIdo(std::int32_t julianszam, std::int32_t ora, std::int32_t perc, std::int32_t mperc);
    void csucsok(const TCsillagIdo& ido);

    bool fenyszogekAllnak(const TCsillagIdo& ido) const;
    void fenyszogek(const TCsillagIdo& ido);
    /// Asked only while the aspects stand, thus on the day on which the houses were worked out too.
    bool hazakAllnak(const TCsillagIdo& ido) const;
    /// @return whether a body has another house
    bool hazak(const TCsillagIdo& ido);
    bool csucsjegyekAllnak() const;
    void csucsjegyek();

    const TMundanHely& hely_;
    const TOrbisTabla& OrbisTabla_;
    TMundanLanc lanc_;
    char allapot_ = '0';
    TSzamitasok szamitasok_;

    std::int32_t nyariIdoNapja_ = 0;  ///< day that the next two are of
    int nyariIdoElejen_ = 0, nyariIdoVegen_ = 0;

    int hazSorSzama_ = -1;
    THazSor hazSor_{};

    /// How far one may go from where something was worked out, on and back.
    struct TKoz {
        std::int32_t julianszam = 0;  ///< Greenwich day
        double napresz = 0;           ///< fraction of it
        double elore = 0, hatra = 0;
    };
    TKoz fenyszogKoz_;        ///< fractions of the day
    TKoz hazKoz_;             ///< degrees of a cusp and the fastest body together
    double leggyorsabb_ = 0;  ///< motion of the fastest body in this day, degrees
    THazcsucsok hazCsucsai_;  ///< the cusps when the houses were worked out

    struct TTartomany {
        double also = 0, felso = 0;  ///< degrees; empty before the first chart
    };
    Tomb<TTartomany, 12> csucsTartomany_;
};
