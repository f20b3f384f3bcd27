// The record of a chart file.

#include <string>

#include <gtest/gtest.h>

#include "files/kvhrekord.h"

namespace {

TEST(KvhRekord, AMezokHelyei) {
    TKvhRekord r;
    r.nev = "ő";
    r.pillanat = {1975, 3, 21, 6, 4, 9};
    r.idozona = -1;
    r.nyariIdo = 1;
    r.helyseg = "Pécs";
    r.hosszusag = 0x01020304;
    r.szelesseg = -2;
    r.jegyzet = "j";
    r.esemenySzam = 7;
    r.hang = "H";
    const TKvhBajtok b = KvhKodolas(r);
    EXPECT_EQ(b[0], 1);
    EXPECT_EQ(b[1], 0xF5);
    EXPECT_EQ(b[36] + 256 * b[37], 1975);
    EXPECT_EQ(b[40], 3);
    EXPECT_EQ(b[44], 21);
    EXPECT_EQ(b[48], 6);
    EXPECT_EQ(b[52], 4);
    EXPECT_EQ(b[56], 9);
    EXPECT_EQ(b[60], 0xFF);
    EXPECT_EQ(b[63], 0xFF);
    EXPECT_EQ(b[64], 1);
    EXPECT_EQ(b[68], 4);
    EXPECT_EQ(b[70], 0xE9);
    EXPECT_EQ(b[104], 4);
    EXPECT_EQ(b[107], 1);
    EXPECT_EQ(b[108], 0xFE);
    EXPECT_EQ(b[112], 1);
    EXPECT_EQ(b[113], 'j');
    EXPECT_EQ(b[368], 7);
    EXPECT_EQ(b[372], 1);
    EXPECT_EQ(b[373], 'H');
    EXPECT_EQ(KvhDekodolas(b), r);
}

TEST(KvhRekord, ATulHosszuSzovegLevagva) {
    TKvhRekord r;
    r.nev = std::string(31, 'x') + "őy";
    r.helyseg = std::string(33, 'h');
    r.jegyzet = std::string(300, 'j');
    r.hang = std::string(300, 'H');
    const TKvhRekord vissza = KvhDekodolas(KvhKodolas(r));
    EXPECT_EQ(vissza.helyseg, std::string(32, 'h'));
    EXPECT_EQ(vissza.hang, std::string(255, 'H'));
    EXPECT_EQ(vissza.pillanat, r.pillanat);  // no field runs into the next
    EXPECT_EQ(vissza.hosszusag, r.hosszusag);
    EXPECT_EQ(vissza.esemenySzam, r.esemenySzam);
    EXPECT_EQ(vissza.nev, std::string(31, 'x') + "ő");  // 32 characters of the code page
    EXPECT_EQ(vissza.jegyzet, std::string(255, 'j'));
}

TEST(KvhRekord, ATulNagyHosszbajtAMezoMerete) {
    TKvhBajtok b{};
    b.fill('z');
    const TKvhRekord r = KvhDekodolas(b);
    EXPECT_EQ(r.nev, std::string(32, 'z'));
    EXPECT_EQ(r.helyseg, std::string(32, 'z'));
    EXPECT_EQ(r.jegyzet.size(), static_cast<std::size_t>('z'));
    b.fill(255);
    EXPECT_EQ(KvhDekodolas(b).jegyzet.size() / 2, 255U);  // each byte 0xFF is a character of two bytes
}

}  // namespace
