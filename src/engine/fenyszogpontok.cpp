#include "engine/fenyszogpontok.h"

#include "tables/szotar.h"

void FenyszogPontSzamitas(const TBolygok& bolygo, TFenyszogPontok& FenyszogPontok) {
    for (int i = 1; i <= 10; ++i) {
        FenyszogPontok[i][1] = bolygo[i];
        for (int k = 2; k <= 16; ++k) {
            const double s = bolygo[i] + FenyszogEltolasok[k];
            FenyszogPontok[i][k] = s < 0 ? s + 360 : s >= 360 ? s - 360 : s;
        }
    }
}
