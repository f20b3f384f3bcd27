// Charts from outside against the program's tables and ranges.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "files/adatellenorzes.h"

namespace {

using TSzovegek = std::vector<std::string>;

TKvhRekord szegedi() {
    TKvhRekord r;
    r.pillanat = {1975, 7, 21, 6, 4, 9};
    r.helyseg = "Szeged";
    r.hosszusag = 72586;
    r.szelesseg = 166497;
    return r;
}

TEST(AdatEllenorzes, ATelepulesCsakPontosNevvelIsmert) {
    ASSERT_NE(IsmertTelepules("Szeged"), nullptr);
    EXPECT_EQ(IsmertTelepules("Szeged")->hosszusag, 72586);
    EXPECT_NE(IsmertTelepules("Budapest"), nullptr);
    EXPECT_EQ(IsmertTelepules("budapest"), nullptr);
    EXPECT_EQ(IsmertTelepules("Prága"), nullptr);
    EXPECT_EQ(IsmertTelepules(""), nullptr);
}

TEST(AdatEllenorzes, AKulfoldiTelepulesek) {
    EXPECT_TRUE(HazaiTelepules("Zubogy"));
    EXPECT_FALSE(HazaiTelepules("Róma"));
    EXPECT_FALSE(HazaiTelepules("Wadowice"));
    EXPECT_FALSE(HazaiTelepules("Bécs"));
    EXPECT_FALSE(HazaiTelepules("Prága"));
    EXPECT_EQ(TelepulesOrszaga(*IsmertTelepules("Bécs")), "A");
    EXPECT_EQ(TelepulesOrszaga(*IsmertTelepules("Róma")), "I");
    EXPECT_EQ(TelepulesOrszaga(*IsmertTelepules("Wadowice")), "PL");
    EXPECT_EQ(TelepulesOrszaga(*IsmertTelepules("Aba")), "H");
}

TEST(AdatEllenorzes, ATartomanyokVegei) {
    EXPECT_EQ(TartomanyHibak(szegedi(), false), TSzovegek{});
    for (const TMezoLeiras& leiras : adatMezok) {
        if (leiras.szoveg) continue;
        TKvhRekord r = szegedi();
        for (const std::int32_t jo : {leiras.also, leiras.felso}) {
            MezoSzam(r, leiras) = jo;
            EXPECT_EQ(TartomanyHibak(r, false), TSzovegek{}) << leiras.nev;
        }
        for (const std::int32_t rossz : {leiras.also - 1, leiras.felso + 1}) {
            MezoSzam(r, leiras) = rossz;
            const auto hibak = TartomanyHibak(r, false);
            ASSERT_EQ(hibak.size(), 1U) << leiras.nev << rossz;
            EXPECT_EQ(hibak[0].find(std::string(leiras.nev) + ": "), 0U);
        }
    }
}

TEST(AdatEllenorzes, ATartomanyonKivuliMezokMegnevezve) {
    TKvhRekord r = szegedi();
    r.pillanat = {1899, 13, 32, 24, 60, 60};
    EXPECT_EQ(TartomanyHibak(r, false),
              (TSzovegek{"ev: 1899, 1900 és 2078 között kell lennie", "ho: 13, 1 és 12 között kell lennie",
                         "nap: 32, 1 és 31 között kell lennie", "ora: 24, 0 és 23 között kell lennie",
                         "perc: 60, 0 és 59 között kell lennie", "mperc: 60, 0 és 59 között kell lennie"}));
    r = szegedi();
    r.idozona = 13;
    r.nyariIdo = 2;
    r.hosszusag = -648001;
    r.szelesseg = 324001;
    EXPECT_EQ(
        TartomanyHibak(r, false),
        (TSzovegek{"idozona: 13, -12 és 12 között kell lennie", "nyariIdo: 2, 0 és 1 között kell lennie",
                   "hosszusag: 180°00'01\"Ny, 180°00'Ny és 180°00'K között kell lennie",
                   "szelesseg: 90°00'01\"É, 90°00'D és 90°00'É között kell lennie"}));
}

TEST(AdatEllenorzes, AzEsemenyHaza0Es12Kozott) {
    TKvhRekord r = szegedi();
    for (const char* jo : {"0", "1", "12"}) {
        r.hang = jo;
        EXPECT_EQ(TartomanyHibak(r, true), TSzovegek{}) << jo;
    }
    for (const char* rossz : {"", "13", "-1", "x", "5x"}) {
        r.hang = rossz;
        EXPECT_EQ(TartomanyHibak(r, true).size(), 1U) << rossz;
        EXPECT_EQ(TartomanyHibak(r, false), TSzovegek{}) << rossz;
    }
}

TEST(AdatEllenorzes, AHaztablakSavja) {
    TKvhRekord r;
    for (const std::int32_t jo : {42 * 3600, 60 * 3600, 171000}) {
        r.szelesseg = jo;
        EXPECT_EQ(SzelessegHibak(r), TSzovegek{}) << jo;
    }
    r.szelesseg = 42 * 3600 - 1;
    EXPECT_EQ(SzelessegHibak(r), TSzovegek{"szelesseg: 41°59'59\"É, a háztáblák 42° és 60° között valók"});
    r.szelesseg = 60 * 3600 + 1;
    EXPECT_EQ(SzelessegHibak(r).size(), 1U);
    r.szelesseg = 0;
    EXPECT_EQ(SzelessegHibak(r), TSzovegek{"szelesseg: 0°00'É, a háztáblák 42° és 60° között valók"});
    r.szelesseg = -1;
    EXPECT_EQ(SzelessegHibak(r), TSzovegek{"szelesseg: 0°00'01\"D, déli szélességre nincs háztábla"});
}

TEST(AdatEllenorzes, ATablakkalEgyezoKepletrolNincsSzo) {
    EXPECT_EQ(TablaElteresek(szegedi()), TSzovegek{});
}

TEST(AdatEllenorzes, AZonaEsANyariIdoATablakkalSzemben) {
    TKvhRekord r = szegedi();
    r.idozona = 2;
    r.nyariIdo = 1;
    EXPECT_EQ(TablaElteresek(r), (TSzovegek{"idozona: 2, a helységtábla szerint 1",
                                            "nyariIdo: 1, a nyári idő táblája szerint 0"}));
    r = szegedi();
    r.pillanat = {2000, 3, 26, 2, 0, 0};  // summer time begins
    EXPECT_EQ(TablaElteresek(r), TSzovegek{"nyariIdo: 0, a nyári idő táblája szerint 1"});
    r.pillanat = {2000, 3, 26, 1, 59, 59};
    EXPECT_EQ(TablaElteresek(r), TSzovegek{});
}

TEST(AdatEllenorzes, AKoordinataEgyIvpercenBelulEgyezik) {
    TKvhRekord r = szegedi();
    r.hosszusag = 72540;  // 20°09', as the dialog keeps it
    r.szelesseg = 166440;
    EXPECT_EQ(TablaElteresek(r), TSzovegek{});
    r.hosszusag = 72586 + 59;
    r.szelesseg = 166497 - 59;
    EXPECT_EQ(TablaElteresek(r), TSzovegek{});
    r.hosszusag = 72586 + 60;
    r.szelesseg = 166497 - 60;
    EXPECT_EQ(TablaElteresek(r), (TSzovegek{"hosszusag: 20°10'46\"K, a helységtábla szerint 20°09'46\"K",
                                            "szelesseg: 46°13'57\"É, a helységtábla szerint 46°14'57\"É"}));
}

TEST(AdatEllenorzes, AzIsmeretlenHelyrolCsakEnnyitTudunk) {
    TKvhRekord r = szegedi();
    r.helyseg = "New York";
    r.idozona = -5;
    r.nyariIdo = 1;
    EXPECT_EQ(TablaElteresek(r),
              TSzovegek{"helyseg: „New York” nincs a helységtáblában, időzónája és nyári ideje nem "
                        "ellenőrizhető"});
}

TEST(AdatEllenorzes, RomaNyariIdejerolATablaNemTud) {
    TKvhRekord r;
    r.pillanat = {2000, 7, 1, 12, 0, 0};
    r.helyseg = "Róma";
    r.hosszusag = 45000;
    r.szelesseg = 151200;
    EXPECT_EQ(TablaElteresek(r), TSzovegek{});
}

TEST(AdatEllenorzes, ANemLetezoNap) {
    TKvhRekord r = szegedi();
    r.pillanat = {1999, 2, 31, 6, 0, 0};
    EXPECT_EQ(TablaElteresek(r), TSzovegek{"nap: nincs ilyen nap, a program ezzel számol: 1999. 03. 03."});
    r.pillanat = {2000, 2, 29, 6, 0, 0};
    EXPECT_EQ(TablaElteresek(r), TSzovegek{});
}

TEST(AdatEllenorzes, TartomanyonKivuliPillanatraATablakatNemKerdezi) {
    TKvhRekord r = szegedi();
    r.nyariIdo = 1;
    r.pillanat = {1850, 2, 31, 6, 0, 0};
    EXPECT_EQ(TablaElteresek(r), TSzovegek{});
    r.pillanat = {2000, 7, 1, INT32_MAX, 0, 0};
    EXPECT_EQ(TablaElteresek(r), TSzovegek{});
}

TEST(AdatEllenorzes, AHianyzoHelyAdatokATablabol) {
    TAdatRekord r;
    r.adat.pillanat = {2000, 7, 1, 12, 0, 0};
    r.adat.helyseg = "Szeged";
    r.adat.idozona = r.adat.nyariIdo = r.adat.hosszusag = r.adat.szelesseg = 99;
    for (const TMezo mezo : {TMezo::idozona, TMezo::nyariIdo, TMezo::hosszusag, TMezo::szelesseg})
        r.hianyzo(mezo);
    TAdatRekord esemeny = r;
    TSzovegek kozlesek;
    EXPECT_EQ(Kiegeszites(r, false, kozlesek), "");
    EXPECT_EQ(r.adat.idozona, 1);
    EXPECT_EQ(r.adat.nyariIdo, 1);
    EXPECT_EQ(r.adat.hosszusag, 72586);
    EXPECT_EQ(r.adat.szelesseg, 166497);
    EXPECT_TRUE(r.hianyzik.none());
    EXPECT_EQ(kozlesek, (TSzovegek{"idozona, hosszusag, szelesseg: nincs megadva, a helységtáblából való",
                                   "nyariIdo: nincs megadva, a nyári idő táblája szerint 1"}));
    EXPECT_EQ(Kiegeszites(esemeny, true, kozlesek), "");
    EXPECT_EQ(esemeny.adat.hosszusag, 72540);
    EXPECT_EQ(esemeny.adat.szelesseg, 166440);
}

TEST(AdatEllenorzes, AMegadottMezokMegmaradnak) {
    TAdatRekord r;
    r.adat = szegedi();
    r.adat.idozona = -3;
    r.adat.hosszusag = 5;
    r.adat.nyariIdo = 1;
    r.hianyzo(TMezo::szelesseg);
    TSzovegek kozlesek;
    EXPECT_EQ(Kiegeszites(r, false, kozlesek), "");
    EXPECT_EQ(r.adat.idozona, -3);
    EXPECT_EQ(r.adat.hosszusag, 5);
    EXPECT_EQ(r.adat.nyariIdo, 1);
    EXPECT_EQ(r.adat.szelesseg, 166497);
}

TEST(AdatEllenorzes, AzIsmeretlenHelyHianyaiNemPotolhatok) {
    TAdatRekord r;
    r.adat = szegedi();
    r.adat.helyseg = "Prága";
    TSzovegek kozlesek;
    EXPECT_EQ(Kiegeszites(r, false, kozlesek), "");
    r.hianyzo(TMezo::hosszusag);
    EXPECT_EQ(Kiegeszites(r, false, kozlesek),
              "hosszusag: nincs megadva, és a helység, „Prága”, nincs a helységtáblában");
    r.hianyzo(TMezo::hosszusag, false);
    r.hianyzo(TMezo::nyariIdo);
    r.adat.nyariIdo = 1;
    EXPECT_EQ(Kiegeszites(r, false, kozlesek), "");
    EXPECT_EQ(r.adat.nyariIdo, 0);
    EXPECT_EQ(kozlesek, TSzovegek{"nyariIdo: nincs megadva, 0"});
}

}  // namespace
