// Chart files: whole files good and bad.

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "chart/statuszsor.h"
#include "commands/kvhfajl.h"
#include "files/kvhrekord.h"
#include "ideiglenesmappa.h"
#include "probaablak.h"
#include "rendszerhatar.h"

namespace {

namespace fs = std::filesystem;

class TKvh : public testing::Test {
protected:
    std::string fajl(const char* nev = "a.kvh") const { return mappa.fajl(nev); }
    void irj(const std::string& tartalom) const { mappa.irj("a.kvh", tartalom); }
    std::string olvasd() const { return mappa.olvasd("a.kvh"); }

    TIdeiglenesMappa mappa;
};

Allapot minta(int esemenyek = 0) {
    Allapot a;
    a.Szemely.nev = "Őrző Árpád";
    a.Szemely.jegyzet = "jegyzet űŰ";
    a.Szemely.hangJel = "H";
    a.Keplet.pillanat = {1975, 3, 21, 6, 4, 9};
    a.Keplet.helyseg = "Szeged";
    a.Keplet.hosszusag = 72586;
    a.Keplet.szelesseg = 166497;
    a.Keplet.idozona = -1;
    a.Keplet.nyariIdo = 1;
    for (int i = 1; i <= esemenyek; ++i) {
        TEletesemeny& e = a.Esemenyek.esemenyek[i];
        e.esemeny = "esemény " + std::to_string(i);
        e.analogia = "I,7";
        e.pillanat.ev = 1980 + i;
        e.helyseg = "Pécs";
        e.hosszFok = -18;
        e.hosszPerc = -14;
        e.szelFok = 46;
        e.szelPerc = 4;
        e.solarNap = i % 12 + 1;
    }
    a.Esemenyek.EsemenyDb = esemenyek;
    return a;
}

TEST_F(TKvh, EsemenyNelkul628BajtHusszal13188) {
    EXPECT_FALSE(KepletMentes(minta(), fajl()));
    EXPECT_EQ(fs::file_size(fajl()), 628U);
    EXPECT_FALSE(KepletMentes(minta(20), fajl()));
    EXPECT_EQ(fs::file_size(fajl()), 13188U);
}

TEST_F(TKvh, AMentettKepletVisszaolvasva) {
    const Allapot a = minta(3);
    ASSERT_FALSE(KepletMentes(a, fajl()));
    Allapot b;
    TProbaAblak ablak;
    bool hang = false;
    ASSERT_FALSE(KepletMegnyitas(b, ablak, fajl(), [&] { hang = ablak.hivasok.empty(); }));
    EXPECT_TRUE(hang);  // before anything is drawn
    EXPECT_EQ(b.Szemely.nev, a.Szemely.nev);
    EXPECT_EQ(b.Szemely.jegyzet, a.Szemely.jegyzet);
    EXPECT_EQ(b.Szemely.hangJel, "H");
    EXPECT_EQ(b.Keplet.pillanat, a.Keplet.pillanat);
    EXPECT_EQ(b.Keplet.hosszusag, 72586);
    EXPECT_EQ(b.Keplet.idozona, -1);
    EXPECT_EQ(b.Keplet.nyariIdo, 1);
    EXPECT_EQ(b.Esemenyek.EsemenyDb, 3);
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(b.Esemenyek.esemenyek[i], a.Esemenyek.esemenyek[i]);
    EXPECT_EQ(b.RadixPillanat, a.Keplet.pillanat);
    EXPECT_EQ(b.SzuletesiPillanat, a.Keplet.pillanat);
    EXPECT_EQ(b.Feliratok.memo, a.Szemely.jegyzet);
    EXPECT_EQ(b.Szemely.jegyzetMentett, a.Szemely.jegyzet);
    EXPECT_EQ(b.Feliratok.statusz[panelNev], "Őrző Árpád ");
    EXPECT_EQ(b.Feliratok.statusz[panelIdo], "1975.03.21. 06:04:09 ZN");
    EXPECT_EQ(b.Feliratok.statusz[panelHely], "Szeged ");
    EXPECT_EQ(b.Feliratok.mostGomb, "Most");
    EXPECT_FALSE(b.MostFut);
    EXPECT_EQ(ablak.hivasok, (std::vector<std::string>{"Ujrafest", "Ervenytelenit", "RajzolKeplet"}));
}

TEST_F(TKvh, AHelyiKozepidobenGepeltKepletZonaIdobenJonVissza) {
    Allapot a = minta();
    a.Szemely.idoTipus = TIdoTipus::LMT;
    ASSERT_FALSE(KepletMentes(a, fajl()));
    Allapot b;
    b.Szemely.idoTipus = TIdoTipus::LMT;
    b.Szemely.idoTipusIndex = 1;
    TProbaAblak ablak;
    ASSERT_FALSE(KepletMegnyitas(b, ablak, fajl(), [] {}));
    EXPECT_EQ(b.Szemely.idoTipus, TIdoTipus::ZN);
    EXPECT_EQ(b.Szemely.idoTipusIndex, 1);
}

TEST_F(TKvh, FebruarHarmincegyEgyUgyAllAPanelben) {
    Allapot a = minta();
    a.Keplet.pillanat = {1999, 2, 31, 6, 4, 9};
    ASSERT_FALSE(KepletMentes(a, fajl()));
    TProbaAblak ablak;
    ASSERT_FALSE(KepletMegnyitas(a, ablak, fajl(), [] {}));
    EXPECT_EQ(a.Feliratok.statusz[panelIdo], "1999.02.31. 06:04:09 ZN");
    EXPECT_EQ(a.Keplet.pillanat.ho, 3);
    EXPECT_EQ(a.Keplet.pillanat.nap, 3);
}

TEST_F(TKvh, KevesebbEsemenyMogottARegiekMegmaradnak) {
    Allapot tele = minta(5);
    ASSERT_FALSE(KepletMentes(minta(2), fajl()));
    tele.Esemenyek.esemenyek[4].esemeny = "regi";
    TProbaAblak ablak;
    ASSERT_FALSE(KepletMegnyitas(tele, ablak, fajl(), [] {}));
    EXPECT_EQ(tele.Esemenyek.EsemenyDb, 2);
    EXPECT_EQ(tele.Esemenyek.esemenyek[4].esemeny, "regi");
}

void hibasOlvasas(const std::string& fajl) {
    Allapot a;
    TProbaAblak ablak;
    const TKvhHiba hiba = KepletMegnyitas(a, ablak, fajl, [] { FAIL(); });
    ASSERT_TRUE(hiba);
    EXPECT_EQ(*hiba, "File olvasási hiba!");
    EXPECT_TRUE(ablak.hivasok.empty());
}

TEST_F(TKvh, ARovidFajlokOlvasasiHibak) {
    for (const std::size_t hossz : {0U, 1U, 627U}) {
        irj(std::string(hossz, '\0'));
        hibasOlvasas(fajl());
    }
    ASSERT_FALSE(KepletMentes(minta(1), fajl()));
    const std::string ketRekord = olvasd();
    ASSERT_EQ(ketRekord.size(), 1256U);
    for (const std::size_t hossz : {628U, 629U, 1255U}) {
        irj(ketRekord.substr(0, hossz));
        hibasOlvasas(fajl());
    }
    irj(ketRekord + "vege");  // what follows the records is not read
    Allapot a;
    TProbaAblak ablak;
    EXPECT_FALSE(KepletMegnyitas(a, ablak, fajl(), [] {}));
}

TEST_F(TKvh, AzEsemenySzamHataranTulOlvasasiHiba) {
    for (const std::int32_t szam : {-1, 21, 2147483647, -2147483647}) {
        TKvhRekord r;
        r.esemenySzam = szam;
        const TKvhBajtok b = KvhKodolas(r);
        irj(std::string(b.begin(), b.end()) + std::string(std::size_t{628} * 30, '\0'));
        hibasOlvasas(fajl());
    }
}

TEST_F(TKvh, AzEsemenyHangMezojenekSzamnakKellLennie) {
    for (const char* hang : {"", "x", "5x", " 5", "99999999999"}) {
        TKvhRekord keplet;
        keplet.esemenySzam = 1;
        TKvhRekord esemeny;
        esemeny.hang = hang;
        const TKvhBajtok a = KvhKodolas(keplet);
        const TKvhBajtok b = KvhKodolas(esemeny);
        irj(std::string(a.begin(), a.end()) + std::string(b.begin(), b.end()));
        hibasOlvasas(fajl());
    }
}

TEST_F(TKvh, HibaUtanAMarOlvasottMarad) {
    ASSERT_FALSE(KepletMentes(minta(2), fajl()));
    irj(olvasd().substr(0, 1300));
    Allapot a;
    a.Szemely.jegyzet = "regi";
    TProbaAblak ablak;
    ASSERT_TRUE(KepletMegnyitas(a, ablak, fajl(), [] {}));
    EXPECT_EQ(a.Szemely.nev, "Őrző Árpád");
    EXPECT_EQ(a.Esemenyek.esemenyek[1].esemeny, "esemény 1");
    EXPECT_NE(a.Keplet.pillanat, (TPillanat{1975, 3, 21, 6, 4, 9}));
}

TEST_F(TKvh, AJegyzetARovidFajlElottKiurul) {
    irj(std::string(627, '\0'));
    Allapot a = minta();
    TProbaAblak ablak;
    ASSERT_TRUE(KepletMegnyitas(a, ablak, fajl(), [] {}));
    EXPECT_EQ(a.Szemely.jegyzet, "");
    EXPECT_EQ(a.Szemely.nev, "Őrző Árpád");
}

TEST_F(TKvh, MappaEsHianyzoFajl) {
    hibasOlvasas(mappa.fajl(""));
    hibasOlvasas(fajl("nincs.kvh"));
}

#ifndef _WIN32
TEST_F(TKvh, ACsovezetekEsAzEszkozOlvasasiHiba) {
    const TCsovezetek cso(fajl("cso.kvh"));
    ASSERT_TRUE(cso.van());
    hibasOlvasas(fajl("cso.kvh"));
    hibasOlvasas("/dev/zero");  // as long as it is read, it gives valid records
    hibasOlvasas("/dev/null");
}

TEST_F(TKvh, AHivatkozasonAtIsOlvas) {
    ASSERT_FALSE(KepletMentes(minta(), fajl()));
    fs::create_symlink(fajl(), fajl("b.kvh"));
    Allapot a;
    TProbaAblak ablak;
    EXPECT_FALSE(KepletMegnyitas(a, ablak, fajl("b.kvh"), [] {}));
    EXPECT_EQ(a.Szemely.nev, "Őrző Árpád");
}
#endif

TEST_F(TKvh, AMegnyitasElsoNezetetAd) {
    ASSERT_FALSE(KepletMentes(minta(), fajl()));
    for (const TKepletTipus nezet : {TKepletTipus::mundan, TKepletTipus::dekad}) {
        Allapot a;
        a.KepletTipus = nezet;
        a.Feliratok.valtGomb = "Radix";
        a.Feliratok.statusz[panelTipus] = "Dekád";
        TProbaAblak ablak;
        ASSERT_FALSE(KepletMegnyitas(a, ablak, fajl(), [] {}));
        EXPECT_EQ(a.KepletTipus, TKepletTipus::radix);
        EXPECT_EQ(a.Feliratok.valtGomb, "Mundán");
        EXPECT_EQ(a.Feliratok.statusz[panelTipus], "Radix");
    }
}

#ifndef _WIN32
TEST_F(TKvh, ASikertelenMentesARegitHagyja) {
    ASSERT_FALSE(KepletMentes(minta(1), fajl()));
    const std::string regi = olvasd();
    {
        const TTeliLemez teli(1000);
        const TKvhHiba hiba = KepletMentes(minta(20), fajl());
        ASSERT_TRUE(hiba);
        EXPECT_EQ(*hiba, "File írási hiba!");
    }
    EXPECT_EQ(olvasd(), regi);
    EXPECT_EQ(mappa.tartalma(), std::vector<std::string>{"a.kvh"});
}
#endif

TEST_F(TKvh, AJavasoltNevMindigSimaFajlnev) {
    TSzemely sz;
    EXPECT_EQ(KvhFajlNev(sz), ".kvh");
    sz.nev = "Őrző Árpád";
    EXPECT_EQ(KvhFajlNev(sz), "Őrző Árpád.kvh");
    sz.nev = "Kiss/Nagy";
    EXPECT_EQ(KvhFajlNev(sz), "Kiss-Nagy.kvh");
    sz.nev = "../../x";
    EXPECT_EQ(KvhFajlNev(sz), "---..-x.kvh");
}

TEST_F(TKvh, AzIrasHibai) {
    for (const std::string& hova : {std::string("/dev/full"), mappa.fajl(""), fajl("nincs/a.kvh")}) {
        const TKvhHiba hiba = KepletMentes(minta(3), hova);
        ASSERT_TRUE(hiba) << hova;
        EXPECT_EQ(*hiba, "File írási hiba!");
    }
}

TEST_F(TKvh, AmitAProgramIrUgyanazJonVissza) {
    const std::vector<std::string> betuk{"a", "Á", "é", "ő", "Ű", "ű", " ", "z", "9", "\n", "ö", "°", "€"};
    std::mt19937 veletlen(11);
    const auto szam = [&](int also, int felso) {
        return std::uniform_int_distribution(also, felso)(veletlen);
    };
    const auto szoveg = [&](int hossz) {
        std::string s;
        for (int i = szam(0, hossz); i > 0; --i) s += betuk[static_cast<std::size_t>(szam(0, 12))];
        return s;
    };
    for (int kor = 0; kor < 200; ++kor) {
        Allapot a;
        a.Szemely.nev = szoveg(32);
        a.Szemely.jegyzet = szoveg(255);
        a.Szemely.hangJel = szoveg(255);
        a.Keplet.helyseg = szoveg(32);
        a.Keplet.pillanat = {szam(1900, 2068), szam(1, 12), szam(1, 31),
                             szam(0, 23),      szam(0, 59), szam(0, 59)};
        a.Keplet.idozona = szam(-12, 12);
        a.Keplet.nyariIdo = szam(0, 1);
        a.Keplet.hosszusag = szam(-648000, 648000);
        a.Keplet.szelesseg = szam(-648000, 648000);
        a.Esemenyek.EsemenyDb = szam(0, 20);
        for (int i = 1; i <= a.Esemenyek.EsemenyDb; ++i) {
            const int oldal = szam(0, 1) == 0 ? -1 : 1;
            a.Esemenyek.esemenyek[i] = {
                szoveg(32),          szoveg(255),   szam(1900, 2068), szam(1, 12),
                szam(1, 31),         szam(0, 23),   szam(0, 59),      szam(0, 59),
                szoveg(32),          szam(-12, 12), szam(0, 1),       oldal * szam(0, 180),
                oldal * szam(0, 59), szam(0, 60),   szam(0, 59),      szam(0, 12)};
        }
        ASSERT_FALSE(KepletMentes(a, fajl()));
        Allapot b;
        std::ifstream be(fajl(), std::ios::binary);
        ASSERT_FALSE(KepletBeolvasas(b, be));
        ASSERT_EQ(b.Szemely.nev, a.Szemely.nev);
        ASSERT_EQ(b.Szemely.jegyzet, a.Szemely.jegyzet);
        ASSERT_EQ(b.Szemely.hangJel, a.Szemely.hangJel);
        ASSERT_EQ(b.Szemely.beirt, a.Keplet.pillanat);
        ASSERT_EQ(b.Keplet.helyseg, a.Keplet.helyseg);
        ASSERT_EQ(b.Keplet.hosszusag, a.Keplet.hosszusag);
        ASSERT_EQ(b.Keplet.szelesseg, a.Keplet.szelesseg);
        ASSERT_EQ(b.Esemenyek.EsemenyDb, a.Esemenyek.EsemenyDb);
        for (int i = 1; i <= a.Esemenyek.EsemenyDb; ++i)
            ASSERT_EQ(b.Esemenyek.esemenyek[i], a.Esemenyek.esemenyek[i]);
    }
}

TEST_F(TKvh, ASzemetSosemOkozBajt) {
    std::mt19937 veletlen(13);
    for (int kor = 0; kor < 300; ++kor) {
        std::string szemet(std::uniform_int_distribution<std::size_t>(0, 3000)(veletlen), '\0');
        for (char& c : szemet) c = static_cast<char>(veletlen() & 0xFF);
        if (kor % 2 == 0 && szemet.size() >= 628) szemet.replace(368, 4, std::string("\2\0\0\0", 4));
        std::istringstream be(szemet);
        Allapot a;
        const TKvhHiba hiba = KepletBeolvasas(a, be);
        EXPECT_TRUE(!hiba || *hiba == "File olvasási hiba!");
        EXPECT_TRUE(a.Esemenyek.EsemenyDb >= 0 && a.Esemenyek.EsemenyDb <= 20);
    }
}

}  // namespace
