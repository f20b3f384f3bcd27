// Names found by what was typed of them, without regard to accents and case.

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tables/helysegkereses.h"
#include "tables/telepulesek.h"

namespace {

bool benneVan(const std::vector<std::string_view>& nevek, std::string_view nev) {
    return std::find(nevek.begin(), nevek.end(), nev) != nevek.end();
}

TEST(EkezetNelkul, MindenMagyarBetuKicsiEsSima) {
    EXPECT_EQ(ekezetNelkul("áéíóöőúüű"), "aeiooouuu");
    EXPECT_EQ(ekezetNelkul("ÁÉÍÓÖŐÚÜŰ"), "aeiooouuu");
    EXPECT_EQ(ekezetNelkul("ABCXYZabcxyz"), "abcxyzabcxyz");
    EXPECT_EQ(ekezetNelkul("Hódmezővásárhely"), "hodmezovasarhely");
}

TEST(EkezetNelkul, MasKarakterMarad) {
    EXPECT_EQ(ekezetNelkul(""), "");
    EXPECT_EQ(ekezetNelkul("@[`{ 1-"), "@[`{ 1-");  // the neighbours of the letters
    EXPECT_EQ(ekezetNelkul("Ăñ€"), "Ăñ€");
    EXPECT_EQ(ekezetNelkul("A\xC3"), "a\xC3");  // half a letter
}

TEST(HelysegTalalatok, ElolAmiAzonosAztanAmiUgyKezdodikAztanAmiTartalmazza) {
    const auto nevek = HelysegTalalatok("gyor");
    ASSERT_GT(nevek.size(), 3U);
    EXPECT_EQ(nevek[0], "Győr");
    EXPECT_EQ(nevek[1], "Gyóró");
    EXPECT_EQ(nevek[2], "Győrasszonyfa");
    const auto elsoBelul =
        std::find_if(nevek.begin(), nevek.end(), [](auto n) { return !ekezetNelkul(n).starts_with("gyor"); });
    EXPECT_EQ(*elsoBelul, "Bácsszentgyörgy");
    for (auto i = elsoBelul; i != nevek.end(); ++i) EXPECT_FALSE(ekezetNelkul(*i).starts_with("gyor")) << *i;
    EXPECT_TRUE(benneVan(nevek, "Szentgyörgyvár"));
}

TEST(HelysegTalalatok, ASajatEkezeteElobbMintAMase) {
    using TNevek = std::vector<std::string_view>;
    const TNevek tobbi{"Komlódtótfalu", "Komlósd", "Komlóska", "Kömlőd", "Füzérkomlós", "Tótkomlós"};
    TNevek komlo{"Komló", "Kömlő"}, komloForditva{"Kömlő", "Komló"};
    komlo.insert(komlo.end(), tobbi.begin(), tobbi.end());
    komloForditva.insert(komloForditva.end(), tobbi.begin(), tobbi.end());
    EXPECT_EQ(HelysegTalalatok("komlo"), komlo);
    EXPECT_EQ(HelysegTalalatok("KÖMLŐ"), komloForditva);
}

TEST(HelysegTalalatok, UresSzovegreEsIsmeretlenreNincs) {
    EXPECT_TRUE(HelysegTalalatok("").empty());
    EXPECT_TRUE(HelysegTalalatok("Xanadu").empty());
}

TEST(EgyetlenHelyseg, ALegjobbCsoportEgyetlenNeve) {
    EXPECT_EQ(EgyetlenHelyseg("gyor"), "Győr");
    EXPECT_EQ(EgyetlenHelyseg("hodmezo"), "Hódmezővásárhely");
    EXPECT_EQ(EgyetlenHelyseg("SZEGED"), "Szeged");
    EXPECT_EQ(EgyetlenHelyseg("ovasarhely"), "") << "Hódmezővásárhely and Somlóvásárhely";
    EXPECT_EQ(EgyetlenHelyseg("kisvasar"), "Kisvásárhely");
    EXPECT_EQ(EgyetlenHelyseg("szentpeterszeg"), "Szentpéterszeg");
    EXPECT_EQ(EgyetlenHelyseg("mlovasar"), "Somlóvásárhely");
    EXPECT_EQ(EgyetlenHelyseg("komlo"), "");
    EXPECT_EQ(EgyetlenHelyseg("kömlő"), "Kömlő");
    EXPECT_EQ(EgyetlenHelyseg("szent"), "");
    EXPECT_EQ(EgyetlenHelyseg(""), "");
    EXPECT_EQ(EgyetlenHelyseg("Xanadu"), "");
}

TEST(EgyetlenHelyseg, MindenNevetMegtalalAKisbetusAlakjarol) {
    for (const TTelepules& t : Telepulesek) {
        const std::string sima = ekezetNelkul(t.nev);
        const bool kettos = sima == "komlo" || sima == "komoro";  // Komló, Kömlő; Komoró, Kömörő
        EXPECT_EQ(EgyetlenHelyseg(sima), kettos ? "" : t.nev);
        EXPECT_EQ(EgyetlenHelyseg(t.nev), t.nev);
    }
}

TEST(HelysegSor, ATablaSoraVagyMinuszEgy) {
    EXPECT_EQ(HelysegSor("Aba"), 0);
    EXPECT_EQ(HelysegSor("Zubogy"), 3137);
    EXPECT_EQ(HelysegSor("aba"), -1);
    EXPECT_EQ(HelysegSor("Zubog"), -1);
    EXPECT_EQ(HelysegSor(""), -1);
}

}  // namespace
