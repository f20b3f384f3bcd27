#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "events/analogia.h"

namespace {

std::string analogia(const char* szoveg) {
    return AnalogiaElemzes(szoveg).szoveg;
}

TEST(Analogia, AMintaszoveg) {
    EXPECT_EQ(analogia("ix, 4,iv 12"), "I,IV,X,12");
    EXPECT_EQ(AnalogiaElemzes("ix, 4,iv 12").szamok, (std::vector<int>{1, 4, 10, 12}));
}

TEST(Analogia, AZaroEgyesNemSzamit) {
    EXPECT_EQ(analogia("3,1"), "3");
    EXPECT_EQ(analogia("12, 1"), "12");
    EXPECT_EQ(analogia("1,12"), "I,12");
    EXPECT_EQ(analogia("3,1,"), "I,3");
    EXPECT_EQ(analogia("1"), "");
}

TEST(Analogia, AzEgyesUtanNullaEgyKetto) {
    EXPECT_EQ(analogia("10"), "X");
    EXPECT_EQ(analogia("11"), "11");
    EXPECT_EQ(analogia("12"), "12");
    EXPECT_EQ(analogia("13"), "I,3");
    EXPECT_EQ(analogia("1 0"), "I");
    EXPECT_EQ(analogia("0"), "");
    EXPECT_EQ(analogia("110"), "11");  // 11 and a lone 0
}

TEST(Analogia, ARomaiAlakok) {
    EXPECT_EQ(analogia("I IV VII X"), "I,IV,VII,X");
    EXPECT_EQ(analogia("vii"), "VII");
    EXPECT_EQ(analogia("V"), "");
    EXPECT_EQ(analogia("VI"), "");
    EXPECT_EQ(analogia("VI3"), "3");
    EXPECT_EQ(analogia("V3"), "3");
    EXPECT_EQ(analogia("IX"), "I,X");
    EXPECT_EQ(analogia("XI"), "I,X");
    EXPECT_EQ(analogia("II"), "I");
    EXPECT_EQ(analogia("IVII"), "I,IV");  // the V is gone with its I
}

TEST(Analogia, SzamEsBetuElvalasztoNelkul) {
    EXPECT_EQ(analogia("3X"), "3,X");
    EXPECT_EQ(analogia("9IV"), "IV,9");
    EXPECT_EQ(analogia("2VII"), "2,VII");
    EXPECT_EQ(analogia("X3"), "3,X");
    EXPECT_EQ(analogia("1X"), "I,X");
}

TEST(Analogia, IsmetlesRendezesEsSzemet) {
    EXPECT_EQ(analogia("9 2 9 5"), "2,5,9");
    EXPECT_EQ(analogia(",,;; 5 --- 2"), "2,5");
    EXPECT_EQ(analogia("őű"), "");
    EXPECT_EQ(analogia(""), "");
    EXPECT_EQ(analogia("2222222222222222222222222222222222222229"), "2");  // thirty numbers are kept
    EXPECT_EQ(analogia((std::string(29, '2') + "9").c_str()), "2,9");
    EXPECT_EQ(analogia((std::string(30, '2') + "9").c_str()), "2");
}

}  // namespace
