#include "platform/posto.h"

#include <algorithm>
#include <cmath>

namespace telva {

std::optional<PostoFinestra> PostoDaNumeri(const NumeriPosto &numeri) {
    constexpr std::int32_t kLimite = 1 << 20;
    for (const std::int32_t n : numeri)
        if (n < -kLimite || n > kLimite) return {};
    if (numeri[2] <= 0 || numeri[3] <= 0) return {};
    return PostoFinestra{numeri[0], numeri[1], static_cast<double>(numeri[2]),
                         static_cast<double>(numeri[3]), numeri[4] != 0};
}

NumeriPosto ANumeri(const PostoFinestra &posto) {
    return {posto.left, posto.top, static_cast<std::int32_t>(std::lround(posto.larghezza)),
            static_cast<std::int32_t>(std::lround(posto.altezza)), posto.massimizzata ? 1 : 0};
}

PostoFinestra EntroArea(PostoFinestra posto, double larghezzaArea, double altezzaArea) {
    posto.larghezza = std::min(posto.larghezza, larghezzaArea);
    posto.altezza = std::min(posto.altezza, altezzaArea);
    return posto;
}

} // namespace telva
