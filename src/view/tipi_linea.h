#pragma once

#include "platform/superficie.h"

namespace telva {

// Dash pattern of a bar by its line type: 0 continuous (and any other), 1 dashed, 2 dotted,
// 3 dash-dot, 4 dash-dot-dot. `quanto` is the scale of the window: 1 at 100 %.
Trattini TrattiniLinea(int tipo, double quanto);

} // namespace telva
