#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "chart/foablak.h"

using THivasok = std::vector<std::string>;

/// Stands in for the main window: notes what the commands ask of it, and has a clock that the test sets.
class TProbaAblak : public FoAblak {
public:
    void Ujrafest() override { hivasok.emplace_back("Ujrafest"); }
    void Ervenytelenit() override { hivasok.emplace_back("Ervenytelenit"); }
    void RajzolKeplet() override { hivasok.emplace_back("RajzolKeplet"); }
    void Mutat() override { ++mutatasok; }
    std::string RendszerDatum() override { return datum; }
    std::string RendszerIdo() override { return ido; }
    void MundanFrissit() override { hivasok.emplace_back("MundanFrissit"); }
    void PontositasFuttat() override { hivasok.emplace_back("PontositasFuttat"); }
    void PrimerFuttat() override { hivasok.emplace_back("PrimerFuttat"); }

    int rajzok() const {
        return static_cast<int>(std::count(hivasok.begin(), hivasok.end(), "RajzolKeplet"));
    }

    THivasok hivasok;
    int mutatasok = 0;
    std::string datum = "2024.03.05";
    std::string ido = "8:15:00";
};
