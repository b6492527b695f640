#pragma once
// The fonts of a window: that of the system's own boxes, and a small one for indices.

#include "platform/win32/base_win32.h"

#include <utility>

namespace telva {

class FontWin32 {
  public:
    FontWin32() = default;
    explicit FontWin32(double dpi);
    ~FontWin32();
    FontWin32(FontWin32 &&altro) noexcept { *this = std::move(altro); }
    FontWin32 &operator=(FontWin32 &&altro) noexcept;

    HFONT Normale() const { return normale_; }
    HFONT Piccolo() const { return piccolo_; }

  private:
    HFONT normale_ = nullptr, piccolo_ = nullptr;
};

} // namespace telva
