#pragma once
// Shape of the mouse pointer over a window.

#include "platform/controlli.h"
#include "platform/win32/base_win32.h"

namespace telva {

// The module's shape, or that of the control under the pointer; false when the control keeps the
// shape of its kind.
bool MostraPuntatore(const Modulo &modulo, HWND sotto);
// A shape has changed: shows it at once, if the pointer stands on the window.
void RinnovaPuntatore(HWND finestra);

} // namespace telva
