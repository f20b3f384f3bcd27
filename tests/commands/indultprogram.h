#pragma once

#include <cstddef>
#include <string>

#include <gtest/gtest.h>

#include "commands/indulas.h"
#include "commands/orajel.h"
#include "commands/szemelyiadatok.h"
#include "mintaszemely.h"
#include "probaablak.h"

/// The program just started, without a window.
class TIndultProgram : public testing::Test {
protected:
    TIndultProgram() {
        EXPECT_TRUE(Indulas(a, ablak, {}));
        ablak.hivasok.clear();
    }
    void orajelek(int szam) {
        for (int i = 0; i < szam; ++i) Orajel(a, ablak);
    }
    void szuletes() {
        a.Szemely.idoTipus = TIdoTipus::ZN;
        TSzemelyiAdatok m = mintaSzemely({1975, 3, 21, 6, 4, 9});
        m.jegyzet = "jegyzet";
        SzemelyiRendben(a, m);
        BevittKepletMutatasa(a, ablak);
        ablak.hivasok.clear();
    }
    std::string& panel(int i) { return a.Feliratok.statusz[static_cast<std::size_t>(i)]; }

    Allapot a;
    TProbaAblak ablak;
};
