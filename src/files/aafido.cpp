#include "files/aafido.h"

#include <cmath>
#include <cstdlib>

#include "tables/szamtan.h"
#include "tables/szoveg.h"

namespace {

constexpr std::int64_t ora = 3600;
constexpr std::int32_t ivmpEgyMasodpercre = 15;

/// The multiple of a unit next to a number of seconds.
std::int64_t kerek(std::int64_t masodperc, std::int64_t egyseg) {
    return std::llround(static_cast<double>(masodperc) / static_cast<double>(egyseg)) * egyseg;
}

std::string idoSzoveg(std::int64_t masodperc) {
    const auto jel = [](std::int64_t x) { return ketJegy(static_cast<int>(x)); };
    return std::to_string(masodperc / ora) + ":" + jel(masodperc / 60 % 60) + ":" + jel(masodperc % 60);
}

std::string zonaSzoveg(std::int64_t masodperc) {
    const std::int64_t nagysag = std::abs(masodperc);
    return (masodperc < 0 ? "-" : "+") +
           (nagysag % ora == 0 ? std::to_string(nagysag / ora) : idoSzoveg(nagysag)) + " óra";
}

class TMegoldo {
public:
    TMegoldo(const TAafIdopont& idopont, std::vector<std::string>& kozlesek)
        : be_(idopont), kozlesek_(kozlesek) {
        if (be_.datum && be_.ido)
            helyi_ = AafNapSzam(be_.datum->ev, be_.datum->ho, be_.datum->nap) * napMasodperc + *be_.ido;
    }

    std::optional<TAafPillanat> megold(std::string& hiba) {
        if (!helyi_ && !be_.julian) {
            hiba = be_.datum ? "ido: ismeretlen" : "datum: ismeretlen";
            return std::nullopt;
        }
        if (be_.nyariIdo && be_.nyariIdo->helyiKozepido) {
            helyiKozepido();
        } else if (!zona()) {
            hiba = "idozona: ismeretlen";
            return std::nullopt;
        }
        vilagIdo();
        egeszOrak();
        return pillanat();
    }

private:
    /// The clock goes by the meridian of the place; the chart gets that of the nearest zone.
    void helyiKozepido() {
        eltolas_ = std::llround(static_cast<double>(be_.hosszusag) / ivmpEgyMasodpercre);
        zona_ = be_.hazai ? ora : kerek(eltolas_, ora);
        kozlesek_.push_back("ido: helyi középidő, " + zonaSzoveg(zona_) + " zónaidőre átszámítva");
    }

    /// Clock less Universal Time, where both are known well enough to tell hours.
    std::optional<std::int64_t> kulonbseg() const {
        constexpr double felora = 1800;
        if (!helyi_ || !be_.julian || be_.julian->pontossag > felora) return std::nullopt;
        return *helyi_ - be_.julian->masodperc;
    }

    bool zona() {
        const auto teljes = kulonbseg();
        if (be_.zona) {
            zona_ = *be_.zona;
        } else if (be_.hazai) {
            zona_ = ora;
            kozlesek_.push_back("idozona: ismeretlen, Magyarországon 1");
        } else if (teljes) {
            // Zones differ by quarters of an hour.
            zona_ = kerek(*teljes, ora / 4) - (be_.nyariIdo ? be_.nyariIdo->orak * ora : 0);
            kozlesek_.push_back("idozona: ismeretlen, az óraidőből és a Julián-napból " + zonaSzoveg(zona_));
        } else if (be_.julian) {
            zona_ = kerek(be_.hosszusag / ivmpEgyMasodpercre, ora);
            kozlesek_.push_back("idozona: ismeretlen, a hosszúság szerint " + zonaSzoveg(zona_));
        } else {
            return false;
        }
        nyari_ = be_.nyariIdo ? be_.nyariIdo->orak : ismeretlenNyariIdo(teljes);
        eltolas_ = zona_ + nyari_ * ora;
        return true;
    }

