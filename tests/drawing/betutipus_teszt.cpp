// Choice of the symbol font.

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "drawing/betutipus.h"

namespace {

using TFajlok = std::vector<std::string>;

TFajlVan van(TFajlok fajlok) {
    return [fajlok = std::move(fajlok)](const std::string& f) {
        return std::find(fajlok.begin(), fajlok.end(), f) != fajlok.end();
    };
}

TEST(SzimbolumFont, ARendszerMeghajtoMindkettotKeri) {
    EXPECT_EQ(RendszerMeghajtoKeres(van({})), 'C');
    EXPECT_EQ(RendszerMeghajtoKeres(van({"D:\\WINDOWS\\Fonts\\times.ttf", "F:\\WINDOWS\\Fonts\\times.ttf",
                                         "F:\\WINDOWS\\Fonts\\arial.ttf"})),
              'F');
    EXPECT_EQ(RendszerMeghajtoKeres(van({"D:\\WINDOWS\\Fonts\\times.ttf", "E:\\WINDOWS\\Fonts\\arial.ttf"})),
              'C');
    EXPECT_EQ(RendszerMeghajtoKeres(van({"H:\\WINDOWS\\Fonts\\times.ttf", "H:\\WINDOWS\\Fonts\\arial.ttf"})),
              'H');
    EXPECT_EQ(RendszerMeghajtoKeres(van({"I:\\WINDOWS\\Fonts\\times.ttf", "I:\\WINDOWS\\Fonts\\arial.ttf"})),
              'C');
}

TEST(SzimbolumFont, AzAstroSymbolsHaMegvanMaskulonbenAPot) {
    EXPECT_EQ(SzimbolumFontValaszt({"/a/", "/b/"}, van({"/b/Astro Symbols.ttf"})), "Astro Symbols");
    EXPECT_EQ(SzimbolumFontValaszt({"/a/", "/b/"}, van({"/c/Astro Symbols.ttf"})), "AstroMidget Bold");
}

}  // namespace
