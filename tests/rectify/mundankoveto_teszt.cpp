// The walking verdict beside the plain one: each chart of the walk is worked out anew in the test.

#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "engine/csillagido.h"
#include "engine/mundanlanc.h"
#include "rectify/analogiak.h"
#include "rectify/mundankereses.h"
#include "rectify/mundankoveto.h"
#include "tables/efemerida.h"
#include "tables/pillanat.h"

namespace {

class TMundanKovetoTeszt : public testing::Test {
protected:
    int szam(int also, int felso) { return std::uniform_int_distribution<int>(also, felso)(veletlen); }

    /// A place anywhere in the band, by its own or by typed summer time.
    TMundanHely hely() {
        TMundanHely h{szam(-12, 12), szam(42 * 3600, 60 * 3600), szam(-648000, 648000)};
        if (szam(0, 2) == 0) h.nyariIdo = szam(0, 1);
        return h;
    }
    /// Factory orbs, or ones that overlap, up to so many half degrees.
    TOrbisTabla orbisok(int legnagyobb = 40) {
        TOrbisTabla orbis = OrbisAlap;
        if (szam(0, 2) == 0)
            for (auto& sor : orbis)
                for (double& o : sor) o = szam(0, legnagyobb) / 2.0;
        return orbis;
    }

    std::mt19937 veletlen{20261121};
};

/// The chart of a moment, worked out anew; it stands until the next one.
const TMundanLanc& simaLanc(std::int64_t t, const TMundanHely& hely, const TOrbisTabla& orbis) {
    static TMundanLanc lanc;
    const auto m = static_cast<int>(t % 86400);
    MundanLanc(static_cast<int>(t / 86400), m / 3600, m / 60 % 60, m % 60, hely, orbis, lanc);
    return lanc;
}

char sima(std::int64_t t, const TMundanHely& hely, const TOrbisTabla& orbis) {
    return Analogiak(simaLanc(t, hely, orbis)).AnalogiaAllapot;
}

char koveto(TMundanKoveto& k, std::int64_t t) {
    const auto m = static_cast<int>(t % 86400);
    return k.allapot(static_cast<int>(t / 86400), m / 3600, m / 60 % 60, m % 60);
}

TEST_F(TMundanKovetoTeszt, MindenLepesenASimaItelet) {
    constexpr int lepesek[]{30, 30, 30, 30, 1, -1, -30, -31, 86400, -7200, 0};
    for (int seta = 0; seta < 150; ++seta) {
        const TMundanHely h = hely();
        const TOrbisTabla orbis = orbisok();
        TMundanKoveto k(h, orbis);
        const int ut = lepesek[szam(0, 7)];
        std::int64_t t = std::int64_t{szam(elsoNap + 3, utolsoNap - 4)} * 86400 + szam(0, 86399);
        for (int lepes = 0; lepes < 2500; ++lepes) {
            ASSERT_EQ(koveto(k, t), sima(t, h, orbis)) << seta << ' ' << t;
            t += szam(0, 40) == 0 ? lepesek[szam(0, 10)] : ut;
        }
    }
}

/// Without the steps between, which would each be a chance to work things out anew. The window of the orbs
/// sets no upper limit: with wide ones any aspect may hold at any distance.
TEST_F(TMundanKovetoTeszt, UgrasUtanIsASimaItelet) {
    for (int n = 0; n < 1000; ++n) {
        const TMundanHely h = hely();
        const TOrbisTabla orbis = orbisok(n % 2 == 0 ? 40 : 400);
        for (int ugras = 0; ugras < 20; ++ugras) {
            TMundanKoveto k(h, orbis);
            const std::int64_t t = std::int64_t{szam(elsoNap + 3, utolsoNap - 4)} * 86400 + szam(0, 86399);
            koveto(k, t);
            const std::int64_t vege = t + szam(-7200, 7200);
            ASSERT_EQ(koveto(k, vege), sima(vege, h, orbis)) << n << ' ' << t << ' ' << vege;
        }
    }
}

/// Degrees from the Sun on to the Moon at a day's beginning in Greenwich.
double holdKora(int nap) {
    const TEfemeridaNap& sor = efemeridaNap(nap);
    return std::fmod(sor.hold_hossz - sor.nap_hossz + 1296000.0, 1296000.0) / 3600;
}

/// With orbs of 100 degrees for the square of Sun and Moon the two are square where they meet as well, and
/// there their sides alone change.
TEST_F(TMundanKovetoTeszt, AzUjholdkorCserelOldalIs) {
    TOrbisTabla orbis = OrbisAlap;
    orbis[3][5] = orbis[4][5] = 100;
    for (int n = 0; n < 500; ++n) {
        TMundanHely h = hely();
        h.nyariIdo = 0;
        int nap = szam(elsoNap + 3, utolsoNap - 40);
        while (!(holdKora(nap) > 300 && holdKora(nap + 1) < 60)) ++nap;
        const double hianyzik = 360 - holdKora(nap);
        const double resz = hianyzik / (hianyzik + holdKora(nap + 1));
        const std::int64_t ujhold = std::int64_t{nap} * 86400 + static_cast<std::int64_t>(86400 * resz) +
                                    std::int64_t{h.idozona} * 3600;
        for (const int irany : {1, -1, 1, -1}) {
            TMundanKoveto k(h, orbis);
            koveto(k, ujhold - irany * szam(5, 2000));
            const std::int64_t vege = ujhold + irany * szam(5, 2000);
            ASSERT_EQ(koveto(k, vege), sima(vege, h, orbis)) << n << ' ' << vege;
        }
    }
}

/// At a sidereal time of 16 h and a high latitude the table's second cusp runs through half of the circle in
/// four minutes, over the first one too: bodies change their houses though no boundary comes to them.
TEST_F(TMundanKovetoTeszt, AMasodikCsucsRohanasaKozbenIs) {
    for (int n = 0; n < 100; ++n) {
        TMundanHely h = hely();
        h.szelesseg = szam(56 * 3600, 60 * 3600);
        h.nyariIdo = 0;
        const int nap = szam(elsoNap + 3, utolsoNap - 4);
        const TCsillagIdo ido = CsillagIdo(nap, 12, 0, 0, h.hosszusag, 0, h.idozona);
        const double most = ido.armcOra * 3600 + ido.armcPerc * 60 + ido.armcMperc;
        const double mulva = std::fmod(16 * 3600 - most + 2 * 86400, 86400) / 1.0027379;
        const std::int64_t kezdet = std::int64_t{nap} * 86400 + 43200 + static_cast<std::int64_t>(mulva) - 5;
        TMundanKoveto elore(h, OrbisAlap);
        TMundanKoveto hatra(h, OrbisAlap);
        for (int s = 0; s < 250; ++s) {
            ASSERT_EQ(koveto(elore, kezdet + s), sima(kezdet + s, h, OrbisAlap)) << n << ' ' << s;
            ASSERT_EQ(koveto(hatra, kezdet + 250 - s), sima(kezdet + 250 - s, h, OrbisAlap)) << n << ' ' << s;
        }
    }
}

/// Whether a cusp has come to another sign, an angular one to another decan.
bool csucsjegyetValtott(const THazcsucsok& elotte, const THazcsucsok& utana) {
    for (int h = 1; h <= 12; ++h) {
        const double szakasz = h % 3 == 1 ? 10 : 30;
        if (std::floor(elotte[h] / szakasz) != std::floor(utana[h] / szakasz)) return true;
    }
    return false;
}

/// A day in steps of half a minute: the signs of the cusps exactly as often as they change, the aspects in at
/// most two of a hundred steps, the houses in at most a fifth of them.
TEST_F(TMundanKovetoTeszt, AmiNemValtozhatottAztNemSzamoljaUjra) {
    constexpr int lepesek = 2880;
    for (int seta = 0; seta < 20; ++seta) {
        const TMundanHely h = hely();
        TMundanKoveto k(h, OrbisAlap);
        THazcsucsok elozo;
        int valtasok = 1;  // the first moment is one
        std::int64_t t = std::int64_t{szam(elsoNap + 3, utolsoNap - 4)} * 86400 + szam(0, 86399);
        for (int n = 0; n < lepesek; ++n, t += seta % 2 == 0 ? 30 : -30) {
            koveto(k, t);
            const THazcsucsok& csucsok = simaLanc(t, h, OrbisAlap).Hazcsucsok;
            if (n > 0 && csucsjegyetValtott(elozo, csucsok)) ++valtasok;
            elozo = csucsok;
        }
        EXPECT_EQ(k.szamitasok().csucsjegyek, valtasok);
        EXPECT_LE(k.szamitasok().fenyszogek, lepesek / 50);
        EXPECT_LE(k.szamitasok().hazak, lepesek / 5);
    }
}

TEST_F(TMundanKovetoTeszt, ANyariIdoHatarainIs) {
    const TMundanHely szeged{1, 166500, 72540};
    TMundanKoveto k(szeged, OrbisAlap);
    for (const TPillanat nap :
         {TPillanat{1916, 4, 30, 0, 0, 0}, TPillanat{1981, 9, 27, 0, 0, 0}, TPillanat{1982, 9, 26, 0, 0, 0},
          TPillanat{1983, 9, 25, 0, 0, 0}, TPillanat{2000, 3, 26, 0, 0, 0}, TPillanat{2000, 10, 29, 0, 0, 0}})
        for (int s = 0; s < 86400; s += 30) {
            const std::int64_t t = std::int64_t{napSzama(nap)} * 86400 + s;
            ASSERT_EQ(koveto(k, t), sima(t, szeged, OrbisAlap)) << t;
        }
}

/// A moment written past the day's ends is asked of the table as it stands: before midnight of a day that
/// changes at 0:00 it has not changed yet.
TEST_F(TMundanKovetoTeszt, ANyariIdoANapSzelenTuliIdokreIs) {
    constexpr TPillanat tulrol[]{{0, 0, 0, -1, 0, 0}, {0, 0, 0, 0, -1, 0}, {0, 0, 0, 0, 0, -1}};
    for (const TPillanat& nap : {TPillanat{1954, 5, 23, 0, 0, 0}, TPillanat{1980, 4, 6, 0, 0, 0},
                                 TPillanat{1980, 9, 28, 0, 0, 0}, TPillanat{1983, 3, 27, 0, 0, 0}}) {
        const int julianszam = napSzama(nap);
        for (int n = 0; n < 200; ++n) {
            TMundanHely h = hely();
            h.nyariIdo.reset();
            for (const TPillanat& p : tulrol) {
                TMundanLanc lanc;
                MundanLanc(julianszam, p.ora, p.perc, p.mperc, h, OrbisAlap, lanc);
                TMundanKoveto k(h, OrbisAlap);
                ASSERT_EQ(k.allapot(julianszam, p.ora, p.perc, p.mperc), Analogiak(lanc).AnalogiaAllapot);
            }
        }
    }
}

/// The search's rule read plainly, each moment by a chart of its own.
struct TSimaKereses {
    const TMundanHely& hely;
    const TOrbisTabla& orbis;

