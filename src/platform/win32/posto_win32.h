#pragma once
// Where the user left the main window, remembered for each user from one run to the next.

#include "platform/controlli.h"
#include "platform/posto.h"
#include "platform/win32/base_win32.h"

#include <optional>

namespace telva {

// Nothing when there is none, or none that can be; the size is one that the module's window can
// have on the monitor nearest to the place.
std::optional<PostoFinestra> LeggiPosto(const Modulo &modulo);
// A place that cannot be written is forgotten without a word.
void ScriviPosto(const PostoFinestra &posto);
// Where a window stands, or will stand once it is neither minimised nor maximised; its visible size
// then is known to itself.
PostoFinestra PostoDi(HWND finestra, double larghezza, double altezza);
// The rectangle brought to a corner, or as near as the screen allows, where it hides no other
// window of the program exactly.
RECT PostoLibero(RECT r, POINT angolo, HWND finestra, double dpi);

} // namespace telva
