#pragma once
// Which class shows which kind of control.

#include "platform/win32/pari_win32.h"

#include <memory>

namespace telva {

// The peer of a control, not yet born.
std::unique_ptr<PariWin32> CreaPari(Controllo &controllo, OspiteWin32 &finestra);

} // namespace telva
