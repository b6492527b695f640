#pragma once

#include "platform/disegno.h"

#include <algorithm>

namespace telva::prove {

// A zone of the picture with what is shown over it.
inline Superficie Composta(const RiquadroDisegno &d, const ZonaPixel &zona) {
    Superficie composta;
    d.ComponiElastici({&zona, 1}, [&](const Superficie &s, const ZonaPixel &) { composta = s; });
    return composta;
}

// Pixels of a picture that are not found `dx` to the right and `dy` below in another one of its
// size, where both have them.
inline int PixelDiversi(const Superficie &prima, const Superficie &dopo, int dx = 0, int dy = 0) {
    int diversi = 0;
    for (int y = std::max(0, -dy); y < dopo.Altezza() - std::max(0, dy); ++y)
        for (int x = std::max(0, -dx); x < dopo.Larghezza() - std::max(0, dx); ++x)
            diversi += prima.Leggi(x, y) != dopo.Leggi(x + dx, y + dy);
    return diversi;
}

} // namespace telva::prove
