// The engine's JSON tool as a program: one answer a line, in order, whatever comes in.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using TJson = nlohmann::json;

/// A folder of the test's own, removed at its end.
class TMappa {
public:
    TMappa()
        : hely_(std::filesystem::temp_directory_path() /
                ("korvend-" + std::to_string(std::random_device{}()))) {
        std::filesystem::create_directories(hely_);
    }
    ~TMappa() { std::filesystem::remove_all(hely_); }
    TMappa(const TMappa&) = delete;
    TMappa& operator=(const TMappa&) = delete;

    std::filesystem::path operator/(const char* fajl) const { return hely_ / fajl; }
    std::string nev() const { return hely_.string(); }

private:
    std::filesystem::path hely_;
};

std::vector<std::string> valaszok(const std::vector<std::string>& kerelmek) {
    const TMappa mappa;
    {
        std::ofstream be(mappa / "be");
        for (const std::string& kerelem : kerelmek) be << kerelem << '\n';
    }
    const std::string parancs =
        std::string(KEPLET_JSON) + " < " + (mappa / "be").string() + " > " + (mappa / "ki").string();
    EXPECT_EQ(std::system(parancs.c_str()), 0);
    std::ifstream ki(mappa / "ki");
    std::vector<std::string> sorok;
    for (std::string sor; std::getline(ki, sor);) sorok.push_back(sor);
    return sorok;
}

TJson valasz(const std::string& kerelem) {
    const auto sorok = valaszok({kerelem});
    return sorok.size() == 1 ? TJson::parse(sorok[0]) : TJson();
}

TEST(KepletJson, RosszKerelemreHibaEsTovabb) {
    const std::vector<std::string> rosszak{
        "",
        "nem json",
        "[1, 2]",
        "{}",
        R"({"op": 5})",
        R"({"op": "ismeretlen"})",
        R"({"op": "datum"})",
        R"({"op": "datum", "datum": [2000, 1]})",
        R"({"op": "datum", "datum": [2000, 1, 1.5]})",
        R"({"op": "datum", "datum": [2000, 1, "1"]})",
        R"({"op": "datum", "datum": [2000, 1, 2147483648]})",
        R"({"op": "datum", "datum": [-2147483649, 1, 1]})",
        R"({"op": "datum", "datum": [99999999999999999999999, 1, 1]})",
        R"({"op": "telepules", "nev": 3})",
        R"({"op": "keplet", "pillanat": [2000, 1, 1, 12, 0, 0]})",
        R"({"op": "keplet", "pillanat": [2000, 1, 1, 12, 0, 0], "hely": {"helyseg": "X", "idozona": 1}})",
        R"({"op": "keplet", "pillanat": [2000, 1, 1, 12, 0, 0], "hely": {"helyseg": "X"}, "orbis": [[1]]})",
        R"({"op": "rajz", "pillanat": [2000, 1, 1, 12, 0, 0], "hely": {"helyseg": "X"}, "tipus": 4, "felulet": [9, 9], "nyomtatas": false})",
        R"({"op": "rajz", "pillanat": [2000, 1, 1, 12, 0, 0], "hely": {"helyseg": "X"}, "tipus": 1, "felulet": [-1, 9], "nyomtatas": false})",
        "{\"op\": \"telepules\", \"nev\": \"\xff\xfe\"}",
    };
    std::vector<std::string> kerelmek;
    for (const std::string& rossz : rosszak) {
        kerelmek.push_back(rossz);
        kerelmek.emplace_back(R"({"op": "datum", "datum": [1900, 1, 1]})");
    }
    const auto sorok = valaszok(kerelmek);
    ASSERT_EQ(sorok.size(), kerelmek.size());
    for (std::size_t i = 0; i < sorok.size(); i += 2) {
        EXPECT_TRUE(TJson::parse(sorok[i]).contains("hiba")) << kerelmek[i];
        EXPECT_EQ(TJson::parse(sorok[i + 1])["julianszam"], 2415020);
    }
}

