#pragma once

#include "view/posti.h"

#include <cstdint>

namespace telva {

// Hatch of a shell by its hatch type 1..8 (0 and any other: none), clipped to its outline, pen
// width 1, at a fixed spacing in pixels; left out where the shell is too small on the screen.
void DisegnaRetino(int guscio, std::uint32_t colore, const PostiNodi &posti);

} // namespace telva
