// Plain file names and extensions.

#include <string>

#include <gtest/gtest.h>

#include "files/fajlnev.h"
#include "tables/szoveg.h"

namespace {

TEST(FajlNev, ARendesNevMarad) {
    EXPECT_EQ(FajlNev("Őrző Árpád"), "Őrző Árpád");
    EXPECT_EQ(FajlNev("Dr. Kiss-Nagy (Éva) 2."), "Dr. Kiss-Nagy (Éva) 2-");
    EXPECT_EQ(FajlNev(""), "");
}

TEST(FajlNev, AzUtJeleibolSosemLeszUt) {
    EXPECT_EQ(FajlNev("Kiss/Nagy"), "Kiss-Nagy");
    EXPECT_EQ(FajlNev("../../x"), "---..-x");
    EXPECT_EQ(FajlNev("/etc/passwd"), "-etc-passwd");
    EXPECT_EQ(FajlNev("C:\\x"), "C--x");
    EXPECT_EQ(FajlNev("."), "-");
    EXPECT_EQ(FajlNev(".."), "--");
}

TEST(FajlNev, AMasRendszerenTiltottJelekIsKotojelek) {
    EXPECT_EQ(FajlNev("a*b?c\"d<e>f|g"), "a-b-c-d-e-f-g");
    EXPECT_EQ(FajlNev(std::string("a\0b\nc\td\x1F"
                                  "e\x7F"
                                  "f",
                                  11)),
              "a-b-c-d-e-f");
    EXPECT_EQ(FajlNev("a\xC2\x80"
                      "b\xC2\x9F"
                      "c\xC2\xA7"),  // the first two are control characters, the third is the section sign
              "a-b-c§");
}

TEST(FajlNev, ASzeleiSzokozokEsPontokIsKotojelek) {
    EXPECT_EQ(FajlNev(" . Anna"), "---Anna");
    EXPECT_EQ(FajlNev("Anna. "), "Anna--");
    EXPECT_EQ(FajlNev("A. B"), "A. B");
    EXPECT_EQ(FajlNev("   "), "---");
}

TEST(FajlNev, AzEszkozokNeveEleKotojelKerul) {
    EXPECT_EQ(FajlNev("CON"), "-CON");
    EXPECT_EQ(FajlNev("nul.kovács"), "-nul.kovács");
    EXPECT_EQ(FajlNev("Lpt9"), "-Lpt9");
    EXPECT_EQ(FajlNev("console"), "console");
    EXPECT_EQ(FajlNev("com10"), "com10");
}

TEST(FajlNev, ARosszBajtKotojel) {
    EXPECT_EQ(FajlNev("a\xFF"
                      "b"),
              "a-b");
}

TEST(FajlNev, AHosszuNevKarakterhatarnalVagva) {
    EXPECT_EQ(FajlNev(std::string(300, 'x')), std::string(200, 'x'));
    const std::string nev =
        FajlNev("x" + std::string(100, 'y') + "űűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűűű");
    EXPECT_LE(nev.size(), 200U);
    EXPECT_TRUE(ervenyesUtf8(nev));
    EXPECT_EQ(FajlNev(std::string(199, 'x') + " y"), std::string(199, 'x') + "-");
}

TEST(Kiterjesztes, CsakAzKapjaAkinekNincs) {
    EXPECT_EQ(Kiterjesztessel("/m/Anna", ".kvh"), "/m/Anna.kvh");
    EXPECT_EQ(Kiterjesztessel("/m/Anna.kvh", ".kvh"), "/m/Anna.kvh");
    EXPECT_EQ(Kiterjesztessel("/m/Anna.KVH", ".kvh"), "/m/Anna.KVH");
    EXPECT_EQ(Kiterjesztessel("/m/Anna.dat", ".kvh"), "/m/Anna.dat");
    EXPECT_EQ(Kiterjesztessel("Anna", ".kvh"), "Anna.kvh");
    EXPECT_EQ(Kiterjesztessel("/m/.kvh", ".kvh"), "/m/.kvh");
}

TEST(Kiterjesztes, ANevBelsejenekPontjaNemKiterjesztes) {
    EXPECT_EQ(Kiterjesztessel("Dr. Kiss", ".kvh"), "Dr. Kiss.kvh");
    EXPECT_EQ(Kiterjesztessel("Anna 1975.03.21", ".kvh"), "Anna 1975.03.21.kvh");
    EXPECT_EQ(Kiterjesztessel("hang.7z", ".kvh"), "hang.7z");
    EXPECT_EQ(Kiterjesztessel("kep.aAzZ09", ".kvh"), "kep.aAzZ09");
    for (const char jel : {'@', '[', '`', '{', ':'})
        EXPECT_EQ(Kiterjesztessel(std::string("a.b") + jel, ".kvh"), std::string("a.b") + jel + ".kvh");
    EXPECT_EQ(Kiterjesztessel("Anna.", ".kvh"), "Anna.kvh");
    EXPECT_EQ(Kiterjesztessel("Kiss.Ő", ".kvh"), "Kiss.Ő.kvh");
}

TEST(Kiterjesztes, AMappaPontjaNemSzamit) {
    EXPECT_EQ(Kiterjesztessel("/m.regi/Anna", ".kvh"), "/m.regi/Anna.kvh");
    EXPECT_EQ(Kiterjesztessel("/m.regi/", ".kvh"), "/m.regi/");
    EXPECT_EQ(Kiterjesztessel("", ".kvh"), "");
}

}  // namespace
