#include "platform/win32/posto_win32.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace telva {
namespace {

constexpr const wchar_t *kChiave = L"Software\\Telva", *kValore = L"Finestra";
constexpr std::int32_t kLimite = 1 << 20; // no window stands there
using Numeri = std::array<std::int32_t, 5>;

} // namespace

std::optional<PostoFinestra> LeggiPosto() {
    Numeri n{};
    DWORD byte = sizeof n;
    if (RegGetValueW(HKEY_CURRENT_USER, kChiave, kValore, RRF_RT_REG_BINARY, nullptr, n.data(),
                     &byte) != ERROR_SUCCESS ||
        byte != sizeof n)
        return {};
    for (const std::int32_t v : n)
        if (v < -kLimite || v > kLimite) return {};
    if (n[2] <= 0 || n[3] <= 0) return {};
    return PostoFinestra{n[0], n[1], static_cast<double>(n[2]), static_cast<double>(n[3]),
                         n[4] != 0};
}

void ScriviPosto(const PostoFinestra &posto) {
    const Numeri n = {posto.left, posto.top,
                      static_cast<std::int32_t>(std::lround(posto.larghezza)),
                      static_cast<std::int32_t>(std::lround(posto.altezza)), posto.massimizzata};
    RegSetKeyValueW(HKEY_CURRENT_USER, kChiave, kValore, REG_BINARY, n.data(), sizeof n);
}

} // namespace telva
