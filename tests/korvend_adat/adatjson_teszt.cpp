// Charts as JSON.

#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "adatjson.h"
#include "adatteszt.h"

namespace {

using TJson = nlohmann::json;

constexpr auto hiba = TJelentesFajta::hiba;
constexpr auto veszteseg = TJelentesFajta::veszteseg;

TAdatlap minta() {
    TAdatlap lap;
    lap.keplet.adat = mintaKeplet();
    lap.esemenyek.push_back({mintaEsemeny(), {}, 0});
    return lap;
}

bool jelenti(const TAdatlapok& ki, TJelentesFajta fajta, int sor, std::string_view mit) {
    return std::any_of(ki.jelentesek.begin(), ki.jelentesek.end(), [&](const TJelentes& j) {
        return j.fajta == fajta && j.sor == sor && j.szoveg.find(mit) != std::string::npos;
    });
}

const std::string rovid = R"({"nev": "X", "pillanat": [1975, 7, 21, 6, 4, 9]})";

TEST(AdatJson, AKulcsokAKvhOlvasei) {
    const std::string szoveg = JsonIras(minta());
    EXPECT_EQ(szoveg.find('\n'), szoveg.npos);
    EXPECT_EQ(TJson::parse(szoveg), TJson::parse(R"({
        "nev": "Kovács Éva", "pillanat": [1975, 7, 21, 6, 4, 9], "idozona": 1, "nyariIdo": 0, "helyseg": "Szeged",
        "hosszusag": 72540, "szelesseg": 166440, "jegyzet": "jegyzet", "hang": "H",
        "esemenyek": [{"esemeny": "Házasság", "analogia": "I,7", "ev": 2000, "ho": 7, "nap": 1, "ora": 12, "perc": 0,
            "mperc": 0, "helyseg": "Pécs", "idozona": 1, "nyariIdo": 1, "hosszFok": 18, "hosszPerc": 14,
            "szelFok": 46, "szelPerc": 4, "solarNap": 11}]})"));
}

TEST(AdatJson, OdaEsVissza) {
    TAdatlap lap = minta();
    lap.keplet.adat.jegyzet = "a\"b\\c\nd\r\te\x01 漢😀";
    lap.keplet.adat.hosszusag = -68161;
    lap.esemenyek[0].adat.hosszusag = -68160;
    const auto ki = JsonOlvasas(JsonIras(lap));
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_TRUE(ki.jelentesek.empty());
    EXPECT_EQ(MezoElteresek(lap, ki.lapok[0]), std::vector<std::string>{});
    EXPECT_TRUE(ki.lapok[0].keplet.hianyzik.none());
    EXPECT_TRUE(ki.lapok[0].esemenyek[0].hianyzik.none());
}

TEST(AdatJson, AzEsemenyIvmasodperceNemMegyAt) {
    TAdatlap lap = minta();
    lap.esemenyek[0].adat.hosszusag = 65641;
    const auto ki = JsonOlvasas(JsonIras(lap));
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(MezoElteresek(lap, ki.lapok[0]),
              std::vector<std::string>{"1. esemény: hosszusag: 18°14'01\"K helyett 18°14'K"});
}

TEST(AdatJson, TombEsSorok) {
    for (const std::string& szoveg :
         {"[\n" + rovid + ",\n" + rovid + "\n]\n", "[" + rovid + "," + rovid + "]",
          rovid + "\n" + rovid + "\n", rovid + "\n\n" + rovid,
          TJson::array({TJson::parse(rovid), TJson::parse(rovid)}).dump(4),
          "\xEF\xBB\xBF[" + rovid + ", " + rovid + "]", " \r\n" + rovid + "\r\n" + rovid}) {
        const auto ki = JsonOlvasas(szoveg);
        EXPECT_EQ(ki.lapok.size(), 2U) << szoveg;
        EXPECT_TRUE(ki.jelentesek.empty()) << szoveg;
    }
    EXPECT_EQ(JsonOlvasas(TJson::parse(rovid).dump(2)).lapok.size(), 1U);  // one object over many lines
    EXPECT_TRUE(JsonOlvasas("[]").lapok.empty());
    EXPECT_TRUE(JsonOlvasas("[]").jelentesek.empty());
}

TEST(AdatJson, ARekordSora) {
    const auto ki = JsonOlvasas("[\n" + TJson::parse(rovid).dump(2) + ",\n\n" + rovid + "]");
    ASSERT_EQ(ki.lapok.size(), 2U);
    EXPECT_EQ(ki.lapok[0].keplet.sor, 2);
    // Ten lines: brace, name, the moment's opening, six numbers and closing, brace is twelve; then an empty
    // one.
    EXPECT_EQ(ki.lapok[1].keplet.sor, 14);
}

TEST(AdatJson, AmiNincsMegadva) {
    const auto ki = JsonOlvasas(R"({"nev": "X", "pillanat": [1975, 7, 21, 6, 4, 9], "hosszusag": null,
        "esemenyek": [{"ev": 2000, "ho": 1, "nap": 2, "ora": 3, "perc": 4}]})");
    ASSERT_EQ(ki.lapok.size(), 1U);
    const TAdatRekord& k = ki.lapok[0].keplet;
    for (const TMezo mezo : {TMezo::idozona, TMezo::nyariIdo, TMezo::hosszusag, TMezo::szelesseg})
        EXPECT_FALSE(k.van(mezo));
    EXPECT_EQ(k.adat.jegyzet, "");
    ASSERT_EQ(ki.lapok[0].esemenyek.size(), 1U);
    const TAdatRekord& e = ki.lapok[0].esemenyek[0];
    for (const TMezo mezo :
         {TMezo::idozona, TMezo::nyariIdo, TMezo::hosszusag, TMezo::szelesseg, TMezo::hang})
        EXPECT_FALSE(e.van(mezo));
    EXPECT_EQ(e.adat.pillanat, (TPillanat{2000, 1, 2, 3, 4, 0}));
}

