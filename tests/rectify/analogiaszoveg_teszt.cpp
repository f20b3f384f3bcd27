// The mundane analogies in names.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "mundanteszt.h"
#include "rectify/analogiaszoveg.h"

namespace {

using TSorok = std::vector<std::string>;

/// Mars in Cancer and in the seventh house, beside the Moon, square to the Sun; Pluto in Scorpio and in the
/// second house; Leo on the eighth cusp.
TMundanErtekeles minta() {
    TMundanErtekeles e;
    e.lanc = uresLanc();
    e.lanc.JegySzam[5] = 4;
    e.lanc.BolygoHazak[5] = 7;
    e.lanc.JegySzam[10] = 8;
    e.lanc.BolygoHazak[10] = 2;
    e.lanc.EgyuttallasMatrix[5][2] = 'M';
    kvadrat(e.lanc, 1, 5);
    e.lanc.Hazcsucsok[8] = 125;
    e.analogiak.HazEgyezes = "111111101111";
    e.analogiak.AnalogiaAllapot = '0';
    return e;
}

TEST(AnalogiaSzoveg, EgyHazNevekkel) {
    EXPECT_EQ(AnalogiaOlvashato(minta(), 8),
              (TSorok{"8. Házak", "8-es Mundánház: Skorpió", "Ház ura: Mars; Plutó",
                      "Házura jegyben: Rák; Skorpió", "Házura házban: VII; 2", "Házura együttáll: Hold; –",
                      "Házban állnak: Plutó", "Fényszögpárok: Hold, Mars; –", "8-es Horizontház: Oroszlán",
                      "Ház ura: Nap", "Házura jegyben: Kos", "Házura házban: I", "Házura együttáll: –",
                      "Házban állnak: –", "Fényszögpárok: –"}));
}

TEST(AnalogiaSzoveg, AzEgyezoHazCimebenRendben) {
    const TSorok sorok = AnalogiaOlvashato(minta(), 1);
    EXPECT_EQ(sorok[0], "I. Házak: Rendben");
    EXPECT_EQ(sorok[1], "I-es Mundánház: Kos");
    // All bodies but Mars and Pluto.
    EXPECT_EQ(sorok[6], "Házban állnak: Nap, Hold, Merkúr, Vénusz, Jupiter, Szaturnusz, Uránusz, Neptun");
}

TEST(AnalogiaSzoveg, MindenHazAVerdikttel) {
    TMundanErtekeles e = minta();
    const TSorok sorok = MindenAnalogiaOlvashato(e);
    ASSERT_EQ(sorok.size(), 1U + 12 * 16);
    EXPECT_EQ(sorok[0], "Mundánházak és horizontházak analógiái NEM egyeznek!");
    for (int haz = 1; haz <= 12; ++haz) {
        const auto eleje = sorok.begin() + (1 + 16L * (haz - 1));
        EXPECT_EQ(*eleje, "");
        EXPECT_EQ(TSorok(eleje + 1, eleje + 16), AnalogiaOlvashato(e, haz)) << haz;
    }
    e.analogiak.AnalogiaAllapot = '1';
    EXPECT_EQ(MindenAnalogiaOlvashato(e)[0], "Mundánházak és horizontházak analógiái egyeznek.");
    e.analogiak.AnalogiaAllapot = '2';
    EXPECT_EQ(MindenAnalogiaOlvashato(e)[0], "Egyik tengely sem egyezik dekádban!");
}

TEST(AnalogiaSzoveg, JegyNelkuliHazcsucs) {
    TMundanErtekeles e = minta();
    e.lanc.Hazcsucsok[8] = -10;
    const TSorok sorok = AnalogiaOlvashato(e, 8);
    EXPECT_EQ(sorok[8], "8-es Horizontház: –");
    EXPECT_EQ(sorok[9], "Ház ura: –");
    EXPECT_EQ(sorok[11], "Házura házban: –");
}

}  // namespace