TEST(KepletJson, ATulHosszuATulMelyEsANulosKerelemHibaEsTovabb) {
    const std::string jo = R"({"op": "datum", "datum": [1900, 1, 1]})";
    const auto melyen = [](int szint) {
        return R"({"op": "datum", "datum": [1900, 1, 1], "x": )" +
               std::string(static_cast<std::size_t>(szint - 1), '[') +
               std::string(static_cast<std::size_t>(szint - 1), ']') + "}";
    };
    const std::string kitoltve = R"({"op": "datum", "datum": [1900, 1, 1], "x": ")";
    const auto hosszu = [&](std::size_t bajt) {
        return kitoltve + std::string(bajt - kitoltve.size() - 2, '[') + "\"}";
    };
    constexpr std::size_t hatar = std::size_t{16} << 20;
    const auto sorok = valaszok({melyen(64), melyen(65), std::string(10'000'000, '['), hosszu(hatar),
                                 hosszu(hatar + 1), R"({"op": "kvh_olvas", "fajl": "a\u0000b"})", jo});
    ASSERT_EQ(sorok.size(), 7U);
    EXPECT_EQ(TJson::parse(sorok[0])["julianszam"], 2415020);
    EXPECT_EQ(TJson::parse(sorok[1])["hiba"], "a kérelem mélyebb 64 szintnél");
    EXPECT_EQ(sorok[2], sorok[1]);
    EXPECT_EQ(TJson::parse(sorok[3])["julianszam"], 2415020);  // brackets within a text are none
    EXPECT_EQ(TJson::parse(sorok[4])["hiba"], "a sor hosszabb 16 MB-nál");
    EXPECT_EQ(TJson::parse(sorok[5])["hiba"], "fajl: a névben nem lehet NUL");
    EXPECT_EQ(TJson::parse(sorok[6])["julianszam"], 2415020);
}

TEST(KepletJson, DatumABeirtEsAVisszaolvasottErtekekkel) {
    const TJson v = valasz(R"({"op": "datum", "datum": [1899, 13, 40]})");
    EXPECT_EQ(v["beirt"], TJson({1900, 12, 32}));
    EXPECT_EQ(v["datum"], TJson({1901, 1, 1}));
}

TEST(KepletJson, ACsillagidoMintapeldaja) {
    const TJson v =
        valasz(R"({"op": "keplet", "pillanat": [1900, 1, 2, 0, 0, 0], "hely": {"helyseg": "Budapest"}})");
    EXPECT_EQ(v["julianszam"], 2415020);
    EXPECT_DOUBLE_EQ(v["napresz"], 82800 / 86400.0);
    EXPECT_EQ(v["armc"][0], 7);
    EXPECT_EQ(v["armc"][1], 0);
    EXPECT_NEAR(v["armc"][2], 47.69854, 1e-5);
    EXPECT_EQ(v["statuszsor"],
              TJson({"ARMC:  07:00:47", "1900.01.02. 00:00:00 ZN", "Budapest", "19°4'K  47°30'É"}));
    EXPECT_EQ(v["Rendezett"].size(), 10U);
    EXPECT_EQ(v["panel"].size(), 16U);
    EXPECT_EQ(v["FenyszogPontok"][9].size(), 16U);
}

TEST(KepletJson, AValosSzamok17JegyuekEsACsakNevvelAdottHelyKikeresheto) {
    const auto sorok = valaszok(
        {R"({"op": "keplet", "pillanat": [2000, 7, 1, 12, 0, 0], "hely": {"helyseg": "Szeged"}})",
         R"({"op": "keplet", "pillanat": [2000, 7, 1, 12, 0, 0], "hely": {"helyseg": "Szeged", "idozona": 2, "nyariIdo": 0, "szelesseg": 150000, "hosszusag": -5}})"});
    ASSERT_EQ(sorok.size(), 2U);
    EXPECT_NE(sorok[0].find("\"napresz\":0.41666666666666669"), std::string::npos);
    const TJson nevvel = TJson::parse(sorok[0]);
    EXPECT_EQ(nevvel["nyariIdo"], 1);
    EXPECT_EQ(nevvel["hosszusag"], 72586);
    const TJson ertekekkel = TJson::parse(sorok[1]);
    EXPECT_EQ(ertekekkel["nyariIdo"], 0);
    EXPECT_EQ(ertekekkel["hosszusag"], -5);
    EXPECT_EQ(ertekekkel["szelesseg"], 150000);
}

