#pragma once
// The pictures of menu items: pieces of the drawing, with its own colours, line types and hatches.

#include "platform/controlli.h"

namespace telva {

// As high as a check mark of the menu; of a colour as wide too, of lines and hatches three times.
// `quanto` is the scale of the window: 1 at 100 %. Without a picture, nothing.
Figura DisegnaFigura(const FiguraVoce &voce, int altezza, double quanto);

} // namespace telva
