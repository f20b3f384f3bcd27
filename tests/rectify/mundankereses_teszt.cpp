// The search for the moment at which the mundane verdict changes.

#include <gtest/gtest.h>

#include "chart/kepletciklus.h"
#include "chart/statuszsor.h"
#include "mundanteszt.h"
#include "rectify/mundankereses.h"

namespace {

const TMundanHely szeged{1, 166500, 72540};

Allapot szegedi(const TPillanat& p) {
    Allapot a;
    a.KeresesVolt = true;
    a.Keplet.helyseg = "Szeged";
    a.Keplet.pillanat = p;
    DatumRendezes(a.Keplet);
    IdoAdatok(a);
    return a;
}

char verdikt(std::int64_t masodperc, const TMundanHely& hely = szeged, const TOrbisTabla& orbis = OrbisAlap) {
    TMundanLanc lanc;
    const auto m = static_cast<int>(masodperc % 86400);
    MundanLanc(static_cast<int>(masodperc / 86400), m / 3600, m / 60 % 60, m % 60, hely, orbis, lanc);
    return Analogiak(lanc).AnalogiaAllapot;
}

std::int64_t masodpercek(const TKeplet& k) {
    TPillanat p = k.pillanat;
    return std::int64_t{DatumbolJulianszam(p.ev, p.ho, p.nap)} * 86400 + p.ora * 3600 + p.perc * 60 + p.mperc;
}

/// Where the search must end, by the plain reading of its rule.
std::int64_t vartVege(std::int64_t t, int irany) {
    const char kezdo = verdikt(t);
    do t += 30 * irany;
    while (verdikt(t) == kezdo);
    t -= 30 * irany;
    do t += irany;
    while (verdikt(t) == kezdo);
    return t;
}

TEST(MundanKereses, AzUjVerdiktElsoMasodperceEloreEsHatra) {
    std::mt19937 veletlen(31);
    for (int n = 1; n < 60; ++n) {
        TPillanat p{1900 + n * 3, 1 + n % 12, 1 + n % 28, n % 24, n * 7 % 60, n * 11 % 60};
        for (const int irany : {1, -1}) {
            Allapot a = szegedi(p);
            const std::int64_t vege = vartVege(masodpercek(a.Keplet), irany);
            const TMundanErtekeles e = MundanKereses(a, szeged, irany);
            ASSERT_EQ(masodpercek(a.Keplet), vege) << n << ' ' << irany;
            ASSERT_EQ(e.analogiak.AnalogiaAllapot, verdikt(vege));
            ASSERT_EQ(a.Keplet.julianszam, vege / 86400);
            ASSERT_TRUE(a.MundanFrissites);
        }
    }
}

TEST(MundanKereses, AKettesVerdiktbolANullaEsAzEgyesIsMegallitja) {
    int nulla = 0;
    int egyes = 0;
    for (std::int64_t t = std::int64_t{2442000} * 86400; nulla == 0 || egyes == 0; t += 1800) {
        if (verdikt(t) != '2') continue;
        TPillanat p;
        JulianszambolDatum(static_cast<int>(t / 86400), p.ev, p.ho, p.nap);
        p.ora = static_cast<int>(t % 86400 / 3600);
        p.perc = static_cast<int>(t % 3600 / 60);
        Allapot a = szegedi(p);
        const char uj = MundanKereses(a, szeged, 1).analogiak.AnalogiaAllapot;
        ASSERT_NE(uj, '2');
        (uj == '0' ? nulla : egyes) += 1;
    }
    EXPECT_GT(nulla, 0);
    EXPECT_GT(egyes, 0);
}

/// The very first press after the program's start evaluates once and stays where it is: meant so.
TEST(MundanKereses, AzElsoNyomasNemMozdit) {
    const TPillanat p{1975, 7, 21, 6, 4, 9};
    for (const int irany : {1, -1}) {
        Allapot a = szegedi(p);
        a.KeresesVolt = false;
        a.Feliratok.leptetoCim = "1975.07.21. 06:04:09";
        MundanKereses(a, szeged, irany);
        EXPECT_EQ(a.Keplet.pillanat, p);
        EXPECT_TRUE(a.KeresesVolt);
        EXPECT_TRUE(a.MundanFrissites);
        EXPECT_EQ(a.Feliratok.leptetoCim, "");
        MundanKereses(a, szeged, irany);
        EXPECT_NE(a.Keplet.pillanat, p);
        EXPECT_TRUE(a.KeresesVolt);
    }
}

TEST(MundanKereses, ANapAtvitelHonaponAt) {
    // Starts a few seconds before and after midnight at the end of February of a leap and of a common year.
    for (const TPillanat& p : {TPillanat{1976, 2, 29, 23, 59, 50}, TPillanat{1977, 2, 28, 23, 59, 50}}) {
        Allapot a = szegedi(p);
        const std::int64_t vege = vartVege(masodpercek(a.Keplet), 1);
        MundanKereses(a, szeged, 1);
        EXPECT_EQ(a.Keplet.pillanat.ho, 3);
        EXPECT_EQ(masodpercek(a.Keplet), vege);
        Allapot vissza = szegedi({p.ev, 3, 1, 0, 0, 5});
        const std::int64_t visszaVege = vartVege(masodpercek(vissza.Keplet), -1);
        MundanKereses(vissza, szeged, -1);
        EXPECT_EQ(vissza.Keplet.pillanat.ho, 2);
        EXPECT_EQ(vissza.Keplet.pillanat.nap, p.nap);
        EXPECT_EQ(masodpercek(vissza.Keplet), visszaVege);
    }
}

TEST(MundanKereses, ATablaVegenMegall) {
    Allapot eleje = szegedi({1900, 1, 1, 0, 0, 10});
    MundanKereses(eleje, szeged, -1);
    EXPECT_EQ(eleje.Keplet.julianszam, 2415019);
    EXPECT_EQ(eleje.Keplet.pillanat, (TPillanat{1900, 1, 1, 23, 59, 40}));
}

/// With orbs over the whole circle the last aspect holds for every pair at every moment; in the half year
/// before the table's end the verdict then stands. A chart reads two rows, so the search ends with the first
/// step into the last one's day.
TEST(MundanKereses, AmiNemValtozikATablaVegeig) {
    Allapot a = szegedi({2078, 12, 31, 12, 0, 10});
    for (auto& sor : a.OrbisTabla) sor.tolt(200);
    const std::int64_t kezdet = masodpercek(a.Keplet);
    for (std::int64_t t = kezdet; t < std::int64_t{utolsoNap} * 86400; t += 1800)
        ASSERT_EQ(verdikt(t, szeged, a.OrbisTabla), verdikt(kezdet, szeged, a.OrbisTabla)) << t;
    MundanKereses(a, szeged, 1);
    EXPECT_EQ(a.Keplet.julianszam, utolsoNap);
    EXPECT_EQ(a.Keplet.pillanat.ora, 0);
    EXPECT_EQ(a.Keplet.pillanat.perc, 0);
    EXPECT_EQ(a.Keplet.pillanat.mperc, 10);
}

TEST(MundanKereses, ANyariIdoMindenPillanatraUjra) {
    // Across the end of summer time: 29 September 1985, when the clock goes back. The typed flag stands
    // instead.
    const TPillanat p{1985, 9, 28, 12, 0, 0};
    TMundanHely beirt = szeged;
    beirt.nyariIdo = 1;
    Allapot tablabol = szegedi(p);
    Allapot allando = szegedi(p);
    const std::int64_t ketNappalKesobb = masodpercek(tablabol.Keplet) + 2 * 86400;
    while (masodpercek(tablabol.Keplet) < ketNappalKesobb) {
        MundanKereses(tablabol, szeged, 1);
        MundanKereses(allando, beirt, 1);
    }
    EXPECT_NE(tablabol.Keplet.pillanat, allando.Keplet.pillanat);
    EXPECT_NE(verdikt(masodpercek(allando.Keplet), beirt), verdikt(masodpercek(allando.Keplet) - 1, beirt));
}

TEST(MundanKereses, AKepernyoKepletehezNemNyul) {
    Allapot a = szegedi({1975, 7, 21, 6, 4, 9});
    KepletCiklus(a);
    const TBolygok bolygok = a.Keplet.Bolygok;
    const THazcsucsok csucsok = a.Keplet.Hazcsucsok;
    const TJelMatrix matrix = a.FenyszogRadix;
    const TJelMatrix munka = a.Munka.FenyszogMatrix;
    MundanKereses(a, szeged, 1);
    EXPECT_EQ(a.Keplet.Bolygok, bolygok);
    EXPECT_EQ(a.Keplet.Hazcsucsok, csucsok);
    EXPECT_EQ(a.FenyszogRadix, matrix);
    EXPECT_EQ(a.Munka.FenyszogMatrix, munka);
}

TEST(MundanKereses, ATablakonKivulHarmincNapigKeres) {
    // A place of which no moment ever changes the verdict.
    const TMundanHely sehol{INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX};
    for (const int irany : {1, -1}) {
        Allapot a = szegedi({1975, 7, 21, 6, 4, 9});
        a.KeresesVolt = true;
        MundanKereses(a, sehol, irany, MundanKeret(sehol));
        EXPECT_EQ(a.Keplet.julianszam, 2442614 + 31 * irany);  // the first day outside
    }
}

TEST(MundanNyitas, AzElsoHazAKezdoPillanatEsALeptetoCime) {
    Allapot a = szegedi({1975, 7, 21, 6, 4, 9});
    a.AktivHaz = 9;
    IrStatuszSor(a, a.Keplet.pillanat, TIdoTipus::ZN);
    MundanNyitas(a);
    EXPECT_EQ(a.AktivHaz, 1);
    EXPECT_TRUE(a.MundanAblakNyitva);
    EXPECT_EQ(a.MhpKezdoPillanat, (TPillanat{1975, 7, 21, 6, 4, 9}));
    EXPECT_EQ(a.Feliratok.leptetoCim, "1975.07.21. 06:04:09");
}

TEST(MundanVissza, KetKeresesUtanAMegnyitasPillanata) {
    const TPillanat p{1975, 7, 21, 6, 4, 9};
    Allapot a = szegedi(p);
    MundanNyitas(a);
    MundanKereses(a, szeged, 1);
    MundanKereses(a, szeged, 1);
    EXPECT_EQ(a.MhpKezdoPillanat, p);
    a.MundanFrissites = false;
    MundanVissza(a);
    EXPECT_EQ(a.Keplet.pillanat, p);
    EXPECT_EQ(a.Keplet.julianszam, 2442614);
    EXPECT_TRUE(a.MundanFrissites);
}

TEST(MundanHely, ATablaHelyeUjraKeriANyariIdotABeirtAll) {
    Allapot a = szegedi({1985, 7, 1, 12, 0, 0});
    EXPECT_FALSE(MundanHely(a.Keplet).nyariIdo.has_value());
    EXPECT_EQ(MundanHely(a.Keplet).szelesseg, a.Keplet.szelesseg);
    Allapot nyariNelkul = a;
    nyariNelkul.Keplet.nyariIdo = 0;
    EXPECT_EQ(MundanHely(nyariNelkul.Keplet).nyariIdo, 0);
    Allapot masHely = a;
    masHely.Keplet.hosszusag = -68160;
    EXPECT_EQ(MundanHely(masHely.Keplet).nyariIdo, 1);
    EXPECT_EQ(MundanHely(masHely.Keplet).hosszusag, -68160);
}

TEST(MundanErtekeles, AHelyiDatumbolAkkorIsHaANapMarGreenwichi) {
    // The sidereal step has lowered the chart's day; the verdict goes by the date on the clock.
    const Allapot a = szegedi({1975, 7, 21, 0, 30, 0});
    ASSERT_EQ(a.Keplet.julianszam, 2442613);
    const TMundanErtekeles e = MundanErtekeles(a, szeged);
    TMundanLanc lanc;
    MundanLanc(2442614, 0, 30, 0, szeged, OrbisAlap, lanc);
    EXPECT_EQ(e.lanc.Bolygok, lanc.Bolygok);
    EXPECT_EQ(e.analogiak.AnalogiaAllapot, Analogiak(lanc).AnalogiaAllapot);
}

}  // namespace
