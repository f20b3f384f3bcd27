// Charts as a table.

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "files/csv.h"

namespace {

constexpr auto hiba = TJelentesFajta::hiba;
constexpr auto veszteseg = TJelentesFajta::veszteseg;

const std::string fejlec =
    "nev,ev,ho,nap,ora,perc,mperc,idozona,nyariIdo,helyseg,hosszusag,szelesseg,jegyzet,hang";
const std::string kovacs = "Kovács Éva,1975,7,21,6,4,9,1,0,Szeged,20°09'K,46°14'É,jegyzet,H";

TAdatlap egyetlen(std::string_view szoveg) {
    const TAdatlapok ki = CsvOlvasas(szoveg);
    EXPECT_EQ(ki.lapok.size(), 1U) << szoveg;
    return ki.lapok.empty() ? TAdatlap{} : ki.lapok[0];
}

bool jelenti(const TAdatlapok& ki, TJelentesFajta fajta, int sor, std::string_view mit) {
    return std::any_of(ki.jelentesek.begin(), ki.jelentesek.end(), [&](const TJelentes& j) {
        return j.fajta == fajta && j.sor == sor && j.szoveg.find(mit) != std::string::npos;
    });
}

TKvhRekord kovacsRekord() {
    TKvhRekord r;
    r.nev = "Kovács Éva";
    r.pillanat = {1975, 7, 21, 6, 4, 9};
    r.helyseg = "Szeged";
    r.hosszusag = 72540;
    r.szelesseg = 166440;
    r.jegyzet = "jegyzet";
    r.hang = "H";
    return r;
}

TEST(Csv, EgySorEgyKeplet) {
    const TAdatlap lap = egyetlen(fejlec + "\n" + kovacs + "\n");
    EXPECT_EQ(lap.keplet.adat, kovacsRekord());
    EXPECT_EQ(lap.keplet.sor, 2);
    EXPECT_TRUE(lap.keplet.hianyzik.none());
    EXPECT_TRUE(lap.esemenyek.empty());
}

TEST(Csv, AzElojelAPozitivSzamElottIsAllhat) {
    const std::string szoveg = fejlec + "\nX,1975,+7,21,6,4,9,+2,0,Szeged,20°09'K,46°14'É,,\n";
    EXPECT_EQ(egyetlen(szoveg).keplet.adat.pillanat.ho, 7);
    EXPECT_EQ(egyetlen(szoveg).keplet.adat.idozona, 2);
}

TEST(Csv, AzElsoOszlopEsemenyeIs) {
    const auto ki = CsvOlvasas("1. esemeny," + fejlec + "\nHázasság," + kovacs + "\n");
    EXPECT_TRUE(jelenti(ki, hiba, 2, "üres; kimarad"));  // an event with a name and no date
}

TEST(Csv, AzIrtTabla) {
    TAdatlap lap;
    lap.keplet.adat = kovacsRekord();
    lap.keplet.adat.jegyzet = "\"idézet\"; és\nmás";
    lap.keplet.adat.hosszusag = 72586;
    EXPECT_EQ(CsvFejlec(0) + CsvSor(lap, 0),
              fejlec + "\r\n" +
                  "Kovács Éva,1975,7,21,6,4,9,1,0,Szeged,\"20°09'46\"\"K\",46°14'É,\"\"\"idézet\"\"; "
                  "és\nmás\",H\r\n");
    TAdatRekord e;
    e.adat = {"Házasság", {2000, 7, 1, 12, 0, 0}, -5, 1, "New York", -266400, 146580, "I,7", 0, "11"};
    lap.esemenyek = {e};
    const std::string ketto = CsvFejlec(2);
    EXPECT_EQ(ketto.substr(fejlec.size()),
              ",1. esemeny,1. ev,1. ho,1. nap,1. ora,1. perc,1. mperc,1. idozona,1. nyariIdo,1. helyseg,1. "
              "hosszusag,"
              "1. szelesseg,1. analogia,1. solarNap,2. esemeny,2. ev,2. ho,2. nap,2. ora,2. perc,2. mperc,2. "
              "idozona,"
              "2. nyariIdo,2. helyseg,2. hosszusag,2. szelesseg,2. analogia,2. solarNap\r\n");
    const std::string sor = CsvSor(lap, 2);
    EXPECT_NE(
        sor.find(",H,Házasság,2000,7,1,12,0,0,-5,1,New York,74°00'Ny,40°43'É,\"I,7\",11,,,,,,,,,,,,,,\r\n"),
        sor.npos)
        << sor;
    EXPECT_EQ(MezoElteresek(lap, egyetlen(ketto + sor)), std::vector<std::string>{});
}

TEST(Csv, AMagyarExcelPontosvesszovelEsBajtsorrendJellel) {
    TAdatlap lap;
    lap.keplet.adat = kovacsRekord();
    lap.keplet.adat.jegyzet = "a;b,c";
    const TCsvMod excel{';', true};
    const std::string szoveg = CsvFejlec(0, excel) + CsvSor(lap, 0, excel);
    EXPECT_EQ(szoveg.substr(0, 10), "\xEF\xBB\xBFnev;ev;");
    EXPECT_NE(szoveg.find(";\"a;b,c\";H\r\n"), szoveg.npos);
    EXPECT_EQ(MezoElteresek(lap, egyetlen(szoveg)), std::vector<std::string>{});
}

TEST(Csv, AHaromElvalasztoAFejlecbol) {
    for (const char jel : {',', ';', '\t'}) {
        std::string szoveg = fejlec + "\r\n" + kovacs + "\r\n";
        std::replace(szoveg.begin(), szoveg.end(), ',', jel);
        EXPECT_EQ(egyetlen(szoveg).keplet.adat, kovacsRekord()) << jel;
    }
}

TEST(Csv, AzIdezettMezok) {
    const std::string rovid = "nev,ev,ho,nap,ora,perc,jegyzet\n";
    const auto jegyzet = [&](const std::string& cella) {
        return egyetlen(rovid + "X,1975,7,21,6,4," + cella).keplet.adat.jegyzet;
    };
    EXPECT_EQ(jegyzet("\"a,b\""), "a,b");
    EXPECT_EQ(jegyzet("\"a\"\"b\"\"\""), "a\"b\"");
    EXPECT_EQ(jegyzet("\"\""), "");
    EXPECT_EQ(jegyzet("\"a\r\nb\n\""), "a\r\nb\n");
    EXPECT_EQ(jegyzet("\" a \""), " a ");
    EXPECT_EQ(jegyzet(" a "), " a ");
    EXPECT_EQ(jegyzet("a\"b"), "a\"b");  // a quote within a plain cell is itself
    EXPECT_EQ(jegyzet("a;b"), "a;b");
    EXPECT_EQ(jegyzet("\"a\"\r\n"), "a");
    EXPECT_EQ(jegyzet("a\r\n"), "a");
    EXPECT_EQ(jegyzet("a\n\n\r\n,,,,,,\n"), "a");  // blank lines are none
}

TEST(Csv, AzOszlopokSorrendjeSzabad) {
    const TAdatlap lap = egyetlen(
        "perc, ORA ,nap,ho,ev,1. Esemeny,nev,1.ev,1. ho,1. nap,1. ora,1. "
        "perc\n4,6,21,7,1975,Vizsga,X,2000,1,2,3,4\n");
    EXPECT_EQ(lap.keplet.adat.nev, "X");
    EXPECT_EQ(lap.keplet.adat.pillanat, (TPillanat{1975, 7, 21, 6, 4, 0}));
    ASSERT_EQ(lap.esemenyek.size(), 1U);
    EXPECT_EQ(lap.esemenyek[0].adat.nev, "Vizsga");
    EXPECT_EQ(lap.esemenyek[0].adat.pillanat, (TPillanat{2000, 1, 2, 3, 4, 0}));
}

TEST(Csv, AzUresSzamIsmeretlenAzUresSzovegUres) {
    const TAdatlap lap = egyetlen(fejlec + "\n,1975,7,21,6,4,,,,,,,,\n");
    EXPECT_EQ(lap.keplet.adat.nev, "");
    for (const TMezo mezo : {TMezo::idozona, TMezo::nyariIdo, TMezo::hosszusag, TMezo::szelesseg})
        EXPECT_FALSE(lap.keplet.van(mezo));
    for (const TMezo mezo : {TMezo::nev, TMezo::jegyzet, TMezo::hang, TMezo::ev})
        EXPECT_TRUE(lap.keplet.van(mezo));
    EXPECT_EQ(lap.keplet.adat.pillanat.mperc, 0);
}

TEST(Csv, AzEsemenyHazaHaNincsMegadva) {
    const std::string f = fejlec + ",1. esemeny,1. ev,1. ho,1. nap,1. ora,1. perc,1. solarNap\n" + kovacs;
    EXPECT_FALSE(egyetlen(f + ",Vizsga,2000,1,2,3,4,\n").esemenyek[0].van(TMezo::hang));
    const TAdatlap lap = egyetlen(f + ",Vizsga,2000,1,2,3,4, 07 \n");
    EXPECT_TRUE(lap.esemenyek[0].van(TMezo::hang));
    EXPECT_EQ(lap.esemenyek[0].adat.hang, "7");
}

TEST(Csv, AzUresEsemenyekKimaradnakATobbiMegy) {
    const TAdatlap lap = egyetlen(
        "nev,ev,ho,nap,ora,perc,1. esemeny,1. ev,2. esemeny,2. ev,2. ho,2. nap,2. ora,2. perc\n"
        "X,1975,7,21,6,4, ,,Vizsga,2000,1,2,3,4\n");
    ASSERT_EQ(lap.esemenyek.size(), 1U);
    EXPECT_EQ(lap.esemenyek[0].adat.nev, "Vizsga");
}

TEST(Csv, AHianyzoOszlopMindentMegallit) {
    const auto ki = CsvOlvasas("nev,ev,ho,nap,ora\nX,1975,7,21,6\n");
    EXPECT_TRUE(ki.lapok.empty());
    EXPECT_TRUE(jelenti(ki, hiba, 1, "hiányzó oszlop: perc"));
    EXPECT_EQ(ki.jelentesek.size(), 1U);
    EXPECT_EQ(CsvOlvasas("").jelentesek.size(), 0U);
    EXPECT_TRUE(jelenti(CsvOlvasas("\"nev\n"), hiba, 1, "fejléc"));
}

TEST(Csv, AzIsmeretlenEsAzIsmeteltOszlopVeszteseg) {
    const auto ki = CsvOlvasas("nev,ev,ho,nap,ora,perc,szemszín,nev,,1. nev\nX,1975,7,21,6,4,kék,Y,,z\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.adat.nev, "X");
    EXPECT_TRUE(jelenti(ki, veszteseg, 1, "ismeretlen oszlop, kimarad: „szemszín”"));
    EXPECT_TRUE(jelenti(ki, veszteseg, 1, "ismételt oszlop, kimarad: „nev”"));
    EXPECT_TRUE(jelenti(ki, veszteseg, 1, "ismeretlen oszlop, kimarad: „1. nev”"));
    EXPECT_EQ(ki.jelentesek.size(), 3U);
}

TEST(Csv, AzEsemenyOszlopaEgytolSzamozottPonttal) {
    for (const char* nev : {"0. ev", "1 ev", "1ev", "12", "-1. ev", ". ev", "99999999999999999999. ev"}) {
        const auto ki = CsvOlvasas("nev,ho,nap,ora,perc,ev," + std::string(nev) + "\nX,7,21,6,4,1975,2000\n");
        ASSERT_EQ(ki.lapok.size(), 1U) << nev;
        EXPECT_EQ(ki.lapok[0].keplet.adat.pillanat.ev, 1975) << nev;
        EXPECT_TRUE(ki.lapok[0].esemenyek.empty()) << nev;
        EXPECT_TRUE(jelenti(ki, veszteseg, 1, "ismeretlen oszlop, kimarad: „" + std::string(nev) + "”"));
        EXPECT_EQ(ki.jelentesek.size(), 1U) << nev;
    }
}

TEST(Csv, AHuszonegyedikEsemenyVeszteseg) {
    const TAdatRekord esemeny{{"e", {2000, 7, 1, 12, 0, 0}, 1, 1, "Pécs", 65640, 165840, "", 0, "7"}, {}, 0};
    TAdatlap lap;
    lap.keplet.adat = kovacsRekord();
    lap.esemenyek.assign(21, esemeny);
    const auto ki = CsvOlvasas(CsvFejlec(21) + CsvSor(lap, 21));
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].esemenyek.size(), 20U);
    EXPECT_TRUE(jelenti(ki, veszteseg, 2, "„Kovács Éva”, 21. esemény"));
    EXPECT_EQ(ki.jelentesek.size(), 1U);
    lap.esemenyek.pop_back();
    const auto husz = CsvOlvasas(CsvFejlec(21) + CsvSor(lap, 21));
    EXPECT_TRUE(husz.jelentesek.empty());  // an empty column of an event is no loss
    EXPECT_EQ(MezoElteresek(lap, husz.lapok[0]), std::vector<std::string>{});
}

