#include <array>
#include <cmath>
#include <utility>

#include <gtest/gtest.h>

#include "engine/fenyszogek.h"
#include "tables/szotar.h"

namespace {

/// Ten bodies far from any aspect with one another where the test sets none: decans and orbs kept apart by
/// hand.
struct TKep {
    TBolygok b;
    TFenyszogMunka munka;
    TOrbisTabla orbis = OrbisAlap;

    char jel(int i, int j) {
        ElteresSzamitas(b, munka);
        Fenyszogek(orbis, munka);
        EXPECT_EQ(munka.FenyszogMatrix[i][j], munka.FenyszogMatrix[j][i]);
        return munka.FenyszogMatrix[i][j];
    }
    double orb(int i, int j) const { return munka.FenyszogOrbis[i][j]; }
};

TEST(Elteresek, FelkornelNemFordulMegEsAMatrixTukros) {
    TKep k;
    for (int i = 1; i <= 10; ++i) k.b[i] = 37.0 * i - 36.5;
    ElteresSzamitas(k.b, k.munka);
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(k.munka.Elteresek[i][i], 0);
        for (int j = 1; j <= 10; ++j) {
            const double kulonbseg = 37.0 * std::abs(i - j);
            EXPECT_DOUBLE_EQ(k.munka.Elteresek[i][j], kulonbseg <= 180 ? kulonbseg : 360 - kulonbseg);
        }
    }
    // 0.5, 37.5, 74.5, 111.5 … 333.5
    constexpr std::array dekadok{0, 30, 70, 110, 140, 180, 220, 250, 290, 330};
    for (int i = 1; i <= 10; ++i)
        EXPECT_EQ(k.munka.DekadKezdetek[i], dekadok[static_cast<std::size_t>(i - 1)]) << i;
}

TEST(Elteresek, ARovidebbIvEsADekadKezdete) {
    TKep k;
    k.b[1] = 350;
    k.b[2] = 15;
    k.b[3] = 170;
    ElteresSzamitas(k.b, k.munka);
    EXPECT_DOUBLE_EQ(k.munka.Elteresek[1][2], 25);
    EXPECT_DOUBLE_EQ(k.munka.Elteresek[2][1], 25);
    EXPECT_DOUBLE_EQ(k.munka.Elteresek[1][3], 180);
    EXPECT_DOUBLE_EQ(k.munka.DekadKezdetek[1], 350);
    EXPECT_DOUBLE_EQ(k.munka.DekadKezdetek[2], 10);
}

TEST(Fenyszogek, AzOrbisHataraHozzatartozik) {
    TKep k;
    k.b[1] = 101;
    k.b[2] = 114.5;  // Sun and Moon: (15 + 12) / 2 is 13.5
    EXPECT_EQ(k.jel(1, 2), 'M');
    EXPECT_DOUBLE_EQ(k.orb(1, 2), 13.5);
    k.b[2] = 114.75;
    EXPECT_EQ(k.jel(1, 2), '.');
}

TEST(Fenyszogek, ADekadOrbisNelkulIsAdFenyszoget) {
    TKep k;
    k.b[3] = 121;
    k.b[4] = 157;  // 36 apart; decans from 120 and 150
    EXPECT_EQ(k.jel(3, 4), 'N');
    EXPECT_DOUBLE_EQ(k.orb(3, 4), 0);
    k.b[3] = 129;
    k.b[4] = 165;  // decans from 120 and 160
    EXPECT_EQ(k.jel(3, 4), '.');
}

TEST(Fenyszogek, ADekadokHetFenyszoge) {
    // Without any tolerance: bodies 8.5 degrees out of the exact angle, in decans that stand at it. 45 and
    // 135 are no distance of decans.
    const std::pair<double, char> dekadok[]{{0, 'M'},   {10, '.'},  {20, '.'},  {30, 'N'},  {40, '.'},
                                            {50, '.'},  {60, 'P'},  {70, '.'},  {80, '.'},  {90, 'R'},
                                            {100, '.'}, {110, '.'}, {120, 'S'}, {130, '.'}, {140, '.'},
                                            {150, 'V'}, {160, '.'}, {170, '.'}, {180, 'W'}};
    for (const auto& [tavolsag, betu] : dekadok) {
        TKep k;
        k.orbis = {};
        k.b[3] = 41;
        k.b[4] = 49.5 + tavolsag;
        EXPECT_EQ(k.jel(3, 4), betu) << tavolsag;
        EXPECT_EQ(k.orb(3, 4), 0) << tavolsag;
    }
    TKep k;  // the short way round the circle: decans 350 and 20
    k.orbis = {};
    k.b[3] = 351;
    k.b[4] = 29.5;
    EXPECT_EQ(k.jel(3, 4), 'N');
}

