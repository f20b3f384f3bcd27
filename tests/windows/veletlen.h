#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

/// Random numbers that a seed gives the same on every machine.
class TVeletlen {
public:
    explicit TVeletlen(std::uint64_t mag) : allas_(mag) {}

    std::uint64_t kovetkezo() {
        allas_ += 0x9E3779B97F4A7C15U;
        std::uint64_t x = allas_;
        x = (x ^ (x >> 30U)) * 0xBF58476D1CE4E5B9U;
        x = (x ^ (x >> 27U)) * 0x94D049BB133111EBU;
        return x ^ (x >> 31U);
    }
    /// Both ends included.
    int koz(int also, int felso) {
        const auto hossz = static_cast<std::uint64_t>(std::int64_t{felso} - also + 1);
        return static_cast<int>(also + static_cast<std::int64_t>(kovetkezo() % hossz));
    }
    /// True once in so many.
    bool egyszer(int hanybol) { return koz(1, hanybol) == 1; }
    template <typename Sor>
    auto& egyik(Sor&& sor) {
        return sor[static_cast<decltype(std::size(sor))>(koz(0, static_cast<int>(std::size(sor)) - 1))];
    }

private:
    std::uint64_t allas_;
};
