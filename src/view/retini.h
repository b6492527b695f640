#pragma once

#include "view/posti.h"

#include <cstdint>
#include <span>

namespace telva {

// Hatch of a shell by its hatch type 1..8 (0 and any other: none), clipped to its outline, as thin
// as a pen of one pixel, at a fixed spacing in pixels; left out where the shell is too small on the
// screen. Pen, spacing and that limit grow with the window's scale.
void DisegnaRetino(int guscio, std::uint32_t colore, const PostiNodi &posti);

// The same hatch in a polygon of three or four corners, within +-2^28, of any size; `rgb` is a
// surface's pixel, `quanto` the scale of the spacing (1 at 100 %), `penna` the lines' width.
void RiempiRetino(Superficie &s, std::span<const Pixel> angoli, int tipo, std::uint32_t rgb,
                  double quanto, int penna);

} // namespace telva