TEST(AdatJson, ARosszRekordATobbitNemAllitjaMeg) {
    struct TEset {
        const char* rossz;
        const char* oka;
    };
    const TEset esetek[]{
        {R"({"pillanat": [1975, 7, 21, 6, 4, 9]})", "hiányzó mező: nev"},
        {R"({"nev": "Y"})", "„Y”: hiányzó mező: pillanat"},
        {R"({"nev": "Y", "pillanat": [1975, 7, 21, 6, 4]})", "pillanat: 6 egész szám kell"},
        {R"({"nev": "Y", "pillanat": [1975, 7, 21, 6, 4, 9.5]})", "pillanat: egész szám kell"},
        {R"({"nev": 5, "pillanat": [1975, 7, 21, 6, 4, 9]})", "nev: szöveg kell"},
        {R"({"nev": "Y", "pillanat": [1975, 7, 21, 6, 4, 9], "idozona": "1"})", "idozona: egész szám kell"},
        {R"({"nev": "Y", "pillanat": [1975, 7, 21, 6, 4, 9], "hosszusag": 2147483648})", "32 biten"},
        {R"({"nev": "Y", "pillanat": [1975, 7, 21, 6, 4, 9], "jegyzet": null})", "jegyzet: szöveg kell"},
        {R"({"nev": "Y", "pillanat": [1975, 7, 21, 6, 4, 9], "esemenyek": {}})", "esemenyek: tömb kell"},
        {R"({"nev": "Y", )", "nem JSON objektum"},
        {R"({"nev": "Y)", "nem JSON objektum"},
        {R"({"nev": "Y"]})", "nem JSON objektum"},
        {"{\"nev\": \"\xFF\", \"pillanat\": [1975, 7, 21, 6, 4, 9]}", "nem JSON objektum"},
        {R"({"nev" "Y"})", "nem JSON objektum"},
        {"kovács", "nem JSON objektum"},
        {"[1]", "nem JSON objektum"},
    };
    for (const TEset& e : esetek) {
        for (const bool tomb : {false, true}) {
            const std::string vesszo = tomb ? "," : "";
            const auto ki = JsonOlvasas((tomb ? "[\n" : "") + rovid + vesszo + "\n" + e.rossz + vesszo +
                                        "\n" + rovid + vesszo + "\n" + rovid + (tomb ? "\n]" : ""));
            EXPECT_EQ(ki.lapok.size(), 3U) << e.rossz;
            EXPECT_TRUE(jelenti(ki, hiba, tomb ? 3 : 2, e.oka)) << e.rossz;
            EXPECT_EQ(ki.jelentesek.size(), 1U) << e.rossz;
        }
    }
}

