// Primary directions.

#include <array>
#include <cmath>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "engine/csillagido.h"
#include "engine/hazak.h"
#include "iranyteszt.h"
#include "predictive/primer.h"
#include "tables/efemerida.h"
#include "tables/haztablak.h"

namespace {

TEST(Primer, ATizpercesTablakOlvasasa) {
    EXPECT_DOUBLE_EQ(EklToRekt(0), 0);
    EXPECT_DOUBLE_EQ(EklToRekt(10), 9);
    EXPECT_DOUBLE_EQ(EklToRekt(5), 4.5);
    EXPECT_DOUBLE_EQ(EklToRekt(1020), 910);
    EXPECT_DOUBLE_EQ(RektToEkl(10), 11);
    EXPECT_DOUBLE_EQ(RektToEkl(15), 16.5);
    EXPECT_NEAR(EklToRekt(21599.9), 21599.9, 0.02);
}

TEST(Primer, AFerdeSorKetSzelessegKozott) {
    const TFerdeTabla t = FerdeSor(42 * 3600 + 1800);
    EXPECT_DOUBLE_EQ(t[1], (33 + FerdeAszcenzioTabla[1][1]) / 2.0);
    EXPECT_DOUBLE_EQ(FerdeSor(42 * 3600)[3], 101);
    EXPECT_DOUBLE_EQ(FerdeSor(60 * 3600)[3], 41);
    // Ten seconds beyond a degree the next two rows hold already.
    const double negyvenhet = FerdeAszcenzioTabla[5][90];
    const double lepes = FerdeAszcenzioTabla[6][90] - negyvenhet;
    EXPECT_NEAR(FerdeSor(47 * 3600 + 10)[90], negyvenhet + lepes * 10 / 3600, 1e-9);
    // Outside the band the weight runs beyond 0..1.
    const double novekedes = FerdeAszcenzioTabla[1][90] - FerdeAszcenzioTabla[0][90];
    EXPECT_DOUBLE_EQ(FerdeSor(40 * 3600)[90], FerdeAszcenzioTabla[0][90] - 2 * novekedes);
    const double felul = FerdeAszcenzioTabla[18][90] - FerdeAszcenzioTabla[17][90];
    EXPECT_DOUBLE_EQ(FerdeSor(62 * 3600)[90], FerdeAszcenzioTabla[18][90] + 2 * felul);
    EXPECT_DOUBLE_EQ(t[360], 21600);
}

TEST(Primer, AFerdeAszcenzioVissza) {
    const TFerdeTabla t = FerdeSor(42 * 3600);
    EXPECT_DOUBLE_EQ(FerdeToEkl(t, 33, 360), 60);
    EXPECT_DOUBLE_EQ(FerdeToEkl(t, 50, 360), 60 + 60 * 17 / 34.0);
    EXPECT_DOUBLE_EQ(FerdeToEkl(t, 0, 360), 0);
    EXPECT_DOUBLE_EQ(FerdeToEkl(t, 21600, 360), 21600);
}

TEST(Primer, A359OszlopFolottAFelsoErtekNulla) {
    const TFerdeTabla t = FerdeSor(42 * 3600);
    const double cel = t[359] + 10;
    EXPECT_DOUBLE_EQ(FerdeToEkl(t, cel, 359), 60 * 359 + 60 * 10 / (0 - t[359]));
    EXPECT_LT(FerdeToEkl(t, cel, 359), 60 * 359);
    EXPECT_GT(FerdeToEkl(t, cel, 360), 60 * 359);
}

TEST(Primer, APontTalalatHatarai) {
    EXPECT_TRUE(PontTalalat(10, {10, 12}));
    EXPECT_TRUE(PontTalalat(12, {10, 12}));
    EXPECT_FALSE(PontTalalat(9.99, {10, 12}));
    EXPECT_TRUE(PontTalalat(10, {10, 10}));  // a plain window of one place
    EXPECT_FALSE(PontTalalat(10.01, {10, 10}));
    const TOrbisAblak atlepo = OrbisAblak(0.5, 1);
    EXPECT_DOUBLE_EQ(atlepo.also, 359.5);
    EXPECT_DOUBLE_EQ(atlepo.felso, 1.5);
    EXPECT_TRUE(PontTalalat(0, atlepo));
    EXPECT_TRUE(PontTalalat(359.9, atlepo));
    EXPECT_FALSE(PontTalalat(359.5, atlepo));  // exactly on the lower end of a spanning window
    EXPECT_FALSE(PontTalalat(1.5, atlepo));
    EXPECT_FALSE(PontTalalat(180, atlepo));
    EXPECT_DOUBLE_EQ(OrbisAblak(359.5, 1).felso, 0.5);
}

/// All aspect points far away, one body's point on a longitude.
Allapot egyPont(double hely, int bolygo = 3, int pont = 8) {
    Allapot a = szuletes();
    for (auto& sor : a.Rajz.FenyszogPontok) sor.tolt(-100);
    a.Rajz.FenyszogPontok[bolygo][pont] = hely;
    return a;
}

constexpr TPillanat kezdo{2000, 1, 1, 0, 0, 0};
const int kezdoNap = 2415019 + 36525;

/// Directed points on the day of the start date and so many days after it.
std::array<double, 4> pontok(const Allapot& a, int napok) {
    const int d = kezdoNap - a.Keplet.julianszam + napok;
    return IranyitottPontok(EklToRekt(a.Keplet.hazCsucs[10] * 60), d * 9.715060995018346 / 60,
                            FerdeSor(a.Keplet.szelesseg), 359);
}

TEST(Primer, AzIrany_ADirektIvvelElore) {
    const Allapot a = szuletes();
    const double mc = EklToRekt(a.Keplet.hazCsucs[10] * 60);
    const double iv = (kezdoNap - a.Keplet.julianszam) * PrimerKulcs / 60;
    const auto p = pontok(a, 0);
    EXPECT_NEAR(EklToRekt(p[dMC] * 60), rektKorbe(mc + iv), 2);
    EXPECT_NEAR(EklToRekt(p[cMC] * 60), rektKorbe(mc - iv), 2);
    // The Ascendants follow: their oblique ascension is 90 degrees past the directed Midheaven.
    const TFerdeTabla ferde = FerdeSor(a.Keplet.szelesseg);
    const auto ferdeErtek = [&](double fok) {
        const auto c = static_cast<std::size_t>(fok);
        return ferde[c] + (fok - static_cast<double>(c)) * (ferde[c + 1] - ferde[c]);
    };
    EXPECT_NEAR(ferdeErtek(p[dAsc]), rektKorbe(mc + iv + 5400), 0.01);
    EXPECT_NEAR(ferdeErtek(p[cAsc]), rektKorbe(mc - iv + 5400), 0.01);
    // 59.14 arcminutes a year: 24.4 years.
    EXPECT_NEAR(iv, 24.45 * 59.1404, 3);
    EXPECT_DOUBLE_EQ(PrimerKulcs, 9.715060995018346);
    EXPECT_NEAR(PrimerKulcs / 7200 + 0.001, 0.00234931, 1e-8);
}

TEST(Primer, AzArcNelkuliPontokARadixTengelyei) {
    const Allapot a = szuletes();
    const auto p =
        IranyitottPontok(EklToRekt(a.Keplet.hazCsucs[10] * 60), 0, FerdeSor(a.Keplet.szelesseg), 359);
    EXPECT_NEAR(p[dMC], a.Keplet.hazCsucs[10], 0.05);
    EXPECT_NEAR(p[cMC], a.Keplet.hazCsucs[10], 0.05);
    // Two tables of different obliquity: the Ascendant agrees to a few minutes.
    EXPECT_NEAR(p[dAsc], a.Keplet.hazCsucs[1], 0.15);
    EXPECT_NEAR(p[cAsc], a.Keplet.hazCsucs[1], 0.15);
}

/// The run's table of oblique ascensions ends with column 359: past it the Ascendant is read towards 0.
TEST(Primer, AFutasAzUtolsoOszlopFolottNullaFeleOlvas) {
    Allapot a = szuletes();
    const TFerdeTabla ferde = FerdeSor(a.Keplet.szelesseg);
    const double iv = (kezdoNap - a.Keplet.julianszam) * PrimerKulcs / 60;
    const double t = ferde[359] + 10;
    a.Keplet.hazCsucs[10] = RektToEkl(rektKorbe(t - 5400 - iv)) / 60;
    for (auto& sor : a.Rajz.FenyszogPontok) sor.tolt(100);
    a.Rajz.FenyszogPontok[3][8] = 359 + (t - ferde[359]) / (0 - ferde[359]);
    const auto sorok = PrimerFutas(a, kezdo);
    ASSERT_EQ(sorok.size(), 1U);
    EXPECT_TRUE(sorok[0].starts_with("2000.01.01.   ")) << sorok[0];
    EXPECT_TRUE(sorok[0].ends_with(std::string(32, ' ') + "CR")) << sorok[0];
}

TEST(Primer, ANegyOszlopBehuzasaEsASorAlakja) {
    const std::size_t behuzas[]{5, 20, 32, 46};
    for (std::size_t oszlop = 0; oszlop < 4; ++oszlop) {
        const Allapot a = egyPont(pontok(szuletes(), 100)[oszlop]);
        const auto sorok = PrimerFutas(a, kezdo);
        ASSERT_GE(sorok.size(), 1U) << oszlop;
        // 2000-04-10 is day 100; the window of half a day's arc and a thousandth may begin a day earlier.
        const std::string& sor = sorok[0];
        EXPECT_TRUE(sor.starts_with("2000.04.10.   ") || sor.starts_with("2000.04.09.   ")) << sor;
        EXPECT_TRUE(sor.ends_with(std::string(behuzas[oszlop], ' ') + "CR")) << sor;
        const std::string haz = sor.substr(14, sor.size() - 14 - behuzas[oszlop] - 2);
        EXPECT_TRUE(haz == "w" || haz == "wv" || haz == "vww" || haz == "x" ||
                    (std::stoi(haz) >= 2 && std::stoi(haz) <= 12))
            << haz;
    }
}

/// The Sun's house in the solar chart before each line's day; 55 years see it in all twelve.
TEST(Primer, ASorAzUtolsoSolarNapHazaval) {
    const std::array<std::string, 13> jelek{"",    "w", "2", "3", "wv", "5", "6",
                                            "vww", "8", "9", "x", "11", "12"};
    const Allapot minta = szuletes();
    std::set<int> hazak;
    for (int ev = 1976; ev <= 2030; ++ev) {
        const TPillanat eleje{ev, 1, 1, 0, 0, 0};
        const auto sorok = PrimerFutas(egyPont(pontok(minta, napSzama(eleje) - kezdoNap)[dMC]), eleje);
        ASSERT_FALSE(sorok.empty()) << ev;  // later another column may come there too
        const int haz =
            SolarHaz(minta.Keplet.bolygo, napSzama(eleje), minta.Keplet.hosszusag, minta.Keplet.szelesseg);
        ASSERT_TRUE(haz >= 1 && haz <= 12) << ev;
        EXPECT_EQ(sorok[0], std::to_string(ev) + ".01.01.   " + jelek[static_cast<std::size_t>(haz)] +
                                std::string(5, ' ') + "CR");
        hazak.insert(haz);
    }
    EXPECT_EQ(hazak.size(), 12U);
}

/// A clock beyond all dialogs carries the Sun many turns away: it fits no house, and the line names none.
TEST(Primer, AHazNelkuliNapSorabanNincsHaz) {
    Allapot a = egyPont(pontok(szuletes(), 100)[dMC]);
    a.Keplet.bolygo[1] = 1000;
    const auto sorok = PrimerFutas(a, kezdo);
    ASSERT_EQ(sorok.size(), 1U);
    EXPECT_TRUE(sorok[0].starts_with("2000.04.")) << sorok[0];
    EXPECT_EQ(sorok[0].substr(11), std::string(3 + 5, ' ') + "CR");
}

TEST(Primer, KetNaponAtBenneMaradoPontEgySor) {
    // Half-way between two days' places both windows hold the point.
    const Allapot minta = szuletes();
    const double hely = (pontok(minta, 100)[dMC] + pontok(minta, 101)[dMC]) / 2;
    EXPECT_EQ(PrimerFutas(egyPont(hely), kezdo).size(), 1U);
}

TEST(Primer, KetBolygoEgyAblakbanEgySor) {
    Allapot a = egyPont(pontok(szuletes(), 100)[dMC], 3, 8);
    a.Rajz.FenyszogPontok[2][1] = a.Rajz.FenyszogPontok[3][8];
    const auto sorok = PrimerFutas(a, kezdo);
    ASSERT_EQ(sorok.size(), 1U);
    EXPECT_TRUE(sorok[0].ends_with("     BMCR"));
}

TEST(Primer, AVisszateroSzovegUjraSor) {
    const Allapot minta = szuletes();
    Allapot a = egyPont(pontok(minta, 100)[dMC], 3, 8);
    a.Rajz.FenyszogPontok[4][8] = pontok(minta, 200)[dMC];
    a.Rajz.FenyszogPontok[3][9] = -100;
    a.Rajz.FenyszogPontok[3][10] = -100;
    // The first text comes again: another of Mercury's points with the same letter further on.
    a.Rajz.FenyszogPontok[3][9] = pontok(minta, 300)[dMC];  // 'R' too
    const auto sorok = PrimerFutas(a, kezdo);
    ASSERT_EQ(sorok.size(), 3U);
    EXPECT_TRUE(sorok[0].ends_with("CR"));
    EXPECT_TRUE(sorok[1].ends_with("DR"));
    EXPECT_TRUE(sorok[2].ends_with("CR"));
}

TEST(Primer, HuszonkettedikSorUtanNincsTobb) {
    Allapot a = szuletes();
    const Allapot minta = a;
    for (auto& sor : a.Rajz.FenyszogPontok) sor.tolt(-100);
    int n = 0;
    for (int i = 1; i <= 10; ++i)
        for (const int j : {1, 2, 4}) a.Rajz.FenyszogPontok[i][j] = pontok(minta, 50 * ++n)[dMC];
    EXPECT_EQ(PrimerFutas(a, kezdo).size(), 22U);
}

/// A day on which the directed Midheaven and the converse one reach a point each; both begin on it.
int ketOszlopNapja(Allapot& a, const Allapot& minta, int elso) {
    for (int nap = elso; nap < elso + 100; ++nap) {
        Allapot proba = egyPont(pontok(minta, nap)[dMC], 1, 16);
        proba.Rajz.FenyszogPontok[2][16] = pontok(minta, nap)[cMC];
        const auto sorok = PrimerFutas(proba, kezdo);
        if (sorok.size() != 2 || sorok[0].substr(0, 11) != sorok[1].substr(0, 11)) continue;
        a.Rajz.FenyszogPontok[1][16] = proba.Rajz.FenyszogPontok[1][16];
        a.Rajz.FenyszogPontok[2][16] = proba.Rajz.FenyszogPontok[2][16];
        return nap;
    }
    return 0;
}

TEST(Primer, AHuszonkettedikSorUtanANapTobbiOszlopaSem) {
    const Allapot minta = szuletes();
    Allapot a = egyPont(-100);
    int n = 0;
    for (int i = 3; i <= 9; ++i)
        for (const int j : {1, 2, 4}) a.Rajz.FenyszogPontok[i][j] = pontok(minta, 50 * ++n)[dMC];
    ASSERT_EQ(n, 21);
    ASSERT_GT(ketOszlopNapja(a, minta, 1100), 0);
    const auto sorok = PrimerFutas(a, kezdo);
    ASSERT_EQ(sorok.size(), 22U);
    EXPECT_TRUE(sorok[21].ends_with(std::string(5, ' ') + "AW")) << sorok[21];
    // One line less, and the day's other column is there.
    a.Rajz.FenyszogPontok[3][1] = -100;
    const auto eggyelKevesebb = PrimerFutas(a, kezdo);
    ASSERT_EQ(eggyelKevesebb.size(), 22U);
    EXPECT_TRUE(eggyelKevesebb[21].ends_with(std::string(20, ' ') + "BW")) << eggyelKevesebb[21];
}

TEST(Primer, A3661NapUtanNincsKereses) {
    const Allapot minta = szuletes();
    EXPECT_EQ(PrimerFutas(egyPont(pontok(minta, 3660)[dMC]), kezdo).size(), 1U);
    EXPECT_EQ(PrimerFutas(egyPont(pontok(minta, 3661)[dMC]), kezdo).size(), 0U);
}

TEST(Primer, ASzuletesElottiKezdetNegativIv) {
    // A point behind the Midheaven by the arc of ten years is met ten years before birth, direct.
    const Allapot minta = szuletes();
    const double mc = EklToRekt(minta.Keplet.hazCsucs[10] * 60);
    const double hely = RektToEkl(rektKorbe(mc - 10 * 59.1404)) / 60;
    const auto sorok = PrimerFutas(egyPont(hely), {1960, 1, 1, 0, 0, 0});
    ASSERT_EQ(sorok.size(), 1U);
    EXPECT_TRUE(sorok[0].starts_with("1965.07.2")) << sorok[0];
    EXPECT_TRUE(sorok[0].ends_with(std::string(5, ' ') + "CR")) << sorok[0];
}

/// House of a longitude by the plain rule: 5 degrees before an angular cusp, 3 before another.
int szabalySzerintiHaz(double hossz, const THazcsucsok& csucsok) {
    int haz = 0;
    double legkozelebb = 360;
    for (int h = 1; h <= 12; ++h) {
        const double hatar = csucsok[h] - (h % 3 == 1 ? 5 : 3);
        const double tav = std::fmod(hossz - hatar + 720, 360);
        if (tav < legkozelebb) legkozelebb = tav, haz = h;
    }
    return haz;
}

TEST(SolarHaz, ANatalisNapASolarCsucsokKozott) {
    const Allapot a = szuletes();
    for (int ev = 1976; ev < 2060; ++ev) {
        // The passage found by walking forward from the January before.
        const double s = a.Keplet.bolygo[1] * 3600;
        std::int32_t e = ev, ho = 1, elso = 1;
        int nap = DatumbolJulianszam(e, ho, elso);
        while (!(efemeridaNap(nap).nap_hossz < s && s <= efemeridaNap(nap + 1).nap_hossz)) ++nap;
        const double a0 = efemeridaNap(nap).nap_hossz;
        const int mp = static_cast<int>((s - a0) / (efemeridaNap(nap + 1).nap_hossz - a0) * 86400);
        const TCsillagIdo ido = CsillagIdo(nap, mp / 3600, mp / 60 % 60, mp % 60, -266400, 0, 0);
        THazcsucsok csucsok;
        Hazak(ido.armcOra, ido.armcPerc, ido.armcMperc, csucsok, 45 * 3600);
        EXPECT_EQ(SolarHaz(a.Keplet.bolygo, nap + 200, -266400, 45 * 3600),
                  szabalySzerintiHaz(a.Keplet.bolygo[1], csucsok))
            << ev;
    }
}

TEST(SolarHaz, ASolarKepletHazai) {
    const Allapot a = szuletes();
    std::set<int> hazak;
    for (int ev = 1976; ev < 2030; ++ev) {
        std::int32_t e = ev, ho = 12, nap = 1;
        const int haz =
            SolarHaz(a.Keplet.bolygo, DatumbolJulianszam(e, ho, nap), a.Keplet.hosszusag, a.Keplet.szelesseg);
        EXPECT_TRUE(haz >= 1 && haz <= 12);
        hazak.insert(haz);
    }
    EXPECT_GT(hazak.size(), 8U);  // a quarter of a day a year: the Sun goes round the houses
}

TEST(Primer, ARektaszcenzioEgyFordulattalKerulAKorbe) {
    EXPECT_EQ(rektKorbe(21600), 0);
    EXPECT_EQ(rektKorbe(21600.5), 0.5);
    EXPECT_EQ(rektKorbe(21599.5), 21599.5);
    EXPECT_EQ(rektKorbe(0), 0);
    EXPECT_EQ(rektKorbe(-0.5), 21599.5);
    EXPECT_EQ(rektKorbe(-21600), 0);
}

TEST(Primer, AzAszcendensFerdeAszcenziojaAKorVegenNulla) {
    // A Midheaven at 16200 minutes: the sum with 5400 is the whole circle and counts as 0.
    const TFerdeTabla ferde = FerdeSor(47 * 3600);
    EXPECT_EQ(IranyitottPontok(16200, 0, ferde, 359)[dAsc], 0);
    EXPECT_EQ(IranyitottPontok(16200, 0, ferde, 360)[dAsc], 0);
    EXPECT_EQ(IranyitottPontok(16200 - 60, 60, ferde, 360)[dAsc], 0);
}

}  // namespace