    /// What the clock tells beside the Julian day; else the table of the country; else none.
    std::int64_t ismeretlenNyariIdo(std::optional<std::int64_t> teljes) {
        constexpr std::int64_t legtobb = 2;
        if (teljes) {
            const std::int64_t orak = kerek(*teljes - zona_, ora) / ora;
            if (orak >= 0 && orak <= legtobb) {
                kozlesek_.push_back("nyariIdo: ismeretlen, az óraidőből és a Julián-napból " +
                                    std::to_string(orak));
                return orak;
            }
        }
        std::int64_t orak = 0;
        if (be_.hazai) {
            const std::int64_t oraMutat = helyi_ ? *helyi_ : be_.julian->masodperc + zona_;
            orak = tablaNyariIdo(oraMutat);
            // From a clock in summer time on, the table is asked by that clock.
            if (!helyi_) orak = tablaNyariIdo(oraMutat + orak * ora);
        }
        kozlesek_.push_back("nyariIdo: ismeretlen, " +
                            std::string(be_.hazai ? "a nyári idő táblája szerint " : "") +
                            std::to_string(orak));
        return orak;
    }

    static std::int64_t tablaNyariIdo(std::int64_t masodperc) {
        const TPillanat p = oraAllas(masodperc);
        return p.ev < 1900 || p.ev > 2078 ? 0 : NyariIdoE(p);
    }

    void vilagIdo() {
        if (!be_.julian) {
            vilagIdo_ = *helyi_ - eltolas_;
            return;
        }
        vilagIdo_ = be_.julian->masodperc;
        if (!helyi_) return;
        const std::int64_t oraSzerint = *helyi_ - eltolas_;
        constexpr double kerekites = 0.5;
        if (std::abs(static_cast<double>(oraSzerint - vilagIdo_)) <= be_.julian->pontossag + kerekites) {
            vilagIdo_ = oraSzerint;
            return;
        }
        kozlesek_.push_back("ido: a Julián-nap és az óraidő eltér, a Julián-nap szerint " +
                            teljesSzoveg(vilagIdo_ + eltolas_) + ", a dátum és az óraidő szerint " +
                            teljesSzoveg(*helyi_));
    }

    void egeszOrak() {
        if (zona_ % ora != 0) {
            kozlesek_.push_back("idozona: " + zonaSzoveg(zona_) + ", az óraidő " +
                                zonaSzoveg(zona_ / ora * ora) + " zónára átszámítva");
            zona_ = zona_ / ora * ora;
        }
        if (nyari_ > 1) {
            kozlesek_.push_back("nyariIdo: " + std::to_string(nyari_) +
                                ", a képletben 1, az időzóna eggyel keletebbre");
            zona_ += (nyari_ - 1) * ora;
            nyari_ = 1;
        }
    }

    TAafPillanat pillanat() const {
        const std::int64_t mutat = vilagIdo_ + zona_ + nyari_ * ora;
        TAafPillanat ki{oraAllas(mutat), static_cast<std::int32_t>(zona_ / ora),
                        static_cast<std::int32_t>(nyari_)};
        // An unchanged date stays as it was written, also one that its month does not have.
        if (helyi_ && mutat == *helyi_) {
            ki.pillanat.ev = be_.datum->ev;
            ki.pillanat.ho = be_.datum->ho;
            ki.pillanat.nap = be_.datum->nap;
        }
        return ki;
    }

    static TPillanat oraAllas(std::int64_t masodperc) {
        const std::int64_t napok =
            masodperc >= 0 ? masodperc / napMasodperc : -((napMasodperc - 1 - masodperc) / napMasodperc);
        const auto maradek = static_cast<std::int32_t>(masodperc - napok * napMasodperc);
        const TAafDatum d = AafNapDatuma(napok);
        return {d.ev, d.ho, d.nap, maradek / 3600, maradek / 60 % 60, maradek % 60};
    }

    static std::string teljesSzoveg(std::int64_t masodperc) {
        const TPillanat p = oraAllas(masodperc);
        return std::to_string(p.ev) + ". " + ketJegy(p.ho) + ". " + ketJegy(p.nap) + ". " +
               idoSzoveg(p.ora * ora + std::int64_t{p.perc} * 60 + p.mperc);
    }

    const TAafIdopont& be_;
    std::vector<std::string>& kozlesek_;
    std::optional<std::int64_t> helyi_;  ///< the clock in seconds since 0h of day number 0
    std::int64_t zona_ = 0;
    std::int64_t nyari_ = 0;
    std::int64_t eltolas_ = 0;  ///< clock of the record less Universal Time
    std::int64_t vilagIdo_ = 0;
};

}  // namespace

std::optional<TAafPillanat> AafPillanat(const TAafIdopont& idopont, std::vector<std::string>& kozlesek,
                                        std::string& hiba) {
    return TMegoldo(idopont, kozlesek).megold(hiba);
}
