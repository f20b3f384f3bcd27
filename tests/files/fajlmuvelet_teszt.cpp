// Opening and writing of whole files.

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "files/fajlmuvelet.h"
#include "ideiglenesmappa.h"
#include "rendszerhatar.h"

namespace {

namespace fs = std::filesystem;
using TNevek = std::vector<std::string>;

#ifndef _WIN32
TEST(OlvasasraNyit, ARendesFajlEsAHozzaVezetoHivatkozasNyilik) {
    const TIdeiglenesMappa m;
    m.irj("a", "tartalom");
    fs::create_symlink(m.fajl("a"), m.fajl("b"));
    for (const char* nev : {"a", "b"}) {
        std::ifstream be = OlvasasraNyit(m.fajl(nev));
        std::string szo;
        EXPECT_TRUE(be >> szo);
        EXPECT_EQ(szo, "tartalom");
    }
}

TEST(OlvasasraNyit, AmiNemRendesFajlAzNemNyilik) {
    const TIdeiglenesMappa m;
    const TCsovezetek cso(m.fajl("cso"));
    ASSERT_TRUE(cso.van());
    fs::create_symlink(m.fajl("cso"), m.fajl("hivatkozas"));
    fs::create_symlink(m.fajl("nincs"), m.fajl("semmibe"));
    for (const std::string& fajl : {m.fajl("cso"), m.fajl("hivatkozas"), m.fajl("semmibe"), m.fajl("nincs"),
                                    m.ut().string(), std::string("/dev/zero"), std::string()})
        EXPECT_FALSE(OlvasasraNyit(fajl).is_open()) << fajl;
}
#endif

TEST(OlvasasraNyit, AMappaEsAHianyzoFajlNemNyilik) {
    const TIdeiglenesMappa m;
    for (const std::string& fajl : {m.fajl("nincs"), m.fajl(""), std::string()})
        EXPECT_FALSE(OlvasasraNyit(fajl).is_open()) << fajl;
}

TEST(FajlIras, AMagyarFajlnevBeturolBeturePontos) {
    const TIdeiglenesMappa m;
    const std::string nev = "Őrült tűzhely ÁÉÍÓÖŐÚÜŰ € 日本.kvh";
    EXPECT_TRUE(FajlIras(m.fajl(nev), "x"));
    EXPECT_EQ(m.tartalma(), TNevek{nev});
    std::ifstream be = OlvasasraNyit(m.fajl(nev));
    EXPECT_EQ(be.get(), 'x');
}

TEST(FajlIras, AHianyzoMappabaEsAMappaHelyereNemIr) {
    const TIdeiglenesMappa m;
    for (const std::string& fajl : {m.fajl("nincs/a"), m.fajl(""), std::string()})
        EXPECT_FALSE(FajlIras(fajl, "x")) << fajl;
    EXPECT_TRUE(m.tartalma().empty());
}

TEST(FajlIras, UjFajlEsFelulirasUtanMasNemMarad) {
    const TIdeiglenesMappa m;
    EXPECT_TRUE(FajlIras(m.fajl("a"), std::string("egy\0ketto", 9)));
    EXPECT_EQ(m.olvasd("a"), std::string("egy\0ketto", 9));
    EXPECT_TRUE(FajlIras(m.fajl("a"), "x"));
    EXPECT_EQ(m.olvasd("a"), "x");
    EXPECT_EQ(m.tartalma(), TNevek{"a"});
}

#ifndef _WIN32
TEST(FajlIras, AFelulirtFajlJogaiMegmaradnak) {
    const TIdeiglenesMappa m;
    m.irj("a", "regi");
    constexpr auto jogok = fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_exec;
    fs::permissions(m.fajl("a"), jogok);
    EXPECT_TRUE(FajlIras(m.fajl("a"), "uj"));
    EXPECT_EQ(fs::status(m.fajl("a")).permissions(), jogok);
}

TEST(FajlIras, AHivatkozasHivatkozasMarad) {
    const TIdeiglenesMappa m;
    m.irj("a", "regi");
    fs::create_symlink("a", m.fajl("b"));
    EXPECT_TRUE(FajlIras(m.fajl("b"), "uj"));
    EXPECT_TRUE(fs::is_symlink(m.fajl("b")));
    EXPECT_EQ(m.olvasd("a"), "uj");
}
#endif

TEST(FajlIras, AzAktualisMappabaIsIr) {
    const TIdeiglenesMappa m;
    const TMunkaMappa itt(m.ut());
    EXPECT_TRUE(FajlIras("a", "x"));
    EXPECT_EQ(m.tartalma(), TNevek{"a"});
}

#ifndef _WIN32
TEST(FajlIras, ATeliLemezARegitHagyjaEsToredeketNem) {
    const TIdeiglenesMappa m;
    m.irj("a", "regi");
    {
        const TTeliLemez teli(1000);
        EXPECT_FALSE(FajlIras(m.fajl("a"), std::string(100000, 'x')));
        EXPECT_FALSE(FajlIras(m.fajl("b"), std::string(1001, 'x')));
        EXPECT_TRUE(FajlIras(m.fajl("c"), std::string(1000, 'x')));
    }
    EXPECT_EQ(m.olvasd("a"), "regi");
    EXPECT_FALSE(fs::exists(m.fajl("b")));
    EXPECT_EQ(m.tartalma().size(), 2U);
}

TEST(FajlIras, AMegoltProgramUtanARegiVagyAzUjAllEgeszben) {
    const TIdeiglenesMappa m;
    const std::string egyik(300000, 'a');
    const std::string masik(200000, 'b');
    ASSERT_TRUE(FajlIras(m.fajl("x"), egyik));
    for (int i = 0; i < 40; ++i) {
        TGyermek iro([&] {
            for (;;) {
                FajlIras(m.fajl("x"), masik);
                FajlIras(m.fajl("x"), egyik);
            }
        });
        std::this_thread::sleep_for(std::chrono::microseconds(500 + 700 * i));
        iro.megol();
        const std::string most = m.olvasd("x");
        EXPECT_TRUE(most == egyik || most == masik) << most.size();
    }
}

TEST(FajlIras, ARosszHelySikertelen) {
    const TIdeiglenesMappa m;
    const TCsovezetek cso(m.fajl("cso"));
    ASSERT_TRUE(cso.van());
    for (const std::string& fajl : {m.fajl("nincs/a"), m.ut().string(), m.fajl("cso"),
                                    std::string("/dev/full"), std::string("/dev/null"), std::string()})
        EXPECT_FALSE(FajlIras(fajl, "x")) << fajl;
    EXPECT_TRUE(fs::is_fifo(m.fajl("cso")));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(m.tartalma(), TNevek{"cso"});
}
#endif

}  // namespace
