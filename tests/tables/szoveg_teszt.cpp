#include <string>

#include <gtest/gtest.h>

#include "tables/szoveg.h"

namespace {

TEST(Szoveg, KarakterenkentSzamolVagEsGordit) {
    EXPECT_EQ(karakterSzam("őrség"), 5);
    EXPECT_EQ(elsoKarakterek("őrség", 2), "őr");
    EXPECT_EQ(elsoKarakterek("ő", 20), "ő");
    std::string s = "őab";
    gordit(s);
    EXPECT_EQ(s, "abő");
    s.clear();
    gordit(s);
    EXPECT_EQ(s, "");
    EXPECT_EQ(ketJegy(9), "09");
    EXPECT_EQ(ketJegy(10), "10");
}

}  // namespace