TEST(Fenyszogek, AzOrbisElsobbADekadnal) {
    // 94.5 apart with decans 90 apart: the square by its tolerance, with the distance beside it.
    TKep k;
    k.b[3] = 1;
    k.b[4] = 95.5;
    EXPECT_EQ(k.jel(3, 4), 'R');
    EXPECT_DOUBLE_EQ(k.orb(3, 4), 94.5);
    // 57 apart is a sextile in orb though the decans, 10 and 60, are 50 apart.
    k.b[3] = 11;
    k.b[4] = 68;
    EXPECT_EQ(k.jel(3, 4), 'P');
    EXPECT_DOUBLE_EQ(k.orb(3, 4), 57);
}

TEST(Fenyszogek, AzOrbisAKetBolygoSajatSoranakKozepe) {
    // Sun and Mercury: (15 + 8) / 2 is 11.5; Mercury and Venus: 8. Decans of 0 and 10 give nothing.
    TKep k;
    k.b[1] = 0;
    k.b[3] = 11.5;
    k.b[4] = 19.75;
    EXPECT_EQ(k.jel(1, 3), 'M');
    EXPECT_EQ(k.jel(1, 4), '.');
    k.b[3] = 5;
    k.b[4] = 13;
    EXPECT_EQ(k.jel(3, 4), 'M');
    k.b[4] = 13.25;
    EXPECT_EQ(k.jel(3, 4), '.');
}

TEST(Fenyszogek, AGyariTuresekNemErnekOssze) {
    for (int i = 3; i <= 12; ++i)
        for (int j = 3; j <= 12; ++j)
            for (int a = 1; i != j && a < 9; ++a) {
                const double vege = fenyszogSzog[a] + (OrbisAlap[i][a] + OrbisAlap[j][a]) / 2;
                const double kezdete = fenyszogSzog[a + 1] - (OrbisAlap[i][a + 1] + OrbisAlap[j][a + 1]) / 2;
                EXPECT_LT(vege, kezdete) << i << ' ' << j << ' ' << a;
            }
}

TEST(Fenyszogek, AzElozoKepNemMarad) {
    TKep k;
    k.b[3] = 7;
    k.b[4] = 97;
    EXPECT_EQ(k.jel(3, 4), 'R');
    k.b[4] = 82;
    EXPECT_EQ(k.jel(3, 4), '.');
    EXPECT_EQ(k.orb(3, 4), 0);
}

TEST(Fenyszogek, ANapJupiterNegyzetEsHatvan) {
    TKep k;
    k.b[1] = 5;
    k.b[6] = 88;  // 83: inside 82..98
    EXPECT_EQ(k.jel(1, 6), 'R');
    k.b[1] = 5;
    k.b[6] = 70.5;  // 65.5: outside 55.5..64.5 and 82..98; decans 0 and 70
    EXPECT_EQ(k.jel(1, 6), '.');
    k.b[6] = 69.5;  // 64.5: the bound of the sextile
    EXPECT_EQ(k.jel(1, 6), 'P');
}

TEST(Fenyszogek, MindenFenyszogSajatBetuvel) {
    const std::pair<double, char> fenyszogek[]{{0, 'M'},   {30, 'N'},  {45, 'O'},  {60, 'P'}, {90, 'R'},
                                               {120, 'S'}, {135, 'T'}, {150, 'V'}, {180, 'W'}};
    for (const auto& [szog, betu] : fenyszogek) {
        TKep k;
        k.b[3] = 7;
        k.b[4] = 7 + szog;
        EXPECT_EQ(k.jel(3, 4), betu);
    }
}

