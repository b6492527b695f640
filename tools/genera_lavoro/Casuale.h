// A small random source of our own: the standard distributions differ from one library to the
// next, and a seed must give the same job everywhere.
#pragma once

#include <cstdint>

namespace telva::generatore {

class Casuale {
  public:
    explicit Casuale(std::uint64_t seme) : Stato(seme) {}

    // Next 64 random bits (SplitMix64).
    std::uint64_t Prossimo() {
        Stato += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = Stato;
        z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31U);
    }

    // An integer da..a, both included; da when the range is empty.
    int Intero(int da, int a) {
        if (a <= da) return da;
        const auto ampiezza = static_cast<std::uint64_t>(a - da) + 1;
        return da + static_cast<int>(Prossimo() % ampiezza);
    }

  private:
    std::uint64_t Stato;
};

} // namespace telva::generatore
