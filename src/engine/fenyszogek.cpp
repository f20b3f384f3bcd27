#include "engine/fenyszogek.h"

#include <array>
#include <cstddef>

#include "tables/szamtan.h"
#include "tables/szotar.h"

namespace {

using TOrbisSor = Tomb<double, 9>;

constexpr TOrbisSor tengelyOrbis{{5, 0, 0, 5, 5, 5, 0, 0, 5}};
constexpr TOrbisSor gyorsOrbis{{8, 2, 2, 3, 5, 5, 2, 2, 8}};
constexpr TOrbisSor lassuOrbis{{10, 3, 3, 4, 8, 8, 3, 3, 10}};

}  // namespace

const TOrbisTabla OrbisAlap{{tengelyOrbis,
                             tengelyOrbis,
                             {{15, 4, 4, 5, 8, 10, 4, 4, 15}},
                             {{12, 4, 4, 5, 8, 8, 4, 4, 12}},
                             gyorsOrbis,
                             gyorsOrbis,
                             gyorsOrbis,
                             lassuOrbis,
                             lassuOrbis,
                             gyorsOrbis,
                             gyorsOrbis,
                             gyorsOrbis}};

void ElteresSzamitas(const TBolygok& Bolygok, TFenyszogMunka& munka) {
    for (int i = 1; i <= 10; ++i) {
        munka.DekadKezdetek[i] = egesz(Bolygok[i] / 10) * 10.0;
        for (int j = 1; j <= 10; ++j) munka.Elteresek[i][j] = szogTavolsag(Bolygok[i], Bolygok[j]);
    }
}

namespace {

/// The last aspect whose window holds the distance, 0 if none does: a later one overwrites an earlier one.
int orbisTalalat(double tavolsag, const TOrbisSor& egyik, const TOrbisSor& masik) {
    for (int a = 9; a >= 1; --a) {
        const double orb = (egyik[a] + masik[a]) / 2;
        if (fenyszogSzog[a] - orb <= tavolsag && tavolsag <= fenyszogSzog[a] + orb) return a;
    }
    return 0;
}

/// The aspect at exactly this distance of two decan starts, '.' if there is none.
char dekadFenyszog(double tavolsag) {
    for (int a = 1; a <= 9; ++a)
        if (tavolsag == fenyszogSzog[a]) return fenyszogJel[a];
    return '.';
}

}  // namespace

void Fenyszogek(const TOrbisTabla& OrbisTabla, TFenyszogMunka& munka) {
    for (int i = 1; i <= 10; ++i) {
        for (int j = 1; j <= 10; ++j) {
            munka.FenyszogMatrix[i][j] = '.';
            munka.FenyszogOrbis[i][j] = 0;
            if (i == j) continue;
            const double tavolsag = munka.Elteresek[i][j];
            if (const int a = orbisTalalat(tavolsag, OrbisTabla[orbisSor(i)], OrbisTabla[orbisSor(j)]);
                a != 0) {
                munka.FenyszogMatrix[i][j] = fenyszogJel[a];
                munka.FenyszogOrbis[i][j] = tavolsag;
            } else {
                munka.FenyszogMatrix[i][j] =
                    dekadFenyszog(szogTavolsag(munka.DekadKezdetek[i], munka.DekadKezdetek[j]));
            }
        }
    }
}

void EgyuttallasLanc(TJelMatrix& FenyszogMatrix) {
    // Rows and columns of the 'M' cells as bit sets; bit n - 1 is body n.
    std::array<unsigned, 10> sorok{};
    for (int i = 1; i <= 10; ++i)
        for (int k = 1; k <= 10; ++k)
            if (FenyszogMatrix[i][k] == 'M') sorok[static_cast<std::size_t>(i - 1)] |= 1U << (k - 1);

    auto lanc = std::array<unsigned, 10>{};
    for (int kor = 0; kor < 10; ++kor) {
        std::array<unsigned, 10> oszlopok{};
        for (std::size_t i = 0; i < 10; ++i)
            for (std::size_t k = 0; k < 10; ++k)
                if (sorok[i] >> k & 1U) oszlopok[k] |= 1U << i;
        for (std::size_t i = 0; i < 10; ++i)
            for (std::size_t k = 0; k < 10; ++k)
                if (sorok[i] >> k & 1U) lanc[i] |= 1U << k | oszlopok[k];
        for (std::size_t i = 0; i < 10; ++i) sorok[i] |= lanc[i];
    }
    for (int i = 1; i <= 10; ++i) {
        for (int k = 1; k <= 10; ++k)
            FenyszogMatrix[i][k] = lanc[static_cast<std::size_t>(i - 1)] >> (k - 1) & 1U ? 'M' : '.';
        FenyszogMatrix[i][i] = '+';
    }
}

void AlsoFelso(const TBolygok& Bolygok, TJelMatrix& FenyszogMatrix) {
    for (int i = 1; i <= 10; ++i) {
        for (int j = 1; j <= 10; ++j) {
            char& cella = FenyszogMatrix[i][j];
            const double p = Bolygok[i];
            const double q = Bolygok[j];
            if (cella == '.' || cella == '+') {
                cella = '.';
            } else if (p + 180 > 360 && p - 180 > q) {
                cella = 'F';
            } else if (p >= q) {
                cella = 'A';
            } else {
                cella = p + 180 <= q ? 'A' : 'F';
            }
        }
        FenyszogMatrix[i][i] = '+';
    }
}
