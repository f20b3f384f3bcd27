// The command line.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "adatteszt.h"
#include "parancs.h"

namespace {

using TSzavak = std::vector<std::string>;

class Parancs : public testing::Test {
protected:
    Parancs() {
        irj(mappa / "a.kvh", "x");
        irj(mappa / "a.aaf", "x");
        irj(mappa / "a.CSV", "x");
        irj(mappa / "a.json", "x");
        irj(mappa / "a.jsonl", "x");
        irj(mappa / "a.txt", "x");
    }
    std::string ut(const std::string& nev) const { return mappa.ut().string() + "/" + nev; }
    std::string hibaja(const TSzavak& szavak) const {
        try {
            ParancsErtelmezes(szavak);
        } catch (const THasznalatHiba& hiba) {
            return hiba.what();
        }
        return "";
    }

    TIdeiglenesMappa mappa;
};

TEST_F(Parancs, AFormatumAVegzodesbol) {
    struct TEset {
        const char* nev;
        TFormatum formatum;
    };
    for (const TEset& e : {TEset{"", TFormatum::kvh}, TEset{"a.kvh", TFormatum::kvh},
                           TEset{"a.aaf", TFormatum::aaf}, TEset{"a.CSV", TFormatum::csv},
                           TEset{"a.json", TFormatum::json}, TEset{"a.jsonl", TFormatum::json}})
        EXPECT_EQ(ParancsErtelmezes({ut(e.nev), ut("uj.aaf")}).beFormatum, e.formatum) << e.nev;
    for (const TEset& e : {TEset{"uj", TFormatum::kvh}, TEset{"uj.mappa/", TFormatum::kvh},
                           TEset{"uj.AAF", TFormatum::aaf}, TEset{"uj.csv", TFormatum::csv},
                           TEset{"uj.json", TFormatum::json}, TEset{"uj.jsonl", TFormatum::json}})
        EXPECT_EQ(ParancsErtelmezes({ut("a.kvh"), ut(e.nev)}).kiFormatum, e.formatum) << e.nev;
    EXPECT_TRUE(ParancsErtelmezes({ut("a.kvh"), ut("uj.jsonl")}).soronkent);
    EXPECT_FALSE(ParancsErtelmezes({ut("a.kvh"), ut("uj.json")}).soronkent);
}

TEST_F(Parancs, AKapcsolokEsErtekeik) {
    const TParancs p = ParancsErtelmezes({"--be", "csv", ut("a.txt"), "--ki=aaf", ut("uj.txt"),
                                          "--be-kodlap=1250", "--ki-kodlap", "1250", "--felulir"});
    EXPECT_EQ(p.beFormatum, TFormatum::csv);
    EXPECT_EQ(p.kiFormatum, TFormatum::aaf);
    EXPECT_EQ(p.beKodlap, TKodlap::cp1250);
    EXPECT_EQ(p.kiKodlap, TKodlap::cp1250);
    EXPECT_TRUE(p.felulir);
    EXPECT_FALSE(p.excel);
    const TParancs alap = ParancsErtelmezes({ut("a.aaf"), ut("uj.csv"), "--excel"});
    EXPECT_TRUE(alap.excel);
    EXPECT_FALSE(alap.felulir);
    EXPECT_EQ(alap.beKodlap, std::nullopt);
    EXPECT_EQ(ParancsErtelmezes({ut("a.aaf"), ut("uj.csv"), "--be-kodlap", "1252"}).beKodlap,
              TKodlap::cp1252);
    EXPECT_EQ(ParancsErtelmezes({"--", ut("a.aaf"), ut("--uj.csv")}).kiFormatum, TFormatum::csv);
    EXPECT_TRUE(ParancsErtelmezes({"--help"}).sugo);
    EXPECT_TRUE(ParancsErtelmezes({"--version"}).verzio);
}

TEST_F(Parancs, AHibasHasznalat) {
    const std::string be = ut("a.kvh");
    const std::string ki = ut("uj.csv");
    struct TEset {
        TSzavak szavak;
        const char* oka;
    };
    const TEset esetek[]{
        {{}, "két név kell"},
        {{be}, "két név kell"},
        {{be, ki, ki}, "két név kell"},
        {{be, ""}, "a név nem lehet üres"},
        {{be, ki, "--nincs"}, "ismeretlen kapcsoló: --nincs"},
        {{be, ki, "-f"}, "ismeretlen kapcsoló: -f"},
        {{be, ki, "--ki"}, "--ki: érték kell utána"},
        {{be, ki, "--ki", "xml"}, "--ki: kvh, aaf, csv vagy json kell, nem „xml”"},
        {{be, ki, "--felulir=1"}, "--felulir: nincs értéke"},
        {{be, ki, "--be-kodlap", "437"}, "--be-kodlap: 1250 vagy 1252 kell"},
        {{be, ut("uj.aaf"), "--ki-kodlap", "1252"}, "--ki-kodlap: 1250 kell"},
        {{be, ki, "--be-kodlap", "1250"}, "--be-kodlap: csak AAF és CSV olvasásakor"},
        {{be, ki, "--ki-kodlap", "1250"}, "--ki-kodlap: csak AAF írásakor"},
        {{be, ut("uj.aaf"), "--excel"}, "--excel: csak CSV írásakor"},
        {{ut("nincs.csv"), ki}, "nincs ilyen fájl vagy mappa"},
        {{ut("a.txt"), ki}, "--be kell hozzá"},
        {{be, ut("uj.txt")}, "--ki kell hozzá"},
        {{be, ut("uj.kvh")}, "csak mappába"},
        {{ut("a.aaf"), be, "--ki", "kvh"}, "csak mappába"},
        {{be, ut(""), "--ki", "csv"}, "ez mappa"},
        {{ut(""), ki, "--be", "csv"}, "ez mappa"},
        {{ut("a.json"), ut("a.jsonl")}, "már létezik, --felulir írja felül"},
        {{ut("a.json"), ut("a.json"), "--felulir"}, "a forrás és a cél ugyanaz"},
        {{ut(""), ut("."), "--felulir"}, "a forrás és a cél ugyanaz"},
    };
    for (const TEset& e : esetek) {
        std::string sor;
        for (const std::string& szo : e.szavak) sor += szo + " ";
        EXPECT_NE(hibaja(e.szavak).find(e.oka), std::string::npos) << sor << "-> " << hibaja(e.szavak);
    }
    EXPECT_EQ(hibaja({ut("a.json"), ut("a.jsonl"), "--felulir"}), "");
}

TEST_F(Parancs, ASugoMindenKapcsolotEmlit) {
    for (const char* kapcsolo : {"--be ", "--ki ", "--be-kodlap", "--ki-kodlap", "--excel", "--felulir",
                                 "--help", "--version", "MIBŐL MIBE", ".jsonl"})
        EXPECT_NE(SugoSzoveg().find(kapcsolo), std::string_view::npos) << kapcsolo;
}

}  // namespace
