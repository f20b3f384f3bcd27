#include "efemeridafajl.h"

#include <fstream>
#include <stdexcept>

namespace {

template <typename T>
void ir(std::ostream& ki, T szam) {
    for (std::size_t i = 0; i < sizeof(T); ++i) ki.put(static_cast<char>(szam >> (8 * i) & 0xFF));
}

template <typename T>
T olvas(std::istream& be) {
    std::uint32_t szam = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        szam |= static_cast<std::uint32_t>(static_cast<unsigned char>(be.get())) << (8 * i);
    return static_cast<T>(szam);
}

constexpr int kor(std::size_t bolygo) {
    return korIvmasodperc / hosszEgyseg(bolygo);
}

/// A difference on a circle, the short way round.
constexpr int rovidUt(int kulonbseg, int kor) {
    if (kulonbseg >= kor / 2) return kulonbseg - kor;
    return kulonbseg < -kor / 2 ? kulonbseg + kor : kulonbseg;
}

constexpr int korbe(int ertek, int kor) {
    return (ertek % kor + kor) % kor;
}

constexpr int rovidLepes = 236;  // seconds; the other step is one more

void hiba(const std::string& mi) {
    throw std::runtime_error(mi);
}

}  // namespace

void nyersIras(std::ostream& ki, const TEfemeridaAdat& sor) {
    ir(ki, sor.csillagido);
    for (const std::int32_t hossz : sor.hosszusagok) ir(ki, hossz);
}

std::vector<TEfemeridaAdat> nyersBeolvasas(const std::vector<std::string>& fajlok) {
    std::vector<TEfemeridaAdat> sorok;
    for (const std::string& fajl : fajlok) {
        std::ifstream be(fajl, std::ios::binary);
        while (be.peek() != std::ifstream::traits_type::eof()) {
            TEfemeridaAdat sor{};
            sor.csillagido = olvas<std::int32_t>(be);
            for (std::int32_t& hossz : sor.hosszusagok) hossz = olvas<std::int32_t>(be);
            sorok.push_back(sor);
        }
    }
    if (sorok.empty()) hiba("nincs sor");
    return sorok;
}

void efemeridaIras(const std::string& fajl, const std::vector<TEfemeridaAdat>& sorok) {
    if (sorok.size() != sorokSzama) hiba("a sorok száma nem jó");
    std::ofstream ki(fajl, std::ios::binary);
    ir(ki, sorok[0].csillagido);
    std::vector<unsigned char> bitek((sorok.size() - 1 + 7) / 8);
    for (std::size_t i = 1; i < sorok.size(); ++i) {
        const int lepes = korbe(sorok[i].csillagido - sorok[i - 1].csillagido, 86400);
        if (lepes != rovidLepes && lepes != rovidLepes + 1) hiba("a csillagidő lépése nem jó");
        if (lepes != rovidLepes) bitek[(i - 1) / 8] |= static_cast<unsigned char>(1U << ((i - 1) % 8));
    }
    for (const unsigned char b : bitek) ki.put(static_cast<char>(b));
    for (std::size_t b = 0; b < 10; ++b) {
        const auto ertek = [&](std::size_t i) { return sorok[i].hosszusagok[b] / hosszEgyseg(b); };
        int elozo = rovidUt(ertek(1) - ertek(0), kor(b));
        ir<std::int32_t>(ki, ertek(0));
        ir<std::int32_t>(ki, elozo);
        for (std::size_t i = 2; i < sorok.size(); ++i) {
            const int lepes = rovidUt(ertek(i) - ertek(i - 1), kor(b));
            const int masodik = lepes - elozo;
            if (masodik < INT16_MIN || masodik > INT16_MAX) hiba("a második különbség nem fér el");
            ir(ki, static_cast<std::int16_t>(masodik));
            elozo = lepes;
        }
    }
    if (!ki.flush()) hiba("nem írható: " + fajl);
}

std::vector<TEfemeridaAdat> efemeridaBeolvasas(const std::string& fajl) {
    std::ifstream be(fajl, std::ios::binary);
    if (!be) hiba("nem olvasható: " + fajl);
    std::vector<TEfemeridaAdat> sorok(sorokSzama);
    sorok[0].csillagido = olvas<std::int32_t>(be);
    std::vector<unsigned char> bitek((sorok.size() - 1 + 7) / 8);
    for (unsigned char& b : bitek) b = static_cast<unsigned char>(be.get());
    for (std::size_t i = 1; i < sorok.size(); ++i) {
        const int bit = bitek[(i - 1) / 8] >> ((i - 1) % 8) & 1;
        sorok[i].csillagido = (sorok[i - 1].csillagido + rovidLepes + bit) % 86400;
    }
    for (std::size_t b = 0; b < 10; ++b) {
        int ertek = olvas<std::int32_t>(be);
        int lepes = olvas<std::int32_t>(be);
        sorok[0].hosszusagok[b] = ertek * hosszEgyseg(b);
        for (std::size_t i = 1; i < sorok.size(); ++i) {
            if (i > 1) lepes += olvas<std::int16_t>(be);
            ertek = korbe(ertek + lepes, kor(b));
            sorok[i].hosszusagok[b] = ertek * hosszEgyseg(b);
        }
    }
    if (!be) hiba("csonka: " + fajl);
    if (be.peek() != std::ifstream::traits_type::eof()) hiba("túl hosszú: " + fajl);
    return sorok;
}
