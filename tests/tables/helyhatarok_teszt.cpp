// Values of a place that lie outside the tables.

#include <cstdint>

#include <gtest/gtest.h>

#include "tables/helyhatarok.h"
#include "tables/telepulesek.h"

namespace {

constexpr std::int32_t fok = 3600;

bool kivul(std::int32_t idozona, std::int32_t nyariIdo, std::int32_t hosszusag, std::int32_t szelesseg) {
    return !HelyenKivul(idozona, nyariIdo, hosszusag, szelesseg).empty();
}

TEST(HelyenKivul, AHatarokMegBelulVannak) {
    EXPECT_FALSE(kivul(1, 0, 19 * fok, 47 * fok));
    EXPECT_FALSE(kivul(12, 1, 180 * fok, 60 * fok));
    EXPECT_FALSE(kivul(-12, 0, -180 * fok, 42 * fok));
}

TEST(HelyenKivul, EgyLepesselTulMarKivul) {
    EXPECT_TRUE(kivul(13, 0, 0, 47 * fok));
    EXPECT_TRUE(kivul(-13, 0, 0, 47 * fok));
    EXPECT_TRUE(kivul(1, 2, 0, 47 * fok));
    EXPECT_TRUE(kivul(1, -1, 0, 47 * fok));
    EXPECT_TRUE(kivul(1, 0, 180 * fok + 1, 47 * fok));
    EXPECT_TRUE(kivul(1, 0, -180 * fok - 1, 47 * fok));
    EXPECT_TRUE(kivul(1, 0, 0, 60 * fok + 1));
    EXPECT_TRUE(kivul(1, 0, 0, 42 * fok - 1));
    EXPECT_TRUE(kivul(1, 0, 0, -47 * fok));
}

TEST(HelyenKivul, AMondatMegnevezi) {
    EXPECT_EQ(HelyenKivul(1, 0, 0, 41 * fok), "A táblák határain kívül esik: szélesség (42 … 60 fok).");
    EXPECT_EQ(HelyenKivul(INT32_MAX, INT32_MIN, INT32_MIN, INT32_MAX),
              "A táblák határain kívül esik: hosszúság (-180 … 180 fok), szélesség (42 … 60 fok), időzóna "
              "(-12 … 12), nyári időszámítás (0 vagy 1).");
}

TEST(HelyenKivul, AHelysegnevtarMindenHelyeBelulVan) {
    for (const TTelepules& t : Telepulesek)
        EXPECT_FALSE(kivul(t.idozona, 0, t.hosszusag, t.szelesseg)) << t.nev;
}

}  // namespace
