#include "drawing/kepletrajz.h"

#include <string>
#include <utility>

#include "drawing/bolygorajz.h"
#include "drawing/fenyszograjz.h"
#include "drawing/geometria.h"
#include "drawing/kerek.h"
#include "drawing/keretek.h"
#include "drawing/oldalpanel.h"
#include "drawing/rendezett.h"
#include "engine/fenyszogpontok.h"
#include "engine/uralkodok.h"

namespace {

/// Wheel at the centre in force.
TKerek kozepsoKerek(Vaszon& vaszon, const TRajz& r, double forgatas) {
    return {vaszon, r.kozpontX, r.kozpontY, forgatas};
}

void rendezettUjra(Allapot& a) {
    RendezettEpites(a.Rajz.Rendezett, a.Keplet.bolygo, a.Keplet.mozgas);
    Szetteritas(a.Rajz.Rendezett);
}

void kisMundan(Vaszon& vaszon, const TKisKerekek& kis, const Allapot& a) {
    const TKerek kerek(vaszon, kis.kis1X, kis.kis1Y, 0);
    KisMundanKeret(kerek, kis.kisSugar, TollVastagsag(2, a.Rajz.kerekSugar));
    KisMundanBolygok(kerek, kis.kisSugar, a.Keplet.bolygo, a.Rajz.Rendezett, a.Rajz.szimbolumFont);
    KisMundanJegyek(kerek, kis.kisSugar, a.Rajz.szimbolumFont);
    KisFenyszogVonalak(kerek, kis.kisSugar, a.FenyszogRadix, a.Keplet.bolygo);
}

void kisDekad(Vaszon& vaszon, const TKisKerekek& kis, const Allapot& a) {
    const TKerek kerek(vaszon, kis.kis2X, kis.kis2Y, 0);
    KisDekadKerek(kerek, kis.kisSugar, TollVastagsag(2, a.Rajz.kerekSugar), a.Uralkodok.DekadSzoveg,
                  a.Rajz.szimbolumFont);
}

/// Radix wheel at the small centre and radius in force, without labels or aspects.
void kisRadix(Vaszon& vaszon, Allapot& a, bool r2Kor) {
    const TSugarak s = GyuruSugarak(a.Rajz.kerekSugar, a.Rajz.nyomtatasMod);
    const TKerek kerek = kozepsoKerek(vaszon, a.Rajz, a.Rajz.forgatas);
    RadixKeret(kerek, s, a.Keplet.hazCsucs, a.Rajz.szimbolumFont, r2Kor);
    rendezettUjra(a);
    BolygoJelek(kerek, s, a.Rajz.Rendezett, a.Rajz.szimbolumFont);
    MutatoVonalak(kerek, s, a.Keplet.bolygo, a.Rajz.Rendezett, tobbiMutato);
}

void radixNezet(Vaszon& vaszon, Allapot& a) {
    const TSugarak s = GyuruSugarak(a.Rajz.kerekSugar, a.Rajz.nyomtatasMod);
    const TKisKerekek kis = KisKerekGeometria(a.Rajz);
    const TKerek kerek = kozepsoKerek(vaszon, a.Rajz, a.Rajz.forgatas);
    RadixKeret(kerek, s, a.Keplet.hazCsucs, a.Rajz.szimbolumFont, true);
    FenyszogVonalak(kerek, s.bolygo, a.FenyszogRadix, a.Keplet.bolygo, a.Rajz.szimbolumFont);
    TengelyFenyszogek(kerek, s, a.Keplet.bolygo, a.Keplet.hazCsucs, a.OrbisTabla);
    rendezettUjra(a);
    BolygoJelek(kerek, s, a.Rajz.Rendezett, a.Rajz.szimbolumFont);
    FokFeliratok(kerek, s, a.Rajz.Rendezett, a.Keplet.hazCsucs);
    MutatoVonalak(kerek, s, a.Keplet.bolygo, a.Rajz.Rendezett, nagyRadixMutato);
    if (kis.kisSugar < legkisebbKisSugar) return;
    kisMundan(vaszon, kis, a);
    kisDekad(vaszon, kis, a);
}

void mundanNezet(Vaszon& vaszon, Allapot& a) {
    const TSugarak s = GyuruSugarak(a.Rajz.kerekSugar, a.Rajz.nyomtatasMod);
    TKisKerekek kis = KisKerekGeometria(a.Rajz);
    const TKerek kerek = kozepsoKerek(vaszon, a.Rajz, 0);
    MundanKeret(kerek, s, a.Rajz.szimbolumFont);
    FenyszogVonalak(kerek, s.bolygo, a.FenyszogRadix, a.Keplet.bolygo, a.Rajz.szimbolumFont);
    rendezettUjra(a);
    BolygoJelek(kerek, s, a.Rajz.Rendezett, a.Rajz.szimbolumFont);
    MutatoVonalak(kerek, s, a.Keplet.bolygo, a.Rajz.Rendezett, tobbiMutato);

    std::swap(a.Rajz.kozpontX, kis.kis1X);
    std::swap(a.Rajz.kozpontY, kis.kis1Y);
    std::swap(a.Rajz.kerekSugar, kis.kisSugar);
    if (a.Rajz.kerekSugar < legkisebbKisSugar) return;
    kisRadix(vaszon, a, true);
    kis.kisSugar = a.Rajz.kerekSugar;
    kisDekad(vaszon, kis, a);
}

void dekadNezet(Vaszon& vaszon, Allapot& a) {
    TKisKerekek kis = KisKerekGeometria(a.Rajz);
    DekadKerek(kozepsoKerek(vaszon, a.Rajz, 0), a.Rajz.kerekSugar, a.Uralkodok.DekadSzoveg,
               a.Rajz.szimbolumFont);
    if (kis.kisSugar < legkisebbKisSugar) return;
    kisMundan(vaszon, kis, a);
    std::swap(a.Rajz.kozpontX, kis.kis2X);
    std::swap(a.Rajz.kozpontY, kis.kis2Y);
    a.Rajz.kerekSugar = kis.kisSugar;
    kisRadix(vaszon, a, false);
}

}  // namespace

void KepletRajz(Vaszon& vaszon, Allapot& allapot) {
    vaszon.Stilus(TollStilus::folytonos);
    switch (allapot.KepletTipus) {
        case TKepletTipus::mundan:
            mundanNezet(vaszon, allapot);
            break;
        case TKepletTipus::dekad:
            dekadNezet(vaszon, allapot);
            break;
        case TKepletTipus::radix:
            radixNezet(vaszon, allapot);
            break;
    }
    OldalPanelIras(allapot.Keplet.bolygo, allapot.Keplet.hazCsucs, allapot.Rajz.panel);
    FenyszogPontSzamitas(allapot.Keplet.bolygo, allapot.Rajz.FenyszogPontok);
}
