// What the start reads: the computer's date and time, the title file.

#include <sstream>

#include <gtest/gtest.h>

#include "commands/rendszerido.h"
#include "files/cimfajl.h"
#include "tables/efemerida.h"
#include "tables/szoveg.h"

namespace {

TPillanat datum(const char* szoveg) {
    TPillanat p;
    EXPECT_TRUE(OlvasDatum(szoveg, p)) << szoveg;
    return p;
}

TEST(OlvasDatum, EvHoNapSorrend) {
    const TPillanat p = datum("2024.03.05");
    EXPECT_EQ(p.ev, 2024);
    EXPECT_EQ(p.ho, 3);
    EXPECT_EQ(p.nap, 5);
}

TEST(OlvasDatum, HoNapEvSorrend) {
    const TPillanat p = datum("3/25/2024");
    EXPECT_EQ(p.ev, 2024);
    EXPECT_EQ(p.ho, 3);
    EXPECT_EQ(p.nap, 25);
}

TEST(OlvasDatum, NapElolTizenkettoFelettMindkettoANapotKapja) {
    // Of 25/3/2024 the first group counts as the month; above 12 it takes the day's value, which is 3.
    TPillanat p = datum("25/3/2024");
    EXPECT_EQ(p.ho, 3);
    EXPECT_EQ(p.nap, 3);
    // With both above 12 the day number holds the month to 12.
    p = datum("25.13.2024");
    EXPECT_EQ(p.ho, 13);
    EXPECT_EQ(p.nap, 13);
    DatumbolJulianszam(p.ev, p.ho, p.nap);
    EXPECT_EQ(p.ho, 12);
}

TEST(OlvasDatum, KetElvalasztoEgymasMellettNemOlvashato) {
    TPillanat p;
    EXPECT_FALSE(OlvasDatum("2024. 03. 05.", p));
    EXPECT_FALSE(OlvasDatum("", p));
    EXPECT_FALSE(OlvasDatum("24.03.05", p));
    EXPECT_EQ(p, TPillanat{});
}

TEST(OlvasIdo, OraPercMasodperc) {
    TPillanat p;
    ASSERT_TRUE(OlvasIdo("8:05:09", p));
    EXPECT_EQ(p.ora, 8);
    EXPECT_EQ(p.perc, 5);
    EXPECT_EQ(p.mperc, 9);
    EXPECT_FALSE(OlvasIdo("8:05", p));
}

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

TEST(CimFajl, AzElsoUresSorMindentUresenHagy) {
    const TCimek c = cimek("\nszöveg\n");
    for (const std::string& cim : c) EXPECT_EQ(cim, "");
}

TEST(CimFajl, AzUresSorNalMegallEsHatnalTobbetNemOlvas) {
    EXPECT_EQ(cimek("a\n\nb\n")[2], "");
    const TCimek c = cimek("a\nb\nc\nd\ne\nf\ng\n");
    EXPECT_EQ(c[6].substr(0, 2), "f ");
}

TEST(Szoveg, KarakterenkentSzamolVagEsGordit) {
    EXPECT_EQ(karakterSzam("őrség"), 5);
    EXPECT_EQ(elsoKarakterek("őrség", 2), "őr");
    EXPECT_EQ(elsoKarakterek("ő", 20), "ő");
    std::string s = "őab";
    gordit(s);
    EXPECT_EQ(s, "abő");
    s.clear();
    gordit(s);
    EXPECT_EQ(s, "");
    EXPECT_EQ(ketJegy(9), "09");
    EXPECT_EQ(ketJegy(10), "10");
}

}  // namespace