TEST(KepletJson, AzOrbisABeallitottTablaval) {
    TJson kerelem = TJson::parse(
        R"({"op": "keplet", "pillanat": [2000, 7, 1, 12, 0, 0], "hely": {"helyseg": "Szeged"}})");
    kerelem["orbis"] = std::vector(12, std::vector(9, 180.0));
    // With orbs of half a circle every pair is in opposition.
    const TJson v = valasz(kerelem.dump());
    for (const auto& sor : v["FenyszogRadix"]) {
        const auto& betuk = sor.get_ref<const std::string&>();
        EXPECT_EQ(std::count(betuk.begin(), betuk.end(), 'W'), 9);
    }
}

TEST(KepletJson, ARajzMuveletei) {
    const TJson v = valasz(
        R"({"op": "rajz", "pillanat": [1975, 3, 21, 6, 4, 9], "hely": {"helyseg": "Szeged"}, "tipus": 1, "felulet": [987, 644], "nyomtatas": false})");
    const TJson& m = v["muveletek"];
    EXPECT_EQ(m[0], TJson({"E", 342, 322, 258, 1, 0}));
    EXPECT_EQ(m[1], TJson({"E", 342, 322, 249, 3, 0}));
    EXPECT_EQ(m[6][0], "T");
    EXPECT_EQ(m[6][3], " I");
    EXPECT_EQ(m[6][4], "Ariel");
    EXPECT_EQ(m[6][5], 59 - 37 - 8);
}

const std::string szeged = R"("pillanat": [1975, 7, 21, 6, 4, 9], "hely": {"helyseg": "Szeged"})";

TEST(KepletJson, ALepesekEgymasUtan) {
    const TJson v = valasz(
        R"({"op": "lepes", "pillanat": [1999, 12, 31, 23, 59, 55], "gombok": ["Button15mpercpp", "Button4hom"]})");
    EXPECT_EQ(v["pillanat"], TJson({1999, 12, 1, 0, 0, 5}));
    EXPECT_EQ(v["julianszam"], 2451513);
}

TEST(KepletJson, AzAnalogiaSzovegeEsSzamai) {
    const TJson v = valasz(R"({"op": "analogia", "szoveg": "ix, 4,iv 12"})");
    EXPECT_EQ(v["analogia"], "I,IV,X,12");
    EXPECT_EQ(v["szamok"], TJson({1, 4, 10, 12}));
}

TEST(KepletJson, AzEletesemenyGreenwichiIdejeEsHaza) {
    const TJson v = valasz(
        R"({"op": "eletesemeny", )" + szeged +
        R"(, "esemeny": {"ev": 2000, "ho": 7, "nap": 1, "ora": 0, "idozona": 1, "nyariIdo": 1, "hosszFok": 20, "szelFok": 46}})");
    EXPECT_EQ(v["gmt"], TJson({2000, 6, 30, 22, 0, 0}));
    EXPECT_GE(v["solarNap"], 1);
    EXPECT_LE(v["solarNap"], 12);
}

