// Chart files as the source and the target of a conversion.

#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "adatteszt.h"
#include "kvhfajlok.h"

namespace {

namespace fs = std::filesystem;

constexpr auto hiba = TJelentesFajta::hiba;
constexpr auto veszteseg = TJelentesFajta::veszteseg;
constexpr auto elteres = TJelentesFajta::elteres;

bool jelenti(const TAdatlapok& ki, TJelentesFajta fajta, std::string_view mit) {
    return std::any_of(ki.jelentesek.begin(), ki.jelentesek.end(), [&](const TJelentes& j) {
        return j.fajta == fajta && j.szoveg.find(mit) != std::string::npos;
    });
}

void csakHiba(const std::string& bajtok, std::string_view oka) {
    const auto ki = KvhOlvasas(bajtok);
    EXPECT_TRUE(ki.lapok.empty());
    EXPECT_EQ(ki.jelentesek.size(), 1U);
    EXPECT_TRUE(jelenti(ki, hiba, oka)) << oka;
}

TEST(KvhFajlok, AMappaKepletfajljaiNevSzerint) {
    const TIdeiglenesMappa mappa;
    for (const char* nev : {"b.kvh", "Őz.kvh", "a.KVH", "c.txt", "kvh"}) irj(mappa / nev, "x");
    fs::create_directory(mappa / "mappa.kvh");
    const auto fajlok = KvhFajlok(mappa.ut().string());
    ASSERT_TRUE(fajlok);
    ASSERT_EQ(fajlok->size(), 3U);
    EXPECT_EQ((*fajlok)[0], mappa / "a.KVH");
    EXPECT_EQ((*fajlok)[1], mappa / "b.kvh");
    EXPECT_EQ((*fajlok)[2], mappa / "Őz.kvh");
    EXPECT_EQ(KvhFajlok(mappa / "c.txt")->size(), 1U);
}

TEST(KvhFajlok, ASzamozottNevekASzamukSzerint) {
    const TIdeiglenesMappa mappa;
    for (const char* nev : {"a (10).kvh", "a (2).kvh", "a.kvh", "a b.kvh"}) irj(mappa / nev, "x");
    const auto fajlok = KvhFajlok(mappa.ut().string());
    ASSERT_TRUE(fajlok);
    EXPECT_EQ(*fajlok,
              (std::vector{mappa / "a.kvh", mappa / "a (2).kvh", mappa / "a (10).kvh", mappa / "a b.kvh"}));
}

TEST(KvhFajlok, AMezokMindAtjonnek) {
    const auto ki = KvhOlvasas(kvhBajtok(mintaKeplet(), {mintaEsemeny("első"), mintaEsemeny("második")}));
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_TRUE(ki.jelentesek.empty());
    EXPECT_EQ(ki.lapok[0].keplet.adat, mintaKeplet());
    ASSERT_EQ(ki.lapok[0].esemenyek.size(), 2U);
    EXPECT_EQ(ki.lapok[0].esemenyek[1].adat, mintaEsemeny("második"));
}

TEST(KvhFajlok, ACsonkaFajl) {
    const std::string jo = kvhBajtok(mintaKeplet(), {mintaEsemeny(), mintaEsemeny()});
    csakHiba("", "csonka, 0 bájt; egy rekord 628");
    csakHiba(jo.substr(0, 627), "csonka, 627 bájt");
    csakHiba(jo.substr(0, 628), "csonka, 2 eseményből 0 van meg");
    csakHiba(jo.substr(0, jo.size() - 1), "csonka, 2 eseményből 1 van meg");
}

TEST(KvhFajlok, ARosszEsemenyszamEsHaz) {
    for (const std::int32_t szam : {-1, 21, INT32_MAX}) {
        TKvhRekord r = mintaKeplet();
        r.esemenySzam = szam;
        const TKvhBajtok b = KvhKodolas(r);
        csakHiba(std::string(b.begin(), b.end()) + std::string(628U * 21, '\0'),
                 "az események száma " + std::to_string(szam));
    }
    TKvhRekord e = mintaEsemeny();
    e.hang = "x";
    csakHiba(kvhBajtok(mintaKeplet(), {mintaEsemeny(), e}), "2. esemény: a Nap háza nem szám, „x”");
}

TEST(KvhFajlok, AmiAFajlbanNemAProgramSzerintAll) {
    std::string b = kvhBajtok(mintaKeplet(), {mintaEsemeny()});
    b[1] = '\x81';  // no character of the code page
    b[68] = 40;     // a length byte above the field's size
    b[628 + 368] = 9;
    b[628 + 372] = 3;
    b.replace(628 + 373, 3, "007");
    const auto ki = KvhOlvasas(b + "vége");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.adat.nev, "?ovács Éva");
    EXPECT_EQ(ki.lapok[0].esemenyek[0].adat.hang, "7");
    EXPECT_TRUE(jelenti(ki, veszteseg, "„?ovács Éva”: nev: 1 bájt nem karakter"));
    EXPECT_TRUE(jelenti(ki, elteres, "„?ovács Éva”: helyseg: a hosszbájt 40, a program 32 bájtot olvas"));
    EXPECT_TRUE(jelenti(ki, elteres, "„?ovács Éva”, 1. esemény: a sorszáma 9 volt"));
    EXPECT_TRUE(jelenti(ki, elteres, "„?ovács Éva”, 1. esemény: solarNap: „007”, azaz 7"));
    EXPECT_TRUE(jelenti(ki, veszteseg, "bájtok a rekordok után"));
    EXPECT_EQ(ki.jelentesek.size(), 5U);
}

TEST(KvhFajlok, ASzovegMogottiMaradekNemSzamit) {
    std::string b = kvhBajtok(mintaKeplet());
    for (int i = 20; i < 33; ++i) b[static_cast<std::size_t>(i)] = '\x81';
    const auto ki = KvhOlvasas(b);
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_TRUE(ki.jelentesek.empty());
    EXPECT_EQ(ki.lapok[0].keplet.adat, mintaKeplet());
}

TEST(KvhFajlok, AzIrtFajlBajtrolBajtraAPrograme) {
    const TIdeiglenesMappa mappa;
    const std::string b = kvhBajtok(mintaKeplet(), {mintaEsemeny("első"), mintaEsemeny("második")});
    EXPECT_EQ(KvhFajlIras(KvhOlvasas(b).lapok.at(0), mappa / "Őz.kvh"), "");
    EXPECT_EQ(olvasd(mappa / "Őz.kvh"), b);
    EXPECT_EQ(KvhFajlIras(KvhOlvasas(b).lapok.at(0), mappa / "nincs/a.kvh"), "File írási hiba!");
}

TEST(KvhFajlok, ATulHosszuJegyzetLevagva) {
    const TIdeiglenesMappa mappa;
    TAdatlap lap;
    lap.keplet.adat = mintaKeplet();
    lap.keplet.adat.jegyzet = "";
    for (int i = 0; i < 300; ++i) lap.keplet.adat.jegyzet += "ő";
    ASSERT_EQ(KvhFajlIras(lap, mappa / "a.kvh"), "");
    const auto ki = KvhFajlOlvasas(mappa / "a.kvh");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(MezoElteresek(lap, ki.lapok[0]),
              std::vector<std::string>{"jegyzet: levágva, 300 karakterből 255 maradt"});
}

TEST(KvhFajlok, AHianyzoFajlHiba) {
    EXPECT_TRUE(jelenti(KvhFajlOlvasas("/nincs/ilyen.kvh"), hiba, "nem olvasható"));
}

}  // namespace
