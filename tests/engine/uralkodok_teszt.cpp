#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "engine/uralkodok.h"

namespace {

/// Houses of 30 degrees from a first cusp on.
THazcsucsok egyenloHazak(double elso) {
    THazcsucsok h;
    for (int i = 1; i <= 12; ++i)
        h[i] = elso + 30 * (i - 1) >= 360 ? elso + 30 * (i - 1) - 360 : elso + 30 * (i - 1);
    return h;
}

int haz(double hossz, const THazcsucsok& csucsok) {
    TBolygok b;
    b.tolt(hossz);
    TBolygoHazak hazak;
    HazBesorolas(b, csucsok, hazak);
    return hazak[1];
}

TEST(HazBesorolas, SarokHazElottOtFokMasikElottHarom) {
    const THazcsucsok h = egyenloHazak(0);  // house 10 at 270, house 2 at 30
    EXPECT_EQ(haz(266, h), 10);
    EXPECT_EQ(haz(264.9, h), 9);
    EXPECT_EQ(haz(26, h), 1);
    EXPECT_EQ(haz(27.5, h), 2);
}

TEST(HazBesorolas, AHataronAKesobbiHaz) {
    const THazcsucsok h = egyenloHazak(0);
    EXPECT_EQ(haz(265, h), 10);
    EXPECT_EQ(haz(27, h), 2);
    EXPECT_EQ(haz(355, h), 1);
    EXPECT_EQ(haz(354.99, h), 12);
}

TEST(HazBesorolas, AKosPontjanAtIs) {
    const THazcsucsok h = egyenloHazak(350);
    EXPECT_EQ(haz(345, h), 1);
    EXPECT_EQ(haz(2, h), 1);
    EXPECT_EQ(haz(16.9, h), 1);
    EXPECT_EQ(haz(17, h), 2);
    EXPECT_EQ(haz(344, h), 12);
}

TEST(HazBesorolas, MindATizenketHazHatara) {
    for (const double elso : {0.0, 4.0, 100.0, 333.5}) {
        const THazcsucsok h = egyenloHazak(elso);
        for (int i = 1; i <= 12; ++i) {
            const bool sarok = i == 1 || i == 4 || i == 7 || i == 10;
            const int elozo = i == 1 ? 12 : i - 1;
            const auto elotte = [&](double fok) { return std::fmod(h[i] - fok + 360, 360); };
            EXPECT_EQ(haz(h[i], h), i) << elso;
            EXPECT_EQ(haz(elotte(2.5), h), i) << elso;
            EXPECT_EQ(haz(elotte(sarok ? 5 : 3), h), i) << elso;
            EXPECT_EQ(haz(elotte(4), h), sarok ? i : elozo) << elso;
            EXPECT_EQ(haz(elotte(5.25), h), elozo) << elso;
        }
    }
}

TEST(HazBesorolas, A360FelettiCsucsHataraAKorbenMarad) {
    THazcsucsok h = egyenloHazak(330);
    h[2] = 360.5;  // boundary 357.5
    EXPECT_EQ(haz(357.25, h), 1);
    EXPECT_EQ(haz(357.5, h), 2);
    EXPECT_EQ(haz(2, h), 2);
}

TEST(HazBesorolas, AHaztKeresoHosszNemValtozik) {
    TBolygok b;
    b.tolt(2);
    const TBolygok elotte = b;
    TBolygoHazak hazak;
    HazBesorolas(b, egyenloHazak(350), hazak);
    EXPECT_EQ(b, elotte);
}

TEST(HazBesorolas, AmiSehovaSemIllikMegtartjaASzamat) {
    // The first house begins at 5 - 5 = 0, the circle closes at 360, and a retrograde body may stand at 360
    // exactly, above the last bound.
    TBolygok b;
    b.tolt(360);
    TBolygoHazak hazak;
    hazak.tolt(7);
    HazBesorolas(b, egyenloHazak(5), hazak);
    EXPECT_EQ(hazak[1], 7);
    b.tolt(0);
    HazBesorolas(b, egyenloHazak(5), hazak);
    EXPECT_EQ(hazak[1], 1);
}

TEST(HazBesorolas, AtfedoHazaknalAKesobbiAll) {
    // Cusps 12 and 1 closer than the difference of the shifts: house 12 begins at 355.5, above the 355 of
    // house 1, is not lifted and runs round the whole circle.
    THazcsucsok h = egyenloHazak(0);
    h[12] = 358.5;
    EXPECT_EQ(haz(355.25, h), 1);
    EXPECT_EQ(haz(355.5, h), 12);
    EXPECT_EQ(haz(100, h), 12);
}

struct TRend {
    TBolygok b;
    THazcsucsok h = egyenloHazak(0);
    TBolygoHazak hazak;
    TJelMatrix e;
    TUralkodok u;

