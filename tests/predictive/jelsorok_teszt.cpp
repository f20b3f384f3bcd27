// Lines of a text of symbol letters.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "predictive/jelsorok.h"

namespace {

using TSorok = std::vector<std::string_view>;

int betuk(std::string_view resz) {
    return static_cast<int>(resz.size());
}

TEST(JelSorok, AzElvalasztoUtanTor) {
    EXPECT_EQ(JelSorok("aAMbBQcCMdDQeEMfF", 12, betuk), (TSorok{"aAMbBQcCMdDQ", "eEMfF"}));
    EXPECT_EQ(JelSorok("aAMbBQcCMdDQeEMfF", 11, betuk), (TSorok{"aAMbBQ", "cCMdDQeEMfF"}));
    EXPECT_EQ(JelSorok("aAMbBQcCMdDQeEMfF", 10, betuk), (TSorok{"aAMbBQ", "cCMdDQ", "eEMfF"}));
}

TEST(JelSorok, AParElottiKozUtanTor) {
    EXPECT_EQ(JelSorok(" AMA AMB BMB", 9, betuk), (TSorok{" AMA AMB ", "BMB"}));
    EXPECT_EQ(JelSorok(" AMA AMB BMB", 8, betuk), (TSorok{" AMA ", "AMB BMB"}));
}

TEST(JelSorok, AmiBeleferEgySor) {
    EXPECT_EQ(JelSorok("aAMbBQcCMdD", 11, betuk), (TSorok{"aAMbBQcCMdD"}));
    EXPECT_EQ(JelSorok("", 11, betuk), TSorok{});
}

TEST(JelSorok, AHosszuTalalatBarholTorik) {
    EXPECT_EQ(JelSorok("aAMbBMcCMdD", 4, betuk), (TSorok{"aAMb", "BMcC", "MdD"}));
    EXPECT_EQ(JelSorok("aAMbBQcC", 3, betuk), (TSorok{"aAM", "bBQ", "cC"}));
    // The blank at the very start gives no line of its own.
    EXPECT_EQ(JelSorok(" AMB", 3, betuk), (TSorok{" AM", "B"}));
    // Wider than the line, yet shown.
    EXPECT_EQ(JelSorok("AB", 0, betuk), (TSorok{"A", "B"}));
}

TEST(JelSorok, AMeroSzelessegeSzamit) {
    const auto szeles = [](std::string_view resz) {
        int szelesseg = 0;
        for (const char c : resz) szelesseg += c == 'M' ? 5 : 1;
        return szelesseg;
    };
    EXPECT_EQ(JelSorok("aAMbBQcCMdD", 11, szeles), (TSorok{"aAMbBQ", "cCMdD"}));
    EXPECT_EQ(JelSorok("aAMbBQcCMdD", 19, szeles), (TSorok{"aAMbBQcCMdD"}));
}

}  // namespace
