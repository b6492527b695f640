#pragma once
// Where the user left the main window, as it is remembered from one run to the next.

#include <array>
#include <cstdint>
#include <optional>

namespace telva {

struct PostoFinestra {
    std::int32_t left = 0, top = 0;    // outer corner, pixels
    double larghezza = 0, altezza = 0; // visible outer size, twips: it holds on every monitor
    bool massimizzata = false;
};

// As it is kept: left, top, width, height, 1 when maximised.
using NumeriPosto = std::array<std::int32_t, 5>;

// Nothing when no window can stand there or have that size.
std::optional<PostoFinestra> PostoDaNumeri(const NumeriPosto &numeri);
NumeriPosto ANumeri(const PostoFinestra &posto);

// The same place with a size that the monitor's work area (twips) can show.
PostoFinestra EntroArea(PostoFinestra posto, double larghezzaArea, double altezzaArea);

} // namespace telva
