#pragma once

namespace telva {

// Axis triad in the lower left corner of the picture, always in sight: segment length and letter
// size and colour code from OpzInt. Without lengths, nothing.
void DisegnaAssi();

} // namespace telva
