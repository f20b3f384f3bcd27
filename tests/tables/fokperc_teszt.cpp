#include <gtest/gtest.h>

#include "tables/fokperc.h"

namespace {

TEST(FokPerc, AzIvpercAzElojelesFokhozHozzaadodik) {
    EXPECT_EQ(ivmasodpercre(-19, 4), -68160);
    EXPECT_EQ(ivmasodpercre(19, 4), 68640);
    EXPECT_EQ(fokPercre(-68160).fok, -18);
    EXPECT_EQ(fokPercre(-68160).perc, -56);
}

}  // namespace