    std::int64_t operator()(std::int64_t t, int irany) const {
        const char kezdo = sima(t, hely, orbis);
        const auto kivul = [](std::int64_t hol) {
            return hol / 86400 < elsoNap || hol / 86400 > utolsoNap - 1;
        };
        do t += 30 * irany;
        while (!kivul(t) && sima(t, hely, orbis) == kezdo);
        if (kivul(t)) return t;
        t -= 30 * irany;
        do t += irany;
        while (!kivul(t) && sima(t, hely, orbis) == kezdo);
        return t;
    }
};

TEST_F(TMundanKovetoTeszt, KetezerKeresesUgyanottAllMeg) {
    int tablaVegen = 0;
    for (int n = 0; n < 2000; ++n) {
        const TMundanHely h = hely();
        Allapot a;
        a.OrbisTabla = orbisok();
        a.KeresesVolt = true;
        const int irany = n % 2 == 0 ? 1 : -1;
        // One in twenty begins a day before the end that it walks to.
        const int szel = irany > 0 ? utolsoNap - 1 : elsoNap;
        const int nap = n % 20 < 2 ? szel - irany * szam(0, 1) : szam(elsoNap + 400, utolsoNap - 400);
        const std::int64_t t = std::int64_t{nap} * 86400 + szam(0, 86399);
        JulianszambolDatum(nap, a.Keplet.pillanat);
        a.Keplet.pillanat.ora = static_cast<int>(t % 86400 / 3600);
        a.Keplet.pillanat.perc = static_cast<int>(t % 3600 / 60);
        a.Keplet.pillanat.mperc = static_cast<int>(t % 60);
        if (napSzama(a.Keplet.pillanat) != nap) continue;  // a date of 2079 is read as one of 2078
        const TMundanErtekeles e = MundanKereses(a, h, irany);
        const std::int64_t vege = TSimaKereses{h, a.OrbisTabla}(t, irany);
        const TPillanat& p = a.Keplet.pillanat;
        ASSERT_EQ(std::int64_t{a.Keplet.julianszam} * 86400 + p.ora * 3600 + p.perc * 60 + p.mperc, vege)
            << n;
        ASSERT_EQ(e.analogiak.AnalogiaAllapot, sima(vege, h, a.OrbisTabla));
        tablaVegen += vege / 86400 < elsoNap || vege / 86400 >= utolsoNap;
    }
    EXPECT_GT(tablaVegen, 5);
}

/// The first day from 2000 on at whose noon the verdict stands for four days.
int alloNap(const TMundanHely& hely) {
    for (int nap = napSzama({2000, 1, 1, 0, 0, 0});; ++nap) {
        const std::int64_t kezdet = std::int64_t{nap} * 86400 + 43200;
        const char kezdo = sima(kezdet, hely, OrbisAlap);
        std::int64_t t = kezdet;
        while (t < kezdet + 4 * 86400 && sima(t, hely, OrbisAlap) == kezdo) t += 30;
        if (t >= kezdet + 4 * 86400) return nap;
    }
}

class TKeret : public TMundanKovetoTeszt {
protected:
    TKeret() {
        a.KeresesVolt = true;
        JulianszambolDatum(nap, a.Keplet.pillanat);
        a.Keplet.pillanat.ora = 12;
    }
    const TMundanHely szeged{1, 166500, 72540};
    const int nap = alloNap(szeged);
    Allapot a;
    TKeresesKeret keret;
};

TEST_F(TKeret, AFigyeloMindenUjNaponMegallithatja) {
    std::vector<TPillanat> napok;
    keret.tovabb = [&](const TPillanat& p) {
        napok.push_back(p);
        return napok.size() < 3;
    };
    MundanKereses(a, szeged, 1, keret);
    EXPECT_EQ(napok.size(), 3U);
    EXPECT_EQ(a.Keplet.julianszam, nap + 3);
    EXPECT_EQ(a.Keplet.pillanat, napok.back());
    EXPECT_EQ(a.Keplet.pillanat.ora, 0);
    EXPECT_TRUE(a.MundanFrissites);
}

TEST_F(TKeret, LegfeljebbEnnyiNapig) {
    keret.legfeljebb = 2;
    MundanKereses(a, szeged, 1, keret);
    EXPECT_EQ(a.Keplet.julianszam, nap + 3);  // the step that left the frame stands
    EXPECT_EQ(a.Keplet.pillanat.ora, 0);
}

}  // namespace
