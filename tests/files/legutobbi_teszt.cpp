#include <gtest/gtest.h>

#include "files/legutobbi.h"

namespace {

TLegutobbiak felveve(const std::vector<std::string>& fajlok) {
    TLegutobbiak l;
    for (const std::string& fajl : fajlok) LegutobbiFelvetel(l, fajl);
    return l;
}

}  // namespace

TEST(Legutobbi, AzUtolsoAllElolEsMindegyikEgyszer) {
    EXPECT_EQ(felveve({"/a.kvh", "/b.kvh", "/a.kvh"}).fajlok, (std::vector<std::string>{"/a.kvh", "/b.kvh"}));
}

TEST(Legutobbi, ATizenegyedikALegregebbitFelejti) {
    TLegutobbiak l;
    for (int i = 1; i <= 11; ++i) LegutobbiFelvetel(l, std::to_string(i));
    EXPECT_EQ(l.fajlok.size(), 10u);
    EXPECT_EQ(l.fajlok.front(), "11");
    EXPECT_EQ(l.fajlok.back(), "2");
}

TEST(Legutobbi, AzElsoSorAMappaUtanaAFajlok) {
    EXPECT_EQ(LegutobbiSzoveg({"/képletek", {"/képletek/Örs.kvh", "/a b.kvh"}}),
              "/képletek\n/képletek/Örs.kvh\n/a b.kvh\n");
    EXPECT_EQ(LegutobbiSzoveg({}), "\n");
}

TEST(Legutobbi, AmitLeirAztOlvassaVissza) {
    const TLegutobbiak furcsak{"C:\\képletek\\n", {"/sor\ntörés.kvh", "\\\\szerver\\new.kvh", " .kvh"}};
    EXPECT_EQ(LegutobbiOlvas(LegutobbiSzoveg(furcsak)), furcsak);
    const TLegutobbiak vegukon{"C:\\", {"/sor\n", "C:\\mappa\\", "\\", "\n"}};
    EXPECT_EQ(LegutobbiOlvas(LegutobbiSzoveg(vegukon)), vegukon);
    EXPECT_EQ(LegutobbiOlvas(LegutobbiSzoveg({})), TLegutobbiak{});
}

TEST(Legutobbi, ASerultTarAmitLehetMegad) {
    EXPECT_EQ(LegutobbiOlvas(""), TLegutobbiak{});
    EXPECT_EQ(LegutobbiOlvas("/m"), (TLegutobbiak{"/m", {}}));
    EXPECT_EQ(LegutobbiOlvas("/m\n\n/a\n/a\n/b\\"), (TLegutobbiak{"/m", {"/a", "/b\\"}}));
    std::string sok = "/m\n";
    for (int i = 0; i < 100; ++i) sok += std::to_string(i) + "\n";
    EXPECT_EQ(LegutobbiOlvas(sok).fajlok.size(), legtobbLegutobbi);
}
