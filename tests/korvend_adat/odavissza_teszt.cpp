// Random charts out and back in again: each file comes back byte for byte, or each field that does not is
// reported, and nothing else is.

#include <algorithm>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "adatteszt.h"
#include "atalakitas.h"
#include "files/adatlap.h"
#include "tables/fokperc.h"

namespace {

namespace fs = std::filesystem;

class TVeletlen {
public:
    explicit TVeletlen(unsigned mag) : veletlen_(mag) {}

    int szam(int also, int felso) { return std::uniform_int_distribution(also, felso)(veletlen_); }
    bool ritkan(int hanyszorbolEgy) { return szam(1, hanyszorbolEgy) == 1; }

    /// Characters that the code page has, among them all that means something in some format.
    std::string szoveg(int hossz) {
        static const std::vector<std::string> betuk{"a",  "B",    "z",  "á",  "ő",  "Ű", "ß", "€",
                                                    " ",  ",",    ";",  "\"", "'",  "#", ":", "*",
                                                    "\n", "\r\n", "\t", "/",  "\\", "9", "{", "°"};
        std::string s;
        int db = szam(0, hossz);
        while (db > 0) {
            const std::string& betu = betuk[static_cast<std::size_t>(szam(0, 23))];
            s += betu;
            db -= betu == "\r\n" ? 2 : 1;
        }
        return s;
    }

    TKvhRekord rekord(bool esemeny) {
        TKvhRekord r;
        r.pillanat = {szam(1900, 2078), szam(1, 12), szam(1, 31), szam(0, 23), szam(0, 59), szam(0, 59)};
        r.idozona = szam(-12, 12);
        r.nyariIdo = szam(0, 1);
        r.helyseg = ritkan(2) ? (ritkan(2) ? "Szeged" : "Bécs") : szoveg(31);
        r.hosszusag = szam(-648000, 648000);
        r.szelesseg = ritkan(4) ? szam(-324000, 324000) : szam(42 * 3600, 60 * 3600);
        r.jegyzet = szoveg(esemeny ? 20 : 250);
        if (esemeny) {
            r.nev = szoveg(31);
            r.hang = std::to_string(szam(0, 12));
            if (!ritkan(5)) r.hosszusag = r.hosszusag / 60 * 60, r.szelesseg = r.szelesseg / 60 * 60;
        } else if (ritkan(2)) {
            r.hang = szoveg(40);
        }
        return r;
    }

