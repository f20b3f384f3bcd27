// The built program: what it writes, what it says, how it exits.

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "adatteszt.h"

namespace {

namespace fs = std::filesystem;

struct TFutas {
    int kod = -1;
    std::string ki;
    std::string hiba;

    bool mond(std::string_view mit) const { return hiba.find(mit) != std::string::npos; }
};

class Program : public testing::Test {
protected:
    /// Runs the program in the test's folder; the arguments stand in single quotes of the shell.
    TFutas fut(const std::vector<std::string>& szavak) const {
        std::string parancs = "cd '" + mappa.ut().string() + "' && " KORVEND_ADAT;
        for (const std::string& szo : szavak) parancs += " '" + szo + "'";
        parancs += " > ki.txt 2> hiba.txt";
        const int allapot = std::system(parancs.c_str());
        TFutas f{WIFEXITED(allapot) ? WEXITSTATUS(allapot) : -1, olvasd(mappa / "ki.txt"),
                 olvasd(mappa / "hiba.txt")};
        return f;
    }
    std::vector<std::string> fajlok(const char* hol) const {
        std::vector<std::string> nevek;
        if (!fs::exists(mappa / hol)) return nevek;
        for (const auto& elem : fs::directory_iterator(mappa / hol))
            nevek.push_back(elem.path().filename().string());
        std::sort(nevek.begin(), nevek.end());
        return nevek;
    }

