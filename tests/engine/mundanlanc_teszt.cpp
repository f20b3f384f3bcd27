// The pipeline for trial charts and its verdict.

#include <array>
#include <map>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "engine/mundanlanc.h"
#include "engine/uralkodok.h"
#include "mundanteszt.h"

namespace {

constexpr int probak = 4000;

TEST(MundanLanc, ABeirtNyariIdoAllATablaeHelyett) {
    // 1 July 1985, 12 o'clock: the table has summer time, so 13 o'clock by the table is 12 without.
    TProbaPillanat tablabol{2446247, 13, 0, 0, {1, 166500, 72540}};
    TProbaPillanat beirt{2446247, 12, 0, 0, {1, 166500, 72540, 0}};
    EXPECT_EQ(lefuttat(tablabol).Bolygok, lefuttat(beirt).Bolygok);
    EXPECT_EQ(lefuttat(tablabol).Hazcsucsok, lefuttat(beirt).Hazcsucsok);
    beirt.hely.nyariIdo = 1;
    EXPECT_NE(lefuttat(tablabol).Hazcsucsok, lefuttat(beirt).Hazcsucsok);
}

TEST(MundanLanc, ElozoKepletNemHagyNyomot) {
    std::mt19937 veletlen(12);
    TMundanLanc hasznalt;
    for (int n = 0; n < probak; ++n) {
        const TProbaPillanat p = veletlenPillanat(veletlen);
        MundanLanc(p.julianszam, p.ora, p.perc, p.mperc, p.hely, OrbisAlap, hasznalt);
        const TMundanLanc friss = lefuttat(p);
        ASSERT_EQ(hasznalt.BolygoHazak, friss.BolygoHazak);
        ASSERT_EQ(hasznalt.MundanEredmeny, friss.MundanEredmeny);
    }
}

/// A clock beyond all dialogs carries the Sun many turns away: where the chart on screen would keep its last
/// house, a trial chart has 0.
TEST(MundanLanc, AHazNelkuliBolygoNulla) {
    TMundanLanc lanc;
    lanc.BolygoHazak.tolt(7);
    MundanLanc(2442614, 100000, 0, 0, {1, 166500, 72540, 0}, OrbisAlap, lanc);
    ASSERT_GT(lanc.Bolygok[1], 720);
    EXPECT_EQ(lanc.BolygoHazak[1], 0);
}

// ---- The verdict once more, with letters in strings ----

struct TUralkodo {
    std::string betuk, jegyek;
};
const std::array<TUralkodo, 13> jegyUrai{{{},
                                          {"E", "ah"},
                                          {"D", "bg"},
                                          {"C", "cf"},
                                          {"B", "d"},
                                          {"A", "e"},
                                          {"C", "cf"},
                                          {"D", "bg"},
                                          {"EJ", "ah"},
                                          {"F", "il"},
                                          {"G", "jk"},
                                          {"GH", "jk"},
                                          {"FI", "il"}}};
const std::array<std::string, 11> uraltJegyek{"", "e", "d", "cf", "bg", "ah", "il", "jk", "k", "l", "h"};
const std::array<std::string, 10> soronkent{"", "dah", "ebg", "il", "dah", "ebg", "cf", "jk", "jk", "cf"};

std::string tarsak(int jegy) {
    return jegy >= 1 && jegy <= 12 ? jegyUrai[static_cast<std::size_t>(jegy)].jegyek : "";
}
std::size_t sz(int n) {
    return static_cast<std::size_t>(n);
}

std::string vartEredmeny(const TMundanLanc& l) {
    std::array<std::string, 11> par, lanc;
    for (int i = 1; i <= 9; ++i)
        for (int j = 1; j <= 10; ++j)
            if ((l.FenyszogRadix[i][j] == 'R' || l.FenyszogRadix[i][j] == 'W') &&
                l.AlsoFelsoMatrix[i][j] == 'A')
                par[sz(i)] += soronkent[sz(i)];
    if ((l.FenyszogRadix[10][4] == 'R' || l.FenyszogRadix[10][4] == 'W') && l.AlsoFelsoMatrix[10][4] == 'A')
        par[10] += "ah";
    if ((l.FenyszogRadix[10][5] == 'R' || l.FenyszogRadix[10][5] == 'W') && l.AlsoFelsoMatrix[10][5] == 'A')
        par[10] += "bg";
    for (int i = 1; i <= 10; ++i)
        for (int j = 1; j <= 10; ++j)
            if (l.EgyuttallasMatrix[i][j] == 'M') lanc[sz(i)] += uraltJegyek[sz(j)] + par[sz(j)];

    std::array<std::string, 14> jegyKeszlet, hazKeszlet;
    std::array<int, 13> csucsJegy{};
    for (int h = 1; h <= 12; ++h) {
        csucsJegy[sz(h)] = static_cast<int>(l.Hazcsucsok[h] / 30) + 1;
        hazKeszlet[sz(h)] = tarsak(csucsJegy[sz(h)]);
    }
    for (int i = 1; i <= 10; ++i) {
        jegyKeszlet[sz(l.JegySzam[i])] += uraltJegyek[sz(i)] + par[sz(i)];
        hazKeszlet[sz(l.BolygoHazak[i])] += uraltJegyek[sz(i)] + par[sz(i)];
    }
    const auto urakbol = [&](int jegy) {
        std::string s;
        if (jegy < 1 || jegy > 12) return s;
        for (const char betu : jegyUrai[sz(jegy)].betuk) {
            const int i = betu - 'A' + 1;
            s += tarsak(l.JegySzam[i]) + tarsak(l.BolygoHazak[i]) + lanc[sz(i)] + par[sz(i)];
        }
        return s;
    };
    for (int n = 1; n <= 12; ++n) {
        jegyKeszlet[sz(n)] += urakbol(n);
        hazKeszlet[sz(n)] += urakbol(csucsJegy[sz(n)]);
    }
    const auto kozos = [](const std::string& a, const std::string& b) {
        return a.find_first_of(b) != std::string::npos;
    };
    for (int h = 1; h <= 12; ++h)
        if (!kozos(tarsak(h), hazKeszlet[sz(h)])) return "0";
    for (const int b : {1, 4, 7, 10}) {
        const int s = static_cast<int>(l.Hazcsucsok[b] / 30);
        const int d = static_cast<int>((l.Hazcsucsok[b] - 30 * s) / 10);
        const int c = (s + 1 + 4 * d) % 12 == 0 ? 12 : (s + 1 + 4 * d) % 12;
        if (kozos(tarsak(c), jegyKeszlet[sz(b)])) return "1";
    }
    return "2";
}

TEST(MundanEllenorzes, EzernyiKepletenABetukkelSzamoltEredmeny) {
    std::mt19937 veletlen(13);
    std::map<char, int> db;
    for (int n = 0; n < 20000; ++n) {
        const TMundanLanc lanc = lefuttat(veletlenPillanat(veletlen));
        ASSERT_EQ(std::string(1, lanc.MundanEredmeny), vartEredmeny(lanc)) << n;
        ++db[lanc.MundanEredmeny];
    }
    EXPECT_GT(db['0'], 1000);
    EXPECT_GT(db['1'], 100);
    EXPECT_GT(db['2'], 5);
}

TEST(MundanEllenorzes, KemenyFenyszogNelkulCsakAzUrakEsAHelyekSzamitanak) {
    // Whole-sign cusps: each horizon house carries the very sign of its mundane house.
    TMundanLanc lanc = uresLanc();
    EXPECT_EQ(MundanEllenorzes(lanc), '1');
    EXPECT_EQ(vartEredmeny(lanc), "1");
    // Turned by three signs, everything in Aries and in the first house: house 1 has Cancer on the cusp and
    // all bodies in it, so it has every sign; house 2 has Leo, whose ruler leads to Aries only, and wants b
    // or g.
    for (int h = 1; h <= 12; ++h) lanc.Hazcsucsok[h] = (h + 2) % 12 * 30.0;
    EXPECT_EQ(MundanEllenorzes(lanc), '0');
    // A soft aspect changes nothing.
    lanc.FenyszogRadix[1][2] = 'S';
    lanc.AlsoFelsoMatrix[1][2] = 'A';
    EXPECT_EQ(MundanEllenorzes(lanc), '0');
}

/// House 2 has Leo on the cusp, all others the sign of their own number; the Sun leads to Aries (a, h) only.
TMundanLanc masodikHazOroszlan() {
    TMundanLanc lanc = uresLanc();
    lanc.Hazcsucsok[2] = 120;
    return lanc;
}

TEST(MundanEllenorzes, AFenyszogASajatSorTestetKoti) {
    // House 2 needs b or g. Its ruler is the Sun, and the row of the Sun gives d, a, h: not enough.
    TMundanLanc nap = masodikHazOroszlan();
    kvadrat(nap, 1, 2);
    EXPECT_EQ(MundanEllenorzes(nap), '0');
    // The Moon's row gives e, b, g, but to the Moon, who does not rule Leo.
    TMundanLanc hold = masodikHazOroszlan();
    kvadrat(hold, 2, 1);
    EXPECT_EQ(MundanEllenorzes(hold), '0');
    // Standing in house 2 she brings them.
    hold.BolygoHazak[2] = 2;
    EXPECT_EQ(MundanEllenorzes(hold), '1');
    // The same square from above does not count.
    hold.AlsoFelsoMatrix[2][1] = 'F';
    EXPECT_EQ(MundanEllenorzes(hold), '0');
    // An opposition counts like a square.
    hold.AlsoFelsoMatrix[2][1] = 'A';
    hold.FenyszogRadix[2][1] = 'W';
    EXPECT_EQ(MundanEllenorzes(hold), '1');
}

TEST(MundanEllenorzes, PlutoCsakAVenusszalEsAMarssal) {
    TMundanLanc lanc = masodikHazOroszlan();
    lanc.BolygoHazak[10] = 2;
    kvadrat(lanc, 10, 1);
    EXPECT_EQ(MundanEllenorzes(lanc), '0');
    kvadrat(lanc, 10, 4);  // gives a, h
    EXPECT_EQ(MundanEllenorzes(lanc), '0');
    kvadrat(lanc, 10, 5);  // gives b, g
    EXPECT_EQ(MundanEllenorzes(lanc), '1');
}

TEST(MundanEllenorzes, ALancTovabbadjaATarsJegyeit) {
    TMundanLanc lanc = masodikHazOroszlan();
    lanc.EgyuttallasMatrix[1][4] = 'M';  // the Sun joins Venus, who rules b and g
    EXPECT_EQ(MundanEllenorzes(lanc), '1');
}

TEST(MundanEllenorzes, AzUresUralkodohelyNemKozosBetu) {
    // House 2 and house 5 have Cancer on the cusp: one ruler and a blank in both tables. Nothing is shared.
    TMundanLanc lanc = uresLanc();
    lanc.Hazcsucsok[5] = 90;
    EXPECT_EQ(MundanEllenorzes(lanc), '0');
    EXPECT_EQ(vartEredmeny(lanc), "0");
}

TEST(MundanEllenorzes, ANullaDekadhazTizenketto) {
    // 335 degrees is the first decan of Pisces: 12 less 12 is 0, read as 12, whose signs are i and l. All
    // bodies stand in Aries, so house 1 has every sign; without the twelve no letter would be shared.
    TMundanLanc lanc = uresLanc();
    lanc.Hazcsucsok[1] = 335;
    EXPECT_EQ(DekadHazSzamitas(335), 12);
    EXPECT_EQ(MundanEllenorzes(lanc), '1');
}

TEST(MundanEllenorzes, KettesHaEgyTengelySemEgyezikDekadban) {
    // Everything in Taurus and house 2. Sign sets of the angles: 1, 4, 7 and 10 hold only what their rulers
    // lead to, Taurus: b, g. Cusps in the first decans of their signs ask for ah, d, bg, jk.
    TMundanLanc lanc = uresLanc();
    lanc.JegySzam.tolt(2);
    lanc.BolygoHazak.tolt(2);
    EXPECT_EQ(MundanEllenorzes(lanc), '1');  // house 7: b, g
    lanc.Hazcsucsok[7] = 190;                // second decan of Libra: sign 11, j and k
    EXPECT_EQ(MundanEllenorzes(lanc), '2');
    EXPECT_EQ(vartEredmeny(lanc), "2");
}

TEST(MundanEllenorzes, KivulEsoJegynekEsHaznakNincsKeszlete) {
    // Everything in Leo and house 5: each house agrees by the sign on its cusp alone.
    TMundanLanc lanc = uresLanc();
    lanc.JegySzam.tolt(5);
    lanc.BolygoHazak.tolt(5);
    EXPECT_EQ(MundanEllenorzes(lanc), '2');
    lanc.JegySzam[5] = 13;    // a retrograde body lifted to 360
    lanc.BolygoHazak[5] = 0;  // fits no house
    EXPECT_EQ(MundanEllenorzes(lanc), '2');
    lanc.Hazcsucsok[1] = 360;  // a cusp above the circle has no sign: not that of 0 degrees
    EXPECT_EQ(MundanEllenorzes(lanc), '0');
}

}  // namespace