TEST(Fenyszogek, NullaOrbisPontosTalalatraTalal) {
    TKep k;
    k.orbis = {};
    k.b[3] = 7;
    k.b[4] = 52;
    EXPECT_EQ(k.jel(3, 4), 'O');
    k.b[4] = 52.01;
    EXPECT_EQ(k.jel(3, 4), '.');
}

TEST(Fenyszogek, AtfedoOrbisnalANagyobbSzogGyoz) {
    TKep k;
    k.orbis[5][3] = k.orbis[6][3] = 10;  // 45: 35..55
    k.orbis[5][4] = k.orbis[6][4] = 10;  // 60: 50..70
    k.b[3] = 7;
    k.b[4] = 59;  // 52
    EXPECT_EQ(k.jel(3, 4), 'P');
}

TEST(Fenyszogek, ATengelyekSoraitNemOlvassa) {
    TKep k;
    k.orbis[1].tolt(90);
    k.orbis[2].tolt(90);
    k.b[1] = 101;
    k.b[2] = 117;
    EXPECT_EQ(k.jel(1, 2), '.');
}

TEST(Fenyszogek, AzAtloPont) {
    TKep k;
    k.jel(1, 2);
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(k.munka.FenyszogMatrix[i][i], '.');
        EXPECT_EQ(k.munka.FenyszogOrbis[i][i], 0);
    }
}

TEST(OrbisAlap, AGyariErtekek) {
    for (const int sor : {1, 2}) EXPECT_EQ(OrbisAlap[sor], (Tomb<double, 9>{{5, 0, 0, 5, 5, 5, 0, 0, 5}}));
    EXPECT_EQ(OrbisAlap[3], (Tomb<double, 9>{{15, 4, 4, 5, 8, 10, 4, 4, 15}}));
    EXPECT_EQ(OrbisAlap[4], (Tomb<double, 9>{{12, 4, 4, 5, 8, 8, 4, 4, 12}}));
    for (const int sor : {5, 6, 7, 10, 11, 12})
        EXPECT_EQ(OrbisAlap[sor], (Tomb<double, 9>{{8, 2, 2, 3, 5, 5, 2, 2, 8}}));
    for (const int sor : {8, 9}) EXPECT_EQ(OrbisAlap[sor], (Tomb<double, 9>{{10, 3, 3, 4, 8, 8, 3, 3, 10}}));
}

TJelMatrix ures() {
    TJelMatrix m;
    for (auto& sor : m) sor.tolt('.');
    return m;
}

void par(TJelMatrix& m, int i, int j, char betu) {
    m[i][j] = m[j][i] = betu;
}

TEST(EgyuttallasLanc, ALancMindenTagjaEgyuttall) {
    TJelMatrix m = ures();
    par(m, 1, 2, 'M');
    par(m, 2, 5, 'M');
    par(m, 3, 4, 'R');
    EgyuttallasLanc(m);
    EXPECT_EQ(m[1][2], 'M');
    EXPECT_EQ(m[2][5], 'M');
    EXPECT_EQ(m[1][5], 'M');
    EXPECT_EQ(m[5][1], 'M');
    EXPECT_EQ(m[3][4], '.');
    for (int i = 1; i <= 10; ++i) EXPECT_EQ(m[i][i], '+');
}

TEST(EgyuttallasLanc, BarmelyKetBolygo) {
    for (int i = 1; i <= 10; ++i)
        for (int j = i + 1; j <= 10; ++j) {
            TJelMatrix m = ures();
            par(m, i, j, 'M');
            EgyuttallasLanc(m);
            EXPECT_EQ(m[i][j], 'M') << i << ' ' << j;
            EXPECT_EQ(m[j][i], 'M') << i << ' ' << j;
        }
}

TEST(EgyuttallasLanc, ATizTaguLancIsOsszeer) {
    TJelMatrix m = ures();
    for (int i = 1; i < 10; ++i) par(m, i, i + 1, 'M');
    EgyuttallasLanc(m);
    for (int i = 1; i <= 10; ++i)
        for (int j = 1; j <= 10; ++j) EXPECT_EQ(m[i][j], i == j ? '+' : 'M');
}

