// The lists in names.

#include <algorithm>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "iranyteszt.h"
#include "predictive/olvashato.h"
#include "predictive/primer.h"

namespace {

TEST(Olvashato, MindenJelNeve) {
    const std::pair<char, const char*> nevek[]{
        {'A', "Nap"},     {'B', "Hold"},    {'C', "Merkúr"},       {'D', "Vénusz"},
        {'E', "Mars"},    {'F', "Jupiter"}, {'G', "Szaturnusz"},   {'H', "Uránusz"},
        {'I', "Neptun"},  {'J', "Plutó"},   {'a', "Kos"},          {'b', "Bika"},
        {'c', "Ikrek"},   {'d', "Rák"},     {'e', "Oroszlán"},     {'f', "Szűz"},
        {'g', "Mérleg"},  {'h', "Skorpió"}, {'i', "Nyilas"},       {'j', "Bak"},
        {'k', "Vízöntő"}, {'l', "Halak"},   {'M', "együttállás"},  {'N', "30°"},
        {'O', "45°"},     {'P', "60°"},     {'R', "90°"},          {'S', "120°"},
        {'T', "135°"},    {'V', "150°"},    {'W', "szembenállás"}, {'?', "?"},
        {'7', "7"}};
    for (const auto& [jel, nev] : nevek) EXPECT_EQ(JelNev(jel), nev) << jel;
}

TEST(Olvashato, ABolygokEsFenyszogeik) {
    EXPECT_EQ(OlvashatoParok("CR"), "Merkúr 90°");
    EXPECT_EQ(OlvashatoParok("CRBMJV"), "Merkúr 90°, Hold együttállás, Plutó 150°");
    // Not of pairs: left as it is.
    for (const char* mas : {"", "CRB", "RC", "CC", "aM", "jó", "CRBB", "CRRM"})
        EXPECT_EQ(OlvashatoParok(mas), mas);
}

/// A part of a longer text ends where it ends, whatever letters follow.
TEST(Olvashato, AFelPartNemEgeszitiKiAmiUtanaAll) {
    constexpr std::string_view sor = "CRBM";
    EXPECT_EQ(OlvashatoParok(sor.substr(0, 3)), "CRB");
    EXPECT_EQ(OlvashatoParok(sor.substr(0, 2)), "Merkúr 90°");
    EXPECT_EQ(OlvashatoTercier(sor.substr(2, 1)), "Hold");
    EXPECT_EQ(OlvashatoTercier(std::string_view("eAM").substr(0, 2)), "Nap (Oroszlán)");
    EXPECT_EQ(OlvashatoTercier(std::string_view("AMfB").substr(0, 3)).find("Hold"), std::string::npos);
    EXPECT_EQ(OlvashatoIngresszio(std::string_view(" AMB CMJ").substr(0, 4)), "Nap együttállás Hold");
    EXPECT_EQ(OlvashatoIdok(std::string_view("3. CR(05:33:21) BM").substr(0, 15)),
              "3. Merkúr 90° (05:33:21)");
    EXPECT_EQ(OlvashatoIdok(std::string_view("20. CR").substr(0, 4)), "20. –");
}

TEST(Olvashato, ACsonkaSorNemOlvasTulAVegen) {
    const std::string sor = "2000.04.10.   wv     CR";
    for (std::size_t hossz = 0; hossz < 21; ++hossz)  // up to the last blank before the hits
        EXPECT_EQ(OlvashatoPrimer(std::string_view(sor).substr(0, hossz)), sor.substr(0, hossz));
    EXPECT_EQ(OlvashatoTalalatok(4, std::string_view("vww   CRBM; AW; ").substr(0, 10)),
              "4. Solar-Nap: VII; dMc: Merkúr 90°, Hold együttállás; cMc: ; dAsc: ; cAsc: ");
    EXPECT_EQ(OlvashatoTalalatok(4, ""), "4. Solar-Nap: –; dMc: ; cMc: ; dAsc: ; cAsc: ");
}

TEST(Olvashato, APrimerListaSorai) {
    const auto sor = [](const char* haz, std::size_t kozok, const char* jelek) {
        return std::string("2000.04.10.   ") + haz + std::string(kozok, ' ') + jelek;
    };
    EXPECT_EQ(OlvashatoPrimer(sor("wv", 5, "CR")), "2000.04.10.  Solar-Nap: IV  dMC: Merkúr 90°");
    EXPECT_EQ(OlvashatoPrimer(sor("vww", 20, "AMBW")),
              "2000.04.10.  Solar-Nap: VII  cMC: Nap együttállás, Hold szembenállás");
    EXPECT_EQ(OlvashatoPrimer(sor("12", 32, "GT")), "2000.04.10.  Solar-Nap: 12  dAsc: Szaturnusz 135°");
    EXPECT_EQ(OlvashatoPrimer(sor("x", 46, "IS")), "2000.04.10.  Solar-Nap: X  cAsc: Neptun 120°");
    EXPECT_EQ(OlvashatoPrimer(sor("w", 5, "HO")), "2000.04.10.  Solar-Nap: I  dMC: Uránusz 45°");
    // The Sun fits no house.
    EXPECT_EQ(OlvashatoPrimer(sor("", 5, "CR")), "2000.04.10.  Solar-Nap: –  dMC: Merkúr 90°");
    EXPECT_EQ(OlvashatoPrimer("valami más"), "valami más");
    EXPECT_EQ(OlvashatoPrimer(""), "");
}

TEST(Olvashato, AFutasMindenSoraOlvashato) {
    const Allapot a = szuletes();
    const auto sorok = PrimerFutas(a, {2000, 1, 1, 0, 0, 0});
    ASSERT_EQ(sorok.size(), 22U);
    for (const std::string& sor : sorok) {
        const std::string olvashato = OlvashatoPrimer(sor);
        EXPECT_TRUE(olvashato.starts_with(sor.substr(0, 11) + "  Solar-Nap: ")) << olvashato;
        const std::size_t par = olvashato.rfind(": ") + 2;
        // As many hits as pairs of letters.
        const auto jelek = sor.size() - sor.rfind(' ') - 1;
        EXPECT_EQ(std::count(olvashato.begin() + static_cast<std::ptrdiff_t>(par), olvashato.end(), ',') + 1,
                  static_cast<std::ptrdiff_t>(jelek / 2))
            << olvashato;
    }
}

TEST(Olvashato, APontositasTalalatai) {
    EXPECT_EQ(
        OlvashatoTalalatok(3, "vww   CRBM; ...;  ...;  AW; "),
        "3. Solar-Nap: VII; dMc: Merkúr 90°, Hold együttállás; cMc: –; dAsc: –; cAsc: Nap szembenállás");
    EXPECT_EQ(OlvashatoTalalatok(12, "5   ...;  DP; EN; ...;  "),
              "12. Solar-Nap: 5; dMc: –; cMc: Vénusz 60°; dAsc: Mars 30°; cAsc: –");
    EXPECT_EQ(OlvashatoTalalatok(1, "   ...;  ...;  ...;  FM; "),
              "1. Solar-Nap: –; dMc: –; cMc: –; dAsc: –; cAsc: Jupiter együttállás");
}

TEST(Olvashato, APontositasSzuletesiIdoi) {
    EXPECT_EQ(OlvashatoIdok("3. CR(05:33:21) BMBW(06:01:00) "),
              "3. Merkúr 90° (05:33:21); Hold együttállás, Hold szembenállás (06:01:00)");
    EXPECT_EQ(OlvashatoIdok("20. "), "20. –");
    // What the user has written into it stands.
    EXPECT_EQ(OlvashatoIdok("3. CR(05:33:21) ez a jó (05:33)"), "3. Merkúr 90° (05:33:21); ez a jó (05:33)");
    EXPECT_EQ(OlvashatoIdok("saját sor"), "saját sor");
    EXPECT_EQ(OlvashatoIdok(""), "");
}

TEST(Olvashato, ATercierDirekciok) {
    EXPECT_EQ(OlvashatoTercier("eAMfB"), "Nap (Oroszlán) együttállás Hold (Szűz)");
    EXPECT_EQ(OlvashatoTercier("eAMfBWcCQdDWjG"),
              "Nap (Oroszlán) együttállás Hold (Szűz) szembenállás Merkúr (Ikrek), "
              "Vénusz (Rák) szembenállás Szaturnusz (Bak)");
    EXPECT_EQ(OlvashatoTercier(""), "");
    // A letter cut off at the end does no harm.
    EXPECT_EQ(OlvashatoTercier("AM"), "Nap együttállás ");
}

TEST(Olvashato, AzIngresszioParjai) {
    EXPECT_EQ(OlvashatoIngresszio(" AMA AMB CMJ"),
              "Nap együttállás Nap, Nap együttállás Hold, Merkúr együttállás Plutó");
    EXPECT_EQ(OlvashatoIngresszio(""), "");
}

TEST(Olvashato, ADatumosKeresesEredmenye) {
    EXPECT_EQ(OlvashatoDatumos({1999, 4, 31, 0, 0, 0}, "eAMfB", true),
              "1999.05.01. Nap (Oroszlán) együttállás Hold (Szűz)");
    EXPECT_EQ(OlvashatoDatumos({1999, 4, 3, 0, 0, 0}, " AMB", false), "1999.04.03. Nap együttállás Hold");
    EXPECT_EQ(OlvashatoDatumos({1999, 4, 3, 0, 0, 0}, "", true), "1999.04.03. Nincs tercier direkció!");
    EXPECT_EQ(OlvashatoDatumos({1999, 4, 3, 0, 0, 0}, "", false), "1999.04.03. Nincs szolár-ingresszió!");
}

TEST(Olvashato, AListaCime) {
    EXPECT_EQ(ListaCim("Primer direkció", "Őrző Árpád", {1975, 3, 21, 6, 4, 9}),
              "Primer direkció – Őrző Árpád, 1975.03.21. 06:04:09");
    EXPECT_EQ(ListaCim("Szolár", "", {1975, 3, 21, 6, 4, 9}), "Szolár – 1975.03.21. 06:04:09");
}

}  // namespace