    TIdeiglenesMappa mappa;
};

using TNevek = std::vector<std::string>;

TEST_F(Program, ASugoEsAValtozat) {
    const TFutas sugo = fut({"--help"});
    EXPECT_EQ(sugo.kod, 0);
    EXPECT_NE(sugo.ki.find("Használat: korvend-adat"), std::string::npos);
    EXPECT_EQ(sugo.hiba, "");
    const TFutas valtozat = fut({"--version"});
    EXPECT_EQ(valtozat.kod, 0);
    EXPECT_EQ(valtozat.ki, "korvend-adat " KORVEND_VALTOZAT "\n");
}

TEST_F(Program, AHibasHasznalatKodja2) {
    for (const std::vector<std::string>& szavak :
         {std::vector<std::string>{}, {"nincs.csv", "ki"}, {"--nincs", "a", "b"}, {"a"}}) {
        const TFutas f = fut(szavak);
        EXPECT_EQ(f.kod, 2);
        EXPECT_EQ(f.ki, "");
        EXPECT_TRUE(f.mond("korvend-adat: ")) << f.hiba;
        EXPECT_TRUE(f.mond("korvend-adat --help")) << f.hiba;
    }
}

TEST_F(Program, KepletekMappajaMindenFormatumbaEsVissza) {
    irj(mappa / "be/Őrült tűzhely.kvh",
        kvhBajtok(mintaKeplet("Őrült tűzhely"), {mintaEsemeny(), mintaEsemeny("Vizsga")}));
    irj(mappa / "be/b.kvh", kvhBajtok(mintaKeplet("Kovács Éva")));
    for (const std::string koztes : {"t.csv", "t.json", "t.jsonl", "t.aaf"}) {
        const TFutas oda = fut({"be", koztes});
        EXPECT_EQ(oda.kod, 0) << oda.hiba;
        EXPECT_EQ(oda.hiba, "2 képletből 2 kiírva; 0 hiba, 0 veszteség, 0 eltérés\n");
        const TFutas vissza = fut({koztes, "ki-" + koztes + "/"});
        EXPECT_EQ(vissza.kod, 0) << vissza.hiba;
        EXPECT_EQ(fajlok(("ki-" + koztes).c_str()), (TNevek{"Kovács Éva.kvh", "Őrült tűzhely.kvh"}));
        EXPECT_EQ(olvasd(mappa / ("ki-" + koztes + "/Őrült tűzhely.kvh")),
                  olvasd(mappa / "be/Őrült tűzhely.kvh"));
        EXPECT_EQ(olvasd(mappa / ("ki-" + koztes + "/Kovács Éva.kvh")), olvasd(mappa / "be/b.kvh"));
    }
}

TEST_F(Program, AJsonTombEsASoronkenti) {
    irj(mappa / "be/a.kvh", kvhBajtok(mintaKeplet("A")));
    irj(mappa / "be/b.kvh", kvhBajtok(mintaKeplet("B")));
    ASSERT_EQ(fut({"be", "t.json"}).kod, 0);
    const auto tomb = nlohmann::json::parse(olvasd(mappa / "t.json"));
    ASSERT_EQ(tomb.size(), 2U);
    EXPECT_EQ(tomb[1]["nev"], "B");
    ASSERT_EQ(fut({"be", "t.jsonl"}).kod, 0);
    const std::string sorok = olvasd(mappa / "t.jsonl");
    EXPECT_EQ(std::count(sorok.begin(), sorok.end(), '\n'), 2);
    EXPECT_EQ(nlohmann::json::parse(sorok.substr(0, sorok.find('\n')))["nev"], "A");
    ASSERT_EQ(fut({"be", "szoveg.txt", "--ki", "json"}).kod, 0);
    EXPECT_EQ(olvasd(mappa / "szoveg.txt"), olvasd(mappa / "t.json"));
}

TEST_F(Program, ALetezoFajltNemIrjaFelul) {
    irj(mappa / "be/a.kvh", kvhBajtok(mintaKeplet("A")));
    irj(mappa / "t.csv", "régi");
    const TFutas tilos = fut({"be", "t.csv"});
    EXPECT_EQ(tilos.kod, 2);
    EXPECT_TRUE(tilos.mond("már létezik, --felulir írja felül: t.csv"));
    EXPECT_EQ(olvasd(mappa / "t.csv"), "régi");
    EXPECT_EQ(fut({"be", "t.csv", "--felulir"}).kod, 0);
    EXPECT_EQ(olvasd(mappa / "t.csv").substr(0, 6), "nev,ev");

    irj(mappa / "ki/A.kvh", "régi");
    const TFutas mappaba = fut({"t.csv", "ki"});
    EXPECT_EQ(mappaba.kod, 1);
    EXPECT_TRUE(mappaba.mond("t.csv:2: hiba: „A”: már létezik, --felulir írja felül: ki/A.kvh"));
    EXPECT_TRUE(mappaba.mond("1 képletből 0 kiírva"));
    EXPECT_EQ(olvasd(mappa / "ki/A.kvh"), "régi");
    EXPECT_EQ(fut({"t.csv", "ki", "--felulir"}).kod, 0);
    EXPECT_EQ(olvasd(mappa / "ki/A.kvh"), kvhBajtok(mintaKeplet("A")));
}

TEST_F(Program, AzAzonosNevekSzamotKapnak) {
    irj(mappa / "be/1.kvh", kvhBajtok(mintaKeplet("a/b")));
    irj(mappa / "be/2.kvh", kvhBajtok(mintaKeplet("A:B")));
    irj(mappa / "be/3.kvh", kvhBajtok(mintaKeplet("")));
    irj(mappa / "be/4.kvh", kvhBajtok(mintaKeplet(".")));
    EXPECT_EQ(fut({"be", "ki"}).kod, 0);
    EXPECT_EQ(fajlok("ki"), (TNevek{"-.kvh", "A-B (2).kvh", "a-b.kvh", "névtelen.kvh"}));
    EXPECT_EQ(olvasd(mappa / "ki/A-B (2).kvh"), kvhBajtok(mintaKeplet("A:B")));
}

TEST_F(Program, AzAzonosNevuekSzamaOdaEsVisszaMegmarad) {
    for (int i = 1; i <= 12; ++i) {
        TKvhRekord r = mintaKeplet("Új képlet");
        r.pillanat.nap = i;
        irj(mappa / ("be/" + std::to_string(100 + i) + ".kvh"), kvhBajtok(r));
    }
    ASSERT_EQ(fut({"be", "egy"}).kod, 0);
    ASSERT_EQ(fut({"egy", "t.csv"}).kod, 0);
    ASSERT_EQ(fut({"t.csv", "ketto"}).kod, 0);
    ASSERT_EQ(fajlok("egy").size(), 12U);
    for (const std::string& nev : fajlok("egy"))
        EXPECT_EQ(olvasd(mappa / ("egy/" + nev)), olvasd(mappa / ("ketto/" + nev)));
}

TEST_F(Program, AHibaAFajltEsASortNevezi) {
    irj(mappa / "t.csv",
        "nev,ev,ho,nap,ora,perc,helyseg\nA,1975,7,21,6,4,Szeged\nB,1899,7,21,6,4,Szeged\nC,2079,7,21,6,4,"
        "Szeged\n"
        "D,1975,7,21,6,4,Prága\nE,1975,7,21,6\nF\xFF,1975,7,21,6,4,Szeged\nG,2078,12,31,6,4,Szeged\n");
    const TFutas f = fut({"t.csv", "ki"});
    EXPECT_EQ(f.kod, 1);
    EXPECT_TRUE(f.mond("t.csv:3: hiba: „B”: ev: 1899, 1900 és 2078 között kell lennie; kimarad\n"));
    EXPECT_TRUE(f.mond("t.csv:4: hiba: „C”: ev: 2079"));
    EXPECT_TRUE(f.mond("t.csv:5: hiba: „D”: idozona, hosszusag, szelesseg: nincs megadva"));
    EXPECT_TRUE(f.mond("t.csv:6: hiba: „E”: perc: üres; kimarad"));
    EXPECT_TRUE(f.mond("t.csv:7: hiba: a sor nem UTF-8; kimarad"));
    EXPECT_TRUE(f.mond("2 kiírva; 5 hiba, 0 veszteség"));
    EXPECT_EQ(fajlok("ki"), (TNevek{"A.kvh", "G.kvh"}));
}

TEST_F(Program, ACsonkaKepletfajlATobbitNemAllitjaMeg) {
    irj(mappa / "be/a.kvh", kvhBajtok(mintaKeplet("A")));
    irj(mappa / "be/b.kvh", kvhBajtok(mintaKeplet("B"), {mintaEsemeny()}).substr(0, 1000));
    irj(mappa / "be/c.kvh", "");
    irj(mappa / "be/d.kvh", kvhBajtok(mintaKeplet("D")));
    const TFutas f = fut({"be", "t.csv"});
    EXPECT_EQ(f.kod, 1);
    EXPECT_TRUE(f.mond("be/b.kvh: hiba: csonka, 1 eseményből 0 van meg; kimarad"));
    EXPECT_TRUE(f.mond("be/c.kvh: hiba: csonka, 0 bájt"));
    EXPECT_TRUE(f.mond("2 képletből 2 kiírva; 2 hiba"));
    const std::string csv = olvasd(mappa / "t.csv");
    EXPECT_NE(csv.find("\r\nA,"), csv.npos);
    EXPECT_NE(csv.find("\r\nD,"), csv.npos);
}

TEST_F(Program, AKodlapbolHianyzoKarakterekEsALevagasVeszteseg) {
    irj(mappa / "t.jsonl",
        R"({"nev": "漢字 Éva", "pillanat": [1975, 7, 21, 6, 4, 9], "helyseg": "Szeged", "jegyzet": "😀", "esemenyek": [)"
        R"({"esemeny": "東", "ev": 2000, "ho": 1, "nap": 2, "ora": 3, "perc": 4, "helyseg": "Pécs"}]})"
        "\n"
        R"({"nev": "Aki igen hosszú nevet kapott szegény", "pillanat": [1975, 7, 21, 6, 4, 9], "helyseg": "Szeged"})"
        "\n");
    const TFutas f = fut({"t.jsonl", "ki"});
    EXPECT_EQ(f.kod, 1);
    EXPECT_TRUE(
        f.mond("t.jsonl:1: veszteség: „漢字 Éva”: nev: 2 karakter helyén „?” áll, mert a kódlapból hiányzik: "
               "„漢”, „字”\n"));
    EXPECT_TRUE(f.mond("„漢字 Éva”: jegyzet: 1 karakter helyén „?” áll"));
    EXPECT_TRUE(f.mond("„漢字 Éva”: 1. esemény: esemeny: 1 karakter helyén „?” áll"));
    EXPECT_TRUE(
        f.mond("t.jsonl:2: veszteség: „Aki igen hosszú nevet kapott szegény”: nev: levágva, 36 karakterből "
               "32 maradt"));
    EXPECT_TRUE(f.mond("2 képletből 2 kiírva; 0 hiba, 4 veszteség"));
    EXPECT_EQ(fajlok("ki"), (TNevek{"Aki igen hosszú nevet kapott szegény.kvh", "漢字 Éva.kvh"}));
}

TEST_F(Program, AzElteresekCsakListazva) {
    TKvhRekord r = mintaKeplet("A");
    r.idozona = 2;
    r.nyariIdo = 1;
    r.hosszusag = 3600;
    irj(mappa / "be/a.kvh", kvhBajtok(r));
    TKvhRekord kulfoldi = mintaKeplet("B");
    kulfoldi.helyseg = "New York";
    kulfoldi.hosszusag = -266401;
    kulfoldi.szelesseg = 146580;
    kulfoldi.idozona = -5;
    irj(mappa / "be/b.kvh", kvhBajtok(kulfoldi));
    const TFutas f = fut({"be", "t.csv"});
    EXPECT_EQ(f.kod, 0);
    EXPECT_TRUE(f.mond("be/a.kvh: eltérés: „A”: idozona: 2, a helységtábla szerint 1\n"));
    EXPECT_TRUE(f.mond("be/a.kvh: eltérés: „A”: nyariIdo: 1, a nyári idő táblája szerint 0\n"));
    EXPECT_TRUE(f.mond("be/a.kvh: eltérés: „A”: hosszusag: 1°00'K, a helységtábla szerint 20°09'46\"K\n"));
    EXPECT_TRUE(f.mond("be/b.kvh: eltérés: „B”: helyseg: „New York” nincs a helységtáblában"));
    EXPECT_TRUE(f.mond("be/b.kvh: eltérés: „B”: szelesseg: 40°43'É, a háztáblák 42° és 60° között valók"));
    ASSERT_EQ(fut({"t.csv", "ki"}).kod, 0);
    EXPECT_EQ(olvasd(mappa / "ki/A.kvh"), kvhBajtok(r));
    EXPECT_EQ(olvasd(mappa / "ki/B.kvh"), kvhBajtok(kulfoldi));
}

const std::string aafRekordok =
    "#A93:Ferber,Tobias,m,27.9.1970,11:04,Kandel/Pfalz,D\r\n"
    "#B93:*,49n05,8e11,1he,0\r\n"
    "#ZNAM:CET\r\n"
    "#A93:Cezanne,Paul,m,19.1.1839,1:00,Aix-En-Provence,F\r\n"
    "#B93:2392758.526528,43n31,5e27,*,L\r\n"
    "#A93:*,Axel,*,27.7.1968,15:31:00,Geseke,D\r\n"
    "#B93:2440065.10500,51N38:00,008E31:00,1hE00:00,*\r\n";

TEST_F(Program, MasProgramokAafRekordjaibolKepletek) {
    irj(mappa / "t.aaf", aafRekordok);
    const TFutas f = fut({"t.aaf", "ki"});
    EXPECT_EQ(f.kod, 1);
    EXPECT_EQ(fajlok("ki"), (TNevek{"Axel.kvh", "Ferber Tobias.kvh"}));
    EXPECT_TRUE(f.mond("t.aaf:4: hiba: „Cezanne Paul”: ev: 1839"));
    EXPECT_TRUE(f.mond("t.aaf:6: eltérés: „Axel”: ido: a Julián-nap és az óraidő eltér"));
    TKvhRekord ferber;
    ferber.nev = "Ferber Tobias";
    ferber.pillanat = {1970, 9, 27, 11, 4, 0};
    ferber.helyseg = "Kandel/Pfalz";
    ferber.hosszusag = 8 * 3600 + 11 * 60;
    ferber.szelesseg = 49 * 3600 + 5 * 60;
    EXPECT_EQ(olvasd(mappa / "ki/Ferber Tobias.kvh"), kvhBajtok(ferber));
}

TEST_F(Program, AmibolIttNemLehetKepletEgyenkentJelentve) {
    irj(mappa / "t.aaf",
        "#A93:A,B,m,1.1.1899,1:00,X,D\n#B93:*,49n05,8e11,1he,0\n"
        "#A93:C,D,m,1.1.2079,1:00,X,D\n#B93:*,49n05,8e11,1he,0\n"
        "#A93:E,F,m,1.1.1950J,1:00,X,D\n#B93:*,49n05,8e11,1he,0\n"
        "#A93:G,H,m,1.1.1950,1:00,X,D\n#B93:*,33s52,151e12,10he,0\n"
        "#A93:I,J,m,1.1.1950,1:00,X,D\n#B93:*,41n59:59,8e11,1he,0\n"
        "#A93:K,L,m,1.1.1950,1:00,X,D\n#B93:*,60n00:01,8e11,1he,0\n"
        "#A93:M,N,m,31.12.2078,23:00,X,D\n#B93:*,60n00,8e11,1he,0\n"
        "#A93:O,P,m,1.1.1900,0:00,X,D\n#B93:*,42n00,8e11,1he,0\n"
        "#SUB:Délen,*,e,1.1.1950,1:00,Sydney,AUS\n#B93:*,33s52,151e12,10he,0\n"
        "#SUB:Régen,*,e,1.1.1850,1:00,X,D\n#B93:*,49n05,8e11,1he,0\n");
    const TFutas f = fut({"t.aaf", "ki"});
    EXPECT_EQ(f.kod, 1);
    EXPECT_TRUE(f.mond("t.aaf:1: hiba: „A B”: ev: 1899"));
    EXPECT_TRUE(f.mond("t.aaf:3: hiba: „C D”: ev: 2079"));
    EXPECT_TRUE(f.mond("t.aaf:5: hiba: „E F”: datum: a Julián-naptár"));
    EXPECT_TRUE(f.mond("t.aaf:7: hiba: „G H”: szelesseg: 33°52'D, déli"));
    EXPECT_TRUE(f.mond("t.aaf:9: hiba: „I J”: szelesseg: 41°59'59\"É, a háztáblák"));
    EXPECT_TRUE(f.mond("t.aaf:11: hiba: „K L”: szelesseg: 60°00'01\"É, a háztáblák"));
    EXPECT_TRUE(f.mond("t.aaf:17: eltérés: „O P”, 1. esemény: szelesseg: 33°52'D, déli"));
    EXPECT_TRUE(f.mond("t.aaf:19: hiba: „O P”, 2. esemény: ev: 1850"));
    EXPECT_EQ(fajlok("ki"), (TNevek{"M N.kvh", "O P.kvh"}));
    EXPECT_EQ(fs::file_size(mappa / "ki/O P.kvh"), 2U * 628);
}

TEST_F(Program, AzAafKodlapjai) {
    irj(mappa / "t.aaf", "#A93:K\xF5v\xE1ri,\xC9va,f,21.7.1975,6:04,Szeged,H\n");
    ASSERT_EQ(fut({"t.aaf", "ki", "--be-kodlap", "1250"}).kod, 0);
    EXPECT_EQ(fajlok("ki"), TNevek{"Kővári Éva.kvh"});
    ASSERT_EQ(fut({"t.aaf", "ki2"}).kod, 1);  // õ is no character of the chart file
    EXPECT_EQ(fajlok("ki2"), TNevek{"Kõvári Éva.kvh"});

    irj(mappa / "t.jsonl", R"({"nev": "Kővári 漢", "pillanat": [1975, 7, 21, 6, 4, 9], "helyseg": "Szeged"})"
                           "\n");
    const TFutas f = fut({"t.jsonl", "ki.aaf", "--ki-kodlap=1250"});
    EXPECT_EQ(f.kod, 1);
    EXPECT_TRUE(f.mond("nev: 1 karakter helyén „?” áll, mert a kódlapból hiányzik: „漢”"));
    EXPECT_NE(olvasd(mappa / "ki.aaf").find("#A93:K\xF5v\xE1ri,?,*,"), std::string::npos);
    ASSERT_EQ(fut({"t.jsonl", "utf8.aaf"}).kod, 0);
    EXPECT_NE(olvasd(mappa / "utf8.aaf").find("#A93:Kővári,漢,*,"), std::string::npos);
}

TEST_F(Program, AzExcelTablaja) {
    irj(mappa / "be/a.kvh", kvhBajtok(mintaKeplet("A;B")));
    ASSERT_EQ(fut({"be", "t.csv", "--excel"}).kod, 0);
    EXPECT_EQ(olvasd(mappa / "t.csv").substr(0, 10), "\xEF\xBB\xBFnev;ev;");
    ASSERT_EQ(fut({"t.csv", "ki"}).kod, 0);
    EXPECT_EQ(olvasd(mappa / "ki/A;B.kvh"), kvhBajtok(mintaKeplet("A;B")));
}

TEST_F(Program, AzEsemenyHazatHaNincsKiszamitja) {
    // The Sun's house does not stand in the source: it is that of the program's own event editor.
    irj(mappa / "t.aaf",
        "#A93:A,*,m,21.7.1975,6:04:09,Szeged,H\n"
        "#SUB:Házasság,*,e,1.7.2000,12:00,Pécs,H\n"
        "#SUB:Vizsga,*,e,1.7.2000,12:00,Pécs,H\n#COM:Solar-Nap: 0\n");
    ASSERT_EQ(fut({"t.aaf", "t.json"}).kod, 0);
    const auto esemenyek = nlohmann::json::parse(olvasd(mappa / "t.json"))[0]["esemenyek"];
    // keplet-json, operation eletesemeny, for the same birth and event
    irj(mappa / "kerelem",
        R"({"op": "eletesemeny", "pillanat": [1975, 7, 21, 6, 4, 9], "hely": {"helyseg": "Szeged"}, "esemeny": {)"
        R"("ev": 2000, "ho": 7, "nap": 1, "ora": 12, "idozona": 1, "nyariIdo": 1, "hosszFok": 18, "hosszPerc": 14, )"
        R"("szelFok": 46, "szelPerc": 4}})"
        "\n");
    ASSERT_EQ(
        std::system(
            (KEPLET_JSON " < " + (mappa / "kerelem").string() + " > " + (mappa / "valasz").string()).c_str()),
        0);
    const int haz = nlohmann::json::parse(olvasd(mappa / "valasz"))["solarNap"];
    ASSERT_GE(haz, 1);
    EXPECT_EQ(esemenyek[0]["solarNap"], haz);
    EXPECT_EQ(esemenyek[1]["solarNap"], 0);
}

TEST_F(Program, AzUresForrasHiba) {
    fs::create_directory(mappa / "ures");
    irj(mappa / "ures.csv", "nev,ev,ho,nap,ora,perc\n");
    irj(mappa / "ures.json", "[]");
    irj(mappa / "ures.aaf", "");
    for (const char* be : {"ures", "ures.csv", "ures.json", "ures.aaf"}) {
        const TFutas f = fut({be, "ki.jsonl"});
        EXPECT_EQ(f.kod, 1) << be;
        EXPECT_TRUE(f.mond(std::string(be) + ": hiba: nincs benne képlet")) << f.hiba;
        EXPECT_FALSE(fs::exists(mappa / "ki.jsonl")) << be;
    }
}

TEST_F(Program, AmiNemIrhatoHiba) {
    irj(mappa / "be/a.kvh", kvhBajtok(mintaKeplet("A")));
    irj(mappa / "fajl", "x");
    EXPECT_EQ(fut({"be", "/dev/full", "--ki", "csv"}).kod, 1);
    const TFutas nincs = fut({"be", "nincs/t.csv"});
    EXPECT_EQ(nincs.kod, 1);
    EXPECT_TRUE(nincs.mond("nincs/t.csv: hiba: nem írható"));
    EXPECT_TRUE(nincs.mond("1 képletből 0 kiírva"));
    const TFutas mappaHelyen = fut({"be", "fajl/ki"});
    EXPECT_EQ(mappaHelyen.kod, 1);
    EXPECT_TRUE(mappaHelyen.mond("a mappa nem hozható létre"));
}

TEST_F(Program, ASzabvanyosKimenetreIsIr) {
    irj(mappa / "be/a.kvh", kvhBajtok(mintaKeplet("A")));
    const std::string parancs = "cd '" + mappa.ut().string() +
                                "' && " KORVEND_ADAT " be /dev/stdout --ki csv 2> hiba.txt | cat > cso.txt";
    ASSERT_EQ(std::system(parancs.c_str()), 0);
    EXPECT_EQ(olvasd(mappa / "cso.txt").substr(0, 6), "nev,ev");
}

}  // namespace
