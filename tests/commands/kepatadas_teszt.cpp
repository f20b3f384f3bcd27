#include <gtest/gtest.h>

#include "commands/kepatadas.h"
#include "commands/nezet.h"
#include "commands/nyomtatas.h"
#include "drawing/geometria.h"
#include "drawing/kepletrajz.h"
#include "drawing/rogzitovaszon.h"
#include "indultprogram.h"

using KepAtadas = TIndultProgram;

namespace {

constexpr int szelesseg = 987;
constexpr int magassag = 644;

/// The drawing on screen.
std::vector<TMuvelet> kepernyo(Allapot& a) {
    RogzitoVaszon vaszon;
    AblakGeometria(a.Rajz, a.Keplet.hazCsucs[1], szelesseg, magassag);
    KepletRajz(vaszon, a);
    return vaszon.muveletek();
}

std::vector<TMuvelet> atadott(const Allapot& a, const TKepletKep& kep) {
    RogzitoVaszon vaszon;
    KepRajz(vaszon, a, kep);
    return vaszon.muveletek();
}

}  // namespace

TEST_F(KepAtadas, MindenNezetKepeAKepernyoe) {
    szuletes();
    for (const auto nezet : {TKepletTipus::radix, TKepletTipus::mundan, TKepletTipus::dekad}) {
        NezetBeallitas(a, nezet);
        kepernyo(a);  // the Dekád view settles in its second drawing
        const auto latott = kepernyo(a);
        EXPECT_GT(latott.size(), 100u);
        EXPECT_TRUE(atadott(a, {szelesseg, magassag, {}}) == latott);
    }
}

TEST_F(KepAtadas, ALapKepeNemValtoztatAzAllapoton) {
    szuletes();
    NezetBeallitas(a, TKepletTipus::dekad);
    kepernyo(a);
    Allapot masik = a;
    atadott(a, {300, 900, "ABQ"});
    EXPECT_EQ(a.Rajz.feluletSzelesseg, masik.Rajz.feluletSzelesseg);
    EXPECT_EQ(a.Rajz.kerekSugar, masik.Rajz.kerekSugar);
    EXPECT_EQ(a.Rajz.kozpontX, masik.Rajz.kozpontX);
    EXPECT_TRUE(kepernyo(a) == kepernyo(masik));
}

TEST_F(KepAtadas, AKiirtTalalatokAKepenVannak) {
    szuletes();
    const auto nelkule = atadott(a, {szelesseg, magassag, {}});
    const auto vele = atadott(a, {szelesseg, magassag, "A Ma"});
    ASSERT_GT(vele.size(), nelkule.size());
    EXPECT_TRUE(std::equal(nelkule.begin(), nelkule.end(), vele.begin()));
    bool latszik = false;
    for (const TMuvelet& m : vele)
        if (const auto* sz = std::get_if<TSzovegMuvelet>(&m))
            latszik = latszik || sz->szoveg.find("A Ma") != sz->szoveg.npos;
    EXPECT_TRUE(latszik);
}

TEST_F(KepAtadas, ACimNevIdopontHely) {
    szuletes();
    EXPECT_EQ(KepCim(a), "Minta Anna, 1975.03.21. 06:04:09 ZN, Szeged");
    panel(2) = "Minta Anna ";  // as a chart from a file has it
    EXPECT_EQ(KepCim(a), "Minta Anna, 1975.03.21. 06:04:09 ZN, Szeged");
    panel(2) = "";
    EXPECT_EQ(KepCim(a), "1975.03.21. 06:04:09 ZN, Szeged");
}

TEST_F(KepAtadas, APanelSzovegeTizenhatSorNevekkel) {
    szuletes();
    a.Keplet.bolygo[1] = 0.5;                           // 0°30' of Aries
    a.Keplet.bolygo[10] = 359 + 59.5 / 60;              // 29°59'30'' of Pisces
    a.Keplet.hazCsucs[1] = 95 + 1 / 60.0 + 1 / 7200.0;  // 5°1'0'' of Cancer, cut
    a.Keplet.hazCsucs[10] = 240;
    kepernyo(a);
    const std::string szoveg = PanelSzoveg(a);
    EXPECT_EQ(szoveg.rfind("Minta Anna, 1975.03.21. 06:04:09 ZN, Szeged\n\nNap\tKos\t0°30'0''\nHold\t", 0),
              0u)
        << szoveg;
    for (const char* sor :
         {"\nPlutó\tHalak\t29°59'", "\nI. ház\tRák\t5°1'0''\n", "\nX. ház\tNyilas\t0°0'0''\n", "\n2. ház\t",
          "\n3. ház\t", "\n11. ház\t", "\n12. ház\t", "\nMerkúr\t"})
        EXPECT_NE(szoveg.find(sor), szoveg.npos) << sor << szoveg;
    EXPECT_EQ(std::count(szoveg.begin(), szoveg.end(), '\n'), 2 + 16);
}

TEST_F(KepAtadas, AKepFajlnevKiterjesztesselSzol) {
    szuletes();
    EXPECT_EQ(KepFajlNev(a, ".svg"), "Minta Anna 1975-03-21.svg");
    a.Szemely.nev = "a/b";
    EXPECT_EQ(KepFajlNev(a, ".png"), "a-b 1975-03-21.png");
}
