// The computer's date and time, read from their texts.

#include <gtest/gtest.h>

#include "commands/rendszerido.h"
#include "tables/efemerida.h"

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

TEST(OlvasDatum, ADecemberHonapATizenharmadikMarNem) {
    for (const char* szoveg : {"2024.12.05", "12/05/2024"}) {
        const TPillanat p = datum(szoveg);
        EXPECT_EQ(p.ho, 12) << szoveg;
        EXPECT_EQ(p.nap, 5) << szoveg;
    }
    EXPECT_EQ(datum("13/5/2024").ho, 5);
    EXPECT_EQ(datum("13/5/2024").nap, 5);
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

}  // namespace