TEST(KepletJson, AKepletfajlOdaEsVissza) {
    const TMappa mappa;
    TJson kerelem = TJson::parse(
        R"({"op": "kvh_ir", "nev": "Minta Őrs", "pillanat": [1975, 7, 21, 6, 4, 9], "idozona": 1, "nyariIdo": 0, "helyseg": "Szeged", "hosszusag": 72540, "szelesseg": 166500, "jegyzet": "", "hang": "", "esemenyek": [{"esemeny": "Házasság", "ev": 2000, "solarNap": 7}]})");
    kerelem["fajl"] = (mappa / "minta.kvh").string();
    EXPECT_EQ(valasz(kerelem.dump())["meret"], 2 * 628);
    const TJson v = valasz(TJson{{"op", "kvh_olvas"}, {"fajl", kerelem["fajl"]}}.dump());
    for (const char* kulcs : {"nev", "pillanat", "idozona", "nyariIdo", "helyseg", "hosszusag", "szelesseg"})
        EXPECT_EQ(v[kulcs], kerelem[kulcs]) << kulcs;
    EXPECT_EQ(v["esemenyek"][0]["esemeny"], "Házasság");
    EXPECT_EQ(v["esemenyek"][0]["solarNap"], 7);
    EXPECT_EQ(valasz(R"({"op": "kvh_olvas", "fajl": "/nincs/ilyen.kvh"})")["hiba"], "File olvasási hiba!");
    kerelem["fajl"] = "/nincs/ilyen.kvh";
    EXPECT_EQ(valasz(kerelem.dump())["hiba"], "File írási hiba!");
}

TEST(KepletJson, AVisszateresekListajaEsKeplete) {
    const TJson szolar =
        valasz(R"({"op": "revolucio", "fajta": 1, "sor": 2, "ujhely": "Pécs", )" + szeged + "}");
    EXPECT_EQ(szolar["cim"], "Szolár");
    EXPECT_EQ(szolar["kezdo"], TJson({1975, 7, 20}));
    EXPECT_EQ(szolar["sorok"].size(), szolar["talalatok"].size());
    EXPECT_EQ(szolar["talalatok"][0][6], "D");
    EXPECT_EQ(szolar["talalatok"][1][0], 1976);
    EXPECT_EQ(szolar["keplet"]["statuszsor"][2], "Pécs");
    const TJson hold = valasz(R"({"op": "personar", "fajta": 3, )" + szeged + "}");
    EXPECT_EQ(hold["statusz"], "Hold pers");
    EXPECT_EQ(hold["talalatok"][0].size(), 6U);
    EXPECT_FALSE(hold.contains("keplet"));
}

TEST(KepletJson, HetRevolucioTizenegyPersonar) {
    const auto van = [](const char* muvelet, int fajta) {
        return !valasz(R"({"op": ")" + std::string(muvelet) + R"(", "fajta": )" + std::to_string(fajta) +
                       ", " + szeged + "}")
                    .contains("hiba");
    };
    for (const auto& [muvelet, fajtak] : {std::pair("revolucio", 7), std::pair("personar", 11)}) {
        EXPECT_TRUE(van(muvelet, 1));
        EXPECT_TRUE(van(muvelet, fajtak));
        EXPECT_FALSE(van(muvelet, 0));
        EXPECT_FALSE(van(muvelet, fajtak + 1));
    }
}

TEST(KepletJson, ADirekciokEsAzIngresszio) {
    const std::string sajatNap = szeged + R"(, "esemeny": [1975, 7, 21])";
    const TJson tercier =
        valasz(R"({"op": "tercier", "orbis_nap": 99, )" + szeged + R"(, "esemeny": [1980, 7, 21]})");
    const bool ures = tercier["TercierSzoveg"].get<std::string>().empty();
    EXPECT_EQ(tercier["TercierHazSzoveg"].get<std::string>().empty(), ures);
    EXPECT_EQ(tercier["verdikt"], ures ? "Nincs direkció!" : "Van direkció!");
    EXPECT_EQ(valasz(R"({"op": "ingresszio", )" + sajatNap + "}")["verdikt"], "Van inresszió!");
    const TJson primer = valasz(R"({"op": "primer", "kezdo": [2000, 1, 1], )" + szeged + "}");
    ASSERT_FALSE(primer["sorok"].empty());
    EXPECT_LE(primer["sorok"].size(), 22U);
    for (const TJson& sor : primer["sorok"]) EXPECT_EQ(sor.get<std::string>().substr(10, 4), ".   ");
    const TJson haz =
        valasz(R"({"op": "solarhaz", "datum": [2000, 1, 1], "hosszusag": 72540, "szelesseg": 166500, )" +
               szeged + "}");
    EXPECT_GE(haz["haz"], 1);
    EXPECT_LE(haz["haz"], 12);
}

