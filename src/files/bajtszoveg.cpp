#include "files/bajtszoveg.h"

#include <algorithm>

#include "files/kodlap1250.h"
#include "files/kodlap1252.h"

std::string_view BajtsorrendJelNelkul(std::string_view bajtok) {
    if (bajtok.starts_with(bajtsorrendJel)) bajtok.remove_prefix(bajtsorrendJel.size());
    return bajtok;
}

std::string KodlapSzoveg(std::string_view bajtok, TKodlap kodlap, int& hianyok) {
    const auto kerdojelek = [](std::string_view szoveg) {
        return static_cast<int>(std::count(szoveg.begin(), szoveg.end(), '?'));
    };
    std::string ki = kodlap == TKodlap::cp1250 ? kodlaprol(bajtok) : kodlap1252rol(bajtok);
    hianyok += kerdojelek(ki) - kerdojelek(bajtok);
    return ki;
}
