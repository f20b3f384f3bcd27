#include <gtest/gtest.h>

#include "drawing/svgvaszon.h"

namespace {

/// A square of the text's length in place of letters, nothing for a blank; remembers what was asked.
struct TProbaKorvonal {
    std::string kert;
    TKorvonal operator()(std::string_view betu, int magassag, std::string_view szoveg) {
        kert = std::string(betu) + "/" + std::to_string(magassag) + "/" + std::string(szoveg);
        return {szoveg == " " ? "" : "M0 0L5 0L5 -5", 2.5 + static_cast<double>(szoveg.size()), 8.25};
    }
};

/// A canvas of 100 by 50 and what has been written on it since the white sheet.
struct TSvg {
    TProbaKorvonal korvonal;
    SvgVaszon vaszon{100, 50, "cím", std::ref(korvonal)};
    const std::string eleje = vaszon.svg();

    std::string ujSorok() const {
        const std::string vege = "</svg>\n";
        const std::string mind = vaszon.svg();
        const std::size_t hossz = eleje.size() - vege.size();
        return mind.substr(hossz, mind.size() - hossz - vege.size());
    }
    std::string vonal(int x1, int y1, int x2, int y2) {
        const std::size_t elobb = ujSorok().size();
        vaszon.MoveTo(x1, y1);
        vaszon.LineTo(x2, y2);
        return ujSorok().substr(elobb);
    }
};

}  // namespace

TEST(SvgVaszon, AzUresLapFeherEsCimeVan) {
    EXPECT_EQ(
        TSvg().eleje,
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"50\" viewBox=\"0 0 100 50\">\n"
        "<title>cím</title>\n"
        "<rect width=\"100\" height=\"50\" fill=\"#fff\"/>\n"
        "</svg>\n");
}

TEST(SvgVaszon, ACimJeleiNemBontjakMegALapot) {
    const SvgVaszon v(1, 1, "<Kiss & \x01Nagy>", TProbaKorvonal{});
    EXPECT_NE(v.svg().find("<title>&lt;Kiss &amp; Nagy&gt;</title>"), std::string::npos) << v.svg();
}

TEST(SvgVaszon, AKorFeherrelKitoltve) {
    TSvg s;
    s.vaszon.TollSzelesseg(3);
    s.vaszon.Ellipse(10, 20, 30, 30);
    EXPECT_EQ(s.ujSorok(),
              "<ellipse cx=\"20.5\" cy=\"25.5\" rx=\"10\" ry=\"5\" fill=\"#fff\" stroke=\"#000\" "
              "stroke-width=\"3\"/>\n");
}

TEST(SvgVaszon, AFerdeVonalAPixelekKozepetKotiOssze) {
    TSvg s;
    EXPECT_EQ(s.vonal(1, 2, 3, 5),
              "<line x1=\"1.5\" y1=\"2.5\" x2=\"3.5\" y2=\"5.5\" stroke=\"#000\" stroke-width=\"1\"/>\n");
    s.vaszon.TollSzelesseg(2);
    EXPECT_EQ(s.vonal(1, 2, 3, 5),
              "<line x1=\"1.5\" y1=\"2.5\" x2=\"3.5\" y2=\"5.5\" stroke=\"#000\" stroke-width=\"2\" "
              "stroke-linecap=\"round\"/>\n");
}

TEST(SvgVaszon, AzEgyenesVonalEgeszPixeleketFed) {
    TSvg s;
    // Row 7 whole, columns 2 to 5.
    EXPECT_EQ(s.vonal(2, 7, 5, 7),
              "<line x1=\"2\" y1=\"7.5\" x2=\"6\" y2=\"7.5\" stroke=\"#000\" stroke-width=\"1\"/>\n");
    EXPECT_EQ(s.vonal(5, 7, 2, 7),
              "<line x1=\"6\" y1=\"7.5\" x2=\"2\" y2=\"7.5\" stroke=\"#000\" stroke-width=\"1\"/>\n");
    s.vaszon.TollSzelesseg(2);  // columns 3 and 4, from row 0 to row 9
    EXPECT_EQ(s.vonal(4, 1, 4, 9),
              "<line x1=\"4\" y1=\"0\" x2=\"4\" y2=\"10\" stroke=\"#000\" stroke-width=\"2\"/>\n");
    s.vaszon.TollSzelesseg(3);
    EXPECT_EQ(s.vonal(4, 1, 4, 9),
              "<line x1=\"4.5\" y1=\"0\" x2=\"4.5\" y2=\"11\" stroke=\"#000\" stroke-width=\"3\"/>\n");
    s.vaszon.TollSzelesseg(8);
    EXPECT_EQ(s.vonal(4, 1, 4, 9),
              "<line x1=\"4\" y1=\"-3\" x2=\"4\" y2=\"13\" stroke=\"#000\" stroke-width=\"8\"/>\n");
    s.vaszon.TollSzelesseg(9);  // so wide that its round ends show
    EXPECT_NE(s.vonal(4, 1, 4, 9).find("y1=\"1.5\""), std::string::npos);
}

