#include "engine/uralkodok.h"

#include <string_view>

#include "tables/szamtan.h"
#include "tables/szotar.h"

namespace {

constexpr bool sarokHaz(int haz) {
    return haz % 3 == 1;
}

}  // namespace

double hazHatar(double csucs, int haz) {
    const double engedmeny = sarokHaz(haz) ? 5 : 3;
    return csucs - engedmeny < 0 ? csucs + (360 - engedmeny) : csucs - engedmeny;
}

void HazBesorolas(const TBolygok& Bolygok, const THazcsucsok& Hazcsucsok, TBolygoHazak& BolygoHazak) {
    Tomb<double, 13> hatar;  // the thirteenth closes the circle
    for (int h = 1; h <= 12; ++h) hatar[h] = hazHatar(Hazcsucsok[h], h);
    const double s = hatar[1];
    hatar[13] = s;
    for (int h = 2; h <= 13; ++h)
        if (hatar[h] <= s) hatar[h] += 360;

    for (int i = 1; i <= 10; ++i) {
        const double hossz = Bolygok[i] < s ? Bolygok[i] + 360 : Bolygok[i];
        for (int h = 1; h <= 12; ++h)
            if (hossz >= hatar[h] && hossz < hatar[h + 1]) BolygoHazak[i] = h;
    }
}

namespace {

struct TJegypar {
    int paratlan;
    int paros;
};

/// The sign that each body rules when `PratlanJegy` is set, and when not.
constexpr Tomb<TJegypar, 10> uraltJegyek{
    {{{5, 5}, {4, 4}, {3, 6}, {7, 2}, {1, 8}, {9, 12}, {11, 10}, {11, 11}, {12, 12}, {8, 8}}}};

/// Only Sun to Saturn are read as rulers of houses.
constexpr int hazurakSzama = 7;

/// First of the outer bodies Uranus, Neptune, Pluto.
constexpr int elsoKulso = 8;

/// One conjunction reverses the parity; several do unless an outer body is among them.
bool forditott(const Tomb<char, 10>& egyuttallasok) {
    int szam = 0;
    bool kulso = false;
    for (int k = 1; k <= 10; ++k) {
        if (egyuttallasok[k] != 'M') continue;
        ++szam;
        kulso = kulso || k >= elsoKulso;
    }
    return szam == 1 || (szam > 1 && !kulso);
}

void paritas(const TBolygok& Bolygok, const TJelMatrix& EgyuttallasMatrix, TUralkodok& u) {
    for (int i = 1; i <= 10; ++i) {
        const int n = egesz(Bolygok[i] / 30);
        u.Forditott[i] = forditott(EgyuttallasMatrix[i]);
        u.PratlanJegy[i] = (u.Forditott[i] ? n : n + 1) % 2 != 0;
        u.UralkodoJegy[i] = u.PratlanJegy[i] ? uraltJegyek[i].paratlan : uraltJegyek[i].paros;
    }
}

void hazMondat(std::string& szoveg, int haz, int ura, std::string_view jelzo) {
    szoveg.append("Az ").append(HazCimke(haz)).append("-es ").append(jelzo);
    if (ura != 0)
        szoveg.append("ház ura a ").append(HazCimke(ura)).append("-ben. ");
    else
        szoveg.append("háznak nincs ura. ");
}

void horizontUrak(const THazcsucsok& Hazcsucsok, const TBolygoHazak& BolygoHazak, TUralkodok& u) {
    u.UralkodoSzoveg.clear();
    for (int h = 1; h <= 12; ++h) {
        u.HazJegy[h] = egesz(Hazcsucsok[h] / 30) + 1;
        u.HazUra[h] = 0;
        for (int j = 1; j <= hazurakSzama; ++j)
            if (u.HazJegy[h] == u.UralkodoJegy[j]) u.HazUra[h] = BolygoHazak[j];
        hazMondat(u.UralkodoSzoveg, h, u.HazUra[h], "");
    }
}

void mundanUrak(const TBolygok& Bolygok, TUralkodok& u) {
    u.MundanUralkodoSzoveg.clear();
    for (int h = 1; h <= 12; ++h) {
        u.MundanHazUra[h] = 0;
        for (int j = 1; j <= hazurakSzama; ++j)
            if (h == u.UralkodoJegy[j]) u.MundanHazUra[h] = egesz(Bolygok[j] / 30) + 1;
        hazMondat(u.MundanUralkodoSzoveg, h, u.MundanHazUra[h], "mundán ");
    }
}

}  // namespace

double DekadHazSzamitas(double hossz) {
    const double s = egesz(hossz / 30);
    const double d = egesz((hossz - s * 30) / 10);
    double c = s + 1 + 4 * d;
    c -= 12 * egesz(c / 12);
    return c == 0 ? 12 : c;
}

void DekadSzovegek(const TBolygok& Bolygok, TUralkodok& uralkodok) {
    for (std::string& szoveg : uralkodok.DekadSzoveg) szoveg.clear();
    for (int j = 1; j <= 10; ++j) {
        uralkodok.DekadHaz[j] = DekadHazSzamitas(Bolygok[j]);
        const int haz = kerekit(uralkodok.DekadHaz[j]);
        if (haz >= 1 && haz <= 12) uralkodok.DekadSzoveg[haz] += bolygoJel[j];
    }
}

void UralkodoSzamitas(const TBolygok& Bolygok, const THazcsucsok& Hazcsucsok, const TBolygoHazak& BolygoHazak,
                      const TJelMatrix& EgyuttallasMatrix, TUralkodok& uralkodok) {
    paritas(Bolygok, EgyuttallasMatrix, uralkodok);
    horizontUrak(Hazcsucsok, BolygoHazak, uralkodok);
    mundanUrak(Bolygok, uralkodok);
    DekadSzovegek(Bolygok, uralkodok);
}
