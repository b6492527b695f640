#pragma once

#include "selection/selezione.h"

namespace telva {

// Selects (or removes) every active element of the chosen kind that lies wholly inside the
// rectangle, in drawing units; `top` is its upper edge, y grows upwards. Redraws and shows the
// list.
void SelezionaFinestra(double left, double top, double width, double height, Segno segno);

} // namespace telva