TEST(KepletJson, AMundanHazakTizenotSoraiEsVerdiktjei) {
    const TJson v = valasz(R"({"op": "mundan", )" + szeged + "}");
    EXPECT_EQ(v["HazEgyezes"].get<std::string>().size(), 12U);
    EXPECT_TRUE(v["MundanEredmeny"].is_string());
    EXPECT_TRUE(v["AnalogiaAllapot"].is_string());
    ASSERT_EQ(v["hazak"].size(), 12U);
    for (const TJson& haz : v["hazak"]) {
        ASSERT_EQ(haz.size(), 15U);
        EXPECT_EQ(haz[7], TJson({"", "", ""}));
    }
    EXPECT_EQ(v["hazak"][7][0], TJson({" 8-es Mundánház:  ", "h    ", "    "}));
    EXPECT_EQ(v["hazak"][7][1], TJson({"Ház ura:", "E    ", "J    "}));
    EXPECT_EQ(v["hazak"][0][1], TJson({"Ház ura:", "E    ", "     "}));
}

TEST(KepletJson, AMundanKeresesElsoNyomasaMarad) {
    const std::string kereses = R"({"op": "mundan_kereses", "irany": 1, )" + szeged + R"(, "KeresesVolt": )";
    const TJson elso = valasz(kereses + "false}");
    EXPECT_EQ(elso["pillanat"], TJson({1975, 7, 21, 6, 4, 9}));
    EXPECT_EQ(elso["KeresesVolt"], true);
    const TJson masodik = valasz(kereses + "true}");
    EXPECT_NE(masodik["pillanat"], elso["pillanat"]);
    EXPECT_NE(masodik["AnalogiaAllapot"], elso["AnalogiaAllapot"]);
    EXPECT_TRUE(valasz(R"({"op": "mundan_kereses", "irany": 0, "KeresesVolt": true, )" + szeged + "}")
                    .contains("hiba"));
}

TEST(KepletJson, APontositasHaromListaja) {
    const TJson v = valasz(
        R"({"op": "pontositas", "hatotav": 99, )" + szeged +
        R"(, "esemenyek": [{"esemeny": "Házasság", "ev": 2000, "ho": 7, "nap": 1, "hosszFok": 20, "hosszPerc": 9, "szelFok": 46, "szelPerc": 15}, {"esemeny": ""}]})");
    EXPECT_EQ(v["memo1"], TJson({"1. 2000.07.01. Házasság"}));
    EXPECT_EQ(v["memo2"].size(), 1U);
    EXPECT_EQ(v["memo3"][0].get<std::string>().substr(0, 3), "1. ");
}

TEST(KepletJson, ATablakFajljai) {
    const TMappa mappa;
    ASSERT_EQ(std::system((std::string(KEPLET_JSON) + " --tablak " + mappa.nev()).c_str()), 0);
    const auto meret = [&](const char* fajl) { return std::filesystem::file_size(mappa / fajl); };
    EXPECT_EQ(meret("efemerida.bin"), 65536U * 72);
    EXPECT_EQ(meret("mctabla.i32"), 361U * 4);
    EXPECT_EQ(meret("haztabla.i32"), 19U * 361 * 5 * 4);
    EXPECT_EQ(meret("ferde.i32"), 19U * 361 * 4);
    EXPECT_EQ(meret("rekt.i32"), 2161U * 4);
    EXPECT_EQ(meret("hossz.i32"), 2161U * 4);
    EXPECT_EQ(meret("nyari.i32"), 116U * 4 * 4);
    std::ifstream tsv(mappa / "telepulesek.tsv");
    int sorok = 0;
    for (std::string sor; std::getline(tsv, sor); ++sorok) {
        if (sorok == 1) {
            EXPECT_EQ(sor, "Aba\t169323\t66689");
        }
    }
    EXPECT_EQ(sorok, 3139);
    EXPECT_NE(std::system((std::string(KEPLET_JSON) + " --tablak /nincs/ilyen 2> /dev/null").c_str()), 0);
}

}  // namespace