TEST(Csv, ATobbMezoMintOszlop) {
    const auto ki = CsvOlvasas(fejlec + "\n" + kovacs + ",többlet\n" + kovacs + ",,\n");
    EXPECT_EQ(ki.lapok.size(), 2U);
    EXPECT_TRUE(jelenti(ki, veszteseg, 2, "több mező, mint oszlop"));
    EXPECT_EQ(ki.jelentesek.size(), 1U);
}

TEST(Csv, ARosszSorATobbitNemAllitjaMeg) {
    const std::string szoveg = fejlec + "\n" +                                     // 1
                               kovacs + "\n" +                                     // 2
                               "X,kilenc,7,21,6,4\n" +                             // 3
                               "Y,1975,7,21,6\n" +                                 // 4
                               "\"két\nsoros\",1975,7,21,6,4,0,99999999999,0\n" +  // 5, 6
                               "Z,1975,7,21,6,4,0,1,0,S,20 fok,46°14'É\n" +        // 7
                               kovacs + "\n";                                      // 8
    const auto ki = CsvOlvasas(szoveg);
    EXPECT_EQ(ki.lapok.size(), 2U);
    EXPECT_TRUE(jelenti(ki, hiba, 3, "„X”: ev: érthetetlen, „kilenc”"));
    EXPECT_TRUE(jelenti(ki, hiba, 4, "„Y”: perc: üres"));
    EXPECT_TRUE(jelenti(ki, hiba, 5, "„két\\nsoros”: idozona: érthetetlen, „99999999999”"));
    EXPECT_TRUE(jelenti(ki, hiba, 7, "„Z”: hosszusag: érthetetlen, „20 fok”"));
    EXPECT_EQ(ki.lapok[1].keplet.sor, 8);
    EXPECT_EQ(ki.jelentesek.size(), 4U);
}

