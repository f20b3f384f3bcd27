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

TEST(HazBesorolas, AmiSehovaSemIllikMegtartjaASzamat) {
    // House 12 begins after the end of its own space: cusps 12 and 1 closer than the difference of the
    // shifts.
    THazcsucsok h = egyenloHazak(0);
    h[12] = 358.5;  // boundary 355.5, above that of house 1, 355
    TBolygok b;
    b.tolt(355.2);
    TBolygoHazak hazak;
    hazak.tolt(7);
    HazBesorolas(b, h, hazak);
    EXPECT_EQ(hazak[1], 1);
    // A body that no interval holds: house 2's boundary at house 1's own makes house 1 a whole circle wide;
    // so take bodies outside the circle.
    b.tolt(1000);
    HazBesorolas(b, h, hazak);
    EXPECT_EQ(hazak[1], 1);
    TBolygoHazak friss;
    HazBesorolas(b, h, friss);
    EXPECT_EQ(friss[1], 0);
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

}  // namespace
