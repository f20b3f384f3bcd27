#include <sstream>

#include <gtest/gtest.h>

#include "commands/parancssor.h"

namespace {

using enum TParancsFajta;
using TSorok = std::vector<std::string>;

/// What a line writes and what it ends with.
struct TValasz {
    std::optional<int> kod;
    std::string ki, hiba;
};

TValasz valasz(const TSorok& argumentumok) {
    std::ostringstream ki, hiba;
    const auto kod = ParancssorValasz(ParancssorOlvas(argumentumok), ki, hiba);
    return {kod, ki.str(), hiba.str()};
}

void hibatAd(const TSorok& argumentumok, const std::string& resz) {
    const TValasz v = valasz(argumentumok);
    EXPECT_EQ(v.kod, 2);
    EXPECT_EQ(v.ki, "");
    EXPECT_EQ(v.hiba.rfind("korvend: ", 0), 0u) << v.hiba;
    EXPECT_NE(v.hiba.find(resz), v.hiba.npos) << v.hiba;
    EXPECT_EQ(v.hiba.find('\n'), v.hiba.size() - 1) << "not one sentence: " << v.hiba;
}

}  // namespace

TEST(Parancssor, ArgumentumNelkulIndul) {
    EXPECT_EQ(ParancssorOlvas({}).fajta, indulas);
    EXPECT_EQ(ParancssorOlvas({}).fajl, "");
    const TValasz v = valasz({});
    EXPECT_EQ(v.kod, std::nullopt);
    EXPECT_EQ(v.ki + v.hiba, "");
}

TEST(Parancssor, EgyFajltNyitMeg) {
    EXPECT_EQ(ParancssorOlvas({"Kiss Anna.kvh"}).fajl, "Kiss Anna.kvh");
    EXPECT_EQ(ParancssorOlvas({"/mappa/Örs.kvh"}).fajl, "/mappa/Örs.kvh");
    EXPECT_EQ(valasz({"a.kvh"}).kod, std::nullopt);
    hibatAd({"a.kvh", "b.kvh"}, "b.kvh");
    hibatAd({""}, "üres");
}

TEST(Parancssor, AKotojelesFajlNevElottKettosKotojel) {
    EXPECT_EQ(ParancssorOlvas({"--", "-a.kvh"}).fajl, "-a.kvh");
    EXPECT_EQ(ParancssorOlvas({"--", "--help"}).fajl, "--help");
    EXPECT_EQ(ParancssorOlvas({"--"}).fajta, indulas);
    hibatAd({"-a.kvh"}, "-a.kvh");
}

TEST(Parancssor, ASugoMindenKapcsolotMegnevez) {
    const TValasz v = valasz({"--help"});
    EXPECT_EQ(v.kod, 0);
    EXPECT_EQ(v.hiba, "");
    for (const char* kapcsolo : {"--help", "--version", "--uj-jelszo", ".kvh"})
        EXPECT_NE(v.ki.find(kapcsolo), v.ki.npos) << kapcsolo;
}

TEST(Parancssor, AVerzioNevvelEsSzammal) {
    const TValasz v = valasz({"a.kvh", "--version"});
    EXPECT_EQ(v.kod, 0);
    EXPECT_EQ(v.ki, "Korvend " KORVEND_VERZIO "\n");
    EXPECT_EQ(v.hiba, "");
}

TEST(Parancssor, AzIsmeretlenKapcsoloHiba) {
    hibatAd({"--rossz"}, "--rossz");
    hibatAd({"-x", "--help"}, "-x");
    hibatAd({"-"}, "-");
    hibatAd({"--helpp"}, "--helpp");
}

TEST(Parancssor, AzUjJelszoMellettNincsFajl) {
    EXPECT_EQ(ParancssorOlvas({"--uj-jelszo"}).fajta, ujJelszo);
    EXPECT_EQ(valasz({"--uj-jelszo"}).kod, std::nullopt);
    hibatAd({"--uj-jelszo", "a.kvh"}, "a.kvh");
    hibatAd({"a.kvh", "--uj-jelszo"}, "a.kvh");
}

TEST(Parancssor, AKeszletKapcsoloiErtekukkelEgyuttKimaradnak) {
    const TParancssor p = ParancssorOlvas({"-style", "fusion", "--platform", "xcb", "a.kvh"});
    EXPECT_EQ(p.fajta, indulas);
    EXPECT_EQ(p.fajl, "a.kvh");
    EXPECT_EQ(ParancssorOlvas({"-style=fusion", "b.kvh"}).fajl, "b.kvh");
    EXPECT_EQ(ParancssorOlvas({"-reverse", "c.kvh"}).fajl, "c.kvh");
    EXPECT_EQ(ParancssorOlvas({"-style"}).fajta, indulas);  // the toolkit deals with it
    hibatAd({"-stylex"}, "-stylex");
}