TEST(Csv, AzUresSorKimaradSzoNelkul) {
    const auto ki = CsvOlvasas(fejlec + "\n,,,,,,,,,,,,,\n  , ,\n" + kovacs + "\n,,\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.sor, 4);
    EXPECT_TRUE(ki.jelentesek.empty());
}

TEST(Csv, ARosszEsemenyMagabanMaradKi) {
    const auto ki = CsvOlvasas(fejlec + ",1. esemeny,1. ev,2. esemeny,2. ev,2. ho,2. nap,2. ora,2. perc\n" +
                               kovacs + ",rossz,2000,jó,2000,1,2,3,4\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    ASSERT_EQ(ki.lapok[0].esemenyek.size(), 1U);
    EXPECT_EQ(ki.lapok[0].esemenyek[0].adat.nev, "jó");
    EXPECT_TRUE(jelenti(ki, hiba, 2, "„Kovács Éva”, 1. esemény: ho: üres"));
}

TEST(Csv, APartalanIdezojelCsakASajatSoratViszi) {
    const auto ki = CsvOlvasas(fejlec + "\n\"X,1975,7,21,6,4\n" + kovacs + "\n" + kovacs + "\n");
    EXPECT_EQ(ki.lapok.size(), 2U);
    EXPECT_TRUE(jelenti(ki, hiba, 2, "idézőjel, amelynek nincs párja"));
    EXPECT_EQ(ki.lapok[0].keplet.sor, 3);
    const auto utana = CsvOlvasas(fejlec + "\n\"X\"y,1975,7,21,6,4\n" + kovacs + "\n");
    EXPECT_EQ(utana.lapok.size(), 1U);
    EXPECT_TRUE(jelenti(utana, hiba, 2, "szöveg a záró idézőjel után"));
}

TEST(Csv, ATobbsorosMezoUtaniHibaAzElsoSorMogottFolytatodik) {
    // The broken record begins on line 2; its second line is then read for itself, and breaks too.
    const auto ki = CsvOlvasas(fejlec + "\n\"A\nB\",1975,\"7,21\n" + kovacs + "\n");
    EXPECT_TRUE(jelenti(ki, hiba, 2, "idézőjel, amelynek nincs párja"));
    EXPECT_TRUE(jelenti(ki, hiba, 3, "idézőjel, amelynek nincs párja"));
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.sor, 4);
}

TEST(Csv, ANemUtf8SorHibaKodlappalOlvashato) {
    const std::string szoveg =
        fejlec + "\n" + kovacs + "\nK\xF5v\xE1ri,1975,7,21,6,4,9,1,0,Szeged,20°09'K,46°14'É,,\n" + kovacs;
    const auto ki = CsvOlvasas(szoveg);
    EXPECT_EQ(ki.lapok.size(), 2U);
    EXPECT_TRUE(jelenti(ki, hiba, 3, "nem UTF-8"));
    std::string kodlapos = fejlec +
                           "\nK\xF5v\xE1ri,1975,7,21,6,4,9,1,0,Szeged,20\xB0"
                           "09'K,46\xB0"
                           "14'\xC9,\x81,\n";
    const auto egyben = CsvOlvasas(kodlapos, TKodlap::cp1250);
    ASSERT_EQ(egyben.lapok.size(), 1U);
    EXPECT_EQ(egyben.lapok[0].keplet.adat.nev, "Kővári");
    EXPECT_EQ(egyben.lapok[0].keplet.adat.szelesseg, 166440);
    EXPECT_EQ(egyben.lapok[0].keplet.adat.jegyzet, "?");
    EXPECT_TRUE(jelenti(egyben, veszteseg, 2, "1 bájt nem karakter"));
    EXPECT_EQ(egyben.jelentesek.size(), 1U);
    // A row that is UTF-8 stays so, and one of which each byte is a character loses nothing.
    const auto vegyes =
        CsvOlvasas(fejlec + "\n" + kovacs + "\nK\xF5v\xE1ri,1975,7,21,6,4\n", TKodlap::cp1250);
    ASSERT_EQ(vegyes.lapok.size(), 2U);
    EXPECT_EQ(vegyes.lapok[0].keplet.adat, kovacsRekord());
    EXPECT_EQ(vegyes.lapok[1].keplet.adat.nev, "Kővári");
    EXPECT_TRUE(vegyes.jelentesek.empty());
}

TEST(Csv, ANagyonHosszuSor) {
    const std::string hosszu(4 << 20, 'x');
    const std::string sor = "\"" + hosszu + "\",1975,7,21,6,4\n";
    const auto ki = CsvOlvasas("nev,ev,ho,nap,ora,perc\n" + sor + "Y,1975,7,21,6,4\n");
    ASSERT_EQ(ki.lapok.size(), 2U);
    EXPECT_EQ(ki.lapok[0].keplet.adat.nev, hosszu);
    EXPECT_EQ(ki.lapok[1].keplet.adat.nev, "Y");
    std::string oszlopok = "nev,ev,ho,nap,ora,perc" + std::string(1 << 20, ',') + "\nY,1975,7,21,6,4\n";
    EXPECT_EQ(CsvOlvasas(oszlopok).lapok.size(), 1U);
}

TEST(Csv, AzElojelesSzamok) {
    EXPECT_EQ(egyetlen("nev,ev,ho,nap,ora,perc,idozona\nX,+1975,07, 21 ,6,4,-5\n").keplet.adat.idozona, -5);
    for (const char* rossz : {"1.0", "0x1", "--1", "1 2", "1e3", "2147483648"})
        EXPECT_TRUE(
            CsvOlvasas("nev,ev,ho,nap,ora,perc,idozona\nX,1975,7,21,6,4," + std::string(rossz)).lapok.empty())
            << rossz;
}

TEST(FokErtek, AmitFokSzovegIrt) {
    for (const std::int32_t ertek :
         {0, 1, -1, 59, 60, 3599, 3600, -3601, 68640, -68160, 72586, 648000, -648000, INT32_MAX, INT32_MIN})
        for (const bool szelesseg : {false, true})
            EXPECT_EQ(FokErtek(FokSzoveg(ertek, szelesseg), szelesseg), ertek);
}

TEST(FokErtek, AhogyAzEmberekIrjak) {
    for (const char* jo : {"19°04'48\"K", "19°4'48\"k", "19 04 48 E", "19:04:48e", "19e04:48", "19°04′48″K",
                           "k19 4 48", " 19° 04' 48\" K "})
        EXPECT_EQ(FokErtek(jo, false), 68688) << jo;
    EXPECT_EQ(FokErtek("18°56'Ny", false), -68160);
    EXPECT_EQ(FokErtek("18°56'NY", false), -68160);
    EXPECT_EQ(FokErtek("18w56", false), -68160);
    EXPECT_EQ(FokErtek("47°É", true), 169200);
    EXPECT_EQ(FokErtek("47 é", true), 169200);
    EXPECT_EQ(FokErtek("47n30", true), 171000);
    EXPECT_EQ(FokErtek("0°30'D", true), -1800);
    EXPECT_EQ(FokErtek("33S52", true), -(33 * 3600 + 52 * 60));
}

TEST(FokErtek, ABizonytalanNemErtek) {
    for (const char* rossz :
         {"", "K", "19", "19°04'", "68640", "19°60'K", "19°04'60\"K", "19°04'00\"00K", "-19°04'K", "19.5K",
          "19°04'É", "19°04'D", "19°04'KK", "99999999999°K", "600000°K"})
        EXPECT_EQ(FokErtek(rossz, false), std::nullopt) << rossz;
    for (const char* rossz : {"47°30'K", "47°30'E", "47°30'W", "47°30'Ny"})
        EXPECT_EQ(FokErtek(rossz, true), std::nullopt) << rossz;
}

/// A chart of random contents: any number, texts of everything that a table may stumble over.
TAdatlap veletlenLap(std::mt19937& veletlen) {
    const std::vector<std::string> betuk{"a",  "ő",    "Ű",  " ",  "\"", "\"\"", ",",    ";",     "\t",
                                         "\n", "\r\n", "\r", "漢", "😀",  "'",    "=1+1", "1. ev", "\x01"};
    const auto szam = [&](std::int32_t also, std::int32_t felso) {
        return std::uniform_int_distribution<std::int32_t>(also, felso)(veletlen);
    };
    const auto szoveg = [&] {
        std::string s;
        for (int i = szam(0, 12); i > 0; --i) s += betuk[static_cast<std::size_t>(szam(0, 17))];
        return s;
    };
    TAdatlap lap;
    for (int i = szam(0, 20); i >= 0; --i) {
        TAdatRekord r;
        for (const TMezoLeiras& leiras : adatMezok) {
            if (leiras.szoveg)
                r.adat.*leiras.szoveg = szoveg();
            else
                MezoSzam(r.adat, leiras) = szam(0, 9) == 0 ? szam(INT32_MIN, INT32_MAX) : szam(-50, 3000);
        }
        if (i == 0) {
            lap.keplet = r;
        } else {
            r.adat.hang = std::to_string(szam(0, 12));
            lap.esemenyek.push_back(r);
        }
    }
    return lap;
}

TEST(Csv, AVeletlenKepletekOdaEsVisszaVesztesegNelkul) {
    std::mt19937 veletlen(5);
    for (const TCsvMod mod : {TCsvMod{}, TCsvMod{';', true}}) {
        std::vector<TAdatlap> lapok;
        std::string szoveg = CsvFejlec(20, mod);
        for (int i = 0; i < 300; ++i) {
            lapok.push_back(veletlenLap(veletlen));
            szoveg += CsvSor(lapok.back(), 20, mod);
        }
        const auto ki = CsvOlvasas(szoveg);
        ASSERT_TRUE(ki.jelentesek.empty()) << ki.jelentesek[0].szoveg;
        ASSERT_EQ(ki.lapok.size(), lapok.size());
        for (std::size_t i = 0; i < lapok.size(); ++i)
            ASSERT_EQ(MezoElteresek(lapok[i], ki.lapok[i]), std::vector<std::string>{});
    }
}

}  // namespace
