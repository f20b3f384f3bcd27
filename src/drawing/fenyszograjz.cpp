#include "drawing/fenyszograjz.h"

#include "drawing/vaszon.h"
#include "tables/szamtan.h"
#include "tables/szotar.h"
#include "tables/tomb.h"

namespace {

constexpr Tomb<TollStilus, 5> vonalStilus{{TollStilus::folytonos, TollStilus::szaggatott,
                                           TollStilus::pontozott, TollStilus::pontVonal,
                                           TollStilus::pontPontVonal}};

double betuMeret(int sugar) {
    return sugar / 22.0 + 4;
}

int betuEltolas(int sugar) {
    return kerekit(betuMeret(sugar) * 0.5);
}

/// Lines of all cells in matrix order; after each, `vonalUtan` with the two angles and the cell's letter.
template <typename TVonalUtan>
void vonalak(const TKerek& kerek, int sugar, const TJelMatrix& FenyszogRadix, const TBolygok& bolygo,
             TVonalUtan vonalUtan) {
    kerek.vaszon().TollSzelesseg(1);
    int stilusSzamlalo = 1;
    for (int i = 1; i <= 10; ++i) {
        for (int j = 1; j <= 10; ++j) {
            const char& cella = FenyszogRadix[i][j];
            if (cella == '.') continue;
            if (stilusSzamlalo == 6) stilusSzamlalo = 1;
            kerek.vaszon().Stilus(vonalStilus[stilusSzamlalo]);
            const double a = kerek.szog(bolygo[i]);
            const double b = kerek.szog(bolygo[j]);
            kerek.vonal(sugar, a, sugar, b);
            ++stilusSzamlalo;
            vonalUtan(a, b, std::string_view(&cella, 1));
        }
    }
}

}  // namespace

void FenyszogVonalak(const TKerek& kerek, int sugar, const TJelMatrix& FenyszogRadix, const TBolygok& bolygo,
                     std::string_view szimbolumFont) {
    kerek.vaszon().Betu(szimbolumFont, kerekit(betuMeret(sugar)));
    const int eltolas = betuEltolas(sugar);
    vonalak(kerek, sugar, FenyszogRadix, bolygo, [&](double a, double b, std::string_view jel) {
        kerek.szovegKozepre(sugar, a, sugar, b, eltolas, jel);
    });
}

void KisFenyszogVonalak(const TKerek& kerek, int sugar, const TJelMatrix& FenyszogRadix,
                        const TBolygok& bolygo) {
    vonalak(kerek, sugar, FenyszogRadix, bolygo, [](double, double, std::string_view) {});
    kerek.vaszon().Stilus(TollStilus::folytonos);
}

void TengelyFenyszogek(const TKerek& kerek, const TSugarak& s, const TBolygok& bolygo,
                       const THazcsucsok& hazCsucs, const TOrbisTabla& OrbisTabla) {
    struct TTengely {
        int haz, orbisSora;
    };
    constexpr TTengely tengelyek[]{{1, 1}, {10, 2}};
    const double tengelySugar = (s.skala - s.haz) / 2.0 + s.haz;
    const int eltolas = betuEltolas(s.bolygo);

    for (const auto& [haz, orbisSora] : tengelyek) {
        const double csucs = hazCsucs[haz];
        for (int i = 1; i <= 10; ++i) {
            const double hossz = bolygo[i];
            const double d = szogTavolsag(hossz, csucs);
            for (int j = 1; j <= 9; ++j) {
                const double tengelyOrbis = OrbisTabla[orbisSora][j];
                if (tengelyOrbis == 0) continue;
                const double o = (OrbisTabla[orbisSor(i)][j] + tengelyOrbis) / 2;
                if (!(fenyszogSzog[j] - o <= d && fenyszogSzog[j] + o >= d)) continue;
                const double a = kerek.szog(hossz);
                const double b = kerek.szog(csucs);
                kerek.vonal(s.bolygo, a, tengelySugar, b);
                kerek.szovegKozepre(s.bolygo, a, tengelySugar, b, eltolas, {&fenyszogJel[j], 1});
            }
        }
    }
    kerek.vaszon().Stilus(TollStilus::folytonos);
}
