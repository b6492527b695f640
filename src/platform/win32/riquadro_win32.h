#pragma once
// The message boxes of the system: what of a text they can show on the screen they come up on.

#include "platform/win32/base_win32.h"

#include <string>

namespace telva {

// The text as a box of this owner (or none) shows it whole: cut, and broken where a word is too
// long. It never fails: a box is the last that a faulty program can still say.
std::string NelRiquadro(const std::string &testo, HWND proprietaria);

} // namespace telva
