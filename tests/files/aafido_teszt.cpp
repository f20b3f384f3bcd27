// Date, clock, zone and Julian day of an AAF record put together.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "files/aafido.h"

namespace {

/// A record by its fields; "*" is unknown.
TAafIdopont idopont(std::string_view datum, std::string_view ido, std::string_view julian,
                    std::string_view zona, std::string_view nyari) {
    TAafIdopont i;
    if (!AafIsmeretlen(datum)) i.datum = AafDatum(datum);
    if (!AafIsmeretlen(ido)) i.ido = AafIdo(ido);
    if (!AafIsmeretlen(julian)) i.julian = AafJulian(julian);
    if (!AafIsmeretlen(zona)) i.zona = AafZona(zona);
    if (!AafIsmeretlen(nyari)) i.nyariIdo = AafNyariIdo(nyari);
    return i;
}

using TSzovegek = std::vector<std::string>;

struct TEredmeny {
    std::optional<TAafPillanat> p;
    TSzovegek kozlesek;
    std::string hiba;

    bool kozol(std::string_view mit) const {
        for (const std::string& k : kozlesek)
            if (k.find(mit) != k.npos) return true;
        return false;
    }
};

TEredmeny megold(const TAafIdopont& i) {
    TEredmeny e;
    e.p = AafPillanat(i, e.kozlesek, e.hiba);
    return e;
}

TEST(AafIdo, ADatumEsAzOraidoUgyJonAhogyAll) {
    const auto e = megold(idopont("27.9.1970", "11:04", "*", "1he", "0"));
    ASSERT_TRUE(e.p);
    EXPECT_EQ(e.p->pillanat, (TPillanat{1970, 9, 27, 11, 4, 0}));
    EXPECT_EQ(e.p->idozona, 1);
    EXPECT_EQ(e.p->nyariIdo, 0);
    EXPECT_TRUE(e.kozlesek.empty());
}

// 1975-07-21 06:04:09 CET is 05:04:09 UT: past noon of the 20th by 61449 s, 0.711215 of a day.
TEST(AafIdo, AzEgyezoJulianNapNemValtoztatSemmit) {
    const auto e = megold(idopont("21.7.1975", "6:04:09", "2442614.711215", "1he00", "0"));
    ASSERT_TRUE(e.p);
    EXPECT_EQ(e.p->pillanat, (TPillanat{1975, 7, 21, 6, 4, 9}));
    EXPECT_TRUE(e.kozlesek.empty());
}

TEST(AafIdo, EltereskorAJulianNapGyozEsSzolunk) {
    // Of the Julian day's 0.10500 past noon 14:31:12 UT.
    const auto e = megold(idopont("27.7.1968", "15:31:00", "2440065.10500", "1hE00:00", "*"));
    ASSERT_TRUE(e.p);
    EXPECT_EQ(e.p->pillanat, (TPillanat{1968, 7, 27, 15, 31, 12}));
    EXPECT_EQ(e.p->nyariIdo, 0);
    EXPECT_EQ(
        e.kozlesek,
        (TSzovegek{"nyariIdo: ismeretlen, az óraidőből és a Julián-napból 0",
                   "ido: a Julián-nap és az óraidő eltér, a Julián-nap szerint 1968. 07. 27. 15:31:12, a "
                   "dátum és az óraidő szerint 1968. 07. 27. 15:31:00"}));
}

TEST(AafIdo, EgyMasodpercIsElteres) {
    const auto e = megold(idopont("21.7.1975", "6:04:10", "2442614.711215", "1he00", "0"));
    EXPECT_EQ(e.p->pillanat.mperc, 9);
    EXPECT_TRUE(e.kozol("eltér"));
}

TEST(AafIdo, ARovidJulianNapCsakASajatJegyeigMondEllent) {
    // 0.71 of a day is 5:02:24; the last digit is worth 864 s.
    EXPECT_TRUE(megold(idopont("21.7.1975", "6:04:09", "2442614.71", "1he00", "0")).kozlesek.empty());
    const auto tavoli = megold(idopont("21.7.1975", "6:24:09", "2442614.71", "1he00", "0"));
    EXPECT_EQ(tavoli.p->pillanat, (TPillanat{1975, 7, 21, 6, 2, 24}));
    EXPECT_EQ(
        tavoli.kozlesek,
        TSzovegek{"ido: a Julián-nap és az óraidő eltér, a Julián-nap szerint 1975. 07. 21. 6:02:24, a dátum "
                  "és az óraidő szerint 1975. 07. 21. 6:24:09"});
}

TEST(AafIdo, AJulianNapADatumotIsAtviszi) {
    const auto e =
        megold(idopont("21.7.1975", "0:10", "2442614.458333", "1he00", "0"));  // 23:00 UT of the 20th
    EXPECT_EQ(e.p->pillanat, (TPillanat{1975, 7, 21, 0, 0, 0}));
    const auto elozo = megold(idopont("21.7.1975", "0:10", "2442614.416667", "1he00", "0"));  // 22:00 UT
    EXPECT_EQ(elozo.p->pillanat, (TPillanat{1975, 7, 20, 23, 0, 0}));
}

// Without a clock the zone is the meridian's, here Greenwich.
TEST(AafIdo, AzIsmeretlenZonaAHosszusagSzerintNullaIs) {
    TAafIdopont i = idopont("*", "*", "2442614.711215", "*", "*");
    i.hosszusag = 0;
    const auto e = megold(i);
    ASSERT_TRUE(e.p);
    EXPECT_EQ(e.p->idozona, 0);
    EXPECT_EQ(e.kozlesek,
              (TSzovegek{"idozona: ismeretlen, a hosszúság szerint +0 óra", "nyariIdo: ismeretlen, 0"}));
}

// Summer time is 0, 1 or 2 hours: a clock that is further ahead is wrong. A chart knows one hour; the second
// goes to its zone.
TEST(AafIdo, AzOrabolLegfeljebbKetOraNyariIdo) {
    const auto ketto = megold(idopont("21.7.1975", "8:04:09", "2442614.711215", "1he00", "*"));
    ASSERT_TRUE(ketto.p);
    EXPECT_EQ(ketto.p->nyariIdo, 1);
    EXPECT_EQ(ketto.p->idozona, 2);
    EXPECT_EQ(ketto.p->pillanat, (TPillanat{1975, 7, 21, 8, 4, 9}));
    const auto harom = megold(idopont("21.7.1975", "9:04:09", "2442614.711215", "1he00", "*"));
    ASSERT_TRUE(harom.p);
    EXPECT_EQ(harom.p->nyariIdo, 0);
    EXPECT_EQ(harom.p->pillanat, (TPillanat{1975, 7, 21, 6, 4, 9}));
    EXPECT_TRUE(harom.kozol("eltér"));
}

TEST(AafIdo, AzOrabolNegativNyariIdoSincs) {
    // The clock of 5:04:09 would be an hour behind its own zone.
    const auto e = megold(idopont("21.7.1975", "5:04:09", "2442614.711215", "1he00", "*"));
    ASSERT_TRUE(e.p);
    EXPECT_EQ(e.p->nyariIdo, 0);
    EXPECT_EQ(e.p->pillanat, (TPillanat{1975, 7, 21, 6, 4, 9}));
    EXPECT_TRUE(e.kozol("eltér"));
}

TEST(AafIdo, JulianNapbolOraidoNelkul) {
    for (const auto& i : {idopont("*", "*", "2442614.711215", "1he00", "1"),
                          idopont("21.7.1975", "*", "2442614.711215", "1he00", "1"),
                          idopont("*", "6:00", "2442614.711215", "1he00", "1")}) {
        const auto e = megold(i);
        ASSERT_TRUE(e.p);
        EXPECT_EQ(e.p->pillanat, (TPillanat{1975, 7, 21, 7, 4, 9}));
        EXPECT_EQ(e.p->nyariIdo, 1);
    }
}

TEST(AafIdo, JulianNapbolZonaNelkulAHosszusagSzerint) {
    TAafIdopont i = idopont("*", "*", "2442614.711215", "*", "0");
    i.hosszusag = -74 * 3600;  // -4 h 56 m
    const auto e = megold(i);
    ASSERT_TRUE(e.p);
    EXPECT_EQ(e.p->idozona, -5);
    EXPECT_EQ(e.p->pillanat, (TPillanat{1975, 7, 21, 0, 4, 9}));
    EXPECT_EQ(e.kozlesek, TSzovegek{"idozona: ismeretlen, a hosszúság szerint -5 óra"});
}

// In 2000 summer time ends on October 29 at 3:00 of its own clock, 1:00 UT.
TEST(AafIdo, JulianNapbolANyariIdoVegeANyariOraSzerint) {
    TAafIdopont nyari = idopont("*", "*", "2451846.53125", "1he00", "*");  // 0:45 UT
    nyari.hazai = true;
    const auto elotte = megold(nyari);
    ASSERT_TRUE(elotte.p);
    EXPECT_EQ(elotte.p->nyariIdo, 1);
    EXPECT_EQ(elotte.p->pillanat, (TPillanat{2000, 10, 29, 2, 45, 0}));
    TAafIdopont teli = idopont("*", "*", "2451846.5625", "1he00", "*");  // 1:30 UT
    teli.hazai = true;
    const auto utana = megold(teli);
    ASSERT_TRUE(utana.p);
    EXPECT_EQ(utana.p->nyariIdo, 0);
    EXPECT_EQ(utana.p->pillanat, (TPillanat{2000, 10, 29, 2, 30, 0}));
}

TEST(AafIdo, PillanatNelkulHiba) {
    EXPECT_EQ(megold(idopont("21.7.1975", "*", "*", "1he", "0")).hiba, "ido: ismeretlen");
    EXPECT_EQ(megold(idopont("*", "6:04", "*", "1he", "0")).hiba, "datum: ismeretlen");
    const auto e = megold(idopont("21.7.1975", "6:04", "*", "*", "0"));
    EXPECT_FALSE(e.p);
    EXPECT_EQ(e.hiba, "idozona: ismeretlen");
}

TEST(AafIdo, AHelyiKozepidoAHosszusagSzerintiZonaOraja) {
    TAafIdopont i = idopont("19.1.1939", "1:00", "*", "*", "L");
    i.hosszusag = 5 * 3600 + 27 * 60;  // 21 m 48 s
    const auto e = megold(i);
    ASSERT_TRUE(e.p);
    EXPECT_EQ(e.p->idozona, 0);
    EXPECT_EQ(e.p->pillanat, (TPillanat{1939, 1, 19, 0, 38, 12}));
    EXPECT_EQ(e.kozlesek, TSzovegek{"ido: helyi középidő, +0 óra zónaidőre átszámítva"});

    i.hosszusag = 23 * 3600;  // 1 h 32 m: nearer to the second zone, but the country has the first
    i.hazai = true;
    const auto hazai = megold(i);
    EXPECT_EQ(hazai.p->idozona, 1);
    EXPECT_EQ(hazai.p->pillanat, (TPillanat{1939, 1, 19, 0, 28, 0}));
    EXPECT_EQ(hazai.kozlesek, TSzovegek{"ido: helyi középidő, +1 óra zónaidőre átszámítva"});
}

TEST(AafIdo, AHelyiKozepidonIsAJulianNapGyoz) {
    // 1839-01-19 1:00 at 5e27 is 0:38:12 UT, JD 2392758.526528.
    TAafIdopont i = idopont("19.1.1839", "1:00", "2392758.526528", "*", "L");
    i.hosszusag = 5 * 3600 + 27 * 60;
    const auto egyezo = megold(i);
    EXPECT_EQ(egyezo.p->pillanat, (TPillanat{1839, 1, 19, 0, 38, 12}));
    EXPECT_FALSE(egyezo.kozol("eltér"));
    i.julian = AafJulian("2392758.5");
    EXPECT_EQ(megold(i).p->pillanat, (TPillanat{1839, 1, 19, 0, 38, 12}));  // one digit tells no more
    i.julian = AafJulian("2392758.50000");
    const auto mas = megold(i);
    EXPECT_EQ(mas.p->pillanat, (TPillanat{1839, 1, 19, 0, 0, 0}));
    EXPECT_TRUE(mas.kozol("eltér"));
}

TEST(AafIdo, APercesZonaEgeszOrasZonaraAtszamitva) {
    const auto india = megold(idopont("1.1.1980", "0:10", "*", "5he30", "0"));  // 18:40 UT of the day before
    EXPECT_EQ(india.p->idozona, 5);
    EXPECT_EQ(india.p->pillanat, (TPillanat{1979, 12, 31, 23, 40, 0}));
    EXPECT_EQ(india.kozlesek, TSzovegek{"idozona: +5:30:00 óra, az óraidő +5 óra zónára átszámítva"});
    const auto nyugat = megold(idopont("1.1.1980", "12:00", "*", "3hw30", "0"));  // 15:30 UT
    EXPECT_EQ(nyugat.p->idozona, -3);
    EXPECT_EQ(nyugat.p->pillanat, (TPillanat{1980, 1, 1, 12, 30, 0}));
    EXPECT_EQ(nyugat.kozlesek, TSzovegek{"idozona: -3:30:00 óra, az óraidő -3 óra zónára átszámítva"});
}

TEST(AafIdo, AKettosNyariIdoEgyZonavalKeletebb) {
    const auto e = megold(idopont("1.6.1945", "12:00", "*", "1he00", "2"));
    EXPECT_EQ(e.p->idozona, 2);
    EXPECT_EQ(e.p->nyariIdo, 1);
    EXPECT_EQ(e.p->pillanat, (TPillanat{1945, 6, 1, 12, 0, 0}));
    EXPECT_EQ(e.kozlesek, TSzovegek{"nyariIdo: 2, a képletben 1, az időzóna eggyel keletebbre"});
}

TEST(AafIdo, AzIsmeretlenNyariIdoAJulianNapbol) {
    const auto egy = megold(idopont("21.7.1975", "7:04:09", "2442614.711215", "1he00", "*"));
    EXPECT_EQ(egy.p->nyariIdo, 1);
    EXPECT_EQ(egy.p->pillanat, (TPillanat{1975, 7, 21, 7, 4, 9}));
    EXPECT_EQ(egy.kozlesek, TSzovegek{"nyariIdo: ismeretlen, az óraidőből és a Julián-napból 1"});
    const auto nulla = megold(idopont("21.7.1975", "6:04:09", "2442614.711215", "1he00", "*"));
    EXPECT_EQ(nulla.p->nyariIdo, 0);
    EXPECT_EQ(nulla.kozlesek, TSzovegek{"nyariIdo: ismeretlen, az óraidőből és a Julián-napból 0"});
}

TEST(AafIdo, AzIsmeretlenNyariIdoItthonATablabolMashol0) {
    TAafIdopont i = idopont("1.7.2000", "12:00", "*", "1he00", "*");
    const auto mashol = megold(i);
    EXPECT_EQ(mashol.p->nyariIdo, 0);
    EXPECT_EQ(mashol.kozlesek, TSzovegek{"nyariIdo: ismeretlen, 0"});
    i.hazai = true;
    EXPECT_EQ(megold(i).kozlesek, TSzovegek{"nyariIdo: ismeretlen, a nyári idő táblája szerint 1"});
    EXPECT_EQ(megold(i).p->nyariIdo, 1);
    EXPECT_EQ(megold(i).p->pillanat.ora, 12);
    i.datum = AafDatum("1.12.2000");
    EXPECT_EQ(megold(i).p->nyariIdo, 0);
    i.datum = AafDatum("1.7.1800");
    EXPECT_EQ(megold(i).p->nyariIdo, 0);
    i.datum = AafDatum("1.7.2078");  // the last year of charts
    EXPECT_EQ(megold(i).p->nyariIdo, 1);
    i.datum = AafDatum("1.7.2079");
    EXPECT_EQ(megold(i).p->nyariIdo, 0);
}

TEST(AafIdo, ItthonAzIsmeretlenZonaEgy) {
    TAafIdopont i = idopont("1.7.2000", "12:00", "*", "*", "*");
    i.hazai = true;
    const auto e = megold(i);
    EXPECT_EQ(e.p->idozona, 1);
    EXPECT_EQ(e.p->nyariIdo, 1);
    EXPECT_EQ(e.kozlesek, (TSzovegek{"idozona: ismeretlen, Magyarországon 1",
                                     "nyariIdo: ismeretlen, a nyári idő táblája szerint 1"}));
    i = idopont("*", "*", "2451726.916667", "*", "*");  // 2000-07-01 10:00 UT
    i.hazai = true;
    EXPECT_EQ(megold(i).p->pillanat, (TPillanat{2000, 7, 1, 12, 0, 0}));
}

TEST(AafIdo, AzIsmeretlenZonaAzOraidobolEsAJulianNapbol) {
    // 05:04:09 UT
    const auto newYork = megold(idopont("21.7.1975", "1:04:09", "2442614.711215", "*", "1"));
    EXPECT_EQ(newYork.p->idozona, -5);
    EXPECT_EQ(newYork.p->nyariIdo, 1);
    EXPECT_EQ(newYork.p->pillanat, (TPillanat{1975, 7, 21, 1, 4, 9}));
    EXPECT_EQ(newYork.kozlesek, TSzovegek{"idozona: ismeretlen, az óraidőből és a Julián-napból -5 óra"});
    const auto india = megold(idopont("21.7.1975", "10:34:09", "2442614.711215", "*", "0"));
    EXPECT_EQ(india.p->idozona, 5);
    EXPECT_EQ(india.p->pillanat, (TPillanat{1975, 7, 21, 10, 4, 9}));
    EXPECT_EQ(india.kozlesek, (TSzovegek{"idozona: ismeretlen, az óraidőből és a Julián-napból +5:30:00 óra",
                                         "idozona: +5:30:00 óra, az óraidő +5 óra zónára átszámítva"}));
}

/// Days before day number 0, which is 24 November of the year -4713.
TEST(AafIdo, ANapszamokKezdeteElottIsLefeleVisz) {
    const auto elozo = megold(idopont("1.1.-5000", "0:10", "*", "5he30", "0"));  // 18:40 UT of the day before
    ASSERT_TRUE(elozo.p);
    EXPECT_EQ(elozo.p->pillanat, (TPillanat{-5001, 12, 31, 23, 40, 0}));
    const auto ejfel = megold(idopont("1.1.-5000", "0:30", "*", "5he30", "0"));
    EXPECT_EQ(ejfel.p->pillanat, (TPillanat{-5000, 1, 1, 0, 0, 0}));
    const auto elotte = megold(idopont("1.1.-5000", "0:29:59", "*", "5he30", "0"));
    EXPECT_EQ(elotte.p->pillanat, (TPillanat{-5001, 12, 31, 23, 59, 59}));
}

TEST(AafIdo, ANemLetezoNapUgyMaradAhogyAll) {
    const auto e = megold(idopont("31.2.1999", "6:00", "*", "1he00", "0"));
    EXPECT_EQ(e.p->pillanat, (TPillanat{1999, 2, 31, 6, 0, 0}));
    // 3 March 5:00 UT, JD 2451240.708333
    EXPECT_EQ(megold(idopont("31.2.1999", "6:00", "2451240.708333", "1he00", "0")).p->pillanat,
              (TPillanat{1999, 2, 31, 6, 0, 0}));
}

}  // namespace
