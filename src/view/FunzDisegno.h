#pragma once
// Painting of the whole structure on Disegno.

namespace telva {

// Clears the picture and paints axes, bars, shells, nodes and labels, in this order; within each
// kind the selected elements come last.
void DisegnaStruttura();

} // namespace telva
