#include "drawing/bolygorajz.h"

#include <algorithm>
#include <array>
#include <string>

#include "drawing/oldalpanel.h"
#include "drawing/vaszon.h"
#include "tables/szamtan.h"
#include "tables/szotar.h"
#include "tables/tomb.h"

namespace {

std::string_view betu(const char& c) {
    return {&c, 1};
}

/// Spread place of a body in degrees; its true place as long as no table has been built.
double szetteritettHely(const TRendezett& Rendezett, int bolygo, double igaziHely) {
    const auto sor = std::find_if(Rendezett.begin(), Rendezett.end(),
                                  [&](const TRendezettSor& r) { return r.rendJel == bolygoJel[bolygo]; });
    return sor == Rendezett.end() ? igaziHely : sor->rendHossz;
}

/// How glyphs and motion letters stand on one kind of wheel.
struct TJelHely {
    double sugar;
    int magassag, eltolas;
    int mozgasMagassag, mozgasX, mozgasY;  ///< the letter's offsets are added to the point
};

/// Any motion letter but 'D' is shown as it stands.
void jelek(const TKerek& kerek, const TJelHely& h, const TRendezett& Rendezett, std::string_view font) {
    Vaszon& vaszon = kerek.vaszon();
    vaszon.Betu(font, h.magassag);
    for (const TRendezettSor& sor : Rendezett) {
        const double szog = kerek.szog(sor.rendHossz);
        kerek.szoveg(h.sugar, szog, h.eltolas, betu(sor.rendJel));
        if (sor.rendMozgas == 'D') continue;
        vaszon.Betu(mozgasFont, h.mozgasMagassag);
        const auto [x, y] = kerek.pont(h.sugar, szog);
        vaszon.TextOut(x + h.mozgasX, y + h.mozgasY, betu(sor.rendMozgas));
        vaszon.Betu(font, h.magassag);
    }
}

}  // namespace

void BolygoJelek(const TKerek& kerek, const TSugarak& s, const TRendezett& Rendezett,
                 std::string_view szimbolumFont) {
    const double b = s.skala - s.bolygo;
    jelek(kerek,
          {static_cast<double>(kerekit(b / 2 + s.bolygo)), kerekit(b / 2 * 0.9), kerekit(b * 0.2),
           kerekit(b / 2 * 0.45), kerekit(0.12 * b) - 4, kerekit(0.12 * b) + 2},
          Rendezett, szimbolumFont);
}

namespace {

/// Degrees with two blanks before a single figure, and minutes without padding, at one point of a ring.
struct TFokFelirat {
    int fokMagassag, percMagassag, eltolas;

    void rajzol(const TKerek& kerek, double sugar, double szog, double fok, double perc) const {
        Vaszon& vaszon = kerek.vaszon();
        const auto [x, y] = kerek.pont(sugar, szog);
        vaszon.Betu(szovegFont, fokMagassag);
        vaszon.TextOut(x - eltolas, y - eltolas, (fok < 10 ? "  " : "") + std::to_string(egesz(fok)));
        vaszon.Betu(szovegFont, percMagassag);
        vaszon.TextOut(x + (eltolas - 4), y - eltolas, std::to_string(egesz(perc)));
    }
};

}  // namespace

void FokFeliratok(const TKerek& kerek, const TSugarak& s, const TRendezett& Rendezett,
                  const THazcsucsok& hazCsucs) {
    const double b = s.skala - s.bolygo;
    const int eltolas = kerekit(b * 0.2);
    const TFokFelirat bolygoFelirat{kerekit(b / 2 * 0.7), kerekit(b / 2 * 0.4), eltolas};
    const int bolygoSugar = kerekit(0.94 * s.bolygo);
    for (const TRendezettSor& sor : Rendezett)
        bolygoFelirat.rajzol(kerek, bolygoSugar, kerek.szog(sor.rendHossz), sor.rendFok, sor.rendPerc);

    const TFokFelirat csucsFelirat{kerekit(b / 2 * 0.6), kerekit(b / 2 * 0.4), eltolas};
    const int csucsSugar = kerekit(0.5 * s.bolygo);
    for (const int haz : feliratosCsucsok) {
        const double csucs = hazCsucs[haz];
        const double fok = csucs - 30.0 * egesz(csucs / 30);
        csucsFelirat.rajzol(kerek, csucsSugar, kerek.szog(csucs), fok, (fok - egesz(fok)) * 60);
    }
}

void MutatoVonalak(const TKerek& kerek, const TSugarak& s, const TBolygok& bolygo,
                   const TRendezett& Rendezett, TMutato mutato) {
    kerek.vaszon().TollSzelesseg(TollVastagsag(2, s.kulso));
    const int melyseg = kerekit(s.skala / mutato.osztas);
    for (int i = 1; i <= 10; ++i) {
        const double igazi = kerek.szog(bolygo[i]);
        const double szettert = kerek.szog(szetteritettHely(Rendezett, i, bolygo[i]));
        kerek.vonal(s.skala, igazi, s.skala - melyseg, szettert);
        if (mutato.belso) kerek.vonal(s.bolygo, igazi, s.bolygo + melyseg, szettert);
    }
}

void KisMundanBolygok(const TKerek& kerek, int kisSugar, const TBolygok& bolygo, const TRendezett& Rendezett,
                      std::string_view szimbolumFont) {
    const double k = kisSugar;
    const int mozgasEltolas = kerekit((k / 12 + 3) * 0.2);
    jelek(kerek,
          {static_cast<double>(kerekit(kerekit(1.125 * k) * 1.15)), kerekit(k / 8 + 6),
           kerekit((k / 8 + 6) * 0.5), kerekit(k / 12 + 3), mozgasEltolas, mozgasEltolas},
          Rendezett, szimbolumFont);
    kerek.vaszon().TollSzelesseg(1);
    for (int i = 1; i <= 10; ++i)
        kerek.vonal(k, kerek.szog(bolygo[i]), k / 9 + 5 + k,
                    kerek.szog(szetteritettHely(Rendezett, i, bolygo[i])));
}
