#pragma once

#include <array>
#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "files/adatlap.h"

/// Collects the reports of a run and tells them source by source, in the order of the lines.
class TJelento {
public:
    /// @param forras  name of the file as the user knows it
    void jelent(const std::string& forras, const TJelentes& jelentes);
    void jelent(const std::string& forras, const TJelentesek& jelentesek);

    int szam(TJelentesFajta fajta) const { return szamok_[static_cast<std::size_t>(fajta)]; }
    void kiir(std::ostream& ki) const;

private:
    struct TTetel {
        std::size_t hanyadik;  ///< source, in the order of the first reports
        std::string forras;
        TJelentes jelentes;
    };
    std::map<std::string, std::size_t> forrasok_;
    std::vector<TTetel> tetelek_;
    std::array<int, 3> szamok_{};
};
