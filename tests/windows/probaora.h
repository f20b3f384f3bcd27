#pragma once

#include <cstdint>

/// The computer's clock as a test sets it, as long as this lives and for its own thread alone: so a run does
/// not depend on when and how fast it runs. The toolkit's timers go by it too. Each look at it takes a
/// millisecond, so that what waits for a time to pass gets there.
class TProbaOra {
public:
    /// @param masodperc  seconds since 1970, Greenwich time
    explicit TProbaOra(std::int64_t masodperc);
    ~TProbaOra();
    TProbaOra(const TProbaOra&) = delete;
    TProbaOra& operator=(const TProbaOra&) = delete;

    /// Sets date and time; the timers notice nothing.
    void allit(std::int64_t masodperc);
    void telik(std::int64_t ezredmasodperc);
};
