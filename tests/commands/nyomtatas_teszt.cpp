// The printed page, on the recording canvas.

#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "chart/statuszsor.h"
#include "commands/nyomtatas.h"
#include "drawing/rogzitovaszon.h"
#include "tables/szotar.h"

namespace {

TEST(Nyomtatas, AFejlecSzovege) {
    TKeplet k;
    k.pillanat = {1975, 3, 21, 6, 4, 9};
    k.helyseg = "Szeged";
    k.armcOra = 18;
    k.armcPerc = 7;
    k.armcMperc = 8.9;
    EXPECT_EQ(FejlecSzoveg(k, "Minta Anna"),
              std::string("Minta Anna,  1975.03.21.  6:04:09  Szeged,  ARMC: 18:07:8"));
}

TEST(Nyomtatas, ALaponMindigARadixAllAMegnevezessel) {
    Allapot a;
    a.KepletTipus = TKepletTipus::dekad;
    NyomtatasNezete(a, "Minta Anna");
    EXPECT_EQ(a.KepletTipus, TKepletTipus::radix);
    EXPECT_EQ(a.Feliratok.valtGomb, "Mundán");
    EXPECT_EQ(a.Feliratok.statusz[0], "Radix");
    EXPECT_EQ(a.Feliratok.statusz[panelNev], "Minta Anna");
}

TEST(Nyomtatas, AFejlecEsAKapcsolatSorHelye) {
    Allapot a;
    a.Rajz.nyomtatasMod = true;
    RogzitoVaszon vaszon;
    LapRajz(vaszon, a, "fejlec", 4961, 7016);
    // The upright page: the wheel at the top with the page's width as its room, 0.75 of its half.
    EXPECT_EQ(a.Rajz.kozpontX, 2480);
    EXPECT_EQ(a.Rajz.kozpontY, 2480);
    EXPECT_EQ(a.Rajz.kerekSugar, 1860);
    const auto& m = vaszon.muveletek();
    EXPECT_EQ(m.front(), TMuvelet(TKorMuvelet{2480, 2480, 1860, 1, 0}));
    const auto& fejlec = std::get<TSzovegMuvelet>(m[m.size() - 2]);
    EXPECT_EQ(fejlec.szoveg, std::string("fejlec"));
    EXPECT_EQ(fejlec.magassag, 60);
    EXPECT_EQ(fejlec.y, 210);  // int(7016 x 0.03)
    EXPECT_EQ(fejlec.x, (4961 - 6 * 60 / 2) / 2);
    const auto& lab = std::get<TSzovegMuvelet>(m.back());
    EXPECT_EQ(lab.szoveg, std::string(kapcsolatSor));
    EXPECT_EQ(lab.magassag, 36);
    EXPECT_EQ(lab.y, 6665);  // int(7016 - 350.8)
}

TEST(Nyomtatas, AFekvoLapKozepe) {
    Allapot a;
    a.Rajz.nyomtatasMod = true;
    RogzitoVaszon vaszon;
    LapRajz(vaszon, a, "fejlec", 7016, 4961);
    EXPECT_EQ(a.Rajz.kozpontX, 3508);
    EXPECT_EQ(a.Rajz.kozpontY, 2480);
    EXPECT_EQ(a.Rajz.kerekSugar, 1860);
}

TEST(Nyomtatas, APdfNeveASzemelyNeveEsAKepletDatuma) {
    Allapot a;
    a.Keplet.pillanat = {1975, 3, 21, 6, 4, 9};
    a.Szemely.nev = "Minta Anna";
    EXPECT_EQ(PdfFajlNev(a), "Minta Anna 1975-03-21.pdf");
    a.Szemely.nev = "Kiss/Nagy";
    EXPECT_EQ(PdfFajlNev(a), "Kiss-Nagy 1975-03-21.pdf");
    a.Szemely.nev = "../../x";
    EXPECT_EQ(PdfFajlNev(a), "---..-x 1975-03-21.pdf");
    a.Szemely.nev = "";
    a.Keplet.pillanat = {2068, 11, 2, 0, 0, 0};
    EXPECT_EQ(PdfFajlNev(a), "2068-11-02.pdf");
}

}  // namespace
