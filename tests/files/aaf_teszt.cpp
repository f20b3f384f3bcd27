// AAF records, read and written.

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "files/aaf.h"
#include "files/kodlap1250.h"
#include "tables/szoveg.h"

namespace {

TAdatlapok olvas(std::string_view szoveg, TKodlap kodlap = TKodlap::cp1252) {
    return AafOlvasas(szoveg, kodlap);
}

/// The only record of a text.
TAdatlap egyetlen(std::string_view szoveg, TKodlap kodlap = TKodlap::cp1252) {
    const TAdatlapok ki = olvas(szoveg, kodlap);
    EXPECT_EQ(ki.lapok.size(), 1U) << szoveg;
    return ki.lapok.empty() ? TAdatlap{} : ki.lapok[0];
}

TKvhRekord keplet(std::string_view szoveg) {
    return egyetlen(szoveg).keplet.adat;
}

/// Whether a report of this kind stands at a line and holds a text.
bool jelenti(const TAdatlapok& ki, TJelentesFajta fajta, int sor, std::string_view mit) {
    return std::any_of(ki.jelentesek.begin(), ki.jelentesek.end(), [&](const TJelentes& j) {
        return j.fajta == fajta && j.sor == sor && j.szoveg.find(mit) != std::string::npos;
    });
}

std::size_t szam(const TAdatlapok& ki, TJelentesFajta fajta) {
    return static_cast<std::size_t>(std::count_if(ki.jelentesek.begin(), ki.jelentesek.end(),
                                                  [&](const TJelentes& j) { return j.fajta == fajta; }));
}

constexpr auto hiba = TJelentesFajta::hiba;
constexpr auto veszteseg = TJelentesFajta::veszteseg;
constexpr auto elteres = TJelentesFajta::elteres;

const std::string ferber =
    "#A93:Ferber,Tobias,m,27.9.1970,11:04,Kandel/Pfalz,D\n"
    "#B93:*,49n05,8e11,1he,0\n"
    "#ZNAM:CET\n";

TEST(Aaf, MasProgramRekordjaZonaidoben) {
    const TKvhRekord r = keplet(ferber);
    EXPECT_EQ(r.nev, "Ferber Tobias");
    EXPECT_EQ(r.pillanat, (TPillanat{1970, 9, 27, 11, 4, 0}));
    EXPECT_EQ(r.helyseg, "Kandel/Pfalz");
    EXPECT_EQ(r.szelesseg, 49 * 3600 + 5 * 60);
    EXPECT_EQ(r.hosszusag, 8 * 3600 + 11 * 60);
    EXPECT_EQ(r.idozona, 1);
    EXPECT_EQ(r.nyariIdo, 0);
    EXPECT_EQ(r.jegyzet, "");
    EXPECT_EQ(r.hang, "");
}

TEST(Aaf, MasProgramRekordjaHelyiKozepidoben) {
    const TKvhRekord r = keplet(
        "#A93:Cezanne,Paul,m,19.1.1839,1:00,Aix-En-Provence,F\n"
        "#B93:2392758.526528,43n31,5e27,*,L\n");
    EXPECT_EQ(r.nev, "Cezanne Paul");
    EXPECT_EQ(r.pillanat, (TPillanat{1839, 1, 19, 0, 38, 12}));  // 5e27 is 21 m 48 s
    EXPECT_EQ(r.idozona, 0);
    EXPECT_EQ(r.hosszusag, 5 * 3600 + 27 * 60);
}

TEST(Aaf, MasProgramRekordjaNagybetukkelJulianNappal) {
    const TAdatlapok ki = olvas(
        "#A93:*,Axel,*,27.7.1968,15:31:00,Geseke,D\n"
        "#B93:2440065.10500,51N38:00,008E31:00,1hE00:00,*\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    const TKvhRekord& r = ki.lapok[0].keplet.adat;
    EXPECT_EQ(r.nev, "Axel");
    EXPECT_EQ(r.pillanat, (TPillanat{1968, 7, 27, 15, 31, 12}));
    EXPECT_EQ(r.szelesseg, 51 * 3600 + 38 * 60);
    EXPECT_EQ(r.hosszusag, 8 * 3600 + 31 * 60);
    EXPECT_TRUE(jelenti(ki, elteres, 1, "Julián-nap"));
    EXPECT_EQ(szam(ki, hiba), 0U);
}

TEST(Aaf, ARekordAKovetkezoFejigTart) {
    const TAdatlapok ki = olvas(ferber + ferber + "#COM:a másodiké\n" + ferber);
    ASSERT_EQ(ki.lapok.size(), 3U);
    EXPECT_EQ(ki.lapok[0].keplet.sor, 1);
    EXPECT_EQ(ki.lapok[1].keplet.sor, 4);
    EXPECT_EQ(ki.lapok[2].keplet.sor, 8);
    EXPECT_EQ(ki.lapok[0].keplet.adat.jegyzet, "");
    EXPECT_EQ(ki.lapok[1].keplet.adat.jegyzet, "a másodiké");
    EXPECT_EQ(ki.lapok[2].keplet.adat.jegyzet, "");
}

TEST(Aaf, AKrLfUgyanazMintAzLf) {
    std::string krlf;
    const std::string lf = ferber + "#COM:a\n#COM:b\nfolytatva\n";
    for (const char c : lf) krlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    const TKvhRekord vart = keplet(lf);
    EXPECT_EQ(keplet(krlf), vart);
    EXPECT_EQ(vart.jegyzet, "a\nb\nfolytatva");
    EXPECT_EQ(keplet(krlf.substr(0, krlf.size() - 2)), vart);  // no line end at the end
}

TEST(Aaf, AMezokKorulFeherKozLehet) {
    EXPECT_EQ(keplet("#A93: Ferber , Tobias ,m, 27.9.1970 , 11:04 , Kandel/Pfalz , D \n"
                     "#B93: * , 49n05 , 8e11 , 1he , 0 \n"),
              keplet(ferber));
}

TEST(Aaf, ACsillagIsmeretlenNevMezoben) {
    EXPECT_EQ(keplet("#A93:Ferber,*,*,27.9.1970,11:04,*,*\n#B93:*,49n05,8e11,1he,0\n").nev, "Ferber");
    EXPECT_EQ(keplet("#A93:*,*,*,27.9.1970,11:04,*,*\n#B93:*,49n05,8e11,1he,0\n").nev, "");
    EXPECT_EQ(keplet("#A93:*,*,*,27.9.1970,11:04,*,*\n#B93:*,49n05,8e11,1he,0\n").helyseg, "");
}

TEST(Aaf, DarabCsakAzElsoOszlopbanKezdodik) {
    const TAdatlapok ki = olvas(ferber + "#COM:eleje\n #COM:folytatás\n# nem darab\n#nem darab: ez sem\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.adat.jegyzet, "eleje\n #COM:folytatás\n# nem darab\n#nem darab: ez sem");
}

TEST(Aaf, ADarabNeveBetukEsSzamjegyek) {
    const auto jegyzet = [](char jel) { return keplet(ferber + "#COM:eleje\n#" + jel + ":x\n").jegyzet; };
    for (const char jel : std::string_view("AZaz09")) EXPECT_EQ(jegyzet(jel), "eleje") << jel;
    for (const char jel : std::string_view("@[`{/"))
        EXPECT_EQ(jegyzet(jel), std::string("eleje\n#") + jel + ":x");
}

TEST(Aaf, AFolytatottMezosDarab) {
    EXPECT_EQ(keplet("#A93:Ferber,Tobias,m,27.9.1970,\n  11:04,Kandel/Pfalz,D\n#B93:*,49n05,\n8e11,1he,0\n"),
              keplet(ferber));
}

TEST(Aaf, AMezobenASorvegSzokoz) {
    const TKvhRekord r = keplet(
        "#A93:Ferber,Tobias \n\n  Karl,m,27.9.1970,11:04,Kandel/\r\nPfalz,D\n#B93:*,49n05,8e11,1he,0\n");
    EXPECT_EQ(r.nev, "Ferber Tobias Karl");
    EXPECT_EQ(r.helyseg, "Kandel/ Pfalz");
}

TEST(Aaf, AFajtakMindOlvashatok) {
    for (const char* fajta : {"m", "f", "w", "e", "l", "o", "*"}) {
        const auto ki =
            olvas("#A93:X,Y," + std::string(fajta) + ",27.9.1970,11:04,*,*\n#B93:*,49n05,8e11,1he,0\n");
        ASSERT_EQ(ki.lapok.size(), 1U) << fajta;
        EXPECT_EQ(ki.lapok[0].keplet.adat.nev, "X Y");
        EXPECT_EQ(jelenti(ki, elteres, 1, "fajta"), std::string_view(fajta) != "*");
    }
}

TEST(Aaf, AmitAKepletfajlNemTarolEgyszerSzamokkalEmlitve) {
    const auto ki = olvas(ferber + ferber + ferber);
    EXPECT_TRUE(jelenti(ki, elteres, 1, "3 helyen (először itt) a fajta jele"));
    EXPECT_TRUE(jelenti(ki, elteres, 1, "3 helyen (először itt) az ország"));
    EXPECT_EQ(ki.jelentesek.size(), 2U);
    for (const TJelentes& j : ki.jelentesek) EXPECT_TRUE(j.szoveg.starts_with("3 helyen")) << j.szoveg;
    // An empty kind tells nothing that could be left out.
    EXPECT_EQ(olvas("#A93:Ferber,Tobias,,27.9.1970,11:04,Szeged,H\n").jelentesek.size(),
              olvas("#A93:Ferber,Tobias,*,27.9.1970,11:04,Szeged,H\n").jelentesek.size());
}

TEST(Aaf, AMegjegyzesekAJegyzetSorai) {
    const TKvhRekord r =
        keplet(ferber + "#COM:első, vesszővel\n#SRC:anyakönyv\n#COM:\n#VIA:Kiss Éva\n#COM: negyedik: \n");
    EXPECT_EQ(r.jegyzet, "első, vesszővel\nForrás: anyakönyv\n\nKözreadta: Kiss Éva\nnegyedik:");
}

TEST(Aaf, AZonaNeveCsakTajekoztat) {
    EXPECT_EQ(keplet(ferber), keplet(ferber.substr(0, ferber.find("#ZNAM"))));
    EXPECT_EQ(keplet(ferber + "#ZNAM:PST\n").idozona, 1);
}

TEST(Aaf, AMegjegyzoEsAzIsmeretlenDarabKimarad) {
    const auto ki =
        olvas("#:Program 1.0\n#SYS:x\n" + ferber + "#POS:1,2,3\n#SUN:12\n#:vége\nfolytatás\n#HSY:P\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.adat, keplet(ferber));
    EXPECT_EQ(szam(ki, hiba), 0U);
    EXPECT_EQ(szam(ki, veszteseg), 0U);
}

TEST(Aaf, ADarabNeveKisbetuvelIsErvenyes) {
    std::string kicsi = ferber;
    kicsi.replace(0, 5, "#a93:");
    EXPECT_EQ(keplet(kicsi), keplet(ferber));
}

TEST(Aaf, FejNelkulHazaiHelyAHelysegtablabol) {
    for (const char* orszag : {"H", "HU", "HUN", "Hungary", "Magyarország", "Ungarn", "h"}) {
        const auto ki =
            olvas("#A93:Kovács,Éva,f,21.7.2000,6:04:09,Szeged," + std::string(orszag) + "\n#COM:nincs B93\n");
        ASSERT_EQ(ki.lapok.size(), 1U) << orszag;
        const TKvhRekord& r = ki.lapok[0].keplet.adat;
        EXPECT_EQ(r.szelesseg, 166497);
        EXPECT_EQ(r.hosszusag, 72586);
        EXPECT_EQ(r.idozona, 1);
        EXPECT_EQ(r.nyariIdo, 1);  // July 2000
        EXPECT_EQ(r.pillanat, (TPillanat{2000, 7, 21, 6, 4, 9}));
        EXPECT_TRUE(jelenti(ki, elteres, 1, "koordináták"));
    }
    EXPECT_EQ(keplet("#A93:K,É,f,21.12.2000,6:04,Szeged,H\n").nyariIdo, 0);
}

TEST(Aaf, KoordinatakNelkulMashonnanHiba) {
    for (const char* hely : {"Szeged,D", "Szeged,*", "Prága,H", "*,H", "Bécs,H"}) {
        const auto ki = olvas("#A93:X,Y,m,1.1.1970,1:00," + std::string(hely) + "\n" + ferber);
        EXPECT_EQ(ki.lapok.size(), 1U) << hely;  // the next one goes on
        EXPECT_TRUE(jelenti(ki, hiba, 1, "nincs koordináta")) << hely;
        EXPECT_TRUE(jelenti(ki, hiba, 1, "„X Y”")) << hely;
    }
}

TEST(Aaf, AHelysegtablabanNemSzereploHazaiHelyOrajaIsHazai) {
    const auto ki = olvas("#A93:X,Y,m,1.7.2000,1:00,Tanya,H\n#B93:*,47n00,20e00,*,*\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.adat.idozona, 1);
    EXPECT_EQ(ki.lapok[0].keplet.adat.nyariIdo, 1);
    EXPECT_EQ(ki.lapok[0].keplet.adat.hosszusag, 20 * 3600);
    EXPECT_TRUE(jelenti(ki, elteres, 1, "az ország kimarad"));  // the gazetteer can't tell it again
    EXPECT_TRUE(olvas("#A93:X,Y,m,1.7.2000,1:00,Bécs,H\n#B93:*,48n12,16e22,*,0\n").lapok.empty());
}

TEST(Aaf, SokMegjegyzesSorEgyJegyzet) {
    std::string szoveg = ferber;
    for (int i = 0; i < 200000; ++i) szoveg += "#COM:xxxxxxxxxx\n";
    EXPECT_EQ(keplet(szoveg).jegyzet.size(), 200000U * 11 - 1);
}

TEST(Aaf, AzEgyikHianyzoKoordinata) {
    const TKvhRekord r = keplet("#A93:X,Y,m,1.1.1970,1:00,Szeged,H\n#B93:*,*,20e00,1he,0\n");
    EXPECT_EQ(r.hosszusag, 20 * 3600);
    EXPECT_EQ(r.szelesseg, 166497);
}

TEST(Aaf, AzEsemenyekARekordEleteEsemenyei) {
    const TAdatlap lap = egyetlen(ferber +
                                  "#SUB:Házasság,*,e,1.7.2000,12:00,Pécs,H\n"
                                  "#SUB:Dr.,Vizsga,e,2.8.1990,9:30:15,Landau,D\n"
                                  "#B93:*,49n12:30,8e07,1he00,1\n"
                                  "#COM:a rekordé\n");
    ASSERT_EQ(lap.esemenyek.size(), 2U);
    const TKvhRekord& egy = lap.esemenyek[0].adat;
    EXPECT_EQ(egy.nev, "Házasság");
    EXPECT_EQ(egy.pillanat, (TPillanat{2000, 7, 1, 12, 0, 0}));
    EXPECT_EQ(egy.helyseg, "Pécs");
    EXPECT_EQ(egy.szelesseg, 165888 / 60 * 60);  // events hold no seconds of arc
    EXPECT_EQ(egy.hosszusag, 65691 / 60 * 60);
    EXPECT_EQ(egy.nyariIdo, 1);
    EXPECT_EQ(egy.jegyzet, "");
    EXPECT_FALSE(lap.esemenyek[0].van(TMezo::hang));
    EXPECT_EQ(lap.esemenyek[0].sor, 4);
    const TKvhRekord& ketto = lap.esemenyek[1].adat;
    EXPECT_EQ(ketto.nev, "Dr. Vizsga");
    EXPECT_EQ(ketto.pillanat, (TPillanat{1990, 8, 2, 9, 30, 15}));
    EXPECT_EQ(ketto.szelesseg, 49 * 3600 + 12 * 60 + 30);
    EXPECT_EQ(ketto.nyariIdo, 1);
    EXPECT_EQ(lap.keplet.adat.jegyzet, "a rekordé");
    EXPECT_EQ(lap.keplet.adat.szelesseg, 49 * 3600 + 5 * 60);
}

TEST(Aaf, AzEsemenyHazaiMegjegyzesbol) {
    const TAdatlap lap = egyetlen(
        "#A93:X,Y,m,1.1.1970,1:00,Szeged,H\n"
        "#COM:Hangjel: Hx\n#COM:Házanalógiák: a jegyzeté\n"
        "#SUB:Házasság,*,e,1.7.2000,12:00,Pécs,H\n"
        "#COM:Házanalógiák: I,7\n#COM:Solar-Nap: 11\n#COM:Hangjel: ez már jegyzet\n"
        "#COM:Solar-Nap: 3\n#COM:Solar-Nap: x\n");
    EXPECT_EQ(lap.keplet.adat.hang, "Hx");
    EXPECT_EQ(lap.keplet.adat.jegyzet,
              "Házanalógiák: a jegyzeté\nHangjel: ez már jegyzet\nSolar-Nap: 3\nSolar-Nap: x");
    ASSERT_EQ(lap.esemenyek.size(), 1U);
    EXPECT_EQ(lap.esemenyek[0].adat.jegyzet, "I,7");
    EXPECT_EQ(lap.esemenyek[0].adat.hang, "11");
    EXPECT_TRUE(lap.esemenyek[0].van(TMezo::hang));
}

TEST(Aaf, AHuszonegyedikEsemenyKimarad) {
    std::string szoveg = "#A93:X,Y,m,1.1.1970,1:00,Szeged,H\n";
    for (int i = 1; i <= 21; ++i) szoveg += "#SUB:e" + std::to_string(i) + ",*,e,1.7.2000,12:00,Pécs,H\n";
    const auto ki = olvas(szoveg);
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].esemenyek.size(), 20U);
    EXPECT_EQ(ki.lapok[0].esemenyek[19].adat.nev, "e20");
    EXPECT_TRUE(jelenti(ki, veszteseg, 22, "21. esemény"));
    EXPECT_EQ(szam(ki, veszteseg), 1U);
}

TEST(Aaf, ARosszEsemenyMagabanMaradKi) {
    const auto ki = olvas(
        "#A93:X,Y,m,1.1.1970,1:00,Szeged,H\n"
        "#SUB:rossz,*,e,45.7.2000,12:00,Pécs,H\n"
        "#SUB:jó,*,e,1.7.2000,12:00,Pécs,H\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    ASSERT_EQ(ki.lapok[0].esemenyek.size(), 1U);
    EXPECT_EQ(ki.lapok[0].esemenyek[0].adat.nev, "jó");
    EXPECT_TRUE(jelenti(ki, hiba, 2, "„X Y”, 1. esemény: datum: érthetetlen, „45.7.2000”"));
}

TEST(Aaf, ARosszRekordotASoraNeveziMegATobbiMegy) {
    struct TEset {
        const char* fej;
        const char* hely;
        const char* oka;
    };
    const TEset esetek[]{
        {"X,Y,m,27/9/1970,11:04,K,D", "*,49n05,8e11,1he,0", "datum: érthetetlen, „27/9/1970”"},
        {"X,Y,m,27.9.1970,25:04,K,D", "*,49n05,8e11,1he,0", "ido: érthetetlen, „25:04”"},
        {"X,Y,m,27.9.1970,11:04,K,D", "abc,49n05,8e11,1he,0", "Julián-nap: érthetetlen, „abc”"},
        {"X,Y,m,27.9.1970,11:04,K,D", "*,49x05,8e11,1he,0", "szelesseg: érthetetlen, „49x05”"},
        {"X,Y,m,27.9.1970,11:04,K,D", "*,49n05,8.2,1he,0", "hosszusag: érthetetlen, „8.2”"},
        {"X,Y,m,27.9.1970,11:04,K,D", "*,49n05,8e11,1,0", "idozona: érthetetlen, „1”"},
        {"X,Y,m,27.9.1970,11:04,K,D", "*,49n05,8e11,1he,9", "nyariIdo: érthetetlen, „9”"},
        {"X,Y,m,27.9.1570J,11:04,K,D", "*,49n05,8e11,1he,0", "Julián-naptár"},
        {"X,Y,m,*,11:04,K,D", "*,49n05,8e11,1he,0", "datum: ismeretlen"},
        {"X,Y,m,27.9.1970,*,K,D", "*,49n05,8e11,1he,0", "ido: ismeretlen"},
        {"X,Y,m,27.9.1970,11:04,K,D", "*,49n05,8e11,*,0", "idozona: ismeretlen"},
        {"X,Y", "*,49n05,8e11,1he,0", "datum: ismeretlen"},
        {"", "", "nincs koordináta"},
    };
    for (const TEset& e : esetek) {
        const auto ki = olvas(ferber + "#A93:" + e.fej + "\n#B93:" + e.hely + "\n" + ferber);
        EXPECT_EQ(ki.lapok.size(), 2U) << e.fej << e.hely;
        EXPECT_EQ(szam(ki, hiba), 1U) << e.fej << e.hely;
        EXPECT_TRUE(jelenti(ki, hiba, 4, e.oka)) << e.fej << e.hely;
    }
}

TEST(Aaf, ATobbletMezoEsAMasodikHelyVeszteseg) {
    const auto ki = olvas(
        "#A93:X,Y,m,27.9.1970,11:04,Wien,Wieden,A\n#B93:*,48n12,16e22,1he,0,9\n#B93:*,1n00,1e00,1he,0\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.adat.helyseg, "Wien");
    EXPECT_EQ(ki.lapok[0].keplet.adat.szelesseg, 48 * 3600 + 12 * 60);
    EXPECT_TRUE(jelenti(ki, veszteseg, 1, "#A93: 8 mező van 7 helyett"));
    EXPECT_TRUE(jelenti(ki, veszteseg, 1, "#B93: 6 mező van 5 helyett"));
    EXPECT_TRUE(jelenti(ki, veszteseg, 3, "második #B93"));
}

TEST(Aaf, ARekordElottiSorokHibaja) {
    const auto ki = olvas(
        "Ez nem AAF\nde van benne\n\n#B93:*,49n05,8e11,1he,0\n#SUB:x,*,e,1.7.2000,12:00,Pécs,H\n" + ferber);
    EXPECT_EQ(ki.lapok.size(), 1U);
    EXPECT_TRUE(jelenti(ki, hiba, 1, "2 sor az első rekord előtt"));
    EXPECT_TRUE(jelenti(ki, hiba, 4, "#B93 #A93 nélkül"));
    EXPECT_TRUE(jelenti(ki, hiba, 5, "#SUB #A93 nélkül"));
    EXPECT_TRUE(olvas("").jelentesek.empty());
    EXPECT_TRUE(olvas("\n \n").jelentesek.empty());
}

TEST(Aaf, AzUtf8EsABajtsorrendJel) {
    const auto ki = olvas("\xEF\xBB\xBF#A93:Őry,Ödön,m,27.9.1970,11:04,Kandel,D\n#B93:*,49n05,8e11,1he,0\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.adat.nev, "Őry Ödön");
    EXPECT_EQ(szam(ki, hiba), 0U);
}

TEST(Aaf, ANemUtf8Sor1252VagyKeresre1250) {
    const std::string szoveg =
        "#A93:\xD5ry,\xD6"
        "d\xF6n,m,27.9.1970,11:04,Kandel,D\n#B93:*,49n05,8e11,1he,0\n#COM:őz\n";
    const auto nyugati = olvas(szoveg);
    ASSERT_EQ(nyugati.lapok.size(), 1U);
    EXPECT_EQ(nyugati.lapok[0].keplet.adat.nev, "Õry Ödön");
    EXPECT_EQ(nyugati.lapok[0].keplet.adat.jegyzet, "őz");  // a line that is UTF-8 stays so
    EXPECT_TRUE(jelenti(nyugati, elteres, 1, "1252"));
    const auto kozep = olvas(szoveg, TKodlap::cp1250);
    EXPECT_EQ(kozep.lapok[0].keplet.adat.nev, "Őry Ödön");
    EXPECT_EQ(kozep.lapok[0].keplet.adat.jegyzet, "őz");
    EXPECT_TRUE(jelenti(kozep, elteres, 1, "1250"));
}

TEST(Aaf, AKodlapHianyzoBajtjaKerdojelEsVeszteseg) {
    const auto ki = olvas(ferber +
                          "#COM:a\x81"
                          "b\n");
    ASSERT_EQ(ki.lapok.size(), 1U);
    EXPECT_EQ(ki.lapok[0].keplet.adat.jegyzet, "a?b");
    EXPECT_TRUE(jelenti(ki, veszteseg, 4, "1 bájt nem karakter"));
}

TAdatlap szegedi() {
    TAdatlap lap;
    TKvhRekord& r = lap.keplet.adat;
    r.nev = "Kovács Anna Éva";
    r.pillanat = {1975, 7, 21, 6, 4, 9};
    r.helyseg = "Szeged";
    r.hosszusag = 72586;
    r.szelesseg = 166497;
    return lap;
}

TEST(Aaf, AzIrtRekordAFormatumSzerint) {
    TAdatlap lap = szegedi();
    lap.keplet.adat.hang = "H";
    lap.keplet.adat.jegyzet = "első\nForrás: anyakönyv\nKözreadta: Kiss\n";
    TAdatRekord e;
    e.adat = {"Házasság", {2000, 7, 1, 12, 0, 0}, -5, 1, "New York", -266400, 146580, "I,7", 0, "11"};
    lap.esemenyek.push_back(e);
    // 5:04:09 UT of 1975-07-21; 16:00 UT of 2000-07-01
    EXPECT_EQ(AafIras(lap),
              "#A93:Kovács,Anna Éva,*,21.7.1975,6:04:09,Szeged,H\r\n"
              "#B93:2442614.711215,46n14:57,20e09:46,1he00,0\r\n"
              "#COM:Hangjel: H\r\n"
              "#COM:első\r\n"
              "#SRC:anyakönyv\r\n"
              "#VIA:Kiss\r\n"
              "#COM:\r\n"
              "#SUB:Házasság,*,e,1.7.2000,12:00,New York,*\r\n"
              "#B93:2451727.166667,40n43,74w00,5hw00,1\r\n"
              "#COM:Házanalógiák: I,7\r\n"
              "#COM:Solar-Nap: 11\r\n");
    EXPECT_EQ(AafFejlec().substr(0, 2), "#:");
    EXPECT_EQ(MezoElteresek(lap, egyetlen(AafFejlec() + AafIras(lap))), std::vector<std::string>{});
}

TEST(Aaf, AzUresMezokCsillagok) {
    TAdatlap lap = szegedi();
    lap.keplet.adat.nev = lap.keplet.adat.helyseg = "";
    const std::string szoveg = AafIras(lap);
    EXPECT_EQ(szoveg.substr(0, szoveg.find('\r')), "#A93:*,*,*,21.7.1975,6:04:09,*,*");
    EXPECT_EQ(MezoElteresek(lap, egyetlen(szoveg)), std::vector<std::string>{});
}

/// The second line of a record, up to a comma and from the last one on.
std::pair<std::string, std::string> b93(const TAdatlap& lap) {
    const std::string szoveg = AafIras(lap);
    const std::size_t eleje = szoveg.find("#B93:");
    const std::string sor = szoveg.substr(eleje, szoveg.find("\r\n", eleje) - eleje);
    return {sor.substr(0, sor.find(',')), sor.substr(sor.rfind(','))};
}

TEST(Aaf, AJulianNapCsakErtelmesPillanathoz) {
    TAdatlap lap = szegedi();
    TKvhRekord& r = lap.keplet.adat;
    // 0h of 1 January of the year 1 is the Julian day 1721425.5; 5:04:09 UT is 0.211215 of a day more.
    r.pillanat = {1, 1, 1, 6, 4, 9};
    EXPECT_EQ(b93(lap).first, "#B93:1721425.711215");
    r.pillanat.ev = 0;
    EXPECT_EQ(b93(lap).first, "#B93:*");
    r.pillanat = {1975, 7, 21, 24, 4, 9};
    EXPECT_EQ(b93(lap).first, "#B93:*");
    // A clock is a day off Greenwich at most: 2442614.711215 is that of zone 1.
    r.pillanat = {1975, 7, 21, 6, 4, 9};
    r.idozona = 24;
    EXPECT_EQ(b93(lap).first, "#B93:2442613.752882");
    r.idozona = -24;
    EXPECT_EQ(b93(lap).first, "#B93:2442615.752882");
    for (const int zona : {25, -25, INT32_MAX}) {
        r.idozona = zona;
        EXPECT_EQ(b93(lap).first, "#B93:*") << zona;
    }
}

TEST(Aaf, ANyariIdoNullatolKettoig) {
    TAdatlap lap = szegedi();
    const std::pair<int, const char*> irva[]{{-1, ",*"}, {0, ",0"}, {1, ",1"}, {2, ",2"}, {3, ",*"}};
    for (const auto& [orak, vege] : irva) {
        lap.keplet.adat.nyariIdo = orak;
        EXPECT_EQ(b93(lap).second, vege) << orak;
    }
}

TEST(Aaf, AHelysegtablaKulfoldiHelyeinekOrszaga) {
    TAdatlap lap = szegedi();
    for (const auto& [hely, orszag] :
         {std::pair{"Bécs", ",Bécs,A\r"}, std::pair{"Róma", ",Róma,I\r"},
          std::pair{"Wadowice", ",Wadowice,PL\r"}, std::pair{"Prága", ",Prága,*\r"}}) {
        lap.keplet.adat.helyseg = hely;
        EXPECT_NE(AafIras(lap).find(orszag), std::string::npos) << hely;
        EXPECT_EQ(MezoElteresek(lap, egyetlen(AafIras(lap))), std::vector<std::string>{});
    }
}

/// What a change of the chart costs on the way through the format.
std::vector<std::string> veszit(void (*valtoztat)(TAdatlap&)) {
    TAdatlap lap = szegedi();
    valtoztat(lap);
    return MezoElteresek(lap, egyetlen(AafIras(lap)));
}

TEST(Aaf, AmiAMezokbeNemFerMegnevezve) {
    EXPECT_EQ(veszit([](TAdatlap& l) { l.keplet.adat.helyseg = "Bécs, Ausztria"; }),
              std::vector<std::string>{"helyseg: „Bécs, Ausztria” helyett „Bécs; Ausztria”"});
    EXPECT_EQ(veszit([](TAdatlap& l) { l.keplet.adat.nev = "Kiss  Éva"; }),
              std::vector<std::string>{"nev: „Kiss  Éva” helyett „Kiss Éva”"});
    EXPECT_EQ(veszit([](TAdatlap& l) { l.keplet.adat.nev = "*"; }),
              std::vector<std::string>{"nev: levágva, 1 karakterből 0 maradt"});
    EXPECT_EQ(veszit([](TAdatlap& l) { l.keplet.adat.jegyzet = "a\r\nb"; }),
              std::vector<std::string>{"jegyzet: „a\\r\\nb” helyett „a\\nb”"});
    EXPECT_EQ(veszit([](TAdatlap& l) { l.keplet.adat.nyariIdo = 2; }),
              (std::vector<std::string>{"idozona: 1 helyett 2", "nyariIdo: 2 helyett 1"}));
}

TEST(Aaf, ASorvegEgyMezobenNemKezdUjDarabot) {
    for (auto mezo : {&TKvhRekord::nev, &TKvhRekord::helyseg, &TKvhRekord::hang}) {
        TAdatlap lap = szegedi();
        lap.keplet.adat.*mezo = "x\n#A93:Y,Z,m,1.1.1970,1:00,Szeged,H";
        EXPECT_EQ(AafIras(lap).find("\n#A93"), std::string::npos);
        EXPECT_EQ(olvas(AafIras(lap)).lapok.size(), 1U);
    }
    TAdatlap lap = szegedi();
    lap.keplet.adat.jegyzet = "x\n#A93:Y";
    EXPECT_EQ(MezoElteresek(lap, egyetlen(AafIras(lap))), std::vector<std::string>{});
}

/// Random texts of everything that has a meaning in the format.
std::string veletlenAaf(std::mt19937& veletlen) {
    const std::vector<std::string> elemek{"#A93:",
                                          "#B93:",
                                          "#SUB:",
                                          "#COM:",
                                          "#SRC:",
                                          "#VIA:",
                                          "#ZNAM:",
                                          "#:",
                                          "#XYZ:",
                                          "\n",
                                          "\r\n",
                                          ",",
                                          ",",
                                          ",",
                                          "*",
                                          "27.9.1970",
                                          "1.1.1839",
                                          "31.2.2000G",
                                          "1.1.1970J",
                                          "11:04",
                                          "0:00:59",
                                          "24:00",
                                          "49n05",
                                          "33s52:10",
                                          "8e11",
                                          "74w00",
                                          "1he00",
                                          "5he30",
                                          "0",
                                          "1",
                                          "2",
                                          "L",
                                          "2442614.711215",
                                          "2440065",
                                          "m",
                                          "e",
                                          "H",
                                          "Szeged",
                                          "Prága",
                                          "Ferber",
                                          "Őry",
                                          "\xD5",
                                          "\x81",
                                          " ",
                                          "Hangjel: H",
                                          "Solar-Nap: 3",
                                          "Házanalógiák: I,7",
                                          "漢"};
    std::string ki;
    std::uniform_int_distribution<std::size_t> melyik(0, elemek.size() - 1);
    for (int i = 0; i < 60; ++i) {
        if (i % 20 == 0) ki += "\n#A93:Név,*,*,27.9.1970,11:04,Szeged,H\n";
        ki += elemek[melyik(veletlen)];
    }
    return ki;
}

TEST(Aaf, VeletlenSzovegbolOlvasottRekordAMasodikKortolValtozatlan) {
    std::mt19937 veletlen(7);
    int rekordok = 0;
    for (int kor = 0; kor < 3000; ++kor) {
        const std::string szoveg = veletlenAaf(veletlen);
        const auto ki = olvas(szoveg);
        for (const TAdatlap& lap : ki.lapok) {
            ++rekordok;
            ASSERT_LE(lap.esemenyek.size(), 20U);
            ASSERT_TRUE(ervenyesUtf8(lap.keplet.adat.jegyzet)) << szoveg;
            const TAdatlap masodik = egyetlen(AafIras(lap));
            const TAdatlap harmadik = egyetlen(AafIras(masodik));
            ASSERT_EQ(MezoElteresek(masodik, harmadik), std::vector<std::string>{}) << szoveg;
        }
        for (const TJelentes& j : ki.jelentesek) ASSERT_GE(j.sor, 1);
    }
    EXPECT_GT(rekordok, 1500);
}

}  // namespace