    /// Numbers beyond the dialogs, as in a damaged file.
    void ront(TKvhRekord& r) {
        const TMezoLeiras& leiras =
            adatMezok[static_cast<std::size_t>(szam(0, static_cast<int>(mezoSzam) - 1))];
        if (!leiras.szoveg) MezoSzam(r, leiras) = ritkan(2) ? szam(INT32_MIN, INT32_MAX) : szam(-3, 3000);
    }

private:
    std::mt19937 veletlen_;
};

/// A chart file as the test knows it.
struct TFajl {
    TKvhRekord keplet;
    std::vector<TKvhRekord> esemenyek;
    std::string bajtok() const { return kvhBajtok(keplet, esemenyek); }
};

std::string kulcs(int i) {
    return "K" + std::to_string(10000 + i);
}

std::vector<TFajl> veletlenFajlok(int db, bool ronthat, TVeletlen& v) {
    std::vector<TFajl> fajlok;
    for (int i = 0; i < db; ++i) {
        TFajl f{v.rekord(false), {}};
        f.keplet.nev = kulcs(i) + " " + v.szoveg(24);
        for (int e = v.ritkan(3) ? v.szam(1, 20) : 0; e > 0; --e) f.esemenyek.push_back(v.rekord(true));
        if (ronthat && v.ritkan(3)) v.ront(f.keplet);
        if (ronthat && !f.esemenyek.empty() && v.ritkan(3)) v.ront(f.esemenyek[0]);
        fajlok.push_back(f);
    }
    return fajlok;
}

/// Reports by the chart that they name; the text behind its name.
using TJelentesekNev = std::map<std::string, std::vector<std::string>>;

TJelentesekNev szetvalogat(const TJelento& jelento) {
    std::ostringstream ki;
    jelento.kiir(ki);
    std::istringstream sorok(ki.str());
    TJelentesekNev jelentesek;
    for (std::string sor; std::getline(sorok, sor);) {
        if (sor.find(": eltérés: ") != sor.npos) continue;
        const std::size_t hely = sor.find("„K1");
        EXPECT_NE(hely, sor.npos) << sor;
        if (hely == sor.npos) continue;
        jelentesek[sor.substr(hely + 3, 6)].push_back(sor.substr(sor.find("”", hely) + 3));
    }
    return jelentesek;
}

TParancs parancs(const fs::path& be, const fs::path& ki, TFormatum beF, TFormatum kiF) {
    TParancs p;
    p.be = be;
    p.ki = ki;
    p.beFormatum = beF;
    p.kiFormatum = kiF;
    p.soronkent = ki.extension() == ".jsonl";
    return p;
}

/// The chart that came back, by its name's key.
std::map<std::string, std::string> visszajottek(const fs::path& mappa) {
    std::map<std::string, std::string> ki;
    if (!fs::exists(mappa)) return ki;
    for (const auto& elem : fs::directory_iterator(mappa))
        ki[elem.path().filename().string().substr(0, 6)] = olvasd(elem.path());
    return ki;
}

/// Names of the fields in which two records of a chart file differ, as reports call them.
std::vector<std::string> kulonbsegek(const TFajl& f, const std::string& vissza) {
    std::vector<std::string> nevek;
    const auto rekord = [&](std::size_t hanyadik) {
        TKvhBajtok b{};
        std::copy_n(vissza.begin() + static_cast<std::ptrdiff_t>(hanyadik * kvhRekordHossz), kvhRekordHossz,
                    b.begin());
        return KvhDekodolas(b);
    };
    const auto osszevet = [&](const TKvhRekord& a, const TKvhRekord& b, int esemeny) {
        for (const TMezoLeiras& leiras : adatMezok) {
            const bool azonos = leiras.szoveg ? a.*leiras.szoveg == b.*leiras.szoveg
                                              : MezoSzam(a, leiras) == MezoSzam(b, leiras);
            if (azonos) continue;
            nevek.push_back(esemeny == 0 ? std::string(leiras.nev) + ":"
                                         : std::to_string(esemeny) +
                                               ". esemény: " + std::string(leiras.esemenyNev) + ":");
        }
    };
    osszevet(f.keplet, rekord(0), 0);
    const std::size_t db = vissza.size() / kvhRekordHossz - 1;
    for (std::size_t i = 0; i < std::min(db, f.esemenyek.size()); ++i)
        osszevet(f.esemenyek[i], rekord(i + 1), static_cast<int>(i + 1));
    return nevek;
}

struct TSzamok {
    int azonos = 0, jelentett = 0, kimaradt = 0;
};

bool kezdodikValamelyik(const std::vector<std::string>& szovegek, const std::string& mivel) {
    return std::any_of(szovegek.begin(), szovegek.end(),
                       [&](const std::string& sz) { return sz.find(mivel) != sz.npos; });
}

/// One way out and back, checked file by file.
TSzamok korut(const std::vector<TFajl>& fajlok, TFormatum formatum, const char* kozteNev,
              bool kodlap1250 = false) {
    const TIdeiglenesMappa mappa;
    for (std::size_t i = 0; i < fajlok.size(); ++i)
        irj(mappa / ("be/" + kulcs(static_cast<int>(i)) + ".kvh"), fajlok[i].bajtok());
    TJelento jelento;
    TParancs oda = parancs(mappa / "be", mappa / kozteNev, TFormatum::kvh, formatum);
    TParancs vissza = parancs(mappa / kozteNev, mappa / "ki", formatum, TFormatum::kvh);
    if (kodlap1250) oda.kiKodlap = vissza.beKodlap = TKodlap::cp1250;
    EXPECT_EQ(Atalakitas(oda, jelento).irt, fajlok.size());
    Atalakitas(vissza, jelento);
    const TJelentesekNev jelentesek = szetvalogat(jelento);
    const auto kesz = visszajottek(mappa / "ki");

    TSzamok szamok;
    for (std::size_t i = 0; i < fajlok.size(); ++i) {
        const std::string nev = kulcs(static_cast<int>(i));
        const auto sajat = jelentesek.count(nev) ? jelentesek.at(nev) : std::vector<std::string>{};
        if (!kesz.count(nev)) {
            ++szamok.kimaradt;
            EXPECT_TRUE(kezdodikValamelyik(sajat, "kimarad")) << nev;
            continue;
        }
        const std::string& bajtok = kesz.at(nev);
        if (bajtok == fajlok[i].bajtok()) {
            ++szamok.azonos;
            EXPECT_TRUE(sajat.empty()) << nev << ": " << sajat[0];
            continue;
        }
        ++szamok.jelentett;
        if (bajtok.size() != fajlok[i].bajtok().size()) {
            EXPECT_TRUE(kezdodikValamelyik(sajat, "kimarad")) << nev;
            continue;
        }
        const auto mezok = kulonbsegek(fajlok[i], bajtok);
        EXPECT_FALSE(mezok.empty()) << nev;
        for (const std::string& mezo : mezok)
            EXPECT_TRUE(kezdodikValamelyik(sajat, mezo)) << nev << " " << mezo;
        for (const std::string& jelentes : sajat)
            EXPECT_TRUE(std::any_of(
                mezok.begin(), mezok.end(),
                [&](const std::string& mezo) { return jelentes.find(mezo) != std::string::npos; }))
                << nev << ": " << jelentes;
    }
    return szamok;
}

/// Whether some coordinate of an event has seconds of arc, which neither JSON nor the program keeps.
bool ivmasodpercesEsemeny(const TFajl& f) {
    return std::any_of(f.esemenyek.begin(), f.esemenyek.end(),
                       [](const TKvhRekord& e) { return e.hosszusag % 60 != 0 || e.szelesseg % 60 != 0; });
}

TEST(OdaVissza, CsvEsJsonUtjanMindenSzabalyosKepletBajtrolBajtra) {
    TVeletlen v(1);
    const auto fajlok = veletlenFajlok(400, false, v);
    const auto ivmp = static_cast<int>(std::count_if(fajlok.begin(), fajlok.end(), ivmasodpercesEsemeny));
    ASSERT_GT(ivmp, 0);
    for (const auto& [formatum, nev] :
         {std::pair{TFormatum::csv, "koztes.csv"}, std::pair{TFormatum::json, "koztes.json"},
          std::pair{TFormatum::json, "koztes.jsonl"}}) {
        const TSzamok sz = korut(fajlok, formatum, nev);
        EXPECT_EQ(sz.azonos, 400 - ivmp) << nev;
        EXPECT_EQ(sz.jelentett, ivmp) << nev;
        EXPECT_EQ(sz.kimaradt, 0) << nev;
    }
}

TEST(OdaVissza, AafUtjanMindenElteresJelentve) {
    TVeletlen v(2);
    const auto fajlok = veletlenFajlok(400, false, v);
    const auto savonKivul = static_cast<int>(std::count_if(fajlok.begin(), fajlok.end(), [](const TFajl& f) {
        return f.keplet.szelesseg < 42 * 3600 || f.keplet.szelesseg > 60 * 3600;
    }));
    for (const bool kodlap1250 : {false, true}) {
        const TSzamok sz = korut(fajlok, TFormatum::aaf, "koztes.aaf", kodlap1250);
        EXPECT_EQ(sz.kimaradt, savonKivul);  // no houses there
        EXPECT_GT(sz.jelentett, 0);
    }
}

TEST(OdaVissza, AafUtjanAzEgyszeruSzoveguKepletekBajtrolBajtra) {
    TVeletlen v(3);
    auto fajlok = veletlenFajlok(200, false, v);
    const auto egyszeru = [](std::string szoveg, bool sorok) {
        std::string ki;
        for (const char c : szoveg)
            if (std::string_view(",\"*#\r\t:;").find(c) == std::string_view::npos && (sorok || c != '\n'))
                ki += c == ' ' && (ki.empty() || ki.back() == ' ' || ki.back() == '\n') ? 'x' : c;
        std::string vegTisztitva;
        for (std::size_t i = 0; i < ki.size(); ++i)
            vegTisztitva += ki[i] == ' ' && (i + 1 == ki.size() || ki[i + 1] == '\n') ? 'x' : ki[i];
        return vegTisztitva;
    };
    for (TFajl& f : fajlok) {
        f.keplet.szelesseg = 47 * 3600 + 11;
        f.keplet.hosszusag = 19 * 3600 - 7;
        for (std::size_t i = 0; i <= f.esemenyek.size(); ++i) {
            TKvhRekord& r = i == 0 ? f.keplet : f.esemenyek[i - 1];
            for (auto mezo : {&TKvhRekord::nev, &TKvhRekord::helyseg, &TKvhRekord::hang})
                r.*mezo = egyszeru(r.*mezo, false);
            r.jegyzet = egyszeru(r.jegyzet, i == 0);
            if (i > 0) r.hosszusag = r.hosszusag / 60 * 60, r.szelesseg = r.szelesseg / 60 * 60;
        }
    }
    const TSzamok sz = korut(fajlok, TFormatum::aaf, "koztes.aaf");
    EXPECT_EQ(sz.azonos, 200);
}

TEST(OdaVissza, ARongaltSzamokIsJelentve) {
    TVeletlen v(4);
    const auto fajlok = veletlenFajlok(300, true, v);
    for (const auto& [formatum, nev] :
         {std::pair{TFormatum::csv, "koztes.csv"}, std::pair{TFormatum::json, "koztes.json"},
          std::pair{TFormatum::aaf, "koztes.aaf"}}) {
        const TSzamok sz = korut(fajlok, formatum, nev);
        EXPECT_GT(sz.azonos, 0) << nev;
        EXPECT_GT(sz.kimaradt, 0) << nev;
    }
}

}  // namespace
