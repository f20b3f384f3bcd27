#include "drawing/keretek.h"

#include <numbers>

#include "drawing/vaszon.h"
#include "tables/szamtan.h"
#include "tables/szotar.h"

using std::numbers::pi;

namespace {

/// Middle of sign or house sector i on a wheel of twelve equal sectors, degrees.
constexpr double szektorKozep(int i) {
    return (i - 1) * 30 + 15;
}

void kullok(const TKerek& kerek, double belso, double kulso) {
    for (int fok = 0; fok < 360; fok += 30) kerek.vonal(belso, vaszonSzog(fok), kulso, vaszonSzog(fok));
}

void jegyek(const TKerek& kerek, double sugar, int eltolas) {
    for (int i = 1; i <= 12; ++i) kerek.szoveg(sugar, kerek.szog(szektorKozep(i)), eltolas, jegyBetu(i));
}

/// The signs stand outside the scale: the outermost thing of a wheel, without an outer circle.
void jegyGyuru(const TKerek& kerek, const TSugarak& s, std::string_view szimbolumFont) {
    const double gyuru = s.skala - s.bolygo;
    kerek.vaszon().Betu(szimbolumFont, kerekit(gyuru / 2 * 0.9));
    jegyek(kerek, kerekit((s.kulso + gyuru / 2) * 0.97) + 2, kerekit(gyuru / 4));
}

void jegyHatarok(const TKerek& kerek, const TSugarak& s) {
    kerek.vaszon().TollSzelesseg(TollVastagsag(3, s.kulso));
    const int kulso = kerekit((s.kulso + (s.skala - s.bolygo) / 2.0) * 0.98);
    for (int fok = 0; fok < 360; fok += 30) kerek.vonal(s.skala, kerek.szog(fok), kulso, kerek.szog(fok));
}

void fokSkala(const TKerek& kerek, const TSugarak& s) {
    struct TOsztas {
        int lepes;  // degrees
        int kulso;  // outer end of the tick
    };
    const int koz = s.kulso - s.skala;
    const TOsztas osztasok[]{
        {1, s.skala + kerekit(0.39 * koz)}, {5, s.skala + kerekit(0.7 * koz)}, {10, s.kulso}};
    kerek.vaszon().TollSzelesseg(1);
    for (const TOsztas& osztas : osztasok)
        for (int fok = 0; fok < 360; fok += osztas.lepes)
            kerek.vonal(s.skala, kerek.szog(fok), osztas.kulso, kerek.szog(fok));
}

/// Midpoints of the houses in degrees; they may pass 360. The opposite house gets the same half-width.
Tomb<double, 12> hazKozepek(const THazcsucsok& hazCsucs) {
    Tomb<double, 12> hazKozep;
    for (int i = 1; i <= 6; ++i) {
        const double kovetkezo = hazCsucs[i + 1] <= hazCsucs[i] ? hazCsucs[i + 1] + 360 : hazCsucs[i + 1];
        const double fel = (kovetkezo - hazCsucs[i]) / 2;
        hazKozep[i] = hazCsucs[i] + fel;
        hazKozep[i + 6] = hazCsucs[i + 6] + fel;
    }
    return hazKozep;
}

void hazSzamok(const TKerek& kerek, const TSugarak& s, const THazcsucsok& hazCsucs) {
    const Tomb<double, 12> hazKozep = hazKozepek(hazCsucs);
    kerek.vaszon().Betu(szovegFont, s.haz - s.belso - 8);
    const int eltolas = kerekit((s.haz - s.belso - 3) / 2.0 - 3);
    const int sugar = kerekit((s.haz + s.belso) / 2.0);
    for (int i = 1; i <= 12; ++i) kerek.szoveg(sugar, kerek.szog(hazKozep[i]), eltolas, HazCimke(i));
}

void nyilhegy(const TKerek& kerek, double szog, int tengelyVeg) {
    constexpr double nyilNyilas = 0.016;  // radians
    kerek.vonal(tengelyVeg + 7, szog, tengelyVeg - 5, szog - nyilNyilas);
    kerek.vonal(tengelyVeg + 7, szog, tengelyVeg - 5, szog + nyilNyilas);
}

/// On the horizon the arrowed end is the longer one, on the meridian the unarrowed one: so the two axes can
/// be told apart where their arrows are too small to see.
void tengelyek(const TKerek& kerek, const TSugarak& s, double mc) {
    Vaszon& vaszon = kerek.vaszon();
    const int vekony = TollVastagsag(3, s.kulso);
    const int vastag = TollVastagsag(4, s.kulso);
    const int veg = kerekit(s.kulso + (s.skala - s.bolygo) / 5.0);

    vaszon.TollSzelesseg(vastag);
    kerek.vonal(s.belso, 0, veg, 0);
    kerek.vonal(s.belso, pi, veg + 2, pi);
    vaszon.TollSzelesseg(vekony);
    nyilhegy(kerek, pi, veg);

    const double ic = kerek.szog(mc) - pi;
    vaszon.TollSzelesseg(vastag);
    kerek.vonal(s.belso, ic, veg + 2, ic);
    kerek.vonal(s.belso, ic + pi, veg, ic + pi);
    vaszon.TollSzelesseg(vekony);
    nyilhegy(kerek, ic + pi, veg);
}

/// The two outermost circles; the pen is thin again behind them.
void skalaKorok(const TKerek& kerek, const TSugarak& s) {
    Vaszon& vaszon = kerek.vaszon();
    vaszon.TollSzelesseg(1);
    kerek.kor(s.kulso);
    vaszon.TollSzelesseg(TollVastagsag(3, s.kulso));
    kerek.kor(s.skala);
    vaszon.TollSzelesseg(1);
}

/// What stands outside the bodies' ring.
void zodiakus(const TKerek& kerek, const TSugarak& s, std::string_view szimbolumFont) {
    jegyGyuru(kerek, s, szimbolumFont);
    jegyHatarok(kerek, s);
    fokSkala(kerek, s);
}

}  // namespace

