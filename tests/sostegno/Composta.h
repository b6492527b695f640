#pragma once

#include "platform/disegno.h"

namespace telva::prove {

// A zone of the picture with what is shown over it.
inline Superficie Composta(const RiquadroDisegno &d, const ZonaPixel &zona) {
    Superficie composta;
    d.ComponiElastici({&zona, 1}, [&](const Superficie &s, const ZonaPixel &) { composta = s; });
    return composta;
}

} // namespace telva::prove