    TRend() {
        for (int i = 1; i <= 10; ++i) {
            e[i].tolt('.');
            e[i][i] = '+';
        }
    }
    void egyutt(int i, int j) { e[i][j] = e[j][i] = 'M'; }
    void szamit() {
        HazBesorolas(b, h, hazak);
        UralkodoSzamitas(b, h, hazak, e, u);
    }
};

constexpr double jegyben(int jegy, double fok = 15) {
    return (jegy - 1) * 30 + fok;
}

TEST(UralkodoSzamitas, ANapEsAHoldMindigUgyanaz) {
    for (int jegy = 1; jegy <= 12; ++jegy) {
        TRend r;
        r.b[1] = r.b[2] = jegyben(jegy);
        r.szamit();
        EXPECT_EQ(r.u.UralkodoJegy[1], 5);
        EXPECT_EQ(r.u.UralkodoJegy[2], 4);
    }
}

TEST(UralkodoSzamitas, AMerkurEgyedulABikabanASzuzetUralja) {
    TRend r;
    r.b[3] = jegyben(2);
    r.szamit();
    EXPECT_FALSE(r.u.PratlanJegy[3]);
    EXPECT_EQ(r.u.UralkodoJegy[3], 6);
    r.b[3] = jegyben(1);
    r.szamit();
    EXPECT_TRUE(r.u.PratlanJegy[3]);
    EXPECT_EQ(r.u.UralkodoJegy[3], 3);
}

TEST(UralkodoSzamitas, EgyEgyuttallasMegforditja) {
    TRend r;
    r.b[3] = jegyben(2);
    r.egyutt(3, 2);
    r.szamit();
    EXPECT_TRUE(r.u.Forditott[3]);
    EXPECT_EQ(r.u.UralkodoJegy[3], 3);
}

TEST(UralkodoSzamitas, BarmelyikBolygovalEgyEgyuttallasMegforditja) {
    for (int masik = 1; masik <= 10; ++masik) {
        if (masik == 3) continue;
        TRend r;
        r.egyutt(3, masik);
        r.szamit();
        EXPECT_TRUE(r.u.Forditott[3]) << masik;
    }
}

TEST(UralkodoSzamitas, AHarmasLancAzUranusszalNem) {
    TRend r;
    r.egyutt(3, 2);
    r.egyutt(3, 8);
    r.szamit();
    EXPECT_FALSE(r.u.Forditott[3]);
    TRend nelkule;
    nelkule.egyutt(3, 2);
    nelkule.egyutt(3, 4);
    nelkule.szamit();
    EXPECT_TRUE(nelkule.u.Forditott[3]);
    TRend csakUranusz;  // a single conjunction reverses even with an outer body
    csakUranusz.egyutt(3, 8);
    csakUranusz.szamit();
    EXPECT_TRUE(csakUranusz.u.Forditott[3]);
}

TEST(UralkodoSzamitas, ALancAKulsoBolygokMindegyikevelSemFordit) {
    for (const int kulso : {8, 9, 10}) {
        TRend r;
        r.egyutt(3, 2);
        r.egyutt(3, kulso);
        r.egyutt(2, kulso);
        r.szamit();
        EXPECT_FALSE(r.u.Forditott[2]) << kulso;
        EXPECT_FALSE(r.u.Forditott[3]) << kulso;
        EXPECT_TRUE(r.u.Forditott[kulso]) << kulso;  // its own row holds no outer body
    }
    TRend belso;
    belso.egyutt(3, 2);
    belso.egyutt(3, 7);  // Saturn is none of the three
    belso.szamit();
    EXPECT_TRUE(belso.u.Forditott[3]);
}

TEST(UralkodoSzamitas, AParatlanJegyMindATizenketJegyben) {
    for (int jegy = 1; jegy <= 12; ++jegy) {
        TRend egyedul;
        egyedul.b.tolt(jegyben(jegy));
        egyedul.szamit();
        TRend parban;
        parban.b.tolt(jegyben(jegy));
        parban.egyutt(3, 4);
        parban.szamit();
        EXPECT_EQ(egyedul.u.PratlanJegy[3], jegy % 2 == 1) << jegy;
        EXPECT_EQ(parban.u.PratlanJegy[3], jegy % 2 == 0) << jegy;
        EXPECT_EQ(parban.u.PratlanJegy[5], jegy % 2 == 1) << jegy;
    }
}

TEST(UralkodoSzamitas, AParatlanJegyAJegyElejetolAVegeig) {
    for (int jegy = 1; jegy <= 12; ++jegy)
        for (const double fok : {0.0, 29.999}) {
            TRend r;
            r.b.tolt(jegyben(jegy, fok));
            r.szamit();
            for (int i = 1; i <= 10; ++i) EXPECT_EQ(r.u.PratlanJegy[i], jegy % 2 == 1) << i << ' ' << jegy;
        }
}

TEST(UralkodoSzamitas, AMerkurABikabanAzIkreketUraNelkulHagyja) {
    TRend r;
    r.b.tolt(jegyben(2));
    r.szamit();
    EXPECT_EQ(r.u.HazUra[3], 0);
    EXPECT_EQ(r.u.HazUra[6], 2);
}

TEST(UralkodoSzamitas, ATizenketMondatTeljesen) {
    // All in Aries but Mars in Leo, houses from Aries 0: the odd signs' rulers, all in house 1, Mars in 5.
    TRend r;
    r.b.tolt(jegyben(1));
    r.b[5] = jegyben(5);
    r.szamit();
    EXPECT_EQ(r.u.UralkodoSzoveg,
              "Az  I-es ház ura a  5-ben. Az  2-es háznak nincs ura. Az  3-es ház ura a  I-ben. "
              "Az IV-es ház ura a  I-ben. Az  5-es ház ura a  I-ben. Az  6-es háznak nincs ura. "
              "Az VII-es ház ura a  I-ben. Az  8-es háznak nincs ura. Az  9-es ház ura a  I-ben. "
              "Az  X-es háznak nincs ura. Az 11-es ház ura a  I-ben. Az 12-es háznak nincs ura. ");
    EXPECT_EQ(r.u.MundanUralkodoSzoveg,
              "Az  I-es mundán ház ura a  5-ben. Az  2-es mundán háznak nincs ura. "
              "Az  3-es mundán ház ura a  I-ben. Az IV-es mundán ház ura a  I-ben. "
              "Az  5-es mundán ház ura a  I-ben. Az  6-es mundán háznak nincs ura. "
              "Az VII-es mundán ház ura a  I-ben. Az  8-es mundán háznak nincs ura. "
              "Az  9-es mundán ház ura a  I-ben. Az  X-es mundán háznak nincs ura. "
              "Az 11-es mundán ház ura a  I-ben. Az 12-es mundán háznak nincs ura. ");
}

TEST(UralkodoSzamitas, AHorizontACsucsokatAMundanAJegyeketNezi) {
    // Houses from Cancer 0: the tenth cusp stands in Aries, which Mars rules from Leo, the second house.
    TRend r;
    r.h = egyenloHazak(90);
    r.b.tolt(jegyben(1));
    r.b[5] = jegyben(5);
    r.szamit();
    EXPECT_EQ(r.u.HazJegy[1], 4);
    EXPECT_EQ(r.u.HazJegy[10], 1);
    EXPECT_EQ(r.u.HazUra[10], 2);
    EXPECT_EQ(r.u.HazUra[1], 10);  // the Moon in Aries
    EXPECT_EQ(r.u.MundanHazUra[1], 5);
    EXPECT_EQ(r.u.MundanHazUra[4], 1);
}

TEST(UralkodoSzamitas, APlanetakKetJegye) {
    const int paratlan[]{5, 4, 3, 7, 1, 9, 11, 11, 12, 8};
    const int paros[]{5, 4, 6, 2, 8, 12, 10, 11, 12, 8};
    TRend r;
    r.b.tolt(jegyben(1));
    r.szamit();
    for (int i = 1; i <= 10; ++i) EXPECT_EQ(r.u.UralkodoJegy[i], paratlan[i - 1]);
    r.b.tolt(jegyben(2));
    r.szamit();
    for (int i = 1; i <= 10; ++i) EXPECT_EQ(r.u.UralkodoJegy[i], paros[i - 1]);
}

TEST(UralkodoSzamitas, AMondatokKettosSzokozei) {
    TRend r;
    r.b.tolt(jegyben(1));
    r.b[5] = jegyben(5);  // Mars in an odd sign rules Aries, the first house's sign, and stands in house 5
    r.szamit();
    EXPECT_EQ(r.u.HazUra[1], 5);
    EXPECT_EQ(r.u.UralkodoSzoveg.find("Az  I-es ház ura a  5-ben. "), 0U);
    EXPECT_NE(r.u.UralkodoSzoveg.find("Az  2-es háznak nincs ura. "), std::string::npos);
    EXPECT_EQ(r.u.MundanUralkodoSzoveg.find("Az  I-es mundán ház ura a  5-ben. "), 0U);
    EXPECT_NE(r.u.MundanUralkodoSzoveg.find("Az  2-es mundán háznak nincs ura. "), std::string::npos);
    EXPECT_NE(r.u.UralkodoSzoveg.find("Az VII-es ház ura a  I-ben. "), std::string::npos);  // Venus
}

TEST(UralkodoSzamitas, MindigOtJegynekNincsUra) {
    for (int jegy = 1; jegy <= 12; ++jegy) {
        TRend r;
        r.b.tolt(jegyben(jegy));
        r.szamit();
        EXPECT_EQ(std::count(r.u.MundanHazUra.begin(), r.u.MundanHazUra.end(), 0), 5);
    }
}

TEST(UralkodoSzamitas, AMundanHazAzUraJegyeAJegyVegeig) {
    for (int jegy = 1; jegy <= 12; ++jegy)
        for (const double hossz : {30.0 * (jegy - 1), 30.0 * jegy - 0.01}) {
            TRend r;
            r.b.tolt(hossz);
            r.szamit();
            for (const int ura : r.u.MundanHazUra) EXPECT_TRUE(ura == 0 || ura == jegy) << hossz;
        }
}

TEST(UralkodoSzamitas, AKulsoBolygokNemHazurak) {
    TRend r;
    r.b.tolt(jegyben(2));  // Saturn rules Capricorn; Aquarius is Uranus's alone
    r.szamit();
    EXPECT_EQ(r.u.UralkodoJegy[8], 11);
    EXPECT_EQ(r.u.HazUra[11], 0);
}

TEST(UralkodoSzamitas, A360FelettiCsucsATizenharmadikJegy) {
    TRend r;
    r.h[1] = 360.2;
    r.szamit();
    EXPECT_EQ(r.u.HazJegy[1], 13);
    EXPECT_EQ(r.u.HazUra[1], 0);
    EXPECT_EQ(r.u.UralkodoSzoveg.find("Az  I-es háznak nincs ura. "), 0U);
}

TEST(Dekad, AMasodikDekadAzOtodikAHarmadikAKilencedikJegy) {
    EXPECT_EQ(DekadHazSzamitas(5), 1);
    EXPECT_EQ(DekadHazSzamitas(15), 5);
    EXPECT_EQ(DekadHazSzamitas(25), 9);
    EXPECT_EQ(DekadHazSzamitas(335), 12);
    EXPECT_EQ(DekadHazSzamitas(345), 4);
    EXPECT_EQ(DekadHazSzamitas(355), 8);
    EXPECT_EQ(DekadHazSzamitas(10), 5);
    EXPECT_EQ(DekadHazSzamitas(9.999), 1);
    EXPECT_EQ(DekadHazSzamitas(225), 12);  // Scorpio's second decan: 8 + 4
}

TEST(Dekad, AHarminchatDekad) {
    for (int jegy = 1; jegy <= 12; ++jegy) {
        for (int dekad = 0; dekad < 3; ++dekad) {
            const int vart = (jegy - 1 + 4 * dekad) % 12 + 1;
            EXPECT_EQ(DekadHazSzamitas(jegyben(jegy, 10 * dekad)), vart) << jegy << ' ' << dekad;
            EXPECT_EQ(DekadHazSzamitas(jegyben(jegy, 10 * dekad + 9.5)), vart) << jegy << ' ' << dekad;
        }
    }
    EXPECT_EQ(DekadHazSzamitas(360), 1);  // where a retrograde body may stand
}

TEST(UralkodoSzamitas, AzElozoKepSzovegeiNemMaradnak) {
    TRend regi;
    regi.b.tolt(jegyben(1));
    regi.szamit();
    regi.b.tolt(jegyben(6));
    regi.szamit();
    TRend friss;
    friss.b.tolt(jegyben(6));
    friss.szamit();
    EXPECT_EQ(regi.u.UralkodoSzoveg, friss.u.UralkodoSzoveg);
    EXPECT_EQ(regi.u.MundanUralkodoSzoveg, friss.u.MundanUralkodoSzoveg);
    // The middle of a sign is its second decan: Aries leads to the fifth house, Virgo to the tenth.
    EXPECT_EQ(regi.u.DekadSzoveg[10], "ABCDEFGHIJ");
    EXPECT_EQ(regi.u.DekadSzoveg[5], "");
}

TEST(Dekad, ASzovegekBolygosorrendben) {
    TRend r;
    r.b.tolt(5);
    r.b[1] = 15;
    r.b[10] = 16;
    r.szamit();
    EXPECT_EQ(r.u.DekadSzoveg[5], "AJ");
    EXPECT_EQ(r.u.DekadSzoveg[1], "BCDEFGHI");
    EXPECT_EQ(r.u.DekadSzoveg[2], "");
}

TEST(Dekad, MindATizenketHazSzovege) {
    for (int jegy = 1; jegy <= 12; ++jegy) {
        TRend r;
        r.b.tolt(30 * jegy - 25);  // the first decan leads to the sign's own house
        r.szamit();
        for (int haz = 1; haz <= 12; ++haz)
            EXPECT_EQ(r.u.DekadSzoveg[haz], haz == jegy ? "ABCDEFGHIJ" : "") << haz;
    }
}

}  // namespace