void RadixKeret(const TKerek& kerek, const TSugarak& s, const THazcsucsok& hazCsucs,
                std::string_view szimbolumFont, bool r2Kor) {
    Vaszon& vaszon = kerek.vaszon();
    skalaKorok(kerek, s);
    if (r2Kor) kerek.kor(s.bolygo);
    kerek.kor(s.haz);
    vaszon.TollSzelesseg(TollVastagsag(4, s.kulso));
    kerek.kor(s.belso);
    kerek.kor(s.mag);

    hazSzamok(kerek, s, hazCsucs);
    vaszon.TollSzelesseg(1);
    for (int i = 1; i <= 12; ++i)
        kerek.vonal(s.belso, kerek.szog(hazCsucs[i]), s.skala, kerek.szog(hazCsucs[i]));
    zodiakus(kerek, s, szimbolumFont);
    tengelyek(kerek, s, hazCsucs[10]);
}

void MundanKeret(const TKerek& kerek, const TSugarak& s, std::string_view szimbolumFont) {
    skalaKorok(kerek, s);
    kerek.kor(s.bolygo);
    kerek.kor(s.belso);
    kullok(kerek, s.belso, s.kulso);
    zodiakus(kerek, s, szimbolumFont);
}

namespace {
constexpr double kisMundanArany = 1.125;  ///< how far the spokes reach outside and inside the circle
}

void KisMundanKeret(const TKerek& kerek, int kisSugar, int toll) {
    kerek.vaszon().TollSzelesseg(toll);
    kerek.kor(kisSugar);
    kullok(kerek, kisSugar / kisMundanArany, kerekit(kisSugar * kisMundanArany));
}

void KisMundanJegyek(const TKerek& kerek, int kisSugar, std::string_view szimbolumFont) {
    const int kulso = kerekit(kisSugar * kisMundanArany);
    const int p = kerekit(kulso * 1.15);
    kerek.vaszon().Betu(szimbolumFont, kerekit(p / 25.0 + 5));
    const int eltolas = kerekit((p / 25.0 + 5) * 0.5);
    for (int i = 1; i <= 12; ++i) kerek.szoveg(kulso - 3, kerek.szog((i - 1) * 30 + 4), eltolas, jegyBetu(i));
}

namespace {

/// The bodies of each decan house, the empty ones too.
void dekadBolygok(const TKerek& kerek, double sugar, int eltolas, const Tomb<std::string, 12>& szovegek) {
    for (int i = 1; i <= 12; ++i) kerek.szoveg(sugar, kerek.szog(szektorKozep(i)), eltolas, szovegek[i]);
}

/// Signs inside a Dekád wheel of radius r.
void dekadJegyek(const TKerek& kerek, int r, std::string_view szimbolumFont) {
    kerek.vaszon().Betu(szimbolumFont, kerekit(r / 25.0 + 8));
    jegyek(kerek, kerekit(0.3 * r), kerekit((r / 25.0 + 8) * 0.5));
}

void dekadKorok(const TKerek& kerek, int kulso, int toll, int alap) {
    kerek.vaszon().TollSzelesseg(toll);
    kerek.kor(kulso);
    kerek.vaszon().TollSzelesseg(1);
    kerek.kor(kerekit(0.37 * alap + 10));
}

}  // namespace

void DekadKerek(const TKerek& kerek, int kerekSugar, const Tomb<std::string, 12>& DekadSzoveg,
                std::string_view szimbolumFont) {
    const int r = kerekSugar;
    dekadKorok(kerek, kerekit(0.88 * r), TollVastagsag(2, r), r);
    kullok(kerek, 25, r);
    // Height and offset use different constants, 10 and 12: the row of glyphs stands a pixel up and left,
    // clear of its spoke.
    kerek.vaszon().Betu(szimbolumFont, kerekit(r / 15.0 + 10));
    dekadBolygok(kerek, r, kerekit((r / 15.0 + 12) * 0.5), DekadSzoveg);
    dekadJegyek(kerek, r, szimbolumFont);
}

void KisDekadKerek(const TKerek& kerek, int kisSugar, int toll, const Tomb<std::string, 12>& DekadSzoveg,
                   std::string_view szimbolumFont) {
    dekadKorok(kerek, kisSugar, toll, kisSugar);
    const int t = kerekit(1.125 * kisSugar);
    kullok(kerek, 16, t);
    const int u = kerekit(1.1 * t);
    kerek.vaszon().Betu(szimbolumFont, kerekit(t / 10.5 + 10));
    dekadBolygok(kerek, u, kerekit((t / 12.5 + 12) * 0.5), DekadSzoveg);
    dekadJegyek(kerek, u, szimbolumFont);
}
