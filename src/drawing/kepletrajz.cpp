#include "drawing/kepletrajz.h"

#include <utility>

#include "drawing/bolygorajz.h"
#include "drawing/fenyszograjz.h"
#include "drawing/geometria.h"
#include "drawing/keretek.h"
#include "drawing/oldalpanel.h"
#include "drawing/rendezett.h"

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
    KisMundanBolygok(kerek, kis.kisSugar, a);
    KisMundanJegyek(kerek, kis.kisSugar, a.Rajz.szimbolumFont);
    KisFenyszogVonalak(kerek, kis.kisSugar, a);
}

void kisDekad(Vaszon& vaszon, const TKisKerekek& kis, const Allapot& a) {
    const TKerek kerek(vaszon, kis.kis2X, kis.kis2Y, 0);
    KisDekadKerek(kerek, kis.kisSugar, TollVastagsag(2, a.Rajz.kerekSugar), a);
}

/// Radix wheel at the small centre and radius in force, without labels or aspects.
void kisRadix(Vaszon& vaszon, Allapot& a, bool r2Kor) {
    const TSugarak s = GyuruSugarak(a.Rajz.kerekSugar, a.Rajz.nyomtatasMod);
    const TKerek kerek = kozepsoKerek(vaszon, a.Rajz, a.Rajz.forgatas);
    RadixKeret(kerek, s, a, r2Kor);
    rendezettUjra(a);
    BolygoJelek(kerek, s, a);
    MutatoVonalak(kerek, s, a, tobbiMutato);
}

void radixNezet(Vaszon& vaszon, Allapot& a) {
    const TSugarak s = GyuruSugarak(a.Rajz.kerekSugar, a.Rajz.nyomtatasMod);
    const TKisKerekek kis = KisKerekGeometria(a.Rajz);
    const TKerek kerek = kozepsoKerek(vaszon, a.Rajz, a.Rajz.forgatas);
    RadixKeret(kerek, s, a, true);
    FenyszogVonalak(kerek, s.bolygo, a);
    TengelyFenyszogek(kerek, s, a);
    rendezettUjra(a);
    BolygoJelek(kerek, s, a);
    FokFeliratok(kerek, s, a);
    MutatoVonalak(kerek, s, a, nagyRadixMutato);
    if (kis.kisSugar < legkisebbKisSugar) return;
    kisMundan(vaszon, kis, a);
    kisDekad(vaszon, kis, a);
}

void mundanNezet(Vaszon& vaszon, Allapot& a) {
    const TSugarak s = GyuruSugarak(a.Rajz.kerekSugar, a.Rajz.nyomtatasMod);
    TKisKerekek kis = KisKerekGeometria(a.Rajz);
    const TKerek kerek = kozepsoKerek(vaszon, a.Rajz, 0);
    MundanKeret(kerek, s, a);
    FenyszogVonalak(kerek, s.bolygo, a);
    rendezettUjra(a);
    BolygoJelek(kerek, s, a);
    MutatoVonalak(kerek, s, a, tobbiMutato);

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
    DekadKerek(kozepsoKerek(vaszon, a.Rajz, 0), a);
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
        case 2:
            mundanNezet(vaszon, allapot);
            break;
        case 3:
            dekadNezet(vaszon, allapot);
            break;
        default:
            radixNezet(vaszon, allapot);
            break;
    }
    OldalPanelIras(allapot);
    FenyszogPontSzamitas(allapot);
}
