// Fields of a chart, compared and shown.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "files/adatlap.h"

namespace {

using TSzovegek = std::vector<std::string>;

TAdatlap lap(int esemenyek = 0) {
    TAdatlap l;
    TKvhRekord& r = l.keplet.adat;
    r.nev = "Minta Őrs";
    r.pillanat = {1975, 7, 21, 6, 4, 9};
    r.helyseg = "Szeged";
    r.hosszusag = 72586;
    r.szelesseg = 166497;
    r.jegyzet = "jegyzet";
    r.hang = "H";
    for (int i = 1; i <= esemenyek; ++i) {
        TAdatRekord e;
        e.adat.nev = "esemény " + std::to_string(i);
        e.adat.hang = std::to_string(i % 12 + 1);
        l.esemenyek.push_back(e);
    }
    return l;
}

TEST(Adatlap, AzIdezettSzovegVezerlojeleiLathatokAHosszuLevagva) {
    EXPECT_EQ(Idezve("Őrs"), "„Őrs”");
    EXPECT_EQ(Idezve("a\nb\tc\rd\x01"), "„a\\nb\\tc\\rd\\x01”");
    EXPECT_EQ(Idezve("\xFF"), "„\\xFF”");
    EXPECT_EQ(Idezve(std::string(60, 'x')), "„" + std::string(60, 'x') + "”");
    EXPECT_EQ(Idezve(std::string(61, 'x')), "„" + std::string(60, 'x') + "…”");
}

TEST(Adatlap, ARekordCimkeje) {
    TKvhRekord r;
    EXPECT_EQ(RekordCimke(r), "névtelen");
    r.nev = "Éva";
    EXPECT_EQ(RekordCimke(r), "„Éva”");
    EXPECT_EQ(RekordCimke(r, 3), "„Éva”, 3. esemény");
}

TEST(Adatlap, AKoordinataAhogyEmberIrja) {
    EXPECT_EQ(FokSzoveg(72586, false), "20°09'46\"K");
    EXPECT_EQ(FokSzoveg(68640, false), "19°04'K");
    EXPECT_EQ(FokSzoveg(-68160, false), "18°56'Ny");
    EXPECT_EQ(FokSzoveg(171000, true), "47°30'É");
    EXPECT_EQ(FokSzoveg(-5, true), "0°00'05\"D");
    EXPECT_EQ(FokSzoveg(0, true), "0°00'É");
    EXPECT_EQ(FokSzoveg(INT32_MIN, false), "596523°14'08\"Ny");
}

TEST(Adatlap, AzonosLaponNincsElteres) {
    EXPECT_EQ(MezoElteresek(lap(3), lap(3)), TSzovegek{});
}

TEST(Adatlap, MindenMezoKulonElteres) {
    for (const TMezoLeiras& leiras : adatMezok) {
        TAdatlap mas = lap(2);
        if (leiras.szoveg)
            mas.keplet.adat.*leiras.szoveg = "más";
        else
            MezoSzam(mas.keplet.adat, leiras) += 7;
        const auto elteresek = MezoElteresek(lap(2), mas);
        ASSERT_EQ(elteresek.size(), 1U) << leiras.nev;
        EXPECT_EQ(elteresek[0].find(std::string(leiras.nev) + ": "), 0U) << elteresek[0];
    }
    for (const TMezoLeiras& leiras : adatMezok) {
        TAdatlap mas = lap(2);
        if (leiras.szoveg)
            mas.esemenyek[1].adat.*leiras.szoveg = "más";
        else
            MezoSzam(mas.esemenyek[1].adat, leiras) += 7;
        const auto elteresek = MezoElteresek(lap(2), mas);
        ASSERT_EQ(elteresek.size(), 1U) << leiras.esemenyNev;
        EXPECT_EQ(elteresek[0].find("2. esemény: " + std::string(leiras.esemenyNev) + ": "), 0U)
            << elteresek[0];
    }
}

TEST(Adatlap, AzElteresMindketErteketMondja) {
    TAdatlap mas = lap();
    mas.keplet.adat.pillanat.ora = 7;
    mas.keplet.adat.hosszusag = -68160;
    mas.keplet.adat.hang = "G";
    EXPECT_EQ(
        MezoElteresek(lap(), mas),
        (TSzovegek{"ora: 6 helyett 7", "hosszusag: 20°09'46\"K helyett 18°56'Ny", "hang: „H” helyett „G”"}));
}

TEST(Adatlap, AKerdojelreCsereltKarakterekEsALevagas) {
    TAdatlap eredeti = lap();
    TAdatlap mas = lap();
    eredeti.keplet.adat.nev = "漢a😀?";
    mas.keplet.adat.nev = "?a??";
    EXPECT_EQ(MezoElteresek(eredeti, mas),
              TSzovegek{"nev: 2 karakter helyén „?” áll, mert a kódlapból hiányzik: „漢”, „😀”"});
    eredeti.keplet.adat.nev = "őabc";
    mas.keplet.adat.nev = "őa";
    EXPECT_EQ(MezoElteresek(eredeti, mas), TSzovegek{"nev: levágva, 4 karakterből 2 maradt"});
    eredeti.keplet.adat.nev = "漢abc";
    mas.keplet.adat.nev = "?a";
    EXPECT_EQ(
        MezoElteresek(eredeti, mas),
        TSzovegek{"nev: 1 karakter helyén „?” áll, mert a kódlapból hiányzik: „漢”; levágva, 4 karakterből 2 "
                  "maradt"});
    eredeti.keplet.adat.nev = "漢漢漢漢漢漢漢";
    mas.keplet.adat.nev = "???????";
    EXPECT_EQ(
        MezoElteresek(eredeti, mas),
        TSzovegek{
            "nev: 7 karakter helyén „?” áll, mert a kódlapból hiányzik: „漢”, „漢”, „漢”, „漢”, „漢”, …"});
    eredeti.keplet.adat.nev = "a";
    mas.keplet.adat.nev = "ab";
    EXPECT_EQ(MezoElteresek(eredeti, mas), TSzovegek{"nev: „a” helyett „ab”"});
}

TEST(Adatlap, AHianyzoEsemenyekMegnevezve) {
    EXPECT_EQ(MezoElteresek(lap(2), lap(1)), TSzovegek{"2. esemény: „esemény 2” kimarad"});
    EXPECT_EQ(MezoElteresek(lap(2), lap(0)),
              (TSzovegek{"1. esemény: „esemény 1” kimarad", "2. esemény: „esemény 2” kimarad"}));
    TAdatlap kozepsoNelkul = lap(3);
    kozepsoNelkul.esemenyek.erase(kozepsoNelkul.esemenyek.begin() + 1);
    EXPECT_EQ(MezoElteresek(lap(3), kozepsoNelkul), TSzovegek{"2. esemény: „esemény 2” kimarad"});
}

}  // namespace
