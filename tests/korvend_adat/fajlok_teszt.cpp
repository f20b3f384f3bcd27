// File names and the writing of files.

#include <string>

#include <gtest/gtest.h>

#include "adatteszt.h"
#include "fajlok.h"
#include "files/fajlmuvelet.h"

namespace {

namespace fs = std::filesystem;

TEST(KepletFajlNev, ARendesNevMarad) {
    for (const char* nev : {"Kovács Éva", "Őrült tűzhely", "a.b", "Dr. Kiss (2)", "漢😀", "console", "com10"})
        EXPECT_EQ(KepletFajlNev(nev), nev);
}

TEST(KepletFajlNev, SosemUresEsSosemUt) {
    EXPECT_EQ(KepletFajlNev(""), "névtelen");
    EXPECT_EQ(KepletFajlNev("a/b"), "a-b");
}

TEST(KepletFajlNev, LegfeljebbHatvanKarakterEsKetszazBajt) {
    EXPECT_EQ(KepletFajlNev(std::string(100000, 'x')), std::string(60, 'x'));
    std::string hosszu;
    for (int i = 0; i < 300; ++i) hosszu += "😀";
    EXPECT_EQ(KepletFajlNev(hosszu).size(), 200U);
}

TEST(FajlNevek, AMasodikAzonosNevSzamotKap) {
    TFajlNevek nevek;
    EXPECT_EQ(nevek.uj("Új képlet"), "Új képlet");
    EXPECT_EQ(nevek.uj("Új képlet"), "Új képlet (2)");
    EXPECT_EQ(nevek.uj("Új képlet (3)"), "Új képlet (3)");
    EXPECT_EQ(nevek.uj("Új képlet"), "Új képlet (4)");
    EXPECT_EQ(nevek.uj("a/b"), "a-b");
    EXPECT_EQ(nevek.uj("a:b"), "a-b (2)");
}

TEST(FajlNevek, ACsakNagybetubenElteroNevAzonos) {
    TFajlNevek nevek;
    EXPECT_EQ(nevek.uj("ŐRÜLT ÉVA"), "ŐRÜLT ÉVA");
    EXPECT_EQ(nevek.uj("őrült éva"), "őrült éva (2)");
    EXPECT_EQ(nevek.uj("Őrült Éva"), "Őrült Éva (3)");
    EXPECT_EQ(nevek.uj("ŰZ"), "ŰZ");
    EXPECT_EQ(nevek.uj("űz"), "űz (2)");
    EXPECT_EQ(nevek.uj("a×b"), "a×b");
    EXPECT_EQ(nevek.uj("a÷b"), "a÷b");  // multiplication and division sign are no letters
}

TEST(FajlNevek, ASzamozottNevReszei) {
    using TReszek = std::pair<std::string, int>;
    EXPECT_EQ(SzamozottNev("Új képlet"), TReszek("Új képlet", 0));
    EXPECT_EQ(SzamozottNev("Új képlet (12)"), TReszek("Új képlet", 12));
    EXPECT_EQ(SzamozottNev("a (2) (3)"), TReszek("a (2)", 3));
    for (const char* nev : {"a (x)", "a (2", "a(2)", "a (2) b", "a ()", "a (99999999999)", "a (2x)"})
        EXPECT_EQ(SzamozottNev(nev), TReszek(nev, 0));
}

TEST(FajlNevek, SokAzonosNevIsGyors) {
    TFajlNevek nevek;
    std::string utolso;
    for (int i = 0; i < 50000; ++i) utolso = nevek.uj("X");
    EXPECT_EQ(utolso, "X (50000)");
}

TEST(Fajlok, AzUtvonalEsASzovegeUtf8) {
    EXPECT_EQ(UtvonalSzoveg(FajlUt("Őrült tűzhely/漢.kvh")), "Őrült tűzhely/漢.kvh");
    EXPECT_EQ(Vegzodes(FajlUt("a/b.KVH")), ".kvh");
    EXPECT_EQ(Vegzodes(FajlUt("a.b/c")), "");
    const TIdeiglenesMappa mappa;
    irj(mappa / "Őrült tűzhely.kvh", "tartalom");
    EXPECT_EQ(FajlBajtok(FajlUt(mappa.ut().string() + "/Őrült tűzhely.kvh")), "tartalom");
}

TEST(Fajlok, AzOlvasas) {
    const TIdeiglenesMappa mappa;
    const std::string nagy(200000, 'x');
    irj(mappa / "nagy", nagy);
    EXPECT_EQ(FajlBajtok(mappa / "nagy"), nagy);
    EXPECT_EQ(FajlBajtok(mappa / "nagy", 7), "xxxxxxx");
    EXPECT_EQ(FajlBajtok(mappa / "nincs"), std::nullopt);
    EXPECT_EQ(FajlBajtok(mappa.ut().string()), std::nullopt);
}

std::size_t elemekSzama(const TIdeiglenesMappa& mappa) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(mappa.ut().string()), fs::directory_iterator()));
}

TEST(Fajlok, AzIrasMindentVagySemmit) {
    const TIdeiglenesMappa mappa;
    EXPECT_TRUE(FajlbaIr(mappa / "a", "első"));
    EXPECT_TRUE(FajlbaIr(mappa / "a", "második"));
    EXPECT_EQ(olvasd(mappa / "a"), "második");
    EXPECT_FALSE(FajlbaIr(mappa / "nincs/a", "x"));
    fs::create_directory(mappa / "b");
    EXPECT_FALSE(FajlbaIr(mappa / "b", "x"));
    EXPECT_FALSE(FajlbaIr("/dev/full", "x"));
    EXPECT_EQ(elemekSzama(mappa), 2U);  // nothing is left beside them
}

#ifndef _WIN32  // links and modes as POSIX systems have them
TEST(Fajlok, AzIrasAKapcsolatotEsAModotMeghagyja) {
    const TIdeiglenesMappa mappa;
    irj(mappa / "igazi", "régi");
    fs::permissions(mappa / "igazi", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(mappa / "igazi", mappa / "kapcsolat");
    EXPECT_TRUE(FajlbaIr(mappa / "kapcsolat", "új"));
    EXPECT_TRUE(fs::is_symlink(mappa / "kapcsolat"));
    EXPECT_EQ(olvasd(mappa / "igazi"), "új");
    EXPECT_EQ(fs::status(mappa / "igazi").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}
#endif

}  // namespace
