#pragma once
// Painting of the whole structure on Disegno.

namespace telva {

// Clears the picture and paints axes, bars, shells, nodes and labels, in this order.
void DisegnaStruttura();

} // namespace telva