TEST(AdatJson, ABehuzottTombRosszElemeUtanAKovetkezoUgyanottKezdodik) {
    const std::string jo =
        "    {\n        \"nev\": \"X\",\n        \"pillanat\": [1975, 7, 21, 6, 4, 9],\n"
        "        \"esemenyek\": [\n            {\"ev\": 1, \"ho\": 1, \"nap\": 1, \"ora\": 1, \"perc\": 1}\n "
        "       ]\n    }";
    const std::string rossz =
        "    {\n        \"nev\": \"Y\",\n        \"esemenyek\": [\n            {\"ev\": 1}\n    ";
    const auto ki = JsonOlvasas("[\n" + jo + ",\n" + rossz + ",\n" + jo + "\n]\n");
    EXPECT_EQ(ki.lapok.size(), 2U);
    EXPECT_TRUE(jelenti(ki, hiba, 9, "nem JSON objektum"));
    EXPECT_EQ(ki.jelentesek.size(), 1U);
}

TEST(AdatJson, ALezaratlanTombHiba) {
    const auto ki = JsonOlvasas("[\n" + rovid + ",\n");
    EXPECT_EQ(ki.lapok.size(), 1U);
    EXPECT_TRUE(jelenti(ki, hiba, 3, "a tömb nincs lezárva"));
    EXPECT_TRUE(jelenti(JsonOlvasas("[" + rovid + "]\nx"), hiba, 2, "szöveg a tömb vége után"));
}

TEST(AdatJson, ATulMelyRekordNemJut) {
    const std::string mely(100000, '[');
    const auto ki = JsonOlvasas("{\"nev\": " + mely + "\n" + rovid + "\n");
    EXPECT_EQ(ki.lapok.size(), 1U);
    EXPECT_TRUE(jelenti(ki, hiba, 1, "nem JSON objektum"));
}

TEST(AdatJson, AzIsmeretlenKulcsVeszteseg) {
    const auto ki = JsonOlvasas(
        R"({"op": "kvh_ir", "fajl": "a", "nev": "X", "pillanat": [1975, 7, 21, 6, 4, 9], "nem": "f",
        "esemenyek": [{"ev": 1, "ho": 1, "nap": 1, "ora": 1, "perc": 1, "szin": 3}]})");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_TRUE(jelenti(ki, veszteseg, 1, "„X”: ismeretlen kulcs, kimarad: „nem”"));
    EXPECT_TRUE(jelenti(ki, veszteseg, 1, "„X”, 1. esemény: ismeretlen kulcs, kimarad: „szin”"));
    EXPECT_EQ(ki.jelentesek.size(), 2U);
}

TEST(AdatJson, AHuszonegyEsemenyEsARosszEsemeny) {
    TJson json = TJson::parse(rovid);
    for (int i = 1; i <= 21; ++i)
        json["esemenyek"].push_back(
            {{"ev", 2000}, {"ho", 1}, {"nap", 1}, {"ora", 1}, {"perc", 1}, {"solarNap", i}});
    json["esemenyek"][4].erase("ora");
    json["esemenyek"][5]["hosszFok"] = 1000000;
    json["esemenyek"][6] = 5;
    const auto ki = JsonOlvasas(json.dump());
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].esemenyek.size(), 17U);
    EXPECT_TRUE(jelenti(ki, veszteseg, 1, "„X”, 21. esemény"));
    EXPECT_TRUE(jelenti(ki, hiba, 1, "„X”, 5. esemény: hiányzó mező: ora"));
    EXPECT_TRUE(jelenti(ki, hiba, 1, "„X”, 6. esemény: hosszFok: túl nagy"));
    EXPECT_TRUE(jelenti(ki, hiba, 1, "„X”, 7. esemény: esemeny: objektum kell"));
    EXPECT_EQ(ki.jelentesek.size(), 4U);
}

}  // namespace
