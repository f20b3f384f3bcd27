// Gazetteer.

#include <algorithm>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "ellenorzoosszeg.h"
#include "tables/telepulesek.h"

namespace {

struct THely {
    std::int32_t idozona = 0, szelesseg = 0, hosszusag = 0;
    char hosszusagJel = 0, szelessegJel = 0;
};

THely hely(const char* nev) {
    THely h;
    TelepulesKeres(nev, h.idozona, h.szelesseg, h.hosszusagJel, h.szelessegJel, h.hosszusag);
    return h;
}

TEST(Telepulesek, AJellemzoSorok) {
    struct TSor {
        const char* nev;
        int szelesseg, hosszusag;
    };
    for (const auto& [nev, szelesseg, hosszusag] :
         {TSor{"Aba", 169323, 66689}, TSor{"Budapest", 171000, 68640}, TSor{"Debrecen", 171103, 77893},
          TSor{"Győr", 171676, 63478}, TSor{"Miskolc", 173173, 74877}, TSor{"Pécs", 165888, 65691},
          TSor{"Szeged", 166497, 72586}, TSor{"Zubogy", 174168, 74081}, TSor{"Róma", 151200, 45000},
          TSor{"Wadowice", 179520, 70200}}) {
        const THely h = hely(nev);
        EXPECT_EQ(h.szelesseg, szelesseg) << nev;
        EXPECT_EQ(h.hosszusag, hosszusag) << nev;
        EXPECT_EQ(h.idozona, 1);
        EXPECT_EQ(h.szelessegJel, 'N');
        EXPECT_EQ(h.hosszusagJel, 'E');
    }
}

TEST(Telepulesek, HaromezerszazharmincnyolcKulonbozoNev) {
    std::set<std::string> nevek;
    for (const TTelepules& t : Telepulesek) {
        nevek.insert(std::string(t.nev));
        EXPECT_EQ(t.idozona, 1);
        if (t.nev == "Róma" || t.nev == "Wadowice") continue;
        EXPECT_TRUE(t.szelesseg >= 164799 && t.szelesseg <= 174824) << t.nev;
        EXPECT_TRUE(t.hosszusag >= 58182 && t.hosszusag <= 82420) << t.nev;
    }
    EXPECT_EQ(nevek.size(), 3138U);
    EXPECT_EQ(Telepulesek[0].nev, "Aba");
    EXPECT_EQ(Telepulesek[1].nev, "Abádszalók");
    EXPECT_EQ(Telepulesek[2].nev, "Abaliget");
    EXPECT_EQ(Telepulesek[3136].nev, "Zsurk");
    EXPECT_EQ(Telepulesek[3137].nev, "Zubogy");
}

TEST(Telepulesek, AJelekMindenSorbanEgyformak) {
    for (const TTelepules& t : Telepulesek) {
        EXPECT_EQ(t.szelessegJel, 'N') << t.nev;
        EXPECT_EQ(t.hosszusagJel, 'E') << t.nev;
    }
}

TEST(Telepulesek, ANevekEsARendjuk) {
    // The 3138 names in table order, each followed by a line feed.
    EllenorzoOsszeg nevek;
    for (const TTelepules& t : Telepulesek) {
        nevek.szoveg(t.nev);
        nevek.szoveg("\n");
    }
    EXPECT_EQ(nevek.ertek(), 0xc095589bdd081cd1ULL) << std::hex << nevek.ertek();
    EXPECT_EQ(Telepulesek[3].nev, "Abasár");
}

TEST(Telepulesek, AKoordinatakEllenorzoOsszege) {
    EllenorzoOsszeg koordinatak;
    for (const TTelepules& t : Telepulesek) {
        koordinatak.szam(t.szelesseg);
        koordinatak.szam(t.hosszusag);
    }
    EXPECT_EQ(koordinatak.ertek(), 0x21f0ae4833bb62ffULL) << std::hex << koordinatak.ertek();
}

TEST(Telepulesek, ALegtobbKoordinataNemEgeszPerc) {
    const auto egeszPerc = std::count_if(Telepulesek.begin(), Telepulesek.end(), [](const TTelepules& t) {
        return t.szelesseg % 60 == 0 || t.hosszusag % 60 == 0;
    });
    EXPECT_LT(egeszPerc, 3138 / 2);
}

TEST(Telepulesek, MindenHelyAHaztablakSavjaban) {
    // 42 degrees exactly to 49.87 degrees.
    for (const TTelepules& t : Telepulesek)
        EXPECT_TRUE(t.szelesseg >= 42 * 3600 && t.szelesseg < 60 * 3600) << t.nev;
}

TEST(TelepulesKeres, MindenNevASajatSoratAdja) {
    for (const TTelepules& t : Telepulesek) {
        const THely h = hely(std::string(t.nev).c_str());
        ASSERT_EQ(h.szelesseg, t.szelesseg) << t.nev;
        ASSERT_EQ(h.hosszusag, t.hosszusag) << t.nev;
    }
}

TEST(Telepulesek, IsmeretlenNevreBudapestErtekei) {
    for (const char* nev : {"Xanadu", "", "budapest", "szeged", "SZEGED", "Szeged ", "Szege", "Pecs"}) {
        const THely h = hely(nev);
        EXPECT_EQ(h.szelesseg, 171000) << nev;
        EXPECT_EQ(h.hosszusag, 68640) << nev;
        EXPECT_EQ(h.idozona, 1);
        EXPECT_EQ(h.szelessegJel, 'N');
        EXPECT_EQ(h.hosszusagJel, 'E');
    }
}

}  // namespace
