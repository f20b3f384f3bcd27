#include <gtest/gtest.h>

#include "drawing/oldalpanel.h"
#include "rajzteszt.h"

namespace {

TEST(OldalPanel, AHelyzetLevagvaPadlasNelkul) {
    EXPECT_EQ(helyzetSzoveg(42 + 5 / 60.0 + 9.8 / 3600), "12°5'9''");
    EXPECT_EQ(helyzetSzoveg(0), "0°0'0''");
    EXPECT_EQ(helyzetSzoveg(359.99999), "29°59'59''");
}

TEST(OldalPanel, TizBolygoEsHatCsucs) {
    Allapot a = probaKeplet(100);
    rajz(a, 3);
    EXPECT_EQ(a.Rajz.panel[0].jel, "a");
    EXPECT_EQ(a.Rajz.panel[0].szoveg, "3°0'0''");
    EXPECT_EQ(a.Rajz.panel[9].jel, "k");                      // 327
    const char* csucsJegyek[]{"d", "e", "f", "a", "b", "c"};  // 100, 130, 160, 10, 40, 70
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(a.Rajz.panel[10 + i].jel, csucsJegyek[i]);
    a.Keplet.hazCsucs[1] = 360.2;
    rajz(a, 1);
    EXPECT_EQ(a.Rajz.panel[10].jel, "");  // no thirteenth sign
}

}  // namespace
