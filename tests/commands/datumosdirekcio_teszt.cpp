// The directions of a date: the dialog's date, its search, and what is written over the picture.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "commands/datumosdirekcio.h"
#include "drawing/rogzitovaszon.h"
#include "mintakeplet.h"
#include "predictive/ingresszio.h"
#include "predictive/tercier.h"

namespace {

TPillanat atfordul(TPillanat p) {
    DatumAtfordulas(p);
    return p;
}

TEST(DatumAtfordulas, AHarminckettedikAKovetkezoHonapElseje) {
    EXPECT_EQ(atfordul({2000, 3, 32}), (TPillanat{2000, 4, 1}));
    EXPECT_EQ(atfordul({2000, 12, 32}), (TPillanat{2001, 1, 1}));
}

TEST(DatumAtfordulas, ANulladikAzElozoHonapHarmincegyedike) {
    EXPECT_EQ(atfordul({2000, 3, 0}), (TPillanat{2000, 2, 31}));
    EXPECT_EQ(atfordul({2000, 1, 0}), (TPillanat{1999, 12, 31}));
}

TEST(DatumAtfordulas, ATizenharmadikEsANulladikHonap) {
    EXPECT_EQ(atfordul({2000, 13, 5}), (TPillanat{2001, 1, 5}));
    EXPECT_EQ(atfordul({2000, 0, 5}), (TPillanat{1999, 12, 5}));
}

TEST(DatumAtfordulas, AzEvMegallDeAHonapAtfordul) {
    EXPECT_EQ(atfordul({2068, 13, 5}), (TPillanat{2068, 1, 5}));
    EXPECT_EQ(atfordul({2068, 12, 32}), (TPillanat{2068, 1, 1}));
    EXPECT_EQ(atfordul({2067, 13, 5}), (TPillanat{2068, 1, 5}));
    EXPECT_EQ(atfordul({1900, 0, 5}), (TPillanat{1900, 12, 5}));
    EXPECT_EQ(atfordul({1900, 1, 0}), (TPillanat{1900, 12, 31}));
    EXPECT_EQ(atfordul({1901, 0, 5}), (TPillanat{1900, 12, 5}));
}

TEST(DatumAtfordulas, AMezokTartomanyabanMarad) {
    for (const TPillanat& p : {TPillanat{2000, 1, 1}, TPillanat{2000, 12, 31}, TPillanat{2000, 2, 31}})
        EXPECT_EQ(atfordul(p), p);
}

constexpr TPillanat szuletesnap{1975, 7, 21, 6, 4, 9};

TEST(DatumosKereses, AzAblakMondjaMegMelyikKereses) {
    Allapot a = szuletesiKeplet(szuletesnap);
    // On the birthday of any year each body pairs with itself in the ingress, in the letters " AMA".
    a.TercierAblak = false;
    const std::string ingresszio = DatumosKereses(a, {1995, 7, 21}, 45);
    EXPECT_NE(ingresszio.find(" AMA"), std::string::npos);
    a = szuletesiKeplet(szuletesnap);
    EXPECT_EQ(ingresszio, IngresszioKeres(a, szuletesnap, {1995, 7, 21}, "Szeged"));
    a = szuletesiKeplet(szuletesnap);
    a.TercierAblak = true;
    EXPECT_EQ(DatumosKereses(a, {1995, 7, 21}, 45).find(' '), std::string::npos);
}

TEST(DatumosKereses, ATercierOrbisaNapokban) {
    int szelesebb = 0;
    for (int ev = 1980; ev < 2040; ++ev) {
        Allapot a = szuletesiKeplet(szuletesnap);
        const std::string szuk = DatumosKereses(a, {ev, 5, 6}, 1);
        a = szuletesiKeplet(szuletesnap);
        const std::string tag = DatumosKereses(a, {ev, 5, 6}, 99);
        EXPECT_GE(tag.size(), szuk.size());
        szelesebb += tag.size() > szuk.size();
        a = szuletesiKeplet(szuletesnap);
        EXPECT_EQ(tag, TercierKeres(a, szuletesnap, {ev, 5, 6}, "Szeged", 99).TercierSzoveg);
    }
    EXPECT_GT(szelesebb, 10);
}

TEST(DatumosKereses, AMunkatombokUgyMaradnakAhogyAKeresesHagyja) {
    for (const bool tercier : {true, false}) {
        Allapot a = szuletesiKeplet({2000, 5, 6, 17, 20, 0});
        a.SzuletesiPillanat = szuletesnap;
        a.TercierAblak = tercier;
        const TKeplet elotte = a.Keplet;
        Allapot kereses = a;
        if (tercier)
            TercierKeres(kereses, szuletesnap, {1995, 7, 21}, "Szeged", 45);
        else
            IngresszioKeres(kereses, szuletesnap, {1995, 7, 21}, "Szeged");
        const TKeplet& munka = kereses.Keplet;
        EXPECT_NE(munka.Bolygok, elotte.Bolygok);
        EXPECT_NE(munka.Mozgasok, elotte.Mozgasok);
        DatumosKereses(a, {1995, 7, 21}, 45);
        EXPECT_EQ(a.Keplet.Bolygok, munka.Bolygok);
        EXPECT_EQ(a.Keplet.Mozgasok, munka.Mozgasok);
        EXPECT_EQ(a.Keplet.BolygoHazak, munka.BolygoHazak);
        EXPECT_EQ(a.Keplet.Hazcsucsok, munka.Hazcsucsok);
        EXPECT_EQ(a.Keplet.pillanat, elotte.pillanat);
        EXPECT_EQ(a.Keplet.julianszam, elotte.julianszam);
        EXPECT_EQ(a.Keplet.helyseg, elotte.helyseg);
        EXPECT_EQ(a.Keplet.mozgas, elotte.mozgas);
    }
}

TEST(DatumosVerdikt, AKeresesSzovegei) {
    Allapot a;
    a.TercierAblak = true;
    EXPECT_STREQ(DatumosVerdikt(a).van, "Van direkció!");
    a.TercierAblak = false;
    EXPECT_STREQ(DatumosVerdikt(a).van, "Van inresszió!");
}

TEST(DatumosRendben, AprilisHarmincegyMajusElseje) {
    Allapot a;
    ASSERT_TRUE(a.Megsem3);
    a.TercierDatum = {2024, 3, 5, 8, 15, 7};  // the start's moment; the dialog's has no time
    DatumosRendben(a, {2001, 4, 31}, 17);
    EXPECT_EQ(a.TercierDatum, (TPillanat{2001, 5, 1}));
    EXPECT_EQ(a.TercierOrbisNap, 17.0);
    EXPECT_FALSE(a.Megsem3);
}

std::vector<TMuvelet> kiirva(bool tercier, const std::string& talalatok) {
    Allapot a;
    a.TercierAblak = tercier;
    a.TercierDatum = {2001, 5, 1};
    a.Rajz.szimbolumFont = "Jelek";
    RogzitoVaszon vaszon;
    DatumosKiiras(vaszon, a, talalatok);
    return vaszon.muveletek();
}

const TSzovegMuvelet datum{55, 7, "2001.05.01. ", "Ariel", 24};

TEST(DatumosKiiras, ADatumEsATalalatokASzimbolumokBetuivel) {
    EXPECT_EQ(kiirva(true, "aAMbB"),
              (std::vector<TMuvelet>{datum, TSzovegMuvelet{175, 7, "aAMbB", "Jelek", 24}}));
}

TEST(DatumosKiiras, TalalatNelkulAKeresesSajatSzovege) {
    EXPECT_EQ(kiirva(true, ""),
              (std::vector<TMuvelet>{datum, TSzovegMuvelet{175, 7, "Nincs tercier direkció!", "Ariel", 24}}));
    EXPECT_EQ(
        kiirva(false, ""),
        (std::vector<TMuvelet>{datum, TSzovegMuvelet{175, 7, "Nincs szolár-ingresszió!", "Ariel", 24}}));
}

}  // namespace
