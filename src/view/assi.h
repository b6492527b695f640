#pragma once

namespace telva {

// Axis triad in the lower left corner of the picture, always in sight: segment length and letter
// size from OpzInt 2 and 3 (pixels), colour code from OpzInt 5. Without lengths, nothing.
void DisegnaAssi();

} // namespace telva
