// A small random source of our own: the standard distributions differ from one library to the
// next, and a job must be the same everywhere.
#pragma once

#include <cstdint>

namespace telva::generatore {

class Casuale {
  public:
    // From this place of the one sequence on.
    explicit Casuale(std::uint64_t inizio) : stato_(1 + inizio * kPasso) {}

    // An integer da..a, both included.
    int Intero(int da, int a) {
        return da + static_cast<int>(Prossimo() % (static_cast<std::uint64_t>(a - da) + 1));
    }

  private:
    static constexpr std::uint64_t kPasso = 0x9E3779B97F4A7C15ULL;

    // Next 64 random bits (SplitMix64).
    std::uint64_t Prossimo() {
        std::uint64_t z = stato_ += kPasso;
        z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31U);
    }

    std::uint64_t stato_;
};

} // namespace telva::generatore
