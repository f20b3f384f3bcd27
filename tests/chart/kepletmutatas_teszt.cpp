#include <gtest/gtest.h>

#include "chart/kepletmutatas.h"
#include "probaablak.h"

namespace {

/// Notes the showing of the texts too, and whether a paint request would have drawn when the picture was.
class TJegyzoAblak : public TProbaAblak {
public:
    explicit TJegyzoAblak(const Allapot& allapot) : allapot_(allapot) {}
    void Mutat() override { hivasok.emplace_back("Mutat"); }
    void RajzolKeplet() override {
        TProbaAblak::RajzolKeplet();
        torlesRajzkor = allapot_.TeljesTorles;
    }
    bool torlesRajzkor = true;

private:
    const Allapot& allapot_;
};

TEST(KepletMutatas, ASzovegekAFestesKeresARajzVegulAListak) {
    Allapot a;
    a.PontositasFut = a.PrimerFut = true;
    TJegyzoAblak ablak(a);
    KepletMutatas(a, ablak);
    EXPECT_EQ(ablak.hivasok,
              (THivasok{"Mutat", "Ervenytelenit", "RajzolKeplet", "PontositasFuttat", "PrimerFuttat"}));
}

TEST(KepletMutatas, AFestesKeresMarARajzElottRajzolhat) {
    Allapot a;
    ASSERT_TRUE(a.TeljesTorles);
    TJegyzoAblak ablak(a);
    KepletMutatas(a, ablak);
    EXPECT_FALSE(ablak.torlesRajzkor);
    EXPECT_FALSE(a.TeljesTorles);
}

TEST(KepletMutatas, AListakCsakHaFutnak) {
    for (const bool pontositas : {false, true}) {
        for (const bool primer : {false, true}) {
            Allapot a;
            a.PontositasFut = pontositas;
            a.PrimerFut = primer;
            TProbaAblak ablak;
            KepletMutatas(a, ablak);
            THivasok vart{"Ervenytelenit", "RajzolKeplet"};
            if (pontositas) vart.emplace_back("PontositasFuttat");
            if (primer) vart.emplace_back("PrimerFuttat");
            EXPECT_EQ(ablak.hivasok, vart);
        }
    }
}

TEST(IranyListak, APontositasElobbRajzNelkul) {
    Allapot a;
    a.PontositasFut = a.PrimerFut = true;
    TProbaAblak ablak;
    IranyListak(a, ablak);
    EXPECT_EQ(ablak.hivasok, (THivasok{"PontositasFuttat", "PrimerFuttat"}));
    EXPECT_TRUE(a.TeljesTorles);
}

}  // namespace
