// The title file.

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "files/cimfajl.h"
#include "tables/szoveg.h"

namespace {

using TCimek = Tomb<std::string, feliratHelyek>;

TCimek cimek(const std::string& fajl) {
    std::istringstream be(fajl);
    TCimek c;
    CimFajlOlvas(be, c);
    return c;
}

TEST(CimFajl, ASorokLegalabb200KarakteresekEsGorgethetok) {
    const TCimek c = cimek("első\nmásodik sor\r\n");
    // "első " has 5 characters: 200 / 5 + 1 = 41 times.
    EXPECT_EQ(karakterSzam(c[1]), 205);
    EXPECT_EQ(c[1].substr(0, 11), "első első");
    // 12 characters with the blank: 16 + 1 = 17 times.
    EXPECT_EQ(karakterSzam(c[2]), 204);
    EXPECT_EQ(c[3], "");
}

TEST(CimFajl, AHosszuSorEgyszerSzerepel) {
    const TCimek c = cimek(std::string(250, 'x'));
    EXPECT_EQ(c[1], std::string(250, 'x') + " ");
}

TEST(CimFajl, AKetszazKarakterAHatar) {
    // "ab " has 3 characters: 66 + 1 times; 199 with the blank are 200, which go in once and one more.
    EXPECT_EQ(karakterSzam(cimek("ab")[1]), 201);
    EXPECT_EQ(karakterSzam(cimek(std::string(199, 'x'))[1]), 400);
    EXPECT_EQ(karakterSzam(cimek(std::string(200, 'x'))[1]), 201);
}

TEST(CimFajl, AzElsoUresSorMindentUresenHagy) {
    const TCimek c = cimek("\nszöveg\n");
    for (const std::string& cim : c) EXPECT_EQ(cim, "");
}

TEST(CimFajl, AzUresSorNalMegallEsHatnalTobbetNemOlvas) {
    EXPECT_EQ(cimek("a\n\nb\n")[2], "");
    const TCimek c = cimek("a\nb\nc\nd\ne\nf\ng\n");
    EXPECT_EQ(c[6].substr(0, 2), "f ");
}

TEST(CimFajl, AKorabbiCimekbolSemmiSemMarad) {
    TCimek c;
    for (const char* fajl : {"egy\nkettő\nhárom\n", "négy\n", ""}) {
        std::istringstream be(fajl);
        CimFajlOlvas(be, c);
        for (int i = 1; i <= feliratHelyek; ++i) EXPECT_EQ(c[i], cimek(fajl)[i]) << fajl << i;
    }
    EXPECT_EQ(c[1], "");
}

TEST(CimFajl, ANemUtf8SorKodlap1250) {
    // "Őrző sor", once in code page 1250 and once in UTF-8, in the same file.
    const TCimek c = cimek("\xD5rz\xF5 sor\nŐrző sor\n");
    EXPECT_EQ(elsoKarakterek(c[1], 17), "Őrző sor Őrző sor");
    EXPECT_EQ(c[1], c[2]);
    // 9 characters with the blank: 22 + 1 = 23 times.
    EXPECT_EQ(karakterSzam(c[1]), 207);
}

TEST(CimFajl, EgyRosszBajtAzEgeszSortKodlappaTeszi) {
    EXPECT_EQ(cimek("\xC5\x91 \xF5\n")[1].substr(0, 9), "Ĺ‘ ő ");
}

TEST(CimFajl, ABajtsorrendJelNemResze) {
    EXPECT_EQ(cimek("\xEF\xBB\xBFűr\n")[1].substr(0, 4), "űr ");
    EXPECT_EQ(cimek("\xEF\xBB\xBF\n")[1], "");
}

}  // namespace
