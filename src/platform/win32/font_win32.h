#pragma once
// The fonts of a window: that of the system's own boxes, a small one for indices, a bold one.

#include "platform/win32/base_win32.h"

#include <array>
#include <cstddef>
#include <utility>

namespace telva {

// That of the system's own boxes.
LOGFONTW TipoMessaggi(double dpi);

enum class StileFont { Normale, Piccolo, Grassetto };

class FontWin32 {
  public:
    FontWin32() = default;
    explicit FontWin32(double dpi);
    ~FontWin32();
    FontWin32(FontWin32 &&altro) noexcept { *this = std::move(altro); }
    FontWin32 &operator=(FontWin32 &&altro) noexcept;

    HFONT operator[](StileFont c) const { return font_[static_cast<std::size_t>(c)]; }

  private:
    std::array<HFONT, 3> font_{}; // by StileFont
};

} // namespace telva