TEST(EgyuttallasLanc, AKetLancKulonMarad) {
    TJelMatrix m = ures();
    par(m, 1, 4, 'M');
    par(m, 4, 9, 'M');
    par(m, 2, 3, 'M');
    par(m, 3, 4, 'P');
    EgyuttallasLanc(m);
    EXPECT_EQ(m[1][9], 'M');
    EXPECT_EQ(m[9][1], 'M');
    EXPECT_EQ(m[2][3], 'M');
    for (const int i : {1, 4, 9})
        for (const int j : {2, 3}) EXPECT_EQ(m[i][j], '.') << i << ' ' << j;
}

TEST(EgyuttallasLanc, ANapHoldMarsOrbisbolIsLanc) {
    // Sun 15, Moon 27 and Mars 36.5: 12 and 9.5 are in orb, 21.5 is not.
    TKep k;
    k.b.tolt(200);
    k.b[1] = 15;
    k.b[2] = 27;
    k.b[5] = 36.5;
    EXPECT_EQ(k.jel(1, 5), '.');
    EXPECT_EQ(k.munka.FenyszogMatrix[1][2], 'M');
    EXPECT_EQ(k.munka.FenyszogMatrix[2][5], 'M');
    EgyuttallasLanc(k.munka.FenyszogMatrix);
    for (const auto& [i, j] : {std::pair{1, 2}, {2, 5}, {1, 5}}) {
        EXPECT_EQ(k.munka.FenyszogMatrix[i][j], 'M');
        EXPECT_EQ(k.munka.FenyszogMatrix[j][i], 'M');
    }
}

TEST(EgyuttallasLanc, EgyuttallasNelkulUres) {
    TJelMatrix m = ures();
    par(m, 1, 2, 'S');
    EgyuttallasLanc(m);
    EXPECT_EQ(m[1][2], '.');
    EXPECT_EQ(m[1][1], '+');
}

char oldal(double p, double q) {
    TBolygok b;
    b[1] = p;
    b[2] = q;
    TJelMatrix m = ures();
    m[1][2] = 'R';
    AlsoFelso(b, m);
    EXPECT_EQ(m[2][1], '.');
    EXPECT_EQ(m[1][1], '+');
    return m[1][2];
}

TEST(AlsoFelso, FelsoHaFelkornelKevesebbelElore) {
    EXPECT_EQ(oldal(350, 10), 'F');
    EXPECT_EQ(oldal(10, 100), 'F');
    EXPECT_EQ(oldal(10, 189.5), 'F');
    EXPECT_EQ(oldal(280, 99.5), 'F');
    EXPECT_EQ(oldal(181, 0.5), 'F');
}

TEST(AlsoFelso, AlsoHaMogotte_EgyuttVagySzemben) {
    EXPECT_EQ(oldal(10, 350), 'A');
    EXPECT_EQ(oldal(100, 280), 'A');
    EXPECT_EQ(oldal(280, 100), 'A');
    EXPECT_EQ(oldal(100, 100), 'A');
    EXPECT_EQ(oldal(100, 10), 'A');
    EXPECT_EQ(oldal(180, 0), 'A');
    EXPECT_EQ(oldal(181, 1), 'A');
    EXPECT_EQ(oldal(350, 170.5), 'A');
}

/// A moment far outside the tables carries a body below 0: the upper side begins above 180 all the same.
TEST(AlsoFelso, AKoronKivuliHelyhezIsSzaznyolcvanFolott) {
    EXPECT_EQ(oldal(179.5, -1), 'A');
    EXPECT_EQ(oldal(180, -1), 'A');
    EXPECT_EQ(oldal(180.5, -1), 'F');
}

TEST(AlsoFelso, MindenFenyszogbolOldalLesz) {
    TBolygok b;
    for (int i = 1; i <= 10; ++i) b[i] = 10.0 * i;
    TJelMatrix m;
    for (int i = 1; i <= 10; ++i)
        for (int j = 1; j <= 10; ++j) m[i][j] = j < 10 ? fenyszogJel[j] : '+';
    AlsoFelso(b, m);
    for (int i = 1; i <= 10; ++i)
        for (int j = 1; j <= 10; ++j)
            EXPECT_EQ(m[i][j], i == j ? '+' : j == 10 ? '.' : j > i ? 'F' : 'A') << i << ' ' << j;
}

}  // namespace