TEST(SvgVaszon, AzUtVegeAKovetkezoVonalKezdete) {
    TSvg s;
    s.vaszon.MoveTo(0, 0);
    s.vaszon.LineTo(1, 2);
    s.vaszon.LineTo(3, 5);
    EXPECT_NE(s.ujSorok().find("x1=\"1.5\" y1=\"2.5\" x2=\"3.5\" y2=\"5.5\""), std::string::npos);
}

TEST(SvgVaszon, AzUjVaszonHajszalvonalaASaroktolIndul) {
    TSvg s;
    s.vaszon.TextOut(1, 1, "betű nélkül nincs szöveg");
    EXPECT_EQ(s.ujSorok(), "");
    s.vaszon.LineTo(3, 5);
    EXPECT_EQ(s.ujSorok(),
              "<line x1=\"0.5\" y1=\"0.5\" x2=\"3.5\" y2=\"5.5\" stroke=\"#000\" stroke-width=\"1\"/>\n");
}

TEST(SvgVaszon, AStilusokAHajszalvonalakMintai) {
    const std::pair<TollStilus, const char*> mintak[]{{TollStilus::szaggatott, "4 2"},
                                                      {TollStilus::pontozott, "1 2"},
                                                      {TollStilus::pontVonal, "4 2 1 2"},
                                                      {TollStilus::pontPontVonal, "4 2 1 2 1 2"}};
    TSvg s;
    for (const auto& [stilus, minta] : mintak) {
        s.vaszon.TollSzelesseg(0);
        s.vaszon.Stilus(stilus);
        const std::string var = "stroke-width=\"1\" stroke-dasharray=\"" + std::string(minta) + "\"/>";
        EXPECT_NE(s.vonal(1, 1, 4, 3).find(var), std::string::npos) << minta;
        s.vaszon.TollSzelesseg(2);
        EXPECT_EQ(s.vonal(1, 1, 4, 3).find("dasharray"), std::string::npos);
    }
    s.vaszon.TollSzelesseg(1);
    s.vaszon.Stilus(TollStilus::folytonos);
    EXPECT_EQ(s.vonal(1, 1, 4, 3).find("dasharray"), std::string::npos);
}

TEST(SvgVaszon, ASzovegFeherDobozonKorvonallal) {
    TSvg s;
    s.vaszon.Betu("Astro Symbols", 12);
    s.vaszon.TextOut(3, 4, "Cd");
    EXPECT_EQ(s.korvonal.kert, "Astro Symbols/12/Cd");
    EXPECT_EQ(s.ujSorok(),
              "<rect x=\"3\" y=\"4\" width=\"4.5\" height=\"12\" fill=\"#fff\" "
              "shape-rendering=\"crispEdges\"/>\n"
              "<path transform=\"translate(3 12.25)\" d=\"M0 0L5 0L5 -5\"/>\n");
    EXPECT_EQ(s.ujSorok().find("<text"), std::string::npos);
}

TEST(SvgVaszon, ASzokozCsakFeherDoboz) {
    TSvg s;
    s.vaszon.Betu("Ariel", 12);
    s.vaszon.TextOut(7, 9, " ");
    EXPECT_EQ(s.ujSorok(),
              "<rect x=\"7\" y=\"9\" width=\"3.5\" height=\"12\" fill=\"#fff\" "
              "shape-rendering=\"crispEdges\"/>\n");
}

TEST(SvgVaszon, AzUresSzovegEsANullaMagassagSemmi) {
    TSvg s;
    s.vaszon.Betu("Ariel", 10);
    s.vaszon.TextOut(1, 1, "");
    s.vaszon.Betu("Ariel", 0);
    s.vaszon.TextOut(1, 1, "x");
    s.vaszon.Betu("Ariel", -3);
    s.vaszon.TextOut(1, 1, "x");
    EXPECT_EQ(s.vaszon.TextWidth("x"), 0);
    EXPECT_EQ(s.ujSorok(), "");
    EXPECT_EQ(s.korvonal.kert, "");
    s.vaszon.Betu("Ariel", 10);
    EXPECT_EQ(s.vaszon.TextWidth("xyz"), 6);  // 5.5
}

TEST(SvgVaszon, ASzamokPonttalEsFoloslegNelkul) {
    EXPECT_EQ(svgSzam(0), "0");
    EXPECT_EQ(svgSzam(100), "100");
    EXPECT_EQ(svgSzam(-0.001), "0");
    EXPECT_EQ(svgSzam(1.5), "1.5");
    EXPECT_EQ(svgSzam(-2.346), "-2.35");
    EXPECT_EQ(svgSzam(1e300), "0");
}
