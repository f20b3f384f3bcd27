// The rules of the password, without a prompt.

#include <gtest/gtest.h>

#include "commands/jelszo.h"

namespace {

TEST(Jelszo, ASemmiEsAzEgySzokozNemJelszo) {
    EXPECT_TRUE(NincsJelszo(""));
    EXPECT_TRUE(NincsJelszo(" "));
    EXPECT_FALSE(NincsJelszo("  "));
    EXPECT_FALSE(NincsJelszo("a"));
    EXPECT_FALSE(NincsJelszo(" a"));
}

TEST(Jelszo, AzEgyezoSzovegUtanRendben) {
    Allapot a;
    a.JelszoRendben = false;
    EXPECT_EQ(JelszoValtozas(a, false), JelszoValasz::tovabb);
    EXPECT_FALSE(a.JelszoRendben);
    EXPECT_EQ(JelszoValtozas(a, true), JelszoValasz::jo);
    EXPECT_TRUE(a.JelszoRendben);
    EXPECT_EQ(a.JelszoProba, 2);
}

TEST(Jelszo, AHarmincadikValtozasAJoJelszovalIsVege) {
    Allapot a;
    a.JelszoRendben = false;
    for (int i = 1; i <= 29; ++i) EXPECT_EQ(JelszoValtozas(a, false), JelszoValasz::tovabb) << i;
    EXPECT_EQ(JelszoValtozas(a, true), JelszoValasz::vege);
    EXPECT_FALSE(a.JelszoRendben);
}

}  // namespace
